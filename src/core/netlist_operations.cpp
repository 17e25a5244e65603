#include "core/netlist_operations.h"

#include "core/app_info.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/ports/window_registry.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"

#include <algorithm>
#include <vector>

namespace zolt {
namespace {

constexpr int kBlue = 0x0000FF;
// The new netlist's second "Fixture Table Data" option.
constexpr int kLinkToMain = 1;

bool upperCaseOn(ProgramState& state) {
    return state.params().Number(param::UpperCase) == 1;
}

void warn(ProgramState& state, const std::string& text) {
    state.ui().Message(text, kAppTitle, Buttons::Ok, Icon::Warning);
}

} // namespace

std::string FilterNetlistNameTyping(const std::string& typed, bool upperCase) {
    std::string out;
    for (char c : typed) {
        if (c == ' ' || c == '!' || c == '"' || c == '\'')
            continue;
        out += (upperCase && c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
    }
    return out;
}

bool IsFixedNetlist(const ProgramState& state, const CNetList& netlist) {
    return &netlist == state.project().MainNetlist || netlist.NetlistType == 1 ||
           netlist.NetlistName == kManualNetlists;
}

namespace {

std::optional<PromptAnswer> askOnce(ProgramState& state, const std::string& oldName) {
    if (!oldName.empty()) {
        auto text = state.ui().Ask({"Rename Netlist", "Enter a New Name for the Netlist", oldName});
        return text ? std::optional<PromptAnswer>(PromptAnswer{std::move(*text), 0}) : std::nullopt;
    }
    std::string start = "Netlist" + std::to_string(state.project().NetlistCollection.Count());
    if (upperCaseOn(state))
        start = vb::UCase(start);
    return state.ui().AskWithOptions({{"New Netlist", "Enter a Name for the New Netlist", start},
                                      "Fixture Table Data",
                                      {"Unique to Tab", "Link to MAIN"},
                                      0});
}

// The name (empty when cancelled) and, for a new netlist, the fixture choice.
PromptAnswer askNetlistName(ProgramState& state, const std::string& oldName) {
    for (;;) {
        const std::optional<PromptAnswer> answer = askOnce(state, oldName);
        if (answer && answer->text == kManualNetlists) {
            warn(state, "Netlist Name is Reserved!");
            continue;
        }
        // A text that did not come through the keyboard (a script, a paste) keeps
        // the rules of typing.
        std::string result =
            FilterNetlistNameTyping(answer ? answer->text : std::string(), upperCaseOn(state));
        if (!oldName.empty() && vb::UCase(result) == vb::UCase(oldName))
            result.clear();
        if (result.empty())
            return {};
        if (state.project().FindNetlist(result)) {
            warn(state, "Netlist Exists!");
            continue;
        }
        return {result, answer->option};
    }
}

} // namespace

std::string AskNetlistName(ProgramState& state, const std::string& oldName) {
    return askNetlistName(state, oldName).text;
}

CNetList& AddNetlistToProject(Project& project, const std::string& name) {
    const std::int32_t index = project.MainNetlist->AddToNetlistTable(name);
    auto netlist = project.MainNetlist->GetNewNetlist(index);
    netlist->NetlistName = name;
    netlist->netlistIndex = index;
    if (name == kManualNetlists)
        netlist->NetlistType = 1;
    CNetList& added = *netlist;
    project.NetlistCollection.Add(std::move(netlist), vb::UCase(name));
    return added;
}

namespace {

void showNetlistTab(ProgramState& state, std::string name) {
    FrameControls& frame = state.frame();
    frame.AddTab(name);
    frame.SetCurrentTab(frame.TabCount() - 1);
    frame.SetTabBarVisible(true);
    if (name == kManualNetlists)
        frame.SetTabCaptionColor(frame.TabCount() - 1, kBlue);
    ActivateNetlist(state, name);
}

} // namespace

void AddNetlist(ProgramState& state, std::string name) {
    name = vb::Trim(name);
    AddNetlistToProject(state.project(), name);
    showNetlistTab(state, name);
}

void ShowNetlistTabs(ProgramState& state) {
    ResetNetlistTabs(state);
    const std::size_t count = state.project().NetlistCollection.Count();
    for (std::size_t i = 1; i <= count; ++i) {
        const CNetList& netlist = **state.project().NetlistCollection.Item(i);
        if (&netlist != state.project().MainNetlist)
            showNetlistTab(state, netlist.NetlistName);
    }
    state.frame().SetTabBarVisible(count > 1);
    std::string main = kMain;
    ActivateNetlist(state, main);
}

void NewNetlistCommand(ProgramState& state) {
    if (state.project().NetlistCollection.Count() >= kMaxNetlists) {
        warn(state, "Maximum number of netlists is " + std::to_string(kMaxNetlists - 1) + ".");
        return;
    }
    const PromptAnswer answer = askNetlistName(state, {});
    const std::string& name = answer.text;
    if (name.empty())
        return;
    for (const auto& label : state.project().CompileLabels)
        if (vb::TextEqualsNoCase(label, vb::Trim(name))) {
            state.ui().Message("Only Unique Names Are Allowed", "Duplicate Name");
            return;
        }
    state.history().NameStep("New Netlist");
    AddNetlist(state, name);
    state.history().NetlistAdded(vb::Trim(name));
    state.project().ActiveNetlist->ClearAllNetlistArrays();
    if (Table* fixture = state.project().ActiveNetlist->GetTable(table::Fixture))
        fixture->SetLinkedToMain(answer.option == kLinkToMain);
    state.SetDirty(true);
}

void RenameNetlistCommand(ProgramState& state) {
    FrameControls& frame = state.frame();
    const int tab = frame.CurrentTab();
    if (tab < 0)
        return;
    const std::string old = frame.TabCaption(tab);
    const CNetList* netlist = state.project().FindNetlist(old);
    if (!netlist) {
        state.ui().Message("Netlist not found", kAppTitle);
        return;
    }
    if (IsFixedNetlist(state, *netlist))
        return;
    const std::string newName = AskNetlistName(state, old);
    if (newName.empty())
        return;
    state.history().NameStep("Rename Netlist");
    RenameNetlistEntry(state, old, newName);
    state.history().NetlistRenamed(old, newName);
    if (Table* sequence = state.project().MainNetlist->GetTable(table::Sequence))
        sequence->RenameNetlist(old, newName);
    state.SetDirty(true);
}

void RenameNetlistEntry(ProgramState& state, const std::string& oldName,
                        const std::string& newName) {
    const std::size_t position = state.project().NetlistCollection.PositionOf(vb::UCase(oldName));
    auto owned = state.project().NetlistCollection.Remove(position);
    if (!owned)
        return;
    (*owned)->NetlistName = newName;
    state.project().NetlistCollection.Add(std::move(*owned), vb::UCase(newName), position);
    state.project().MainNetlist->RenameNetlist(oldName, newName);
    state.project().Assembly.RenameNetlist(oldName, newName);
    const int tab = FindNetlistTab(state, oldName);
    if (tab >= 0)
        state.frame().SetTabCaption(tab, newName);
}

std::string AskDeleteNetlist(ProgramState& state) {
    if (state.project().NetlistCollection.Count() < 2)
        return {};
    Choice choice{"Delete Netlist", "Select the Netlist to delete", {}, 0};
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        // MAIN is never offered: a project always keeps it.
        if (n->NetlistName != kManualNetlists && n.get() != state.project().MainNetlist)
            choice.options.push_back(n->NetlistName);
    });
    for (std::size_t i = 0; i < choice.options.size(); ++i)
        if (state.project().ActiveNetlist &&
            choice.options[i] == state.project().ActiveNetlist->NetlistName)
            choice.initial = static_cast<int>(i);
    const auto picked = state.ui().Choose(choice);
    if (!picked)
        return {};
    const std::string name = choice.options[static_cast<std::size_t>(*picked)];
    if (name == kManualNetlists) {
        warn(state, "Manual Netlist must be deselected in File|Properties!");
        return {};
    }
    if (const Table* sequence = state.project().MainNetlist->GetTable(table::Sequence)) {
        const Grid& grid = sequence->gridarray();
        for (int r = 1; r <= grid.Rows(); ++r)
            if (vb::UCase(vb::Trim(grid.Text(r, sequence_column::Parameter))) == vb::UCase(name)) {
                state.ui().Message("All occurrences of '" + name +
                                       "' in the Sequence Table must be \n" +
                                       "removed before deleting '" + name + "'.",
                                   kAppTitle);
                return {};
            }
    }
    return name;
}

