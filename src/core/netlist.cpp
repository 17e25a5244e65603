#include "core/netlist.h"

#include "core/ports/window_registry.h"
#include "core/program_state.h"
#include "core/table_kinds.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace zolt {
namespace {

// The table shown by a window that belongs to a tab; nullopt for every other window.
std::optional<TableId> tabTable(const WindowInfo& w) {
    return w.kind == WindowKind::Table ? w.tableIndex : std::nullopt;
}

} // namespace

CNetList::CNetList(ProgramState& state) : state_(&state) {
    if (!state.project().ActiveNetlist)
        netlistIndex = -1;
}

void CNetList::Adopt(ProgramState* state) {
    state_ = state;
    for (const auto& table : tables_)
        if (table)
            table->Adopt(state);
}

Table* CNetList::GetTable(TableId id) const {
    return tables_[static_cast<std::size_t>(ToInt(id))].get();
}

std::string CNetList::GetTableName(TableId id) const {
    return zolt::GetTableName(id);
}

void CNetList::InitMainTables() {
    for (TableId n :
         {table::Color, table::Switches, table::Connector, table::Groups, table::Fixture,
          table::Wire, table::Pin, table::Component, table::Reversible, table::Message,
          table::TestParameter, table::SequenceList, table::Sequence, table::Splice, table::Code}) {
        tables_[static_cast<std::size_t>(ToInt(n))] = state_->MakeTable(n);
        tables_[static_cast<std::size_t>(ToInt(n))]->setNetlist(this);
    }
}

std::unique_ptr<CNetList> CNetList::GetNewNetlist(std::int32_t index) const {
    auto n = std::make_unique<CNetList>(*state_);
    n->netlistIndex = index;
    for (TableId t :
         {table::Fixture, table::Connector, table::Color, table::Message, table::TestParameter,
          table::SequenceList, table::Sequence, table::Switches, table::Groups, table::Wire,
          table::Pin, table::Component, table::Reversible, table::Splice, table::Code}) {
        auto created = state_->MakeTable(t);
        created->ReDimGrid(0, created->gridColumns());
        n->tables_[static_cast<std::size_t>(ToInt(t))] = std::move(created);
    }
    for (TableId t :
         {table::Groups, table::Wire, table::Pin, table::Component, table::Reversible,
          table::Splice, table::Fixture, table::Connector, table::Switches, table::Code})
        n->tables_[static_cast<std::size_t>(ToInt(t))]->setNetlist(n.get());
    return n;
}

std::int32_t CNetList::AddToNetlistTable(const std::string& name) {
    // The smallest free number from 1 up, found in one pass over the rows: a
    // number above the row count cannot be the smallest free one.
    std::vector<bool> used(static_cast<std::size_t>(NetlistArray.Rows()) + 2, false);
    for (int r = 1; r <= NetlistArray.Rows(); ++r) {
        const auto n = NetlistArray.At(r, netlist_list_column::Index).number();
        if (n && *n >= 1 && *n < static_cast<double>(used.size()) && *n == std::floor(*n))
            used[static_cast<std::size_t>(*n)] = true;
    }
    std::int32_t number = 1;
    while (used[static_cast<std::size_t>(number)])
        ++number;
    ReDimGrid(NetlistArray.Rows() + 1, netlist_list_column::kCount);
    NetlistArray.Set(NetlistArray.Rows(), netlist_list_column::Index, Value(number));
    NetlistArray.Set(NetlistArray.Rows(), netlist_list_column::Name, Value(name));
    return number;
}

void CNetList::DeleteFromNetlistTable(std::int32_t index) {
    for (int r = 1; r <= NetlistArray.Rows(); ++r)
        if (NetlistArray.At(r, netlist_list_column::Index).number() == index) {
            NetlistArray.DeleteRows(r, 1);
            return;
        }
}

void CNetList::RenameNetlist(const std::string& oldName, const std::string& newName) {
    const std::string key = vb::UCase(vb::Trim(oldName));
    for (int r = 1; r <= NetlistArray.Rows(); ++r)
        if (vb::UCase(vb::Trim(NetlistArray.Text(r, netlist_list_column::Name))) == key) {
            NetlistArray.Set(r, netlist_list_column::Name, Value(newName));
            return;
        }
}

void CNetList::ReDimGrid(int rows, int columns) {
    NetlistArray.ReDim(rows, columns);
}

void CNetList::ClearAllNetlistArrays() {
    for (TableId t : {table::Groups, table::Wire, table::Pin, table::Component, table::Reversible,
                      table::Splice, table::Code})
        if (Table* table = GetTable(t))
            table->ReDimGrid(0, table->gridColumns());
}

void CNetList::HideVisibleTables() {
    VisibleTables.Clear();
    WindowRegistry& windows = state_->windows();
    for (const WindowInfo& w : windows.Windows()) {
        const auto shown = tabTable(w);
        if (!shown || *shown == table::Sequence || !w.visible || w.netlistIndex != netlistIndex)
            continue;
        if (w.active && !VisibleTables.Contains("ACTIVE"))
            VisibleTables.Add(*shown, "ACTIVE");
        else
            VisibleTables.Add(*shown);
        windows.SetVisible(w.id, false);
        if (state_->project().ActiveNetlist)
            state_->project().ActiveNetlist->RemoveFromVisibleCount();
    }
}

void CNetList::ShowVisibleTables() {
    WindowRegistry& windows = state_->windows();
    const TableId* active = VisibleTables.Item("ACTIVE");
    int activeId = 0;
    for (const WindowInfo& w : windows.Windows()) {
        const auto shown = tabTable(w);
        if (!shown || *shown == table::Sequence || w.netlistIndex != netlistIndex)
            continue;
        bool listed = false;
        VisibleTables.ForEach([&](TableId t) { listed = listed || t == *shown; });
        if (!listed)
            continue;
        windows.SetVisible(w.id, true);
        AddToVisibleCount();
        if (active && *active == *shown)
            activeId = w.id;
    }
    if (activeId)
        windows.BringToTop(activeId);
}

void CNetList::UnloadAllTables() {
    WindowRegistry& windows = state_->windows();
    const bool isMain = state_->project().MainNetlist == this;
    for (const WindowInfo& w : windows.Windows()) {
        const auto shown = tabTable(w);
        if (!shown || w.netlistIndex != netlistIndex)
            continue;
        if (!isMain && !IsNetlistTable(*shown))
            continue;
        windows.Unload(w.id);
    }
}

void CNetList::Destroy() {
    UnloadAllTables();
    const bool isMain = state_->project().MainNetlist == this;
    for (const TableId n : kAllTables) {
        if (ToInt(n) >= tableCount_)
            break;
        Table* table = GetTable(n);
        if (table && (isMain || IsNetlistTable(n))) {
            state_->DebugLog("DESTROY: " + GetTableName(n));
            table->Destroy();
        }
    }
    for (auto& table : tables_)
        if (table)
            table->setNetlist(nullptr);
    VisibleTables.Clear();
    NetlistArray = Grid(0, netlist_list_column::kCount);
}

} // namespace zolt
