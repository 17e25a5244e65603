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

Value defaultValue(const ParamDefault& value) {
    switch (value.form) {
    case ParamDefault::Form::Boolean:
        return Value(value.number != 0.0);
    case ParamDefault::Form::Long:
        return Value(static_cast<std::int32_t>(value.number));
    case ParamDefault::Form::Double:
        return Value(value.number);
    case ParamDefault::Form::DataFolder:
        return Value(DefaultDataDirectory(std::string(value.text)));
    case ParamDefault::Form::Text:
        break;
    }
    return Value(value.text);
}

constexpr const char* kUserSettings = "User Settings";
constexpr const char* kCommSettings = "Comm Settings";

} // namespace

bool CParameter::SetValue(ParamType type, const Value& value) {
    switch (type) {
    case ParamType::Text:
        Val = value;
        break;
    case ParamType::Boolean:
        Val = value.isText() ? Value(value.text() == "True")
                             : Value(value.number().value_or(0.0) != 0.0);
        break;
    case ParamType::Integer: {
        const auto n = vb::CLng(value);
        if (!n)
            return false;
        Val = Value(*n);
        break;
    }
    case ParamType::Real: {
        const auto n = value.number();
        if (!n || std::fabs(*n) > 3.402823466e38)
            return false;
        Val = Value(static_cast<double>(static_cast<float>(*n)));
        break;
    }
    }
    Type = type;
    return true;
}

CParamList::CParamList(Ui& ui, SettingsStore& settings, KeyedCollection<CParameter>& fileParameters)
    : ui_(ui), settings_(settings), fileParams_(fileParameters) {
    LoadFilePropertyParameters();
}

CParameter* CParamList::lookup(const std::string& name) {
    const std::string key = vb::LCase(name);
    CParameter* found = fileParams_.Item(key);
    return found ? found : params_.Item(key);
}

bool CParamList::IsParam(const std::string& name, bool report) {
    if (lookup(name))
        return true;
    if (report)
        ui_.Message("Param " + name + " Not Found", kAppTitle);
    return false;
}

Value CParamList::Val(const std::string& name) {
    return IsParam(name, true) ? lookup(name)->Val : Value();
}

void CParamList::SetVal(const std::string& name, Value value) {
    if (!IsParam(name, true))
        return;
    CParameter& parameter = *lookup(name);
    if (parameter.Val == value)
        return;
    Value before = std::exchange(parameter.Val, std::move(value));
    if (valueChanged_)
        valueChanged_(parameter.Name, std::move(before), parameter.Val);
}

CParameter& CParamList::GetParam(const std::string& name) {
    if (CParameter* found = lookup(name))
        return *found;
    CParameter p;
    p.Name = name;
    const std::string key = vb::LCase(name);
    params_.Add(std::move(p), key);
    return *params_.Item(key);
}

const CParameter* CParamList::Find(const std::string& name) const {
    const std::string key = vb::LCase(name);
    const CParameter* found = fileParams_.Item(key);
    return found ? found : params_.Item(key);
}

void CParamList::LoadFilePropertyParameters() {
    fileParams_ = DefaultFileParameters();
}

KeyedCollection<CParameter> DefaultFileParameters() {
    KeyedCollection<CParameter> list;
    for (const ParamDefinition& definition : kParamDefinitions) {
        if (definition.group != ParamGroup::File)
            continue;
        const std::string key = vb::LCase(std::string(definition.name));
        CParameter p;
        p.Name = std::string(definition.name);
        p.Group = ParamGroup::File;
        p.Type = definition.type;
        p.Val = defaultValue(definition.value);
        p.Default = p.Val;
        list.Add(std::move(p), key);
    }
    return list;
}

void CParamList::SaveFilePropertyParameters() {
    if (filePropertiesSaved_)
        filePropertiesSaved_();
}

void CParamList::saveGroup(ParamGroup group, const std::string& section) {
    params_.ForEach([&](const CParameter& p) {
        if (p.Group == group)
            settings_.Write(section, p.Name, p.Val.text());
    });
}

void CParamList::LoadDirectoryParameters(bool report) {
    std::string missing;
    for (const ParamDefinition& definition : kParamDefinitions) {
        if (definition.group != ParamGroup::Directory)
            continue;
        const std::string name(definition.name);
        CParameter& p = GetParam(name);
        p.Group = ParamGroup::Directory;
        p.Type = definition.type;
        const std::string fallback = defaultValue(definition.value).text();
        p.Val = Value(settings_.ReadOr(kUserSettings, name, fallback));
        p.Default = Value(fallback);
        if (report && !CheckDirectory(p.Val.text()))
            missing += "\n" + std::string(definition.caption);
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
    saveGroup(ParamGroup::Directory, kUserSettings);
}

void CParamList::LoadCommParameters() {
    for (const ParamDefinition& definition : kParamDefinitions) {
        if (definition.group != ParamGroup::Comm)
            continue;
        const std::string name(definition.name);
        const std::string fallback(definition.value.text);
        CParameter& p = GetParam(name);
        p.Group = ParamGroup::Comm;
        const std::string stored = settings_.ReadOr(kCommSettings, name, fallback);
        p.SetValue(definition.type, Value(fallback));
        p.Default = p.Val;
        // A stored value that does not convert leaves the default in place.
        p.SetValue(definition.type, Value(stored));
    }
}

void CParamList::SaveCommParameters() {
    saveGroup(ParamGroup::Comm, kCommSettings);
}

void CParamList::SaveAllParameters() {
    SaveFilePropertyParameters();
    SaveDirectoryParameters();
    SaveCommParameters();
}

std::vector<const CParameter*> CParamList::All() const {
    std::vector<const CParameter*> list;
    fileParams_.ForEach([&](const CParameter& p) { list.push_back(&p); });
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
