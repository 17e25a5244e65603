#pragma once

#include "settings/file_settings.h"

#include <QDialog>
#include <map>
#include <optional>
#include <utility>

class QCheckBox;
class QLineEdit;
class QRadioButton;
class QTabWidget;
class QWidget;

namespace zolt::shell {

// frmSettings, "File Settings": the project's switches and test values. Each
// typed field is checked as it loses the focus; OK checks them all once more.
// Ctrl+Shift+P (the hidden `cmdHotkey`) asks for privileged mode.
class FileSettingsDialog : public QDialog {
    Q_OBJECT
public:
    explicit FileSettingsDialog(ProgramState& state, QWidget* parent = nullptr);
    ~FileSettingsDialog() override;

    void accept() override;
    void reject() override;
    // The privilege dialog's answer, as the hotkey gives it.
    void Unlock(const QString& user, const QString& password);

    QCheckBox* Check(ParamKey key) const { return checks_.at(key); }
    QCheckBox* AllowedCheck(ParamKey key) const { return allowed_.at(key); }
    QLineEdit* Edit(settings::Field field) const { return edits_.at(field); }
    QRadioButton* SwitchTypeOption(int type) const { return switchTypes_.at(type); }
    QRadioButton* GroupOption() const { return optGroup_; }
    QRadioButton* WiresOption() const { return optWires_; }
    QTabWidget& pages() const { return *pages_; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* buildOptionsPage();
    QWidget* buildValuesPage();
    void checkClicked(ParamKey key, bool checked);
    void switchTypeChosen(int type);
    // A field lost the focus: false when its text was refused. A text refused
    // once only takes the focus back when left again; OK shows its box anew.
    enum class Leaving { ByFocus, ByOk };
    bool leave(settings::Field field, Leaving how);
    void showTexts();
    void showPrivilege();
    void askPrivilege();

    settings::FileSettings model_;
    QTabWidget* pages_;
    std::map<ParamKey, QCheckBox*> checks_;
    std::map<ParamKey, QCheckBox*> allowed_;
    std::map<int, QRadioButton*> switchTypes_;
    std::map<settings::Field, QLineEdit*> edits_;
    // The model's texts as the fields were last given them.
    std::map<settings::Field, std::string> shown_;
    bool shownOnce_ = false;
    QRadioButton* optGroup_ = nullptr;
    QRadioButton* optWires_ = nullptr;
    QWidget* compilerOptions_ = nullptr;
    // A field's box is up, or the dialog is closing: focus changes are no user's.
    bool checking_ = false;
    bool closed_ = false;
    // The field and text of the last refusal, while the field still holds it.
    std::optional<std::pair<settings::Field, QString>> refused_;
};

} // namespace zolt::shell
