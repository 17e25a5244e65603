#include "file/table_transfer.h"

#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "fixture/fixture_table.h"
#include "tables/data_table.h"

namespace zolt::file {
namespace {

bool refuse(ProgramState& state, const std::string& text) {
    return RefuseCopy(state.ui(), text);
}

} // namespace

bool RefuseCopy(Ui& ui, const std::string& text) {
    ui.Message(text, "Abort Operation", Buttons::Ok, Icon::Stop);
    return false;
}

std::string OverwriteCaption(const DataTable& target) {
    return "Warning: " + TableCaption(target.tableIndex()) + " table will be overwritten.";
}

void ReplaceRows(DataTable& target, Grid rows) {
    const TableId kind = target.tableIndex();
    rows.ReDim(rows.Rows(), target.gridColumns());
    // Rows of a netlist's own table belong to the netlist they now sit in.
    if (KindOf(kind).scope != TableScope::Project) {
        const Value owner(
            static_cast<std::int32_t>(target.netlist() ? target.netlist()->netlistIndex : 0));
        for (int r = 1; r <= rows.Rows(); ++r)
            rows.Set(r, target.NetlistColumn(), owner);
    }
    target.gridarray().Replace(rows.Rows(), rows.Columns(), rows.Cells());
    if (auto* fixture = dynamic_cast<CFixtureTable*>(&target))
        fixture->UpdateTableSplits();
    target.state().SetDirty(true);
}

bool CopyTableFromOtherTab(ProgramState& state, DataTable* target, const TabPicker& pick) {
    if (!target)
        return refuse(state, "Table must be selected to copy into.");
    const TableId kind = target->tableIndex();
    if (!IsNetlistTable(kind))
        return refuse(state, "Table selected can not be copied into.");
    if (const auto* fixture = dynamic_cast<const CFixtureTable*>(target);
        fixture && fixture->gridMain())
        return refuse(state, "Table selected can only be copied into in MAIN tab.");
    TabOffer offer{OverwriteCaption(*target), "Select Tab to Copy From", {}};
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        if (n.get() != target->netlist() && n->NetlistName != kManualNetlists)
            offer.tabs.push_back(n->NetlistName);
    });
    // With only the manual netlists beside this tab there is nothing to copy from.
    if (state.project().NetlistCollection.Count() < 2 || offer.tabs.empty())
        return refuse(state, "Multiple netlists must exist to enable Copy.");
    const auto picked = pick(offer);
    if (!picked)
        return false;
    const CNetList* from = state.project().FindNetlist(vb::UCase(vb::Trim(*picked)));
    if (!from) {
        state.ui().Message("Netlist Not Found!", kAppTitle);
        return false;
    }
    const Table* source = from->GetTable(kind);
    if (!source || source->gridarray().Rows() == 0) {
        state.ui().Message("Table selected does not contain any data", "Abort Copy", Buttons::Ok,
                           Icon::Stop);
        return false;
    }
    state.history().NameStep("Copy " + TableCaption(kind) + " Table");
    ReplaceRows(*target, source->gridarray());
    return true;
}

} // namespace zolt::file
