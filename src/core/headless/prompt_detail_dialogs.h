#pragma once

#include "core/ports/detail_dialogs.h"

namespace zolt {

class Ui;

// The detail dialogs as a row of prompts and picks of the Ui: every field is
// asked under the form's caption, shown or not, in order.
class PromptDetailDialogs final : public DetailDialogs {
public:
    explicit PromptDetailDialogs(Ui& ui) : ui_(ui) {}

    bool Fill(DetailForm& form) override;
    std::optional<bool> AskWireDelete(const std::string& wire) override;

private:
    Ui& ui_;
};

} // namespace zolt
