#pragma once

#include "core/ports/ui.h"

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace zolt {

// A Ui that answers from a queue and writes down everything it was shown. With
// the queue empty a box takes its default button and a prompt is cancelled.
class ScriptedUi final : public Ui {
public:
    struct TextAnswer {
        std::string text;
    };
    // A queued answer: a button, or a text for a prompt or a pick.
    struct Scripted {
        Scripted(Answer a) : answer(a) {}
        Scripted(TextAnswer t) : text(std::move(t.text)), isText(true) {}
        Answer answer = Answer::Ok;
        std::string text;
        bool isText = false;
    };

    struct Event {
        enum class Kind { Box, Prompt, Choice, File, Status, Debug } kind;
        std::string caption;
        std::string text;
        std::string answer; // the answer's name, or the prompt's text
        bool cancelled = false;
    };

    void Queue(Scripted answer) { queue_.push_back(std::move(answer)); }
    // Puts an answer before all others: the next box or prompt takes it.
    void QueueFirst(Scripted answer) { queue_.push_front(std::move(answer)); }
    std::size_t Pending() const { return queue_.size(); }
    // Every file dialog asked for, as it was asked (its proposed name included).
    const std::vector<FileDialog>& FileDialogs() const { return fileDialogs_; }

    Answer Show(const MessageBox& box) override;
    std::optional<std::string> Ask(const Prompt& prompt) override;
    // Takes one answer for the text; the option from the next queued text only
    // when it names one of the options, else the initial one.
    std::optional<PromptAnswer> AskWithOptions(const OptionPrompt& prompt) override;
    std::optional<int> Choose(const Choice& choice) override;
    std::optional<std::string> ChooseFile(const FileDialog& dialog) override;
    void SetPanelText(int panel, const std::string& text) override;
    void SetBusy(bool busy) override { busy_ = busy; }
    void Beep() override { ++beeps_; }
    void DebugLog(const std::string& line) override;

    const std::vector<Event>& Events() const { return events_; }
    std::vector<MessageBox> Boxes() const;
    const std::vector<MessageBox>& ShownBoxes() const { return boxes_; }
    void ClearEvents() {
        events_.clear();
        boxes_.clear();
    }
    std::string PanelText(int panel) const;
    int Beeps() const { return beeps_; }
    bool Busy() const { return busy_; }
    // Called for each event as it happens (the command-line tool prints them).
    void OnEvent(std::function<void(const Event&)> listener) { listener_ = std::move(listener); }

private:
    void record(Event event);
    std::optional<Scripted> takeNext();

    std::deque<Scripted> queue_;
    std::vector<Event> events_;
    std::vector<MessageBox> boxes_;
    std::vector<FileDialog> fileDialogs_;
    std::vector<std::string> panels_ = std::vector<std::string>(4);
    std::function<void(const Event&)> listener_;
    int beeps_ = 0;
    bool busy_ = false;
};

} // namespace zolt
