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

namespace zolt {
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
    }
    return nullptr;
}

} // namespace zolt
