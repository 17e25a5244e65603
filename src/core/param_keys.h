#pragma once

#include <cstddef>
#include <iterator>
#include <string_view>

namespace zolt {

// Where a parameter is kept; the numbers are the ones the program file holds.
enum class ParamGroup {
    Directory = 0, // "User Settings"
    File = 1,      // travels in the program file
    Comm = 2,      // "Comm Settings"
};

// What a parameter's value is converted to; numbered as in the program file.
enum class ParamType { Text = 0, Boolean = 1, Integer = 2, Real = 3 };

// What a parameter holds before anything is read or set. A directory's is a
// folder below the data directory; a comm setting's is the text its type converts.
struct ParamDefault {
    enum class Form { Text, Boolean, Long, Double, DataFolder };
    Form form = Form::Text;
    std::string_view text = {};
    double number = 0.0;
};

namespace param_default {
constexpr ParamDefault Text(std::string_view text) {
    return {ParamDefault::Form::Text, text};
}
constexpr ParamDefault Flag(bool on) {
    return {ParamDefault::Form::Boolean, {}, on ? 1.0 : 0.0};
}
constexpr ParamDefault Long(int n) {
    return {ParamDefault::Form::Long, {}, static_cast<double>(n)};
}
constexpr ParamDefault Real(double n) {
    return {ParamDefault::Form::Double, {}, n};
}
constexpr ParamDefault Folder(std::string_view sub) {
    return {ParamDefault::Form::DataFolder, sub};
}
} // namespace param_default

struct ParamDefinition {
    std::string_view name;
    ParamGroup group;
    ParamType type;
    ParamDefault value;
    // A directory's name in the box that reports it missing.
    std::string_view caption = {};
};

// Every parameter the program knows, each group in the order it is loaded,
// saved and listed.
inline constexpr ParamDefinition kParamDefinitions[] = {
    {"AutoStartTestPoint", ParamGroup::File, ParamType::Text, param_default::Text("0-000")},
    {"Group", ParamGroup::File, ParamType::Boolean, param_default::Flag(false)},
    {"CompLogMask", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"CompWarnings", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"CompWarningsAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    // An integer with a fractional default: the value stays 0.1 until set.
    {"DwellTime", ParamGroup::File, ParamType::Integer, param_default::Real(0.1)},
    {"GridLocation", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"GridLocationAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"LampPin", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"LampPinAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"ManualNet", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"ManualNetAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"SeqBuild", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"SeqBuildAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"Switches", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"SwitchesAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"SwitchType", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"TestCurrent", ParamGroup::File, ParamType::Real, param_default::Real(2.0)},
    {"TestVoltage", ParamGroup::File, ParamType::Real, param_default::Real(5.0)},
    {"Threshold", ParamGroup::File, ParamType::Real, param_default::Real(2.0)},
    {"UpperCase", ParamGroup::File, ParamType::Integer, param_default::Long(0)},
    {"UpperCaseAllowed", ParamGroup::File, ParamType::Integer, param_default::Long(1)},
    {"PartNumber", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Revision", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Author", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Manager", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Company", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CompanyLocation", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Customer", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomerLocation", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle1", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment1", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle2", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment2", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle3", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment3", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle4", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment4", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle5", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment5", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle6", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment6", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle7", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment7", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomTitle8", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"CustomComment8", ParamGroup::File, ParamType::Text, param_default::Text("")},
    {"Notes", ParamGroup::File, ParamType::Text, param_default::Text("")},

    {"ProgramsDirectory", ParamGroup::Directory, ParamType::Text, param_default::Folder(""),
     "Program Directory"},
    {"TemplatesDirectory", ParamGroup::Directory, ParamType::Text,
     param_default::Folder("Templates"), "Template Directory"},
    {"BackupFilesDirectory", ParamGroup::Directory, ParamType::Text,
     param_default::Folder("Backups"), "Backup Directory"},
    {"EJFDirectory", ParamGroup::Directory, ParamType::Text, param_default::Folder("Labels"),
     "Labels Directory"},
    {"PIDDirectory", ParamGroup::Directory, ParamType::Text, param_default::Folder("Pid"),
     "PID Directory"},

    {"Baud", ParamGroup::Comm, ParamType::Integer, param_default::Text("9600")},
    {"CommPort", ParamGroup::Comm, ParamType::Integer, param_default::Text("1")},
    {"DataBits", ParamGroup::Comm, ParamType::Integer, param_default::Text("8")},
    {"Parity", ParamGroup::Comm, ParamType::Text, param_default::Text("NONE")},
    {"StopBits", ParamGroup::Comm, ParamType::Integer, param_default::Text("1")},
    // The platform's name of the port (/dev/ttyUSB0, COM3); empty: derived from CommPort.
    {"CommDevice", ParamGroup::Comm, ParamType::Text, param_default::Text("")},
};

// A parameter known to exist: it can only be made from a name of the list
// above, at compile time, so a misspelt key does not build.
class ParamKey {
public:
    static consteval ParamKey Named(std::string_view name) {
        for (std::size_t i = 0; i < std::size(kParamDefinitions); ++i)
            if (kParamDefinitions[i].name == name)
                return ParamKey(i);
        throw "no parameter of that name";
    }

    constexpr const ParamDefinition& Definition() const { return kParamDefinitions[index_]; }
    constexpr std::string_view Name() const { return Definition().name; }
    friend constexpr auto operator<=>(ParamKey, ParamKey) = default;

private:
    constexpr explicit ParamKey(std::size_t index) : index_(index) {}
    std::size_t index_;
};

// The keys the code reads and writes by name.
namespace param {
inline constexpr ParamKey AutoStartTestPoint = ParamKey::Named("AutoStartTestPoint");
inline constexpr ParamKey Group = ParamKey::Named("Group");
inline constexpr ParamKey CompLogMask = ParamKey::Named("CompLogMask");
inline constexpr ParamKey CompWarnings = ParamKey::Named("CompWarnings");
inline constexpr ParamKey CompWarningsAllowed = ParamKey::Named("CompWarningsAllowed");
inline constexpr ParamKey DwellTime = ParamKey::Named("DwellTime");
inline constexpr ParamKey GridLocation = ParamKey::Named("GridLocation");
inline constexpr ParamKey GridLocationAllowed = ParamKey::Named("GridLocationAllowed");
inline constexpr ParamKey LampPin = ParamKey::Named("LampPin");
inline constexpr ParamKey LampPinAllowed = ParamKey::Named("LampPinAllowed");
inline constexpr ParamKey ManualNet = ParamKey::Named("ManualNet");
inline constexpr ParamKey ManualNetAllowed = ParamKey::Named("ManualNetAllowed");
inline constexpr ParamKey SeqBuild = ParamKey::Named("SeqBuild");
inline constexpr ParamKey SeqBuildAllowed = ParamKey::Named("SeqBuildAllowed");
inline constexpr ParamKey Switches = ParamKey::Named("Switches");
inline constexpr ParamKey SwitchesAllowed = ParamKey::Named("SwitchesAllowed");
inline constexpr ParamKey SwitchType = ParamKey::Named("SwitchType");
inline constexpr ParamKey TestCurrent = ParamKey::Named("TestCurrent");
inline constexpr ParamKey TestVoltage = ParamKey::Named("TestVoltage");
inline constexpr ParamKey Threshold = ParamKey::Named("Threshold");
inline constexpr ParamKey UpperCase = ParamKey::Named("UpperCase");
inline constexpr ParamKey UpperCaseAllowed = ParamKey::Named("UpperCaseAllowed");
inline constexpr ParamKey PartNumber = ParamKey::Named("PartNumber");
inline constexpr ParamKey Revision = ParamKey::Named("Revision");
inline constexpr ParamKey Author = ParamKey::Named("Author");
inline constexpr ParamKey Manager = ParamKey::Named("Manager");
inline constexpr ParamKey Company = ParamKey::Named("Company");
inline constexpr ParamKey CompanyLocation = ParamKey::Named("CompanyLocation");
inline constexpr ParamKey Customer = ParamKey::Named("Customer");
inline constexpr ParamKey CustomerLocation = ParamKey::Named("CustomerLocation");
inline constexpr ParamKey CustomTitle[] = {
    ParamKey::Named("CustomTitle1"), ParamKey::Named("CustomTitle2"),
    ParamKey::Named("CustomTitle3"), ParamKey::Named("CustomTitle4"),
    ParamKey::Named("CustomTitle5"), ParamKey::Named("CustomTitle6"),
    ParamKey::Named("CustomTitle7"), ParamKey::Named("CustomTitle8")};
inline constexpr ParamKey CustomComment[] = {
    ParamKey::Named("CustomComment1"), ParamKey::Named("CustomComment2"),
    ParamKey::Named("CustomComment3"), ParamKey::Named("CustomComment4"),
    ParamKey::Named("CustomComment5"), ParamKey::Named("CustomComment6"),
    ParamKey::Named("CustomComment7"), ParamKey::Named("CustomComment8")};
inline constexpr ParamKey Notes = ParamKey::Named("Notes");
inline constexpr ParamKey ProgramsDirectory = ParamKey::Named("ProgramsDirectory");
inline constexpr ParamKey TemplatesDirectory = ParamKey::Named("TemplatesDirectory");
inline constexpr ParamKey BackupFilesDirectory = ParamKey::Named("BackupFilesDirectory");
inline constexpr ParamKey EJFDirectory = ParamKey::Named("EJFDirectory");
inline constexpr ParamKey PIDDirectory = ParamKey::Named("PIDDirectory");
inline constexpr ParamKey Baud = ParamKey::Named("Baud");
inline constexpr ParamKey CommPort = ParamKey::Named("CommPort");
inline constexpr ParamKey DataBits = ParamKey::Named("DataBits");
inline constexpr ParamKey Parity = ParamKey::Named("Parity");
inline constexpr ParamKey StopBits = ParamKey::Named("StopBits");
inline constexpr ParamKey CommDevice = ParamKey::Named("CommDevice");
} // namespace param

} // namespace zolt
