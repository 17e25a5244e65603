#pragma once

#include "core/ports/ui.h"

#include <QMessageBox>
#include <functional>

class QWidget;

namespace zolt {

// Qt's dialogs behind the Ui port. The shell tells it where status text and
// debug lines go.
class QtUi final : public Ui {
public:
    explicit QtUi(QWidget* parent = nullptr) : parent_(parent) {}

    void SetParent(QWidget* parent) { parent_ = parent; }
    void OnPanelText(std::function<void(int, const std::string&)> sink) {
        panelSink_ = std::move(sink);
    }
    void OnDebugLine(std::function<void(const std::string&)> sink) { debugSink_ = std::move(sink); }

    Answer Show(const MessageBox& box) override;
    std::optional<std::string> Ask(const Prompt& prompt) override;
    std::optional<PromptAnswer> AskWithOptions(const OptionPrompt& prompt) override;
    std::optional<int> Choose(const Choice& choice) override;
    std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
    void SetPanelText(int panel, const std::string& text) override;
    void SetBusy(bool busy) override;
    void Beep() override;
    void DebugLog(const std::string& line) override;

private:
    QWidget* parent_;
    std::function<void(int, const std::string&)> panelSink_;
    std::function<void(const std::string&)> debugSink_;
    int busyDepth_ = 0;
};

// The Qt buttons, icon and default button of a box, and the answer of a pressed button.
QMessageBox::StandardButtons QtButtonsOf(Buttons buttons);
QMessageBox::Icon QtIconOf(Icon icon);
QMessageBox::StandardButton QtDefaultButtonOf(const MessageBox& box);
Answer AnswerOf(QMessageBox::StandardButton button);
// "Description (*.ext)|*.ext|…" as Qt's name filters: the descriptions, one a line.
QStringList QtNameFilters(const std::string& filter);

} // namespace zolt
