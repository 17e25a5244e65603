#pragma once

#include "core/grid.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zolt {
class DataTable;
class ProgramState;
class Ui;
} // namespace zolt

namespace zolt::file {

// What a copy dialog offers: its caption, the line above the list, the tabs.
struct TabOffer {
    std::string caption;
    std::string prompt;
    std::vector<std::string> tabs;
};
// The copy dialog: the tab picked and confirmed with OK, nullopt for Cancel.
using TabPicker = std::function<std::optional<std::string>(const TabOffer&)>;

// Copy Table from Other Tab into `target`, the table of the active window
// (nullptr when no table window is active): the command's checks, the pick,
// then the other tab's rows replace the table's. True when the rows were
// replaced; every refusal shows its box.
bool CopyTableFromOtherTab(ProgramState& state, DataTable* target, const TabPicker& pick);

// Copy Table from Other File into `target`: the command's checks, the file
// dialog, the tabs of that file fit for the table, the pick, then the table of
// the picked tab replaces the table's rows. The other file is read by the
// program file reader into a project of its own and never trusted beyond it.
bool CopyTableFromOtherFile(ProgramState& state, DataTable* target, const TabPicker& pick);

// Puts `rows` in place of the table's rows in one change, as rows of the
// table's own netlist: the document is marked modified.
void ReplaceRows(DataTable& target, Grid rows);

// The stop box of a copy the command refuses; false.
bool RefuseCopy(Ui& ui, const std::string& text);

// "Warning: Pins table will be overwritten."
std::string OverwriteCaption(const DataTable& target);

} // namespace zolt::file
