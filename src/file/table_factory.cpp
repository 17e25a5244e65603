#include "file/table_factory.h"

#include "core/table_kinds.h"

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
    {10, 5},  // Fixture
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
    {0, 6},   // SequenceList
    {100, 7}, // Reversible
    {160, 6}, // Code
}};

} // namespace

std::unique_ptr<Table> MakeTable(ProgramState& state, int n) {
    const Shape shape =
        kShapes[static_cast<std::size_t>(n >= table::First && n <= table::Last ? n : 0)];
    return std::make_unique<Table>(state, n, shape.recordType, shape.gridColumns);
}

} // namespace zolt
