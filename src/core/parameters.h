#pragma once

#include "core/keyed_collection.h"
#include "core/value.h"

#include <functional>
#include <string>
#include <vector>

namespace zolt {

class Ui;
class SettingsStore;

namespace param_group {
inline constexpr int Directory = 0; // "User Settings"
inline constexpr int File = 1;      // travels in the program file
inline constexpr int Comm = 2;      // "Comm Settings"
} // namespace param_group

namespace param_type {
inline constexpr int Text = 0;
inline constexpr int Boolean = 1;
inline constexpr int Integer = 2;
inline constexpr int Real = 3;
} // namespace param_type

// One named setting.
struct CParameter {
    std::string Name;
    int Group = param_group::File;
    Value Val;
    Value Default;
    int Type = param_type::Text;

    // Converts `value` by `type` into Val. False (nothing changed) when the
    // value does not convert.
    bool SetValue(int type, const Value& value);
};

// The one store of named settings. Keys are matched without regard to case.
class CParamList {
public:
    CParamList(Ui& ui, SettingsStore& settings);

    // Reading an unknown name reports "Param <name> Not Found" and gives null.
    Value Val(const std::string& name);
    void SetVal(const std::string& name, Value value);
    // Helpers over Val: the number (0 when not numeric) and the text.
    double Number(const std::string& name) { return Val(name).number().value_or(0.0); }
    std::string Text(const std::string& name) { return Val(name).text(); }

    bool IsParam(const std::string& name, bool report);
    void Add(CParameter parameter);
    CParameter& GetParam(const std::string& name);
    const CParameter* Find(const std::string& name) const;
    void Save(const std::string& name) { IsParam(name, true); }
    void Save(const std::string& name, Value value) { SetVal(name, std::move(value)); }

    void SaveAllParameters();
    void LoadFilePropertyParameters();
    void SaveFilePropertyParameters();
    void LoadDirectoryParameters(bool report);
    void SaveDirectoryParameters();
    void LoadCommParameters();
    void SaveCommParameters();

    // Every parameter in the order it was first added.
    std::vector<const CParameter*> All() const;
    // The shell fits the connector window's columns when file properties are saved.
    void OnFilePropertiesSaved(std::function<void()> listener) {
        filePropertiesSaved_ = std::move(listener);
    }
    // Opens the settings dialog on its directories; the shell provides it.
    void OnDirectoriesMissing(std::function<void()> listener) {
        directoriesMissing_ = std::move(listener);
    }

    // Told of every value SetVal changes, with the value it had.
    void OnValueChanged(std::function<void(const std::string&, Value, const Value&)> listener) {
        valueChanged_ = std::move(listener);
    }

private:
    void setDefault(const std::string& name, int type, Value value);
    void saveGroup(int group, const std::string& section);

    Ui& ui_;
    SettingsStore& settings_;
    KeyedCollection<CParameter> params_;
    std::function<void()> filePropertiesSaved_;
    std::function<void()> directoriesMissing_;
    std::function<void(const std::string&, Value, const Value&)> valueChanged_;
};

// True when a directory of that path exists or could be made (one level only).
bool CheckDirectory(const std::string& path);
// "C:\Thessor Data" on Windows, "~/Thessor Data" (expanded) elsewhere, with `sub` below it.
std::string DefaultDataDirectory(const std::string& sub = {});

} // namespace zolt
