#include "settings/file_properties.h"

#include "core/program_state.h"

namespace zolt::settings {

const std::vector<ParamKey>& PropertyKeys() {
    static const std::vector<ParamKey> keys = [] {
        std::vector<ParamKey> list = {
            param::PartNumber, param::Revision,         param::Author,
            param::Manager,    param::Company,          param::CompanyLocation,
            param::Customer,   param::CustomerLocation, param::Notes};
        for (std::size_t i = 0; i < std::size(param::CustomTitle); ++i) {
            list.push_back(param::CustomTitle[i]);
            list.push_back(param::CustomComment[i]);
        }
        return list;
    }();
    return keys;
}

std::vector<std::string> LoadProperties(ProgramState& state) {
    std::vector<std::string> texts;
    for (ParamKey key : PropertyKeys())
        texts.push_back(state.params().Text(key));
    return texts;
}

void WriteProperties(ProgramState& state, const std::vector<std::string>& texts) {
    state.history().NameStep("Properties");
    const auto& keys = PropertyKeys();
    for (std::size_t i = 0; i < keys.size() && i < texts.size(); ++i)
        state.params().SetVal(keys[i], Value(texts[i]));
    state.SetDirty(true);
}

} // namespace zolt::settings