void DeleteNetList(ProgramState& state, const std::string& name) {
    if (!state.project().FindNetlist(name)) {
        state.ui().Message("Netlist not found", kAppTitle);
        return;
    }
    state.history().NameStep("Delete Netlist");
    AssemblyData assembly = state.project().Assembly;
    DetachedNetlist detached = DetachNetlist(state, name);
    state.history().NetlistDeleted(std::move(detached), std::move(assembly));
    state.SetDirty(true);
}

DetachedNetlist DetachNetlist(ProgramState& state, const std::string& name) {
    CNetList* netlist = state.project().FindNetlist(name);
    if (!netlist)
        return {};
    const std::string realName = netlist->NetlistName;
    const bool wasActive = state.project().ActiveNetlist == netlist;
    if (wasActive)
        netlist->HideVisibleTables();
    netlist->UnloadAllTables();
    DetachedNetlist detached;
    detached.position = state.project().NetlistCollection.PositionOf(vb::UCase(realName));
    Grid& list = state.project().MainNetlist->NetlistArray;
    for (int r = 1; r <= list.Rows() && detached.listRow == 0; ++r)
        if (list.At(r, netlist_list_column::Index).number() == netlist->netlistIndex)
            detached.listRow = r;
    state.project().MainNetlist->DeleteFromNetlistTable(netlist->netlistIndex);
    state.project().Assembly.RemoveNetlist(realName);
    // MAIN takes over below, its windows, tab and commands with it.
    if (wasActive)
        state.project().ActiveNetlist = nullptr;
    detached.netlist = std::move(*state.project().NetlistCollection.Remove(detached.position));

    const int tab = FindNetlistTab(state, realName);
    if (tab >= 0) {
        state.frame().SetCurrentTab(tab);
        state.frame().RemoveTab(tab);
    }
    if (wasActive) {
        std::string main = kMain;
        ActivateNetlist(state, main);
    }
    return detached;
}

