#include "core/program_state.h"

#include "core/headless/prompt_detail_dialogs.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/ports/window_registry.h"
#include "core/table_kinds.h"


namespace zolt {

ProgramState::ProgramState(Ports ports, TableFactory factory)
    : ports_(ports), factory_(std::move(factory)),
      promptDetails_(std::make_unique<PromptDetailDialogs>(ports.ui)), history_(*this) {}

ProgramState::~ProgramState() = default;

CParamList& ProgramState::params() {
    if (!params_) {
        params_ = std::make_unique<CParamList>(ports_.ui, ports_.settings, project_.FileParameters);
        params_->OnValueChanged([this](const std::string& name, Value before, const Value& after) {
            history_.ParameterChanged(name, std::move(before), after);
        });
    }
    return *params_;
}

void ProgramState::SetDirty(bool flag) {
    const bool changed = document_.dirty_ != flag;
    document_.dirty_ = flag;
    if (flag)
        project_.NeedsCompile = true;
    if (changed)
        frame().CommandsChanged();
}

void ProgramState::SetGridEditing(bool flag) {
    const bool changed = session_.GridEditing != flag;
    session_.GridEditing = flag;
    if (changed)
        frame().CommandsChanged();
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
            const CNetList* netlist = project_.NetlistByIndex(w.netlistIndex);
            const Table* t = netlist && w.tableIndex ? netlist->GetTable(*w.tableIndex) : nullptr;
            const int rows = t ? t->gridarray().Rows() : 0;
            SetStatusText(w.caption + ": " + std::to_string(rows) + " Records");
        }
        return;
    }
    SetStatusText({});
}

void ProgramState::DebugLog(const std::string& line) {
    if (session_.DebugLogOn)
        ui().DebugLog(line);
}

CNetList& ProgramState::CreateMain() {
    if (!project_.MainNetlist) {
        auto main = std::make_unique<CNetList>(*this);
        main->NetlistName = "MAIN";
        main->netlistIndex = 0;
        main->InitMainTables();
        project_.MainNetlist = main.get();
        project_.ActiveNetlist = project_.MainNetlist;
        project_.NetlistCollection.Add(std::move(main), "MAIN");
    }
    return *project_.MainNetlist;
}

void ProgramState::DestroyAll() {
    history_.Stop();
    session_.CopyData.clear();
    Project& p = project_;
    p.Assembly.Clear();
    // Windows closed below report back at once: they must not reach a netlist going away.
    p.ActiveNetlist = nullptr;
    while (p.NetlistCollection.Count() > 0) {
        const std::size_t last = p.NetlistCollection.Count();
        CNetList& netlist = **p.NetlistCollection.Item(last);
        DebugLog("Destroying: " + netlist.NetlistName);
        netlist.Destroy();
        p.NetlistCollection.Remove(last);
    }
    ClearCollection(p.DeviceList);
    ClearCollection(p.MacroList);
    p.MainNetlist = nullptr;
}

void ProgramState::AdoptProject(Project project) {
    DestroyAll();
    project_ = std::move(project);
    project_.NetlistCollection.ForEach(
        [this](const std::unique_ptr<CNetList>& netlist) { netlist->Adopt(this); });
    project_.ActiveNetlist = project_.MainNetlist;
}

} // namespace zolt
