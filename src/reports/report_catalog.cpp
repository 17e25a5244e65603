#include "reports/report_catalog.h"

#include "core/netlist.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "reports/report_header.h"
#include "reports/wire_summary.h"
#include "sequence/system_sequence_table.h"
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
         {{"Group", groups_column::Group},
          {"Connector", groups_column::Connector},
          {"Pin", groups_column::Pin},
          {"Base Color(s)", groups_column::BaseColor, Show::ColorName},
          {"Stripe Color(s)", groups_column::StripeColor, Show::ColorName}}},
        {table::Fixture,
         "Fixture Connections",
         {{"Test Point", fixture_column::TestPoint},
          {"Connector", fixture_column::Connector},
          {"Pin", fixture_column::Pin}}},
        {table::Connector,
         "Connectors",
         {{"Connector", connector_column::Connector},
          {"Pins Qty", connector_column::PinsQty},
          {"Switches Qty", connector_column::SwitchesQty},
          {"Lamp Board", connector_column::LampBoard},
          {"Lamp Point", connector_column::LampPoint},
          {"Grid Location", connector_column::Grid}}},
        // A color row names a base color and, for a two-color pair, its stripe.
        {table::Color,
         "Wire Colors",
         {{"Number", color_column::Number}, {"Color(s)", color_column::Number, Show::ColorName}}},
        {table::Wire,
         "Wires",
         {{"Wire", wire_column::Wire},
          {"Base Color(s)", wire_column::BaseColor, Show::ColorName},
          {"Stripe Color(s)", wire_column::StripeColor, Show::ColorName}}},
        {table::Pin,
         "Pins",
         {{"Connector", pin_column::Connector},
          {"Pin", pin_column::Pin},
          {"Wire", pin_column::Wire},
          {"Test Point", pin_column::Connector, Show::FixtureTestPoint}}},
        // "Splice Value" is the data field of the splice number.
        {table::Splice,
         "Splices",
         {{"Number", splice_column::Number},
          {"Wire", splice_column::Wire},
          {"Splice Value", splice_column::Number}}},
        {table::Component,
         "Components",
         {{"Type", component_column::DeviceType},
          {"Number", component_column::Number},
          {"Wire 1", component_column::Wire1},
          {"Wire 2", component_column::Wire2},
          {"Parameter", component_column::Parameter}}},
        {table::Message,
         "Messages",
         {{"Number", message_column::Number}, {"Message", message_column::Message}}},
        {table::TestParameter,
         "Test Parameters",
         {{"Number", test_parameter_column::Value},
          {"Test Voltage", test_parameter_column::TestVoltage, Show::TwoDecimals},
          {"Test Current", test_parameter_column::TestCurrent, Show::TwoDecimals},
          {"Threshhold 1", test_parameter_column::Threshold1, Show::TwoDecimals},
          {"Threshhold 2", test_parameter_column::Threshold2, Show::TwoDecimals}}},
        {table::Sequence,
         "Sequence ",
         {{"Number", sequence_column::Line},
          {"Command", sequence_column::Command},
          {"Parameter", sequence_column::Parameter},
          {"Description/Notes/Message", sequence_column::Description}}},
        {table::Switches,
         "Switches",
         {{"Connector", switches_column::Connector}, {"Switch Name", switches_column::SwitchName}}},
        {table::SequenceList,
         "Sequence Instructions",
         {{"Command", CSystemSequenceTable::Name},
          {"Type 1", CSystemSequenceTable::Flag},
          {"Type 2", CSystemSequenceTable::Type},
          {"Low Value", CSystemSequenceTable::Low},
          {"High Value", CSystemSequenceTable::High},
          {"Description", CSystemSequenceTable::Description},
          {"Version", CSystemSequenceTable::Version}}},
        {table::Reversible,
         "Reversible Pairs",
         {{"Number", reversible_column::Number},
          {"Connector 1", reversible_column::Connector1},
          {"Pin 1", reversible_column::Pin1},
          {"Connector 2", reversible_column::Connector2},
          {"Pin 2", reversible_column::Pin2}}},
        {table::Code,
         "Manual Netlist",
         {{"Command", code_column::Command},
          {"Parameter(s)", code_column::Parameters},
          {"Notes", code_column::BaseStripeColor}}},
    };
    return defs;
}

const TableReportDef* FindTableReport(TableId tableIndex) {
    for (const auto& def : TableReports())
        if (def.table == tableIndex)
            return &def;
    return nullptr;
}

int RowsOf(const CNetList& netlist, TableId tableIndex) {
    const Table* t = netlist.GetTable(tableIndex);
    return t ? t->gridarray().Rows() : 0;
}

const Grid& GridOf(const CNetList& netlist, TableId tableIndex) {
    static const Grid empty;
    const Table* t = netlist.GetTable(tableIndex);
    return t ? t->gridarray() : empty;
}

std::string ColorText(const ProgramState& state, const std::string& text) {
    const CNetList* main = state.project().MainNetlist;
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
        return TestPointOf(fixture, grid.Text(row, pin_column::Connector),
                           grid.Text(row, pin_column::Pin));
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

Report TableReport(const ReportContext& context, TableId tableIndex) {
    const TableReportDef* def = FindTableReport(tableIndex);
    Report report;
    if (!def)
        return report;
    report.header =
        MakeReportHeader(context.state, context.netlist, Trimmed(def->checkBox), context.now);
    for (const auto& column : def->columns)
        report.captions.emplace_back(column.caption);
    const Grid& grid = GridOf(context.netlist, tableIndex);
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
    const AssemblyData& data = context.state.project().Assembly;
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

std::string TableCheckBox(TableId tableIndex) {
    const TableReportDef* def = FindTableReport(tableIndex);
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
    const AssemblyData& data = state.project().Assembly;
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
