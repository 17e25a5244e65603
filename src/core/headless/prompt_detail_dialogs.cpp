#include "core/headless/prompt_detail_dialogs.h"

#include "core/ports/ui.h"

namespace zolt {

bool PromptDetailDialogs::Fill(DetailForm& form) {
    for (DetailField& field : form.fields) {
        const auto answer = ui_.Ask(Prompt{form.caption, field.label, field.text});
        if (!answer)
            return false;
        field.text = *answer;
    }
    return true;
}

std::optional<bool> PromptDetailDialogs::AskWireDelete(const std::string& wire) {
    const auto choice = ui_.Choose(
        Choice{"Delete Wire", "Delete wire " + wire, {"Wire only", "Wire and its uses"}, 0});
    if (!choice)
        return std::nullopt;
    return *choice == 1;
}

} // namespace zolt
