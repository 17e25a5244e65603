#include "settings/file_properties.h"

#include "core/program_state.h"

namespace zolt::settings {

const std::vector<std::string>& PropertyKeys() {
    static const std::vector<std::string> keys = [] {
        std::vector<std::string> list = {"PartNumber", "Revision",         "Author",
                                         "Manager",    "Company",          "CompanyLocation",
                                         "Customer",   "CustomerLocation", "Notes"};
        for (int i = 1; i <= 8; ++i) {
            list.push_back("CustomTitle" + std::to_string(i));
            list.push_back("CustomComment" + std::to_string(i));
        }
        return list;
    }();
    return keys;
}

std::vector<std::string> LoadProperties(ProgramState& state) {
    std::vector<std::string> texts;
    for (const std::string& key : PropertyKeys())
        texts.push_back(state.Params().Text(key));
    return texts;
}

void WriteProperties(ProgramState& state, const std::vector<std::string>& texts) {
    state.History().NameStep("Properties");
    const auto& keys = PropertyKeys();
    for (std::size_t i = 0; i < keys.size() && i < texts.size(); ++i)
        state.Params().SetVal(keys[i], Value(texts[i]));
    state.SetDirty(true);
}

} // namespace zolt::settings
