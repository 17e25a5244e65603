#include "core/program_state.h"

#include "core/headless/prompt_detail_dialogs.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/ports/window_registry.h"
#include "core/table_kinds.h"

#include <limits>

namespace zolt {

ProgramState::ProgramState(Ports ports, TableFactory factory)
    : ports_(ports), factory_(std::move(factory)),
      promptDetails_(std::make_unique<PromptDetailDialogs>(ports.ui)), history_(*this) {}

ProgramState::~ProgramState() = default;

CParamList& ProgramState::Params() {
    if (!params_) {
        params_ = std::make_unique<CParamList>(ports_.ui, ports_.settings);
        params_->OnValueChanged([this](const std::string& name, Value before, const Value& after) {
            history_.ParameterChanged(name, std::move(before), after);
        });
    }
    return *params_;
}

void ProgramState::SetDirty(bool flag) {
    dirty_ = flag;
    if (flag)
        NeedsCompile = true;
    frame().EnableCommand(cmd::Save, flag);
}

void ProgramState::SetGridEditing(bool flag) {
    GridEditing = flag;
    frame().EnableCommand(cmd::AbortEdit, flag);
    frame().EnableCommand(cmd::Compile, !flag);
}

void ProgramState::SetStatusText(const std::string& text) {
    ui().SetPanelText(3, text);
}

void ProgramState::SetPanelText(int panel, const std::string& text) {
    ui().SetPanelText(panel, text);
}

void ProgramState::ShowRecordCount(bool active) {
    if (!active)
        return;
    for (const WindowInfo& w : windows().Windows()) {
        if (!w.active)
            continue;
        if (w.kind == WindowKind::Compiler)
            SetStatusText(w.caption);
        else if (w.kind == WindowKind::TabStrip)
            SetStatusText({});
        else {
            const CNetList* netlist = NetlistByIndex(w.netlistIndex);
            const Table* t = netlist && w.tableIndex ? netlist->GetTable(*w.tableIndex) : nullptr;
            const int rows = t ? t->gridarray().Rows() : 0;
            SetStatusText(w.caption + ": " + std::to_string(rows) + " Records");
        }
        return;
    }
    SetStatusText({});
}

void ProgramState::DebugLog(const std::string& line) {
    if (DebugLogOn)
        ui().DebugLog(line);
}

std::string ProgramState::GetComponentSide(const std::string& name, int side) const {
    const std::string key = vb::UCase(vb::Trim(name));
    std::string result;
    bool found = false;
    DeviceList.ForEach([&](const CComponent& c) {
        if (!found && vb::UCase(vb::Trim(c.ComponentName)) == key) {
            found = true;
            result = side == 1 ? c.Side1 : c.Side2;
        }
    });
    return result;
}

CNetList& ProgramState::CreateMain() {
    if (!MainNetlist) {
        auto main = std::make_unique<CNetList>(*this);
        main->NetlistName = "MAIN";
        main->netlistIndex = 0;
        main->InitMainTables();
        MainNetlist = main.get();
        ActiveNetlist = MainNetlist;
        NetlistCollection.Add(std::move(main), "MAIN");
    }
    return *MainNetlist;
}

CNetList* ProgramState::FindNetlist(const std::string& name) const {
    const auto* found = NetlistCollection.Item(std::string_view(name));
    return found ? found->get() : nullptr;
}

CNetList* ProgramState::NetlistByIndex(std::int32_t index) const {
    CNetList* found = nullptr;
    NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        if (!found && n->netlistIndex == index)
            found = n.get();
    });
    return found;
}

void ProgramState::DestroyAll() {
    history_.Stop();
    CopyData.clear();
    Assembly.Clear();
    // Windows closed below report back at once: they must not reach a netlist going away.
    ActiveNetlist = nullptr;
    while (NetlistCollection.Count() > 0) {
        const std::size_t last = NetlistCollection.Count();
        CNetList& netlist = **NetlistCollection.Item(last);
        DebugLog("Destroying: " + netlist.NetlistName);
        netlist.Destroy();
        NetlistCollection.Remove(last);
    }
    ClearCollection(DeviceList);
    ClearCollection(MacroList);
    MainNetlist = nullptr;
}

bool IsSmallNumber(const std::string& text) {
    const auto n = Value(text).number();
    return n && *n < 5;
}

std::optional<std::int16_t> Increment(std::int16_t n) {
    if (n == std::numeric_limits<std::int16_t>::max())
        return std::nullopt;
    return static_cast<std::int16_t>(n + 1);
}

} // namespace zolt