void AttachNetlist(ProgramState& state, DetachedNetlist detached) {
    CNetList& netlist = *detached.netlist;
    std::string name = netlist.NetlistName;
    Grid& list = state.project().MainNetlist->NetlistArray;
    const int row = std::clamp(detached.listRow, 1, list.Rows() + 1);
    list.InsertRows(row, {Value(netlist.netlistIndex), Value(name)});
    state.project().NetlistCollection.Add(std::move(detached.netlist), vb::UCase(name),
                                          detached.position);

    // Tabs keep the order of the collection: the ones after the netlist go and come back.
    FrameControls& frame = state.frame();
    const int tab =
        static_cast<int>(state.project().NetlistCollection.PositionOf(vb::UCase(name))) - 1;
    std::vector<std::string> after;
    while (frame.TabCount() > tab) {
        after.insert(after.begin(), frame.TabCaption(frame.TabCount() - 1));
        frame.RemoveTab(frame.TabCount() - 1);
    }
    frame.AddTab(name);
    for (const std::string& caption : after)
        frame.AddTab(caption);
    for (int i = 0; i < frame.TabCount(); ++i)
        if (const CNetList* n = state.project().FindNetlist(frame.TabCaption(i));
            n && n->NetlistType == 1)
            frame.SetTabCaptionColor(i, kBlue);
    frame.SetTabBarVisible(true);
    ActivateNetlist(state, name);
}

