#include "table_fixture.h"
#include "tables/connector_table.h"
#include "tables/switches_table.h"

namespace zolt::testing {
namespace {

class ConnectorTest : public TableTest {
protected:
    CConnectorTable& connectors() { return table<CConnectorTable>(table::Connector); }
    CSwitchesTable& switches() { return table<CSwitchesTable>(table::Switches); }
    std::vector<std::string> switchRows() {
        std::vector<std::string> out;
        const Grid& g = switches().gridarray();
        for (int r = 1; r <= g.Rows(); ++r)
            out.push_back(g.Text(r, 0) + ":" + g.Text(r, 1) + ":" + g.Text(r, 2) + ":" +
                          g.Text(r, 3));
        return out;
    }
    void switchMode() { state_.params().SetVal(param::Switches, Value(std::int32_t{1})); }
};

TEST_F(ConnectorTest, NamesAreUniqueAndEmptyNumbersBecomeZero) {
    TableEditor ed = editor(table::Connector);
    EXPECT_EQ(ed.AddRow({"P1", "10"}), code::None);
    const Grid& g = connectors().gridarray();
    EXPECT_EQ(g.Text(1, 2), "0");
    EXPECT_EQ(g.Text(1, 4), "0");
    EXPECT_EQ(ed.AddRow({"P1", "3"}), code::Duplicate);
    EXPECT_EQ(lastBox(), "Value already Exists! Enter a unique value.");
    // Typing leaves an empty Pins Qty as "0"; the bare check sees it empty.
    EXPECT_EQ(ed.AddRow({"P2", ""}), code::None);
    EXPECT_EQ(g.Text(2, 1), "0");
    EXPECT_EQ(ed.EditCell(2, 1, ""), code::NotNumeric);
    // Typing stops at the column's length; the limit is the range.
    EXPECT_EQ(ed.AddRow({"P3", "1000"}), code::None);
    EXPECT_EQ(connectors().GetMaxPins("P3"), 100);
    EXPECT_EQ(ed.AddRow({"P4", "1", "0", "16"}), code::AboveMaximum);
    EXPECT_EQ(lastBox(), "Number must be Less Than or Equal To 15!");
    EXPECT_EQ(connectors().GetMaxPins("P1"), 10);
    EXPECT_EQ(connectors().GetMaxPins("nope"), 0);
    EXPECT_EQ(connectors().FormatField(1, Value("7")), "7");
}

TEST_F(ConnectorTest, ConnectorZeroIsReservedInSwitchMode) {
    TableEditor ed = editor(table::Connector);
    EXPECT_EQ(ed.AddRow({"0", "1"}), code::None);
    switchMode();
    EXPECT_EQ(ed.AddRow({"0", "1"}), code::CellRefused); // its box: golden case table_rules
}

TEST_F(ConnectorTest, SwitchesFollowCountAndName) {
    switchMode();
    TableEditor ed = editor(table::Connector);
    ASSERT_EQ(ed.AddRow({"J1", "4", "3"}), code::None);
    EXPECT_EQ(switchRows(),
              (std::vector<std::string>{"J1:DS1:COM:1", "J1:DS2:COM:2", "J1:DS3:COM:3"}));
    ASSERT_EQ(ed.EditCell(1, 2, "1"), code::None);
    EXPECT_EQ(switchRows(), (std::vector<std::string>{"J1:DS1:COM:1"}));
    ASSERT_EQ(ed.EditCell(1, 2, "2"), code::None);
    EXPECT_EQ(switchRows(), (std::vector<std::string>{"J1:DS1:COM:1", "J1:DS2:COM:2"}));
    ASSERT_EQ(ed.EditCell(1, 0, "J9"), code::None);
    EXPECT_EQ(switchRows(), (std::vector<std::string>{"J9:DS1:COM:1", "J9:DS2:COM:2"}));
    state_.params().SetVal(param::SwitchType, Value(std::int32_t{3}));
    ASSERT_EQ(ed.AddRow({"J2", "1", "1"}), code::None);
    EXPECT_EQ(switchRows().back(), "J2:DS1:DS1-:1");
    ui_.Queue(Answer::Ok);
    ASSERT_TRUE(ed.DeleteCurrent(1));
    EXPECT_EQ(switchRows(), (std::vector<std::string>{"J2:DS1:DS1-:1"}));
}

TEST_F(ConnectorTest, SwitchRulesAndRefusals) {
    switchMode();
    editor(table::Connector).AddRow({"J1", "4", "2"});
    editor(table::Connector).AddRow({"J2", "4", "1"});
    TableEditor ed = editor(table::Switches);
    EXPECT_EQ(ed.EditCell(2, 1, "DS1"), code::DuplicateSwitch);
    EXPECT_EQ(lastBox(), "No Duplicate Switch Names!");
    EXPECT_EQ(ed.EditCell(3, 1, "DS2"), code::None); // names are per connector
    EXPECT_EQ(ed.EditCell(1, 0, "J7"), code::NoConnector);
    // clang-format off
    const std::pair<std::function<void()>, const char*> refusals[] = {
        {[&] { ed.AddRow({"J1", "X"}); }, "Add line not permitted in Switches table"},
        {[&] { ed.InsertRow(1, {"J1", "X"}); }, "Insert line not permitted in Switches table"},
        {[&] { ed.DeleteCurrent(1); }, "Delete line not permitted in Switches table"},
        {[&] { ed.ClearTable(); }, "Clear switches table not permitted"}};
    // clang-format on
    for (const auto& [act, text] : refusals) {
        act();
        EXPECT_EQ(lastBox(), text);
    }
    EXPECT_EQ(switches().gridarray().Rows(), 3);
    std::vector<std::string> names;
    switches().GetExtraSwitchNames("J1", 2, &names);
    EXPECT_EQ(names, (std::vector<std::string>{"DS3", "DS4"}));
    EXPECT_EQ(switches().gridarray().Rows(), 3);
}

// "Seq" is read-only: what is typed there goes nowhere, the rest of the row is kept.
TEST_F(ConnectorTest, TheSwitchSequenceTakesNoTyping) {
    switchMode();
    editor(table::Connector).AddRow({"J1", "4", "2"});
    const std::string seq = switches().gridarray().Text(2, 3);
    EXPECT_EQ(editor(table::Switches).EditCells(2, 2, {"C9", "77"}), code::None);
    EXPECT_EQ(switches().gridarray().Text(2, 2), "C9");
    EXPECT_EQ(switches().gridarray().Text(2, 3), seq);
    EXPECT_NE(seq, "77");
}

TEST_F(ConnectorTest, NextConnectorKey) {
    TableEditor ed = editor(table::Connector);
    EXPECT_EQ(ed.PressKey(key::F5, 0, {"2"}), code::None);
    EXPECT_EQ(connectors().gridarray().Text(1, 0), "P1");
    EXPECT_EQ(ed.PressKey(key::F5, 1, {"2"}), code::None);
    EXPECT_EQ(connectors().gridarray().Text(2, 0), "P2");
    EXPECT_EQ(ed.PressKey(key::F6, 1, {}), std::nullopt);
}

} // namespace
} // namespace zolt::testing
