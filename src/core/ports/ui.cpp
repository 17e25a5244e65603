#include "core/ports/ui.h"

#include <array>
#include <vector>

namespace zolt {

namespace {
std::vector<Answer> buttonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return {Answer::Ok};
    case Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Buttons::AbortRetryIgnore:
        return {Answer::Abort, Answer::Retry, Answer::Ignore};
    case Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::RetryCancel:
        return {Answer::Retry, Answer::Cancel};
    }
    return {Answer::Ok};
}
} // namespace

Answer DefaultAnswer(const MessageBox& box) {
    const auto answers = buttonsOf(box.buttons);
    const auto index = static_cast<std::size_t>(box.defaultButton - 1);
    return index < answers.size() ? answers[index] : answers.front();
}

std::optional<PromptAnswer> Ui::AskWithOptions(const OptionPrompt& prompt) {
    auto text = Ask(prompt.prompt);
    if (!text)
        return std::nullopt;
    if (prompt.options.empty())
        return PromptAnswer{std::move(*text), 0};
    const auto option =
        Choose({prompt.prompt.caption, prompt.optionsTitle, prompt.options, prompt.initial});
    if (!option)
        return std::nullopt;
    return PromptAnswer{std::move(*text), *option};
}

const char* AnswerName(Answer answer) {
    static constexpr std::array<const char*, 8> names = {"",      "OK",     "CANCEL", "ABORT",
                                                         "RETRY", "IGNORE", "YES",    "NO"};
    return names[static_cast<std::size_t>(answer)];
}

} // namespace zolt
