#include "reports/report_catalog.h"

#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "reports/report_header.h"
#include "reports/wire_summary.h"
#include "tables/color_table.h"

#include <cstdio>

namespace zolt::reports {
namespace {

// How a cell prints: as stored, or as the table window shows it.
enum class Show {
    Text,
    ColorName,        // a color number by its name
    TwoDecimals,      // a test parameter's number as "##0.00"
    FixtureTestPoint, // a pin's test point, from the fixture table
};

// A detail column: its caption and the table column it shows.
struct ColumnDef {
    const char* caption;
    int source;
    Show show = Show::Text;
};

struct TableReportDef {
    TableId table;
    const char* checkBox;
    std::vector<ColumnDef> columns;
};

const std::vector<TableReportDef>& TableReports() {
    static const std::vector<TableReportDef> defs = {
        {table::Groups,
         "Groups",
         {{"Group", 0},
          {"Connector", 1},
          {"Pin", 2},
          {"Base Color(s)", 3, Show::ColorName},
          {"Stripe Color(s)", 4, Show::ColorName}}},
        {table::Fixture, "Fixture Connections", {{"Test Point", 0}, {"Connector", 1}, {"Pin", 2}}},
        {table::Connector,
         "Connectors",
         {{"Connector", 0},
          {"Pins Qty", 1},
          {"Switches Qty", 2},
          {"Lamp Board", 3},
          {"Lamp Point", 4},
          {"Grid Location", 5}}},
        // A color row names a base color and, for a two-color pair, its stripe.
        {table::Color, "Wire Colors", {{"Number", 0}, {"Color(s)", 0, Show::ColorName}}},
        {table::Wire,
         "Wires",
         {{"Wire", 0},
          {"Base Color(s)", 1, Show::ColorName},
          {"Stripe Color(s)", 2, Show::ColorName}}},
        {table::Pin,
         "Pins",
         {{"Connector", 0}, {"Pin", 1}, {"Wire", 2}, {"Test Point", 0, Show::FixtureTestPoint}}},
        // "Splice Value" is the data field of the splice number.
        {table::Splice, "Splices", {{"Number", 0}, {"Wire", 1}, {"Splice Value", 0}}},
        {table::Component,
         "Components",
         {{"Type", 0}, {"Number", 1}, {"Wire 1", 2}, {"Wire 2", 3}, {"Parameter", 7}}},
        {table::Message, "Messages", {{"Number", 0}, {"Message", 1}}},
        {table::TestParameter,
         "Test Parameters",
         {{"Number", 0},
          {"Test Voltage", 1, Show::TwoDecimals},
          {"Test Current", 2, Show::TwoDecimals},
          {"Threshhold 1", 3, Show::TwoDecimals},
          {"Threshhold 2", 4, Show::TwoDecimals}}},
        {table::Sequence,
         "Sequence ",
         {{"Number", 0}, {"Command", 1}, {"Parameter", 2}, {"Description/Notes/Message", 3}}},
        {table::Switches, "Switches", {{"Connector", 0}, {"Switch Name", 1}}},
        {table::SequenceList,
         "Sequence Instructions",
         {{"Command", 0},
          {"Type 1", 1},
          {"Type 2", 2},
          {"Low Value", 3},
          {"High Value", 4},
          {"Description", 5},
          {"Version", 6}}},
        {table::Reversible,
         "Reversible Pairs",
         {{"Number", 0}, {"Connector 1", 1}, {"Pin 1", 2}, {"Connector 2", 3}, {"Pin 2", 4}}},
        {table::Code, "Manual Netlist", {{"Command", 1}, {"Parameter(s)", 2}, {"Notes", 3}}},
    };
    return defs;
}

const TableReportDef* FindTableReport(TableId tableNumber) {
    for (const auto& def : TableReports())
        if (def.table == tableNumber)
            return &def;
    return nullptr;
}

int RowsOf(const CNetList& netlist, TableId tableNumber) {
    const Table* t = netlist.GetTable(tableNumber);
    return t ? t->gridarray().Rows() : 0;
}

const Grid& GridOf(const CNetList& netlist, TableId tableNumber) {
    static const Grid empty;
    const Table* t = netlist.GetTable(tableNumber);
    return t ? t->gridarray() : empty;
}

std::string ColorText(const ProgramState& state, const std::string& text) {
    const CNetList* main = state.MainNetlist;
    const auto* colors = main ? main->TableAs<CColorTable>(table::Color) : nullptr;
    const std::string trimmed = vb::Trim(text);
    if (!colors || !vb::IsNumeric(std::string_view(trimmed)))
        return text;
    return colors->GetDisplayColor(static_cast<int>(vb::Val(trimmed)));
}

std::string TwoDecimals(const std::string& text) {
    const std::string trimmed = vb::Trim(text);
    if (!vb::IsNumeric(std::string_view(trimmed)))
        return text;
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.2f", vb::Val(trimmed));
    return buffer;
}

std::string CellText(const ProgramState& state, const Grid& grid, const Grid& fixture, int row,
                     const ColumnDef& column) {
    const std::string text = grid.Text(row, column.source);
    switch (column.show) {
    case Show::ColorName:
        return ColorText(state, text);
    case Show::TwoDecimals:
        return TwoDecimals(text);
    case Show::FixtureTestPoint:
        return TestPointOf(fixture, grid.Text(row, 0), grid.Text(row, 1));
    default:
        return text;
    }
}

std::string TrueFalse(bool b) {
    return b ? "True" : "False";
}

std::string Trimmed(std::string text) {
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    return text;
}

Report TableReport(const ReportContext& context, TableId tableNumber) {
    const TableReportDef* def = FindTableReport(tableNumber);
    Report report;
    if (!def)
        return report;
    report.header =
        MakeReportHeader(context.state, context.netlist, Trimmed(def->checkBox), context.now);
    for (const auto& column : def->columns)
        report.captions.emplace_back(column.caption);
    const Grid& grid = GridOf(context.netlist, tableNumber);
    const Grid& fixture = GridOf(context.netlist, table::Fixture);
    report.rows.reserve(static_cast<std::size_t>(grid.Rows()));
    for (int r = 1; r <= grid.Rows(); ++r) {
        std::vector<std::string> cells;
        cells.reserve(def->columns.size());
        for (const auto& column : def->columns)
            cells.push_back(CellText(context.state, grid, fixture, r, column));
        report.rows.push_back(std::move(cells));
    }
    return report;
}

Report SummaryReport(const ReportContext& context, bool byGroup) {
    Report report;
    report.header = MakeReportHeader(context.state, context.netlist, "Wire Summary", context.now);
    report.captions = {"Wire",        "Color(s)",   "Conn/Device",  "Pin/Number", "Fixture/Side",
                       "Conn/Device", "Pin/Number", "Fixture/Side", "Group"};
    report.spans = {{2, 3, "From"}};
    const CNetList& n = context.netlist;
    const HarnessTables tables{GridOf(n, table::Wire), GridOf(n, table::Pin),
                               GridOf(n, table::Component), GridOf(n, table::Splice),
                               GridOf(n, table::Fixture)};
    for (const auto& row : BuildWireSummary(tables, byGroup)) {
        const auto& [a, b] = row.ends;
        report.rows.push_back({row.wire, ColorText(context.state, row.colors), a.device, a.number,
                               a.side, b.device, b.number, b.side, std::to_string(row.group)});
    }
    return report;
}

Report ListReport(const ReportContext& context, const std::string& heading,
                  std::vector<std::string> captions) {
    Report report;
    report.header = MakeReportHeader(context.state, context.netlist, heading, context.now);
    report.captions = std::move(captions);
    return report;
}

Report FamilyReport(const ReportContext& context, ReportKind kind) {
    const AssemblyData& data = context.state.Assembly;
    if (kind == ReportKind::FeatureCodes) {
        Report report = ListReport(context, "GRV Feature Code Info", {"Feature Code", "Netlists"});
        for (const auto& line : data.FeatureCodeData) {
            const auto comma = line.find(',');
            report.rows.push_back(
                {line.substr(0, comma), comma == std::string::npos ? "" : line.substr(comma + 1)});
        }
        return report;
    }
    if (kind == ReportKind::NetlistInfo) {
        Report report = ListReport(context, "GRV Netlist Info",
                                   {"Pattern", "Station Name", "Netlist ", "Part Of Main?"});
        for (std::size_t i = 1; i <= data.NetlistInfoList.Count(); ++i) {
            const CNetlistInfo& info = *data.NetlistInfoList.Item(i);
            report.rows.push_back({std::to_string(info.Pattern), info.Station, info.Name,
                                   TrueFalse(info.PartOfMain)});
        }
        return report;
    }
    Report report = ListReport(context, "GRV Assembly Order", {"Netlist Name", "Ordered?"});
    for (std::size_t i = 1; i <= data.AssemblyOrderList.Count(); ++i) {
        const CAssemblyRec& rec = *data.AssemblyOrderList.Item(i);
        report.rows.push_back({rec.Name, TrueFalse(rec.Flag)});
    }
    return report;
}

} // namespace

std::string TableCheckBox(TableId tableNumber) {
    const TableReportDef* def = FindTableReport(tableNumber);
    return def ? def->checkBox : "";
}

std::vector<ReportChoice> PrintChoices(const CNetList& netlist) {
    std::vector<ReportChoice> choices;
    for (const auto& def : TableReports())
        choices.push_back(
            {ReportKind::Table, def.table, def.checkBox, RowsOf(netlist, def.table) > 0});
    const bool wires = RowsOf(netlist, table::Wire) > 0;
    choices.push_back({ReportKind::SummaryByWire, std::nullopt, "Wire Summary (by wire)", wires});
    choices.push_back({ReportKind::SummaryByGroup, std::nullopt, "Wire Summary (by group)", wires});
    return choices;
}

std::vector<ReportChoice> GrvPrintChoices(const ProgramState& state) {
    const AssemblyData& data = state.Assembly;
    return {
        {ReportKind::FeatureCodes, std::nullopt, "Feature Codes", !data.FeatureCodeData.empty()},
        {ReportKind::NetlistInfo, std::nullopt, "Netlist Info", !data.NetlistInfoList.empty()},
        {ReportKind::AssemblyOrder, std::nullopt, "Assembly Order",
         !data.AssemblyOrderList.empty()}};
}

Report MakeReport(const ReportContext& context, const ReportChoice& choice) {
    switch (choice.kind) {
    case ReportKind::Table:
        return choice.table ? TableReport(context, *choice.table) : Report{};
    case ReportKind::SummaryByWire:
        return SummaryReport(context, false);
    case ReportKind::SummaryByGroup:
        return SummaryReport(context, true);
    default:
        return FamilyReport(context, choice.kind);
    }
}

} // namespace zolt::reports
