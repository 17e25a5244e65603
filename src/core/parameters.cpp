#include "core/parameters.h"

#include "core/app_info.h"
#include "core/ports/settings_store.h"
#include "core/ports/ui.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zolt {
namespace {

struct FileProperty {
    std::string name;
    int type;
    Value value;
};

std::vector<FileProperty> fileProperties() {
    std::vector<FileProperty> list = {
        {"AutoStartTestPoint", param_type::Text, Value("0-000")},
        {"Group", param_type::Boolean, Value(false)},
        {"CompLogMask", param_type::Integer, Value(std::int32_t{0})},
        {"CompWarnings", param_type::Integer, Value(std::int32_t{0})},
        {"CompWarningsAllowed", param_type::Integer, Value(std::int32_t{1})},
        // Type 2 with a fractional default: the value stays 0.1 until set.
        {"DwellTime", param_type::Integer, Value(0.1)},
        {"GridLocation", param_type::Integer, Value(std::int32_t{0})},
        {"GridLocationAllowed", param_type::Integer, Value(std::int32_t{1})},
        {"LampPin", param_type::Integer, Value(std::int32_t{0})},
        {"LampPinAllowed", param_type::Integer, Value(std::int32_t{1})},
        {"ManualNet", param_type::Integer, Value(std::int32_t{0})},
        {"ManualNetAllowed", param_type::Integer, Value(std::int32_t{1})},
        {"SeqBuild", param_type::Integer, Value(std::int32_t{0})},
        {"SeqBuildAllowed", param_type::Integer, Value(std::int32_t{1})},
        {"Switches", param_type::Integer, Value(std::int32_t{0})},
        {"SwitchesAllowed", param_type::Integer, Value(std::int32_t{1})},
        {"SwitchType", param_type::Integer, Value(std::int32_t{1})},
        {"TestCurrent", param_type::Real, Value(2.0)},
        {"TestVoltage", param_type::Real, Value(5.0)},
        {"Threshold", param_type::Real, Value(2.0)},
        {"UpperCase", param_type::Integer, Value(std::int32_t{0})},
        {"UpperCaseAllowed", param_type::Integer, Value(std::int32_t{1})},
    };
    for (const char* name : {"PartNumber", "Revision", "Author", "Manager", "Company",
                             "CompanyLocation", "Customer", "CustomerLocation"})
        list.push_back({name, param_type::Text, Value("")});
    for (int i = 1; i <= 8; ++i) {
        list.push_back({"CustomTitle" + std::to_string(i), param_type::Text, Value("")});
        list.push_back({"CustomComment" + std::to_string(i), param_type::Text, Value("")});
    }
    list.push_back({"Notes", param_type::Text, Value("")});
    return list;
}

struct DirectoryKey {
    const char* name;
    const char* sub;
    const char* messageName;
};

constexpr DirectoryKey kDirectories[] = {
    {"ProgramsDirectory", "", "Program Directory"},
    {"TemplatesDirectory", "Templates", "Template Directory"},
    {"BackupFilesDirectory", "Backups", "Backup Directory"},
    {"EJFDirectory", "Labels", "Labels Directory"},
    {"PIDDirectory", "Pid", "PID Directory"},
};

struct CommKey {
    const char* name;
    int type;
    const char* fallback;
};

constexpr CommKey kComm[] = {
    {"Baud", param_type::Integer, "9600"},  {"CommPort", param_type::Integer, "1"},
    {"DataBits", param_type::Integer, "8"}, {"Parity", param_type::Text, "NONE"},
    {"StopBits", param_type::Integer, "1"},
    // The platform's name of the port (/dev/ttyUSB0, COM3); empty: derived from CommPort.
    {"CommDevice", param_type::Text, ""},
};

constexpr const char* kUserSettings = "User Settings";
constexpr const char* kCommSettings = "Comm Settings";

} // namespace

bool CParameter::SetValue(int type, const Value& value) {
    switch (type) {
    case param_type::Text:
        Val = value;
        break;
    case param_type::Boolean:
        Val = value.isText() ? Value(value.text() == "True")
                             : Value(value.number().value_or(0.0) != 0.0);
        break;
    case param_type::Integer: {
        const auto n = vb::CLng(value);
        if (!n)
            return false;
        Val = Value(*n);
        break;
    }
    case param_type::Real: {
        const auto n = value.number();
        if (!n || std::fabs(*n) > 3.402823466e38)
            return false;
        Val = Value(static_cast<double>(static_cast<float>(*n)));
        break;
    }
    default:
        Val = Value();
        type = param_type::Text;
    }
    Type = type;
    return true;
}

