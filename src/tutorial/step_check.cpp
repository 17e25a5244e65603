#include "tutorial/step_check.h"

#include "core/program_state.h"
#include "core/value.h"
#include "file/path_names.h"
#include "fixture/fixture_commands.h"
#include "tables/table_editor.h"

#include <algorithm>

namespace zolt::tutorial {
namespace {

bool cellIs(const Grid& grid, int row, const ExpectedCell& cell) {
    return vb::Trim(grid.Text(row, cell.column)) == cell.text;
}

// The stored row whose key cells read as expected; 0 when none.
int findRow(const Grid& grid, const ExpectedRow& expected) {
    for (int row = 1; row <= grid.Rows(); ++row)
        if (std::all_of(expected.cells.begin(), expected.cells.end(),
                        [&](const ExpectedCell& c) { return !c.key || cellIs(grid, row, c); }))
            return row;
    return 0;
}

// "Connector J1, Pin 2": the key cells under their captions.
std::string describeKey(const std::vector<std::string>& captions, const ExpectedRow& expected) {
    std::string text;
    for (const ExpectedCell& c : expected.cells)
        if (c.key)
            text += (text.empty() ? "" : ", ") + captions.at(c.column) + " " + c.text;
    return text;
}

DataTable* mainTable(ProgramState& state, TableId table) {
    return state.project().MainNetlist
               ? dynamic_cast<DataTable*>(state.project().MainNetlist->GetTable(table))
               : nullptr;
}

StepState checkRows(const TutorialStep& step, ProgramState& state) {
    const DataTable* table = mainTable(state, step.table);
    const std::string name = TableCaption(step.table);
    if (!table)
        return {false, "No project is open.", {step.table, 0, 0}};
    const Grid& grid = table->gridarray();
    const auto captions = table->Descriptor().Captions();
    for (const ExpectedRow& expected : step.rows) {
        const int row = findRow(grid, expected);
        if (row == 0)
            return {false,
                    "The " + name + " table has no row for " + describeKey(captions, expected) +
                        " yet.",
                    {step.table, step.cursorRow, expected.cells.front().column}};
        for (const ExpectedCell& c : expected.cells)
            if (!cellIs(grid, row, c))
                return {false,
                        "Row " + std::to_string(row) + " of the " + name + " table has " +
                            captions.at(c.column) + " '" + vb::Trim(grid.Text(row, c.column)) +
                            "'; this step needs " + c.text + ".",
                        {step.table, row, c.column}};
    }
    return {true, {}, {step.table, step.cursorRow, 0}};
}

StepState checkSaved(const TutorialStep& step, ProgramState& state) {
    const StepFocus focus{step.table, 0, 0};
    if (!state.document().FileOpen)
        return {false, "No project is open.", focus};
    if (file::IsNewOrTemplate(state.document().CurrentFile))
        return {false, "The example has no name yet: press Save Example... to save it.", focus};
    if (state.IsDirty())
        return {false, "The example has changes that are not saved: press Save Example...", focus};
    return {true, {}, focus};
}

bool fillRows(const TutorialStep& step, ProgramState& state) {
    DataTable* table = mainTable(state, step.table);
    if (!table)
        return false;
    TableEditor editor(*table);
    for (const ExpectedRow& expected : step.rows) {
        const int row = findRow(table->gridarray(), expected);
        if (row == 0) {
            std::vector<std::string> cells;
            for (const ExpectedCell& c : expected.cells) {
                if (static_cast<int>(cells.size()) <= c.column)
                    cells.resize(c.column + 1);
                cells[c.column] = c.text;
            }
            if (editor.AddRow(cells) != code::None)
                return false;
            continue;
        }
        for (const ExpectedCell& c : expected.cells)
            if (!cellIs(table->gridarray(), row, c) &&
                editor.EditCell(row, c.column, c.text) != code::None)
                return false;
    }
    return true;
}

} // namespace

StepState CheckStep(const TutorialStep& step, ProgramState& state) {
    switch (step.kind) {
    case StepKind::Read:
        return {true, {}, {step.table, step.cursorRow, 0}};
    case StepKind::Rows:
    case StepKind::Generate:
        return checkRows(step, state);
    case StepKind::Save:
        return checkSaved(step, state);
    }
    return {};
}

bool FillStep(const TutorialStep& step, ProgramState& state) {
    switch (step.kind) {
    case StepKind::Rows:
        return fillRows(step, state);
    case StepKind::Generate:
        // The user asked for it by skipping: no second question.
        AutoGenCommand(state, true);
        return CheckStep(step, state).done;
    case StepKind::Read:
    case StepKind::Save:
        return true;
    }
    return false;
}

} // namespace zolt::tutorial
