#include "core/headless/scripted_ui.h"

#include "core/value.h"

namespace zolt {

void ScriptedUi::record(Event event) {
    events_.push_back(event);
    if (listener_)
        listener_(events_.back());
}

Answer ScriptedUi::Show(const MessageBox& box) {
    Answer answer = DefaultAnswer(box);
    if (!queue_.empty() && !queue_.front().isText) {
        answer = queue_.front().answer;
        queue_.pop_front();
    }
    boxes_.push_back(box);
    record({Event::Kind::Box, box.caption, box.text, AnswerName(answer), false});
    return answer;
}

std::optional<ScriptedUi::Scripted> ScriptedUi::takeNext() {
    if (queue_.empty())
        return std::nullopt;
    Scripted front = std::move(queue_.front());
    queue_.pop_front();
    return front;
}

std::optional<std::string> ScriptedUi::Ask(const Prompt& prompt) {
    std::optional<std::string> result;
    if (const auto next = takeNext()) {
        if (next->isText)
            result = next->text;
        else if (next->answer == Answer::Ok || next->answer == Answer::Yes)
            result = prompt.defaultText;
    }
    record({Event::Kind::Prompt, prompt.caption, prompt.text, result.value_or(""), !result});
    return result;
}

std::optional<PromptAnswer> ScriptedUi::AskWithOptions(const OptionPrompt& prompt) {
    auto text = Ask(prompt.prompt);
    if (!text)
        return std::nullopt;
    if (!queue_.empty() && queue_.front().isText)
        for (std::size_t i = 0; i < prompt.options.size(); ++i)
            if (vb::TextEqualsNoCase(prompt.options[i], queue_.front().text)) {
                queue_.pop_front();
                record({Event::Kind::Choice, prompt.prompt.caption, prompt.optionsTitle,
                        prompt.options[i], false});
                return PromptAnswer{std::move(*text), static_cast<int>(i)};
            }
    return PromptAnswer{std::move(*text), prompt.initial};
}

std::optional<int> ScriptedUi::Choose(const Choice& choice) {
    std::optional<int> result;
    if (const auto next = takeNext()) {
        if (next->isText) {
            for (std::size_t i = 0; i < choice.options.size() && !result; ++i)
                if (vb::TextEqualsNoCase(choice.options[i], next->text))
                    result = static_cast<int>(i);
        } else if (next->answer == Answer::Ok && !choice.options.empty()) {
            result = choice.initial;
        }
    }
    const std::string taken = result ? choice.options[static_cast<std::size_t>(*result)] : "";
    record({Event::Kind::Choice, choice.caption, choice.text, taken, !result});
    return result;
}

std::optional<std::string> ScriptedUi::ChooseFile(const FileDialog& dialog) {
    std::optional<std::string> result;
    fileDialogs_.push_back(dialog);
    if (const auto next = takeNext(); next && next->isText)
        result = next->text;
    record({Event::Kind::File, dialog.title, dialog.filter, result.value_or(""), !result});
    return result;
}

void ScriptedUi::SetPanelText(int panel, const std::string& text) {
    if (panel >= 1 && panel < static_cast<int>(panels_.size()))
        panels_[static_cast<std::size_t>(panel)] = text;
    if (panel == 3)
        record({Event::Kind::Status, {}, text, {}, false});
}

void ScriptedUi::DebugLog(const std::string& line) {
    record({Event::Kind::Debug, {}, line, {}, false});
}

std::vector<MessageBox> ScriptedUi::Boxes() const {
    return boxes_;
}

std::string ScriptedUi::PanelText(int panel) const {
    return panel >= 1 && panel < static_cast<int>(panels_.size())
               ? panels_[static_cast<std::size_t>(panel)]
               : std::string();
}

} // namespace zolt
