#include "core/table_kinds.h"
#include "reports/page_layout.h"
#include "reports/report_catalog.h"
#include "reports/report_header.h"
#include "reports/report_text.h"
#include "support/test_program.h"

#include <gtest/gtest.h>

namespace zolt::reports {
namespace {

constexpr LocalTime kPrinted{2026, 3, 7, 14, 5, 9};

using test::AppendRow;
using Lines = std::vector<std::string>;

// The boxes as the dialog offers them, greyed ones marked.
Lines Offered(const std::vector<ReportChoice>& choices) {
    Lines boxes;
    for (const auto& c : choices)
        boxes.push_back(c.checkBox + (c.enabled ? "" : " (off)"));
    return boxes;
}

struct ReportsTest : ::testing::Test {
    test::TestProgram program;
    ProgramState& state = program.state;
    CNetList& main = *state.project().MainNetlist;

    ReportContext context() const { return {state, main, kPrinted}; }
    Report report(ReportKind kind, std::optional<TableId> tableIndex = std::nullopt) const {
        return MakeReport(context(), {kind, tableIndex, "", true});
    }
};

TEST(ReportTime, FormatsMonthDayYearHourMinuteAmPmWithTwoBlanksFromAnOleDateToo) {
    EXPECT_EQ(FormatReportTime({2026, 3, 7, 14, 5, 0}), "3/7/26  2:05 PM");
    EXPECT_EQ(FormatReportTime({2009, 12, 31, 0, 0, 0}), "12/31/09  12:00 AM");
    EXPECT_EQ(FormatReportTime({2000, 1, 1, 12, 30, 0}), "1/1/00  12:30 PM");
    EXPECT_EQ(FormatReportTime({1999, 6, 15, 11, 59, 0}), "6/15/99  11:59 AM");
    // OLE dates count days from the end of 1899.
    EXPECT_EQ(FormatReportTime(FromOleDate(0.0)), "12/30/99  12:00 AM");
    EXPECT_EQ(FormatReportTime(FromOleDate(45000.75)), "3/15/23  6:00 PM");
    // A time just short of midnight rounds into the next day, not to 24:00.
    EXPECT_EQ(FormatReportTime(FromOleDate(45000.999999999)), "3/16/23  12:00 AM");
}

TEST_F(ReportsTest, HeaderLabelsOfAPlainProgram) {
    state.document().CurrentFile = "/data/door harness.zlf";
    state.project().CompiledDate = 45000.5;
    const ReportHeader h = MakeReportHeader(state, main, "Pins", kPrinted);
    EXPECT_EQ((Lines{h.product, h.build, h.heading, h.fileName, h.baseName, h.compiled, h.printed}),
              (Lines{"Thessor ZOLT 6.0", "(Build 6.0.0)", "Pins", "door harness.zlf",
                     "door harness", "Compiled: 3/15/23  12:00 PM", "Printed: 3/7/26  2:05 PM"}));

    state.project().CompiledDate = 0.0;
    EXPECT_EQ(MakeReportHeader(state, main, "Pins", kPrinted).compiled, "Compiled:");
}

TEST_F(ReportsTest, HeaderOfAFamilyProgramNamesItAndTheNetlist) {
    program.addNetlist("DOOR");
    state.document().CurrentFile = "/data/family.grv";
    const ReportHeader h =
        MakeReportHeader(state, *state.project().FindNetlist("DOOR"), "Wires", kPrinted);
    EXPECT_EQ(h.product, "Thessor ZOLT-GRV");
    EXPECT_EQ(h.baseName, "family (DOOR)");
}

// A table's box is on when it has rows; the summaries need wires.
TEST_F(ReportsTest, TableBoxesFollowGetTableOrderAndAreEnabledByRows) {
    AppendRow(main, table::Connector, {"X1", "4"});
    AppendRow(main, table::Pin, {"X1", "1", "W1"});
    // clang-format off
    EXPECT_EQ(Offered(PrintChoices(main)), (Lines{"Groups (off)", "Fixture Connections (off)", "Connectors",
        "Wire Colors (off)", "Wires (off)", "Pins", "Splices (off)", "Components (off)", "Messages (off)",
        "Test Parameters (off)", "Sequence  (off)", "Switches (off)",
        "Sequence Instructions (off)", "Reversible Pairs (off)", "Manual Netlist (off)",
        "Wire Summary (by wire) (off)", "Wire Summary (by group) (off)"}));
    // clang-format on
    AppendRow(main, table::Wire, {"W1", "RED"});
    const auto choices = PrintChoices(main);
    EXPECT_TRUE(choices[choices.size() - 1].enabled && choices[choices.size() - 2].enabled);
}

TEST_F(ReportsTest, FamilyBoxesNeedTheirLists) {
    state.project().Assembly.FeatureCodeData = {"F1,DOOR"};
    state.project().Assembly.AssemblyOrderList.Add({"DOOR", true}, "DOOR");
    EXPECT_EQ(Offered(GrvPrintChoices(state)),
              (Lines{"Feature Codes", "Netlist Info (off)", "Assembly Order"}));
}

TEST_F(ReportsTest, PinReportTakesTheTestPointFromTheFixture) {
    AppendRow(main, table::Pin, {"X1", "1", "W1"});
    AppendRow(main, table::Pin, {"X1", "2", "(none)"});
    AppendRow(main, table::Fixture, {"1-002", "X1", "1"});
    const Report r = report(ReportKind::Table, table::Pin);
    EXPECT_EQ(r.header.heading, "Pins");
    EXPECT_EQ(r.captions, (std::vector<std::string>{"Connector", "Pin", "Wire", "Test Point"}));
    ASSERT_EQ(r.rows.size(), 2u);
    EXPECT_EQ(r.rows[0], (std::vector<std::string>{"X1", "1", "W1", "1-002"}));
    EXPECT_EQ(r.rows[1], (std::vector<std::string>{"X1", "2", "(none)", ""}));
}

TEST_F(ReportsTest, ColorNumbersPrintAsTheirNames) {
    Grid& colors = main.GetTable(table::Color)->gridarray();
    colors.ReDim(0, colors.Columns());
    AppendRow(main, table::Color, {std::int32_t{1}, "RED", ""});
    AppendRow(main, table::Color, {std::int32_t{2}, "GRN", "YEL"});
    AppendRow(main, table::Wire, {"W1", "1", "0"});
    AppendRow(main, table::Wire, {"W2", "2", "1"});
    EXPECT_EQ(
        report(ReportKind::Table, table::Wire).rows,
        (std::vector<std::vector<std::string>>{{"W1", "RED", "(none)"}, {"W2", "GRN/YEL", "RED"}}));
    EXPECT_EQ(report(ReportKind::Table, table::Color).rows,
              (std::vector<std::vector<std::string>>{{"1", "RED"}, {"2", "GRN/YEL"}}));
    EXPECT_EQ(report(ReportKind::SummaryByWire).rows[1][1], "GRN/YEL");
}

TEST_F(ReportsTest, TestParametersPrintWithTwoDecimals) {
    Grid& parameters = main.GetTable(table::TestParameter)->gridarray();
    parameters.ReDim(0, parameters.Columns());
    AppendRow(main, table::TestParameter, {"1", 12.0, "0.5", "N/A", "100"});
    EXPECT_EQ(report(ReportKind::Table, table::TestParameter).rows[0],
              (std::vector<std::string>{"1", "12.00", "0.50", "N/A", "100.00"}));
}

TEST_F(ReportsTest, ComponentReportSkipsValueAndTolerances) {
    AppendRow(main, table::Component, {"RES", "1", "W1", "W2", "100", "5", "5", "3"});
    const Report r = report(ReportKind::Table, table::Component);
    EXPECT_EQ(r.captions,
              (std::vector<std::string>{"Type", "Number", "Wire 1", "Wire 2", "Parameter"}));
    EXPECT_EQ(r.rows[0], (std::vector<std::string>{"RES", "1", "W1", "W2", "3"}));
}

TEST_F(ReportsTest, FeatureCodeLinesSplitAtTheFirstComma) {
    state.project().Assembly.FeatureCodeData = {"F1,DOOR,SEAT", "F2"};
    const Report r = report(ReportKind::FeatureCodes);
    EXPECT_EQ(r.header.heading, "GRV Feature Code Info");
    EXPECT_EQ(r.rows[0], (std::vector<std::string>{"F1", "DOOR,SEAT"}));
    EXPECT_EQ(r.rows[1], (std::vector<std::string>{"F2", ""}));
}

TEST_F(ReportsTest, SummaryReportShowsBothEndsAndTheGroup) {
    AppendRow(main, table::Wire, {"W1", "RED"});
    AppendRow(main, table::Pin, {"X1", "1", "W1"});
    AppendRow(main, table::Splice, {"4", "W1"});
    const Report r = report(ReportKind::SummaryByWire);
    EXPECT_EQ(r.header.heading, "Wire Summary");
    ASSERT_EQ(r.spans.size(), 1u);
    EXPECT_EQ(r.spans[0].text, "From");
    EXPECT_EQ(r.rows[0],
              (std::vector<std::string>{"W1", "RED", "X1", "1", "", "SPLICE", "4", "", "1"}));
}

struct PageCase {
    const char* name;
    int rows;
    int pages;
};

class PageBreaking : public ::testing::TestWithParam<PageCase> {};

TEST_P(PageBreaking, RowsFillPagesAndEveryPageRepeatsTheHeader) {
    Report r;
    r.header.heading = "Pins";
    r.captions = {"Connector", "Pin"};
    for (int i = 0; i < GetParam().rows; ++i)
        r.rows.push_back({"X", std::to_string(i)});
    const PageLayout layout = LayOut(r);
    EXPECT_FALSE(layout.landscape);
    const auto pages = Paginate(r, layout);
    ASSERT_EQ(static_cast<int>(pages.size()), GetParam().pages);
    int next = 0;
    for (const auto& p : pages) {
        EXPECT_EQ(p.firstRow, next);
        EXPECT_LE(p.rowCount, layout.linesPerPage);
        next += p.rowCount;
    }
    EXPECT_EQ(next, GetParam().rows);
    const std::string text = ReportText({r});
    std::size_t headings = 0;
    for (auto at = text.find("Pins\n"); at != std::string::npos; at = text.find("Pins\n", at + 1))
        ++headings;
    EXPECT_EQ(static_cast<int>(headings), GetParam().pages);
    EXPECT_NE(text.find("Page " + std::to_string(GetParam().pages) + "\n\f"), std::string::npos);
}

// A portrait Letter page holds 49 detail rows.
INSTANTIATE_TEST_SUITE_P(Reports, PageBreaking,
                         ::testing::Values(PageCase{"Empty", 0, 1}, PageCase{"OnePage", 49, 1},
                                           PageCase{"OneOver", 50, 2},
                                           PageCase{"ThreeFull", 147, 3}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(PageLayout, WideTablesTurnLandscapeAndNarrowToTheWidth) {
    Report r;
    r.captions = {"A", "B", "C"};
    r.rows.push_back({std::string(40, 'x'), std::string(40, 'y'), std::string(20, 'z')});
    PageLayout layout = LayOut(r);
    EXPECT_TRUE(layout.landscape);
    r.rows.push_back({std::string(80, 'x'), std::string(80, 'y'), std::string(80, 'z')});
    layout = LayOut(r);
    double total = 0;
    for (double w : layout.columnWidths)
        total += w;
    EXPECT_LE(total, layout.printableWidth() + 1e-6);
    EXPECT_GT(total, layout.printableWidth() - 1.0);
    // Narrowed columns wrap their cells, and a page takes rows by their lines.
    const int lines = LinesOfRow(r.rows[1], layout);
    EXPECT_GT(lines, 1);
    for (int i = 0; i < layout.linesPerPage; ++i)
        r.rows.push_back(r.rows[1]);
    const auto pages = Paginate(r, layout);
    EXPECT_LE(pages[0].rowCount * lines, layout.linesPerPage);
    EXPECT_GT(pages.size(), 1u);
}

TEST(PageLayout, CellsUpToTheFieldLimitsKeepTheirWidth) {
    Report r;
    r.captions = {"Number", "Message"};
    r.rows.push_back({"1", std::string(80, 'M')});
    const PageLayout layout = LayOut(r);
    EXPECT_EQ(LinesOfRow(r.rows[0], layout), 1);
    EXPECT_GE(layout.columnWidths[1], 80 * page::kCharWidth);
}

} // namespace
} // namespace zolt::reports
