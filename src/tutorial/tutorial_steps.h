#pragma once

#include "core/table_kinds.h"

#include <string>
#include <vector>

namespace zolt::tutorial {

// A cell a step expects, by column of the table's row store.
struct ExpectedCell {
    int column;
    std::string text;
    // Key cells find the row; the others must then read as expected.
    bool key = true;
};

// A row the table must hold once the step is done.
struct ExpectedRow {
    std::vector<ExpectedCell> cells;
};

enum class StepKind {
    Read,     // text only: always done
    Rows,     // the user types rows
    Generate, // the fixture table is generated
    Save,     // the example is saved under a name of the user's
};

// One step of a tutorial: what to do, where, and what the tables hold afterwards.
struct TutorialStep {
    std::string title;
    std::string instruction;
    StepKind kind = StepKind::Read;
    TableId table = table::Connector;
    std::vector<ExpectedRow> rows;
    // The row the cursor starts on (a key that works from the current row); 0:
    // the new-row line.
    int cursorRow = 0;
};

// The walk through a small harness described by the group method: two
// connectors, three groups, the fixture, the save.
const std::vector<TutorialStep>& GroupsTutorialSteps();

} // namespace zolt::tutorial
