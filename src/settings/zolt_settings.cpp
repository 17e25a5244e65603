#include "settings/zolt_settings.h"

#include "compile/compile_commands.h"
#include "core/app_info.h"
#include "core/ports/settings_store.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "download/download_request.h"

#include <filesystem>

namespace zolt::settings {
namespace {

// Directories and serial settings belong to the user, not to the project's edit history.
void store(CParamList& params, ParamKey key, Value value) {
    CParameter& p = params.GetParam(key);
    p.Group = key.Definition().group;
    p.Val = std::move(value);
}

// The number of a "COMn" name; nullopt for any other device.
std::optional<int> comNumber(const std::string& device) {
    if (device.size() < 4 || vb::UCase(device.substr(0, 3)) != "COM")
        return std::nullopt;
    const std::string digits = device.substr(3);
    if (digits.find_first_not_of("0123456789") != std::string::npos || digits.size() > 3)
        return std::nullopt;
    return std::stoi(digits);
}

} // namespace

ZoltSettingsValues LoadZoltSettings(ProgramState& state) {
    CParamList& p = state.params();
    ZoltSettingsValues v;
    for (std::size_t i = 0; i < kDirectoryKeys.size(); ++i)
        v.directories[i] = p.Text(kDirectoryKeys[i]);
    v.port = download::CommDeviceName(p.Text(param::CommDevice),
                                      static_cast<int>(p.Number(param::CommPort)));
    v.baud = static_cast<int>(p.Number(param::Baud));
    v.parity = p.Text(param::Parity);
    v.dataBits = static_cast<int>(p.Number(param::DataBits));
    v.stopBits = static_cast<int>(p.Number(param::StopBits));
    v.labelApplication =
        state.settings().ReadOr(compile::kLabelSettingsSection, compile::kLabelApplicationKey, "");
    v.connectorPrefixes =
        state.settings().ReadOr(interchange::kDrawingsSection, interchange::kConnectorPrefixesKey,
                                interchange::kDefaultConnectorPrefixes);
    v.appearance = LoadTableAppearance(state.settings());
    return v;
}

std::optional<ZoltSettingsRefusal> ApplyZoltSettings(ProgramState& state,
                                                     const ZoltSettingsValues& v) {
    std::error_code ec;
    for (std::size_t i = 0; i < v.directories.size(); ++i)
        if (!std::filesystem::is_directory(v.directories[i], ec)) {
            state.ui().Message("Invalid Directory or Drive Not Available", kAppTitle, Buttons::Ok,
                               Icon::Warning);
            return ZoltSettingsRefusal{ZoltSettingsRefusal::Where::Directory, static_cast<int>(i)};
        }
    const std::string label = vb::Trim(v.labelApplication);
    if (!label.empty() && !std::filesystem::is_regular_file(label, ec)) {
        state.ui().Message("The application to create labels CANNOT be found.",
                           "Labelark Software Not Found", Buttons::Ok, Icon::Warning);
        return ZoltSettingsRefusal{ZoltSettingsRefusal::Where::LabelApplication, 0};
    }
    if (const std::string why = interchange::ConnectorPrefixesRefusal(v.connectorPrefixes);
        !why.empty()) {
        state.ui().Message(why, "Connector Prefixes", Buttons::Ok, Icon::Warning);
        return ZoltSettingsRefusal{ZoltSettingsRefusal::Where::ConnectorPrefixes, 0};
    }

    CParamList& p = state.params();
    for (std::size_t i = 0; i < v.directories.size(); ++i)
        store(p, kDirectoryKeys[i], Value(v.directories[i]));
    p.SaveDirectoryParameters();

    if (const auto number = comNumber(v.port))
        store(p, param::CommPort, Value(std::int32_t{*number}));
    store(p, param::CommDevice, Value(v.port));
    store(p, param::Baud, Value(std::int32_t{v.baud}));
    store(p, param::Parity, Value(v.parity.empty() ? std::string("NONE") : v.parity));
    store(p, param::DataBits, Value(std::int32_t{v.dataBits}));
    store(p, param::StopBits, Value(std::int32_t{v.stopBits}));
    p.SaveCommParameters();

    state.settings().Write(compile::kLabelSettingsSection, compile::kLabelApplicationKey, label);
    std::string prefixes;
    for (const std::string& prefix : interchange::ConnectorPrefixesOf(v.connectorPrefixes))
        prefixes += (prefixes.empty() ? "" : ",") + prefix;
    state.settings().Write(interchange::kDrawingsSection, interchange::kConnectorPrefixesKey,
                           prefixes);
    SaveTableAppearance(state.settings(), v.appearance);
    return std::nullopt;
}

} // namespace zolt::settings
