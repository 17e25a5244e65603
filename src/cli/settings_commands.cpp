// The settings dialogs typed into from a script: File Settings, ZOLT Settings,
// Properties and the privilege dialog.
#include "cli/batch_session.h"
#include "cli/commands.h"
#include "settings/file_properties.h"
#include "settings/file_settings.h"
#include "settings/privilege.h"
#include "settings/zolt_settings.h"

#include <algorithm>

namespace zolt::cli {
namespace {

using namespace zolt::settings;

struct FieldKey {
    std::string_view key;
    Field field;
};

// The resistance is no parameter: the dialog works it out from threshold and current.
constexpr FieldKey kFieldKeys[] = {
    {param::DwellTime.Name(), Field::DwellTime},
    {param::AutoStartTestPoint.Name(), Field::StartTestPoint},
    {param::TestVoltage.Name(), Field::TestVoltage},
    {param::TestCurrent.Name(), Field::TestCurrent},
    {param::Threshold.Name(), Field::Threshold},
    {"TestResistance", Field::TestResistance},
    {param::CompLogMask.Name(), Field::CompLogMask},
};

bool flagOf(const std::string& word) {
    for (const char* on : {"1", "on", "true", "yes"})
        if (vb::TextEqualsNoCase(word, on))
            return true;
    for (const char* off : {"0", "off", "false", "no"})
        if (vb::TextEqualsNoCase(word, off))
            return false;
    throw CommandError("'" + word + "' is no check box state (1 or 0)");
}

void requirePairs(const BatchSession::Args& args, std::size_t first, const std::string& usage) {
    if (args.size() <= first || (args.size() - first) % 2 != 0)
        throw CommandError("usage: " + usage);
}

const CheckKey* checkKey(const std::string& word, bool& allowedBox) {
    for (const CheckKey& check : kCheckKeys) {
        if (vb::TextEqualsNoCase(word, check.key.Name())) {
            allowedBox = false;
            return &check;
        }
        if (vb::TextEqualsNoCase(word, check.allowed.Name())) {
            allowedBox = true;
            return &check;
        }
    }
    return nullptr;
}

// One change typed into the File Settings dialog; false when a field refused
// its text, which leaves the dialog unable to take OK.
bool typeFileSetting(FileSettings& dialog, const std::string& key, const std::string& value) {
    bool allowedBox = false;
    if (const CheckKey* check = checkKey(key, allowedBox)) {
        if (allowedBox) {
            if (!dialog.SetAllowed(check->key, flagOf(value)))
                throw CommandError(std::string(check->allowed.Name()) +
                                   " is shown in privileged mode only");
        } else {
            if (!dialog.CheckEnabled(check->key))
                throw CommandError(std::string(check->key.Name()) + "'s check box is disabled");
            dialog.SetChecked(check->key, flagOf(value));
        }
        return true;
    }
    if (vb::TextEqualsNoCase(key, param::Group.Name())) {
        if (vb::TextEqualsNoCase(value, "group"))
            dialog.SetGroupMethod(true);
        else if (vb::TextEqualsNoCase(value, "wires"))
            dialog.SetGroupMethod(false);
        else
            throw CommandError("Group is 'group' or 'wires', not '" + value + "'");
        return true;
    }
    if (vb::TextEqualsNoCase(key, param::SwitchType.Name())) {
        const int type = ParseInt(value, "SwitchType");
        if (type < 1 || type > 3)
            throw CommandError("SwitchType is 1, 2 or 3");
        dialog.SetSwitchType(type);
        return true;
    }
    for (const FieldKey& f : kFieldKeys)
        if (vb::TextEqualsNoCase(key, f.key)) {
            if (f.field == Field::CompLogMask && !dialog.Privileged())
                throw CommandError("CompLogMask is shown in privileged mode only");
            return dialog.Leave(f.field, value);
        }
    throw CommandError("unknown file setting '" + key + "'");
}

void fileSettings(BatchSession& s, const BatchSession::Args& args) {
    FileSettings dialog(s.RequireProject());
    bool accepted = true;
    for (std::size_t i = 1; i + 1 < args.size() && accepted; i += 2)
        accepted = typeFileSetting(dialog, args[i], args[i + 1]);
    if (accepted)
        dialog.Ok();
    dialog.Close();
}

std::string itemText(const char* item) {
    return item;
}
std::string itemText(int item) {
    return std::to_string(item);
}

// A pick from one of the serial page's lists.
template <typename T, std::size_t N>
T fromList(const std::array<T, N>& list, const std::string& word, const std::string& what) {
    for (const T& item : list)
        if (vb::TextEqualsNoCase(word, itemText(item)))
            return item;
    throw CommandError("'" + word + "' is no " + what);
}

void zoltSettings(BatchSession& s, const BatchSession::Args& args) {
    ZoltSettingsValues values = LoadZoltSettings(s.state());
    for (std::size_t i = 1; i + 1 < args.size(); i += 2) {
        const std::string& key = args[i];
        const std::string& value = args[i + 1];
        const auto directory =
            std::find_if(kDirectoryKeys.begin(), kDirectoryKeys.end(),
                         [&](ParamKey k) { return vb::TextEqualsNoCase(key, k.Name()); });
        if (directory != kDirectoryKeys.end())
            values.directories[directory - kDirectoryKeys.begin()] = value;
        else if (vb::TextEqualsNoCase(key, param::CommPort.Name()))
            values.port = value;
        else if (vb::TextEqualsNoCase(key, param::Baud.Name()))
            values.baud = fromList(kBaudRates, value, "baud rate");
        else if (vb::TextEqualsNoCase(key, param::Parity.Name()))
            values.parity = fromList(kParities, value, "parity");
        else if (vb::TextEqualsNoCase(key, param::DataBits.Name()))
            values.dataBits = fromList(kDataBits, value, "number of data bits");
        else if (vb::TextEqualsNoCase(key, param::StopBits.Name()))
            values.stopBits = fromList(kStopBits, value, "number of stop bits");
        else if (vb::TextEqualsNoCase(key, "LabelApplication"))
            values.labelApplication = value;
        else if (vb::TextEqualsNoCase(key, interchange::kConnectorPrefixesKey))
            values.connectorPrefixes = value;
        else
            throw CommandError("unknown ZOLT setting '" + key + "'");
    }
    ApplyZoltSettings(s.state(), values);
}

void settingsCommand(BatchSession& s, const BatchSession::Args& args) {
    const std::string usage = "settings file|zolt KEY VALUE...";
    requirePairs(args, 1, usage);
    if (args[0] == "file")
        fileSettings(s, args);
    else if (args[0] == "zolt")
        zoltSettings(s, args);
    else
        throw CommandError("usage: " + usage);
}

void propertiesCommand(BatchSession& s, const BatchSession::Args& args) {
    requirePairs(args, 0, "properties KEY VALUE...");
    ProgramState& state = s.RequireProject();
    std::vector<std::string> texts = LoadProperties(state);
    const auto& keys = PropertyKeys();
    for (std::size_t i = 0; i + 1 < args.size(); i += 2) {
        const auto key = std::find_if(keys.begin(), keys.end(), [&](ParamKey k) {
            return vb::TextEqualsNoCase(args[i], k.Name());
        });
        if (key == keys.end())
            throw CommandError("unknown property '" + args[i] + "'");
        texts[key - keys.begin()] = args[i + 1];
    }
    WriteProperties(state, texts);
}

void privilegeCommand(BatchSession& s, const BatchSession::Args& args) {
    RequireArgs(args, 2, 2, "privilege USER PASSWORD");
    UnlockPrivilegedMode(s.state(), args[0], args[1]);
}

} // namespace

void RegisterSettingsCommands(BatchSession& session) {
    session.Register("settings", settingsCommand);
    session.Register("properties", propertiesCommand);
    session.Register("privilege", privilegeCommand);
}

} // namespace zolt::cli
