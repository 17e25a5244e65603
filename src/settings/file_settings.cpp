#include "settings/file_settings.h"

#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table.h"
#include "settings/privilege.h"

#include <cmath>

namespace zolt::settings {
namespace {

bool isCheckKey(ParamKey key) {
    for (const CheckKey& check : kCheckKeys)
        if (key == check.key)
            return true;
    return false;
}

} // namespace

FileSettings::FileSettings(ProgramState& state) : state_(state) {
    CParamList& p = state.params();
    for (const CheckKey& check : kCheckKeys) {
        checked_[check.key] = p.Number(check.key) != 0;
        allowed_[check.key] = p.Number(check.allowed) == 1;
    }
    group_ = p.Text(param::Group) == "True" || p.Number(param::Group) != 0;
    switchType_ = static_cast<int>(p.Number(param::SwitchType));
    dwellTime_ = p.Number(param::DwellTime);
    startTestPoint_ = p.Text(param::AutoStartTestPoint);
    testVoltage_ = p.Number(param::TestVoltage);
    testCurrent_ = p.Number(param::TestCurrent);
    threshold_ = p.Number(param::Threshold);
    compLogMask_ = static_cast<std::int32_t>(p.Number(param::CompLogMask));
    texts_[Field::DwellTime] = FormatField(Field::DwellTime, dwellTime_);
    texts_[Field::StartTestPoint] = startTestPoint_;
    texts_[Field::TestVoltage] = FormatField(Field::TestVoltage, testVoltage_);
    texts_[Field::TestCurrent] = FormatField(Field::TestCurrent, testCurrent_);
    texts_[Field::Threshold] = FormatField(Field::Threshold, threshold_);
    texts_[Field::CompLogMask] = std::to_string(compLogMask_);
    showResistance();
}

void FileSettings::showResistance() {
    texts_[Field::TestResistance] =
        testCurrent_ > 0
            ? FormatField(Field::TestResistance, ThresholdToResistance(threshold_, testCurrent_))
            : std::string();
}

bool FileSettings::Checked(ParamKey key) const {
    const auto it = checked_.find(key);
    return it != checked_.end() && it->second;
}

bool FileSettings::CheckEnabled(ParamKey key) const {
    return isCheckKey(key) && (Privileged() || allowed_.at(key));
}

bool FileSettings::Allowed(ParamKey key) const {
    const auto it = allowed_.find(key);
    return it != allowed_.end() && it->second;
}

bool FileSettings::SetAllowed(ParamKey key, bool allowed) {
    if (!isCheckKey(key) || !Privileged())
        return false;
    allowed_[key] = allowed;
    return true;
}

bool FileSettings::switchesExist() const {
    bool found = false;
    state_.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        const Table* t = n->GetTable(table::Switches);
        found = found || (t && t->gridarray().Rows() > 0);
    });
    return found;
}

bool FileSettings::manualNetlistStored() const {
    return state_.params().Number(param::ManualNet) != 0 &&
           state_.project().FindNetlist(kManualNetlists);
}

bool FileSettings::SetChecked(ParamKey key, bool checked) {
    if (!CheckEnabled(key))
        return false;
    if (Checked(key) == checked)
        return true;
    Ui& ui = state_.ui();
    if (key == param::ManualNet && !checked && manualNetlistStored() &&
        ui.Message("This action will delete the MANUAL NETLISTS table. Are you sure?", kAppTitle,
                   Buttons::OkCancel, Icon::Question) != Answer::Ok)
        return false;
    if (key == param::Switches && !checked && switchesExist()) {
        ui.Message("Can't Remove Switches setting while switches exist", kAppTitle, Buttons::Ok,
                   Icon::Warning);
        return false;
    }
    checked_[key] = checked;
    return true;
}

bool FileSettings::SetSwitchType(int type) {
    if (type < 1 || type > 3)
        return false;
    if (type == switchType_)
        return true;
    if (switchesExist()) {
        state_.ui().Message("Can't change switch type setting while switches exist", kAppTitle,
                            Buttons::Ok, Icon::Warning);
        return false;
    }
    switchType_ = type;
    return true;
}