void DeleteNetlistCommand(ProgramState& state) {
    const std::string name = AskDeleteNetlist(state);
    if (!name.empty())
        DeleteNetList(state, name);
}

bool ActivateNetlist(ProgramState& state, std::string& name) {
    if (name != kMain)
        name = vb::UCase(vb::Trim(name));
    CNetList* found = state.project().FindNetlist(name);
    if (!found) {
        state.ui().Message("Netlist Not Found!", kAppTitle);
        return false;
    }
    if (state.project().ActiveNetlist)
        state.project().ActiveNetlist->HideVisibleTables();
    state.project().ActiveNetlist = found;
    found->ShowVisibleTables();
    FrameControls& frame = state.frame();
    const int tab = FindNetlistTab(state, name);
    if (tab >= 0)
        frame.SetCurrentTab(tab);
    if (found->NetlistType != 1) {
        frame.SetTabCaptionColor(frame.CurrentTab(), -1);
    } else {
        state.windows().ShowTable(table::Fixture, found->netlistIndex);
        state.windows().ShowTable(table::Code, found->netlistIndex);
        frame.SetTabCaptionColor(frame.CurrentTab(), kBlue);
    }
    frame.CommandsChanged();
    return true;
}

int FindNetlistTab(const ProgramState& state, const std::string& name) {
    // Captions are unique; from the end, a netlist just added is found at once.
    const std::string key = vb::UCase(vb::Trim(name));
    for (int i = state.frame().TabCount() - 1; i >= 0; --i)
        if (vb::UCase(vb::Trim(state.frame().TabCaption(i))) == key)
            return i;
    return -1;
}

void ResetNetlistTabs(ProgramState& state) {
    FrameControls& frame = state.frame();
    while (frame.TabCount() > 0)
        frame.RemoveTab(frame.TabCount() - 1);
    frame.AddTab(kMain);
    frame.SetCurrentTab(0);
    frame.SetTabBarVisible(false);
    frame.CommandsChanged();
}

void NewProject(ProgramState& state) {
    state.DestroyAll();
    state.params().LoadFilePropertyParameters();
    state.CreateMain();
    ResetNetlistTabs(state);
    state.document().FileOpen = true;
    state.document().CurrentFile.clear();
    state.SetDirty(false);
    state.project().NeedsCompile = false;
}

namespace {

Table* testParameterTable(ProgramState& state) {
    return state.project().MainNetlist ? state.project().MainNetlist->GetTable(table::TestParameter)
                                       : nullptr;
}

} // namespace

void FillDefaultTestParameters(ProgramState& state) {
    if (Table* table = testParameterTable(state))
        table->ReDimGrid(0, table->gridColumns());
    FillMissingTestParameters(state);
}

void FillMissingTestParameters(ProgramState& state) {
    Table* table = testParameterTable(state);
    if (!table)
        return;
    CParamList& params = state.params();
    const double voltage = params.Number(param::TestVoltage);
    const double current = params.Number(param::TestCurrent);
    const double threshold = params.Number(param::Threshold);
    if (table->gridarray().Rows() < kTestParameterRows)
        table->ReDimGrid(kTestParameterRows, table->gridColumns());
    Grid& grid = table->gridarray();
    for (int row = 1; row <= kTestParameterRows; ++row) {
        namespace col = test_parameter_column;
        if (!grid.At(row, col::Value).isNull())
            continue;
        grid.Set(row, col::Value, Value(std::int32_t{row}));
        grid.Set(row, col::TestVoltage, Value(voltage));
        grid.Set(row, col::TestCurrent, Value(current));
        grid.Set(row, col::Threshold1, Value(threshold));
        grid.Set(row, col::Threshold2, Value(threshold));
        grid.Set(row, col::Sequence, Value(std::int32_t{row}));
        grid.Set(row, col::Netlist, Value(std::int32_t{0}));
    }
}

} // namespace zolt
