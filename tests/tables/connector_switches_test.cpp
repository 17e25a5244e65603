#include "table_fixture.h"
#include "tables/connector_table.h"
#include "tables/switches_table.h"

namespace zolt::testing {
namespace {

// What typing into the connector and switch tables does is the golden case
// connector_switches'; here the answers other tables and the fixture ask for.
class ConnectorTest : public TableTest {
protected:
    CConnectorTable& connectors() { return table<CConnectorTable>(table::Connector); }
    CSwitchesTable& switches() { return table<CSwitchesTable>(table::Switches); }
};

TEST_F(ConnectorTest, PinCountsAndFurtherSwitchNames) {
    state_.params().SetVal(param::Switches, Value(std::int32_t{1}));
    TableEditor ed = editor(table::Connector);
    ASSERT_EQ(ed.AddRow({"J1", "10", "2"}), code::None);
    EXPECT_EQ(connectors().GetMaxPins("J1"), 10);
    EXPECT_EQ(connectors().GetMaxPins("nope"), 0);
    EXPECT_EQ(connectors().FormatField(1, Value("7")), "7");
    std::vector<std::string> names;
    switches().GetExtraSwitchNames("J1", 2, &names);
    EXPECT_EQ(names, (std::vector<std::string>{"DS3", "DS4"}));
    EXPECT_EQ(switches().gridarray().Rows(), 2);
}

} // namespace
} // namespace zolt::testing
