#pragma once

#include "core/param_keys.h"
#include "interchange/drawing_formats.h"
#include "settings/table_appearance.h"

#include <array>
#include <optional>
#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::settings {

// The directories of the user's settings, in the order the dialog shows them.
inline constexpr std::array<ParamKey, 5> kDirectoryKeys = {
    param::ProgramsDirectory, param::TemplatesDirectory, param::BackupFilesDirectory,
    param::EJFDirectory, param::PIDDirectory};

inline constexpr std::array<int, 8> kBaudRates = {1200,  2400,  4800,  9600,
                                                  19200, 38400, 57600, 115200};
inline constexpr std::array<const char*, 5> kParities = {"NONE", "EVEN", "ODD", "MARK", "SPACE"};
inline constexpr std::array<int, 4> kDataBits = {5, 6, 7, 8};
inline constexpr std::array<int, 2> kStopBits = {1, 2};

// What the ZOLT Settings dialog edits: the user's directories, the serial port,
// the label application and how the tables look.
struct ZoltSettingsValues {
    std::array<std::string, 5> directories;
    // The platform's name of the port ("/dev/ttyUSB0", "COM3").
    std::string port;
    int baud = 9600;
    // Empty when nothing is selected: written as "NONE".
    std::string parity = "NONE";
    int dataBits = 8;
    int stopBits = 1;
    // Empty when the label application is not installed.
    std::string labelApplication;
    // The KiCad reference prefixes read as connectors, as a list ("J,P,X").
    std::string connectorPrefixes = interchange::kDefaultConnectorPrefixes;
    TableAppearance appearance;
};

// The values as they stand in the parameter store and the settings.
ZoltSettingsValues LoadZoltSettings(ProgramState& state);

// Which field refused OK, so that the dialog can give it the focus.
struct ZoltSettingsRefusal {
    enum class Where { Directory, LabelApplication, ConnectorPrefixes } where;
    int index = 0; // the directory, in the order of kDirectoryKeys
};

// OK: every directory must exist, a label application given must be a file and
// the connector prefixes a list of letters; otherwise the refusal's box and
// which field it is about, with nothing written. Then the directories, the
// serial settings, the label application, the connector prefixes (upper case,
// without blanks) and the table appearance are written.
std::optional<ZoltSettingsRefusal> ApplyZoltSettings(ProgramState& state,
                                                     const ZoltSettingsValues& values);

} // namespace zolt::settings
