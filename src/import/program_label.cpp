#include "import/program_label.h"

#include "core/ports/ui.h"
#include "file/path_names.h"

#include <filesystem>

namespace zolt::import {

bool IsValidProgramLabel(const std::string& path) {
    if (path.find(':', 2) != std::string::npos)
        return false;
    const std::string name = file::FileNameOf(path);
    return name.size() < 216 && name.find_first_of("?*\\/:<>|") == std::string::npos;
}

std::optional<std::string> EditProgramLabel(Ui& ui, const std::string& folder,
                                            const std::string& label) {
    std::string proposed = label;
    for (;;) {
        const auto typed = ui.Ask(Prompt{
            "Edit Program Label", "Please enter a valid Program Label for this file:", proposed});
        if (!typed)
            return std::nullopt;
        // An empty text closes nothing.
        if (typed->empty())
            continue;
        const std::string path = (std::filesystem::path(folder) / (*typed + ".zlf")).string();
        if (IsValidProgramLabel(path) && typed->find_first_of("\\/") == std::string::npos)
            return *typed;
        ui.Message("The Program Label '" + *typed +
                       "' is invalid.\nA valid Program Label must be less than 215 characters in "
                       "length and may not contain any of the following characters: /\\:*?\"<>|",
                   "Edit Program Label", Buttons::Ok, Icon::Warning);
        proposed.clear();
    }
}

} // namespace zolt::import