bool FileSettings::refuse(const std::string& message) {
    state_.ui().Message(message, kAppTitle, Buttons::Ok, Icon::Warning);
    return false;
}

bool FileSettings::Leave(Field field, const std::string& typed) {
    // A field left as it was shown keeps its value: its text may be a rounding of it.
    if (typed == texts_.at(field))
        return true;
    const FieldCheck check = CheckField(field, typed);
    if (!check.ok)
        return refuse(check.message);
    // The threshold a resistance stands for must itself be one the Threshold field takes.
    if (field == Field::TestResistance &&
        !InRange(Field::Threshold, ResistanceToThreshold(check.value.number, testCurrent_)))
        return refuse(RangeMessage(Field::TestResistance));
    texts_[field] = check.value.text;
    const double n = check.value.number;
    switch (field) {
    case Field::DwellTime:
        dwellTime_ = n;
        break;
    case Field::StartTestPoint:
        startTestPoint_ = check.value.text;
        break;
    case Field::TestVoltage:
        testVoltage_ = n;
        break;
    case Field::TestCurrent:
        testCurrent_ = n;
        showResistance();
        break;
    case Field::Threshold:
        threshold_ = n;
        showResistance();
        break;
    case Field::TestResistance:
        texts_[Field::Threshold] =
            FormatField(Field::Threshold, ResistanceToThreshold(n, testCurrent_));
        threshold_ = vb::Val(texts_[Field::Threshold]);
        break;
    case Field::CompLogMask:
        compLogMask_ = static_cast<std::int32_t>(n);
        break;
    }
    return true;
}

bool FileSettings::Privileged() const {
    return state_.session().PrivilegedMode;
}

bool FileSettings::Unlock(const std::string& user, const std::string& password) {
    return UnlockPrivilegedMode(state_, user, password);
}

std::vector<KeyWrite> FileSettings::Writes() const {
    std::vector<KeyWrite> writes;
    auto flag = [this](ParamKey key) {
        return KeyWrite{key, Value(std::int32_t{Checked(key) ? 1 : 0})};
    };
    for (ParamKey key : {param::UpperCase, param::SeqBuild, param::CompWarnings, param::ManualNet,
                         param::LampPin, param::GridLocation})
        writes.push_back(flag(key));
    writes.push_back({param::Group, Value(group_)});
    writes.push_back(flag(param::Switches));
    writes.push_back({param::SwitchType, Value(std::int32_t{switchType_})});
    writes.push_back({param::DwellTime, Value(dwellTime_)});
    writes.push_back({param::AutoStartTestPoint, Value(startTestPoint_)});
    writes.push_back({param::TestVoltage, Value(testVoltage_)});
    writes.push_back({param::TestCurrent, Value(testCurrent_)});
    writes.push_back({param::Threshold, Value(threshold_)});
    writes.push_back({param::CompLogMask, Value(compLogMask_)});
    return writes;
}

void FileSettings::Ok() {
    CParamList& p = state_.params();
    state_.history().NameStep("File Settings");
    const bool manualBefore = p.Number(param::ManualNet) != 0;
    const bool manualAfter = Checked(param::ManualNet);
    if (!manualBefore && manualAfter && !state_.project().FindNetlist(kManualNetlists)) {
        AddNetlist(state_, kManualNetlists);
        state_.history().NetlistAdded(kManualNetlists);
        state_.project().ActiveNetlist->ClearAllNetlistArrays();
    } else if (manualBefore && !manualAfter && state_.project().FindNetlist(kManualNetlists)) {
        DeleteNetList(state_, kManualNetlists);
    }
    if (Privileged())
        for (const CheckKey& check : kCheckKeys)
            p.SetVal(check.allowed, Value(std::int32_t{Allowed(check.key) ? 1 : 0}));
    for (KeyWrite& write : Writes())
        p.SetVal(write.first, std::move(write.second));
    state_.SetDirty(true);
    p.SaveFilePropertyParameters();
}

void FileSettings::Close() {
    state_.session().PrivilegedMode = false;
}

} // namespace zolt::settings
