#pragma once

#include "core/param_keys.h"
#include "core/value.h"
#include "settings/setting_fields.h"

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zolt {
class ProgramState;
}

namespace zolt::settings {

// A project switch that has a check box, and the `Allowed` key that decides
// whether the box can be changed.
struct CheckKey {
    ParamKey key;
    ParamKey allowed;
};
inline constexpr std::array<CheckKey, 7> kCheckKeys = {{
    {param::UpperCase, param::UpperCaseAllowed},
    {param::SeqBuild, param::SeqBuildAllowed},
    {param::CompWarnings, param::CompWarningsAllowed},
    {param::ManualNet, param::ManualNetAllowed},
    {param::LampPin, param::LampPinAllowed},
    {param::GridLocation, param::GridLocationAllowed},
    {param::Switches, param::SwitchesAllowed},
}};

// One key and the value OK writes to it.
using KeyWrite = std::pair<ParamKey, Value>;

// What the File Settings dialog shows and does, without the dialog: the values
// of the project's settings as the user changes them, the checks and refusals
// of each change, and OK. Made when the dialog opens; privileged mode ends
// with it (`Close`).
class FileSettings {
public:
    explicit FileSettings(ProgramState& state);

    bool Checked(ParamKey key) const;
    // A box can be changed when its `Allowed` key is 1, or in privileged mode.
    bool CheckEnabled(ParamKey key) const;
    // False, after saying why, when the change is refused: the box keeps its state.
    bool SetChecked(ParamKey key, bool checked);
    // The `Allowed` boxes, shown and changed in privileged mode only.
    bool Allowed(ParamKey key) const;
    bool SetAllowed(ParamKey key, bool allowed);

    bool GroupMethod() const { return group_; }
    void SetGroupMethod(bool group) { group_ = group; }
    // 1 one common per connector, 2 one for all switches, 3 one per switch.
    int SwitchType() const { return switchType_; }
    bool SetSwitchType(int type);

    const std::string& Text(Field field) const { return texts_.at(field); }
    // The user leaves a field with `typed` in it. False, after its message, when
    // the text is refused; the field then keeps the focus. An accepted text is
    // shown in the field's format, and the threshold and resistance follow each other.
    bool Leave(Field field, const std::string& typed);

    bool Privileged() const;
    // The privilege dialog's answer; wrong names change nothing and say nothing.
    bool Unlock(const std::string& user, const std::string& password);

    // The keys OK writes, in the order it writes them.
    std::vector<KeyWrite> Writes() const;
    // OK: the manual netlist added or deleted, the keys written, the project
    // marked changed.
    void Ok();
    // The dialog closes, whichever way: privileged mode ends.
    void Close();

private:
    bool switchesExist() const;
    bool manualNetlistStored() const;
    void showResistance();
    bool refuse(const std::string& message);

    ProgramState& state_;
    std::map<ParamKey, bool> checked_;
    std::map<ParamKey, bool> allowed_;
    bool group_ = false;
    int switchType_ = 1;
    std::map<Field, std::string> texts_;
    double dwellTime_ = 0.1;
    std::string startTestPoint_;
    double testVoltage_ = 5.0;
    double testCurrent_ = 2.0;
    double threshold_ = 2.0;
    std::int32_t compLogMask_ = 0;
};

} // namespace zolt::settings