CParamList::CParamList(Ui& ui, SettingsStore& settings) : ui_(ui), settings_(settings) {
    LoadFilePropertyParameters();
}

bool CParamList::IsParam(const std::string& name, bool report) {
    if (params_.Contains(vb::LCase(name)))
        return true;
    if (report)
        ui_.Message("Param " + name + " Not Found", kAppTitle);
    return false;
}

Value CParamList::Val(const std::string& name) {
    return IsParam(name, true) ? params_.Item(vb::LCase(name))->Val : Value();
}

void CParamList::SetVal(const std::string& name, Value value) {
    if (!IsParam(name, true))
        return;
    CParameter& parameter = *params_.Item(vb::LCase(name));
    if (parameter.Val == value)
        return;
    Value before = std::exchange(parameter.Val, std::move(value));
    if (valueChanged_)
        valueChanged_(parameter.Name, std::move(before), parameter.Val);
}

void CParamList::Add(CParameter parameter) {
    const std::string key = vb::LCase(parameter.Name);
    params_.Add(std::move(parameter), key);
}

CParameter& CParamList::GetParam(const std::string& name) {
    const std::string key = vb::LCase(name);
    if (!params_.Contains(key)) {
        CParameter p;
        p.Name = name;
        params_.Add(std::move(p), key);
    }
    return *params_.Item(key);
}

const CParameter* CParamList::Find(const std::string& name) const {
    return params_.Item(vb::LCase(name));
}

void CParamList::setDefault(const std::string& name, int type, Value value) {
    CParameter& p = GetParam(name);
    p.Group = param_group::File;
    p.Type = type;
    p.Val = value;
    p.Default = std::move(value);
}

void CParamList::LoadFilePropertyParameters() {
    for (const auto& property : fileProperties())
        setDefault(property.name, property.type, property.value);
}

void CParamList::SaveFilePropertyParameters() {
    if (filePropertiesSaved_)
        filePropertiesSaved_();
}

void CParamList::saveGroup(int group, const std::string& section) {
    params_.ForEach([&](const CParameter& p) {
        if (p.Group == group)
            settings_.Write(section, p.Name, p.Val.text());
    });
}

void CParamList::LoadDirectoryParameters(bool report) {
    std::string missing;
    for (const auto& key : kDirectories) {
        CParameter& p = GetParam(key.name);
        p.Group = param_group::Directory;
        p.Type = param_type::Text;
        const std::string fallback = DefaultDataDirectory(key.sub);
        p.Val = Value(settings_.ReadOr(kUserSettings, key.name, fallback));
        p.Default = Value(fallback);
        if (report && !CheckDirectory(p.Val.text()))
            missing += std::string("\n") + key.messageName;
    }
    if (report && !missing.empty()) {
        ui_.Message("The following default paths were not found and could not be created: \n" +
                        missing + "\n\nPlease reset these in ZOLT Settings.",
                    "Default Paths Not Found...", Buttons::Ok, Icon::Information);
        if (directoriesMissing_)
            directoriesMissing_();
    }
}

void CParamList::SaveDirectoryParameters() {
    saveGroup(param_group::Directory, kUserSettings);
}

void CParamList::LoadCommParameters() {
    for (const auto& key : kComm) {
        CParameter& p = GetParam(key.name);
        p.Group = param_group::Comm;
        const std::string stored = settings_.ReadOr(kCommSettings, key.name, key.fallback);
        p.SetValue(key.type, Value(key.fallback));
        p.Default = p.Val;
        // A stored value that does not convert leaves the default in place.
        p.SetValue(key.type, Value(stored));
    }
}

void CParamList::SaveCommParameters() {
    saveGroup(param_group::Comm, kCommSettings);
}

void CParamList::SaveAllParameters() {
    SaveFilePropertyParameters();
    SaveDirectoryParameters();
    SaveCommParameters();
}

std::vector<const CParameter*> CParamList::All() const {
    std::vector<const CParameter*> list;
    params_.ForEach([&](const CParameter& p) { list.push_back(&p); });
    return list;
}

bool CheckDirectory(const std::string& path) {
    std::error_code ec;
    if (std::filesystem::is_directory(path, ec))
        return true;
    return std::filesystem::create_directory(path, ec) && !ec;
}

std::string DefaultDataDirectory(const std::string& sub) {
#ifdef _WIN32
    std::string base = "C:\\Thessor Data";
    return sub.empty() ? base : base + "\\" + sub;
#else
    const char* home = std::getenv("HOME");
    std::filesystem::path base = std::filesystem::path(home ? home : "") / "Thessor Data";
    return (sub.empty() ? base : base / sub).string();
#endif
}

} // namespace zolt
