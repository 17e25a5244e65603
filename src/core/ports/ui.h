#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt {

// Answers of a message box, numbered as the program has always returned them.
enum class Answer { Ok = 1, Cancel = 2, Abort = 3, Retry = 4, Ignore = 5, Yes = 6, No = 7 };

enum class Buttons { Ok, OkCancel, AbortRetryIgnore, YesNoCancel, YesNo, RetryCancel };
enum class Icon { None, Stop, Question, Warning, Information };

struct MessageBox {
    std::string caption;
    std::string text;
    Buttons buttons = Buttons::Ok;
    Icon icon = Icon::None;
    int defaultButton = 1; // 1-based, among the box's buttons
    // Captions that replace the standard ones, button by button; empty keeps them.
    std::vector<std::string> buttonTexts = {};
};

struct Prompt {
    std::string caption;
    std::string text;
    std::string defaultText;
};

// A prompt with a choice beside its text: radio buttons under a title.
struct OptionPrompt {
    Prompt prompt;
    std::string optionsTitle;
    std::vector<std::string> options;
    int initial = 0; // 0-based
};

struct PromptAnswer {
    std::string text;
    int option = 0; // 0-based, among the prompt's options
};

// A pick from a list, as the drop-down dialogs offer.
struct Choice {
    std::string caption;
    std::string text;
    std::vector<std::string> options;
    int initial = 0; // 0-based
};

// A common file dialog. `filter` is in the program's form:
// "Description (*.ext)|*.ext|Other (*.x;*.y)|*.x;*.y".
struct FileDialog {
    std::string title;
    std::string filter;
    std::string directory;
    std::string fileName;
    bool save = false; // a save dialog: the file need not exist
};

// The answer a box gives when the user just presses Enter.
Answer DefaultAnswer(const MessageBox& box);
const char* AnswerName(Answer answer);

// Everything the program's logic asks of the person at the screen. The desktop
// shell answers with dialogs; tests and the command-line tool with a script.
class Ui {
public:
    virtual ~Ui() = default;
    virtual Answer Show(const MessageBox& box) = 0;
    // nullopt when the user cancelled.
    virtual std::optional<std::string> Ask(const Prompt& prompt) = 0;
    // nullopt when the user cancelled. Unless overridden, the text and then the
    // option are asked one after the other.
    virtual std::optional<PromptAnswer> AskWithOptions(const OptionPrompt& prompt);
    // The 0-based index of the option taken; nullopt when cancelled.
    virtual std::optional<int> Choose(const Choice& choice) = 0;
    // The path chosen; nullopt when cancelled.
    virtual std::optional<std::string> ChooseFile(const FileDialog& dialog) = 0;
    // Panels of the main window's status bar, counted from 1.
    virtual void SetPanelText(int panel, const std::string& text) = 0;
    virtual void SetBusy(bool busy) = 0;
    virtual void Beep() = 0;
    // A line for the debug window; shown only while its logging is on.
    virtual void DebugLog(const std::string& line) = 0;

    Answer Message(std::string text, std::string caption = {}, Buttons buttons = Buttons::Ok,
                   Icon icon = Icon::None) {
        return Show(MessageBox{std::move(caption), std::move(text), buttons, icon, 1});
    }
    void SetStatusText(const std::string& text) { SetPanelText(3, text); }
};

} // namespace zolt
