#pragma once

#include <QDialog>
#include <vector>

class QTabWidget;

namespace zolt {
class ProgramState;
}

namespace zolt::shell {

// frmProperties: the project's descriptive texts on two pages. Enter moves to
// the next field, from the last field of a page on to the next page; Escape cancels.
class PropertiesDialog : public QDialog {
    Q_OBJECT
public:
    explicit PropertiesDialog(ProgramState& state, QWidget* parent = nullptr);
    void accept() override;

    // The field of each property, in the order of its key.
    const std::vector<QWidget*>& fields() const { return fields_; }
    QTabWidget& pages() const { return *pages_; }

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QWidget* buildGeneralPage(const std::vector<std::string>& texts);
    QWidget* buildCustomPage(const std::vector<std::string>& texts);
    QWidget* addField(QWidget* parent, std::size_t index, const std::string& text);
    void moveOn(QWidget* from);

    ProgramState& state_;
    QTabWidget* pages_;
    std::vector<QWidget*> fields_;
    QWidget* ok_ = nullptr;
};

} // namespace zolt::shell
