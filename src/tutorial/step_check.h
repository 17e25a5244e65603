#pragma once

#include "tutorial/tutorial_steps.h"

#include <string>

namespace zolt {
class ProgramState;
} // namespace zolt

namespace zolt::tutorial {

// Where the user types next: a table's window, a row (0: the new-row line) and a column.
struct StepFocus {
    TableId table = table::Connector;
    int row = 0;
    int column = 0;
};

// What the tables say about a step: done, or what is still missing and where.
struct StepState {
    bool done = false;
    std::string hint;
    StepFocus focus;
};

// Checks the step against the open project's MAIN tables.
StepState CheckStep(const TutorialStep& step, ProgramState& state);

// Does the step for the user, through the tables' own editing: missing rows are
// typed, wrong cells retyped, the fixture generated. False when a table refused
// (its box was shown); what was typed before stays.
bool FillStep(const TutorialStep& step, ProgramState& state);

} // namespace zolt::tutorial
