#pragma once

#include "core/keyed_collection.h"
#include "core/param_keys.h"
#include "core/value.h"

#include <functional>
#include <string>
#include <vector>

namespace zolt {

class Ui;
class SettingsStore;

// One named setting.
struct CParameter {
    std::string Name;
    ParamGroup Group = ParamGroup::File;
    Value Val;
    Value Default;
    ParamType Type = ParamType::Text;

    // Converts `value` by `type` into Val. False (nothing changed) when the
    // value does not convert.
    bool SetValue(ParamType type, const Value& value);
};

// The one store of named settings. Keys are matched without regard to case.
// The code names them by ParamKey; names that come from data (a PID file, a
// script's `param` command) go by text, and a string literal does not compile.
class CParamList {
public:
    // The File group lives in `fileParameters`, which is the open project's.
    CParamList(Ui& ui, SettingsStore& settings, KeyedCollection<CParameter>& fileParameters);

    Value Val(ParamKey key) { return Val(std::string(key.Name())); }
    void SetVal(ParamKey key, Value value) { SetVal(std::string(key.Name()), std::move(value)); }
    // Helpers over Val: the number (0 when not numeric) and the text.
    double Number(ParamKey key) { return Val(key).number().value_or(0.0); }
    std::string Text(ParamKey key) { return Val(key).text(); }
    bool IsParam(ParamKey key, bool report) { return IsParam(std::string(key.Name()), report); }
    CParameter& GetParam(ParamKey key) { return GetParam(std::string(key.Name())); }
    const CParameter* Find(ParamKey key) const { return Find(std::string(key.Name())); }

    // Reading an unknown name reports "Param <name> Not Found" and gives null.
    Value Val(const std::string& name);
    void SetVal(const std::string& name, Value value);
    bool IsParam(const std::string& name, bool report);
    CParameter& GetParam(const std::string& name);
    const CParameter* Find(const std::string& name) const;
    Value Val(const char*) = delete;
    void SetVal(const char*, Value) = delete;
    bool IsParam(const char*, bool) = delete;
    CParameter& GetParam(const char*) = delete;
    const CParameter* Find(const char*) const = delete;

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
    void saveGroup(ParamGroup group, const std::string& section);
    CParameter* lookup(const std::string& name);

    Ui& ui_;
    SettingsStore& settings_;
    KeyedCollection<CParameter>& fileParams_;
    KeyedCollection<CParameter> params_;
    std::function<void()> filePropertiesSaved_;
    std::function<void()> directoriesMissing_;
    std::function<void(const std::string&, Value, const Value&)> valueChanged_;
};

// The File group at its defaults, keyed by the lower-case name.
KeyedCollection<CParameter> DefaultFileParameters();

// True when a directory of that path exists or could be made (one level only).
bool CheckDirectory(const std::string& path);
// "C:\Thessor Data" on Windows, "~/Thessor Data" (expanded) elsewhere, with `sub` below it.
std::string DefaultDataDirectory(const std::string& sub = {});

} // namespace zolt
