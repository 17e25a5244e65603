#include "file/table_factory.h"

#include "core/table_kinds.h"
#include "fixture/fixture_table.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"
#include "tables/code_table.h"
#include "tables/color_table.h"
#include "tables/component_table.h"
#include "tables/connector_table.h"
#include "tables/group_table.h"
#include "tables/message_table.h"
#include "tables/pin_table.h"
#include "tables/reverse_table.h"
#include "tables/splice_table.h"
#include "tables/switches_table.h"
#include "tables/test_parameter_table.h"
#include "tables/wire_table.h"

#include <array>

namespace zolt {
namespace {

struct Shape {
    int recordType;
    int gridColumns;
};

// Record type in the program file and columns of the row store, hidden ones included.
constexpr std::array<Shape, 16> kShapes = {{
    {0, 0},   // unused
    {70, 7},  // Groups
    {10, 7},  // Fixture
    {20, 8},  // Connector
    {40, 4},  // Color
    {30, 5},  // Wire
    {60, 5},  // Pin
    {110, 4}, // Splice
    {50, 10}, // Component
    {80, 4},  // Message
    {90, 7},  // TestParameter
    {130, 7}, // Sequence
    {120, 5}, // Switches
    {0, 7},   // SequenceList
    {100, 7}, // Reversible
    {160, 6}, // Code
}};

} // namespace

std::unique_ptr<Table> MakeTable(ProgramState& state, TableId n) {
    switch (n) {
    case table::Fixture:
        return std::make_unique<CFixtureTable>(state);
    case table::Connector:
        return std::make_unique<CConnectorTable>(state);
    case table::Pin:
        return std::make_unique<CPinTable>(state);
    case table::Wire:
        return std::make_unique<CWireTable>(state);
    case table::Splice:
        return std::make_unique<CSpliceTable>(state);
    case table::Component:
        return std::make_unique<CComponentTable>(state);
    case table::Color:
        return std::make_unique<CColorTable>(state);
    case table::Groups:
        return std::make_unique<CGroupTable>(state);
    case table::Reversible:
        return std::make_unique<CReverseTable>(state);
    case table::Message:
        return std::make_unique<CMessageTable>(state);
    case table::Code:
        return std::make_unique<CCodeTable>(state);
    case table::TestParameter:
        return std::make_unique<CTestParameterTable>(state);
    case table::Switches:
        return std::make_unique<CSwitchesTable>(state);
    case table::Sequence:
        return std::make_unique<CSequenceTable>(state);
    case table::SequenceList:
        return std::make_unique<CSystemSequenceTable>(state);
    default:
        break;
    }
    const Shape shape = kShapes[static_cast<std::size_t>(ToInt(n))];
    return std::make_unique<Table>(state, n, shape.recordType, shape.gridColumns);
}

} // namespace zolt
