#pragma once

#include "core/ports/clock.h"
#include "core/table_kinds.h"
#include "reports/report.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt {
class CNetList;
class ProgramState;
} // namespace zolt

namespace zolt::reports {

// What every report is made for: the project, the netlist whose tables it
// prints and the moment it is printed.
struct ReportContext {
    const ProgramState& state;
    const CNetList& netlist;
    LocalTime now;
};

// The reports a print dialog offers, each with the text of its check box.
enum class ReportKind {
    Table,          // one table of the netlist, `table` says which
    SummaryByWire,  // rptSummary in the Wire table's order
    SummaryByGroup, // rptSummary sorted by group
    FeatureCodes,
    NetlistInfo,
    AssemblyOrder,
};

struct ReportChoice {
    ReportKind kind = ReportKind::Table;
    std::optional<TableId> table; // the table of a Table report
    std::string checkBox;
    bool enabled = false;
};

// frmPrint's boxes: the tables in `GetTable` order, each enabled when its
// table has rows, then the two summaries, enabled when there are wires.
std::vector<ReportChoice> PrintChoices(const CNetList& netlist);
// frmGRVPrint's boxes, each enabled when its list is not empty.
std::vector<ReportChoice> GrvPrintChoices(const ProgramState& state);

// The report behind a choice.
Report MakeReport(const ReportContext& context, const ReportChoice& choice);

// The check box text of a table's report ("Connectors", "Sequence ", …).
std::string TableCheckBox(TableId tableIndex);

} // namespace zolt::reports
