#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "file/table_factory.h"

namespace zolt::test {

// A program with scripted ports and a new project holding MAIN.
struct TestProgram {
    ScriptedUi ui;
    MemorySettingsStore settings;
    HeadlessFrame frame;
    ProgramState state{Ports{ui, settings, frame, frame}, MakeTable};

    TestProgram() { NewProject(state); }

    // Adds a netlist through the New Netlist command, the name typed into its box.
    void addNetlist(const std::string& name) {
        ui.QueueFirst(ScriptedUi::TextAnswer{name});
        NewNetlistCommand(state);
    }
    // Delete Netlist and Rename Netlist, `name` typed into their box.
    void deleteNetlist(const std::string& name) {
        ui.QueueFirst(ScriptedUi::TextAnswer{name});
        DeleteNetlistCommand(state);
    }
    void renameNetlist(const std::string& name) {
        ui.QueueFirst(ScriptedUi::TextAnswer{name});
        RenameNetlistCommand(state);
    }
    std::vector<std::string> boxTexts() const {
        std::vector<std::string> texts;
        for (const auto& box : ui.ShownBoxes())
            texts.push_back(box.text);
        return texts;
    }
    // Each box shown, as "caption: text".
    std::vector<std::string> boxes() const {
        std::vector<std::string> shown;
        for (const auto& box : ui.ShownBoxes())
            shown.push_back(box.caption + ": " + box.text);
        return shown;
    }
};

// The cells of a column, as text, top down.
inline std::vector<std::string> ColumnTexts(const Grid& grid, int column) {
    std::vector<std::string> cells;
    for (int r = 1; r <= grid.Rows(); ++r)
        cells.push_back(grid.Text(r, column));
    return cells;
}

// Stores a row at the end of a table as the file reader would, unchecked.
inline void AppendRow(CNetList& netlist, TableId tableIndex, const std::vector<Value>& cells) {
    Grid& grid = netlist.GetTable(tableIndex)->gridarray();
    const int row = grid.Rows() + 1;
    grid.ReDim(row, grid.Columns());
    for (std::size_t c = 0; c < cells.size(); ++c)
        grid.Set(row, static_cast<int>(c), cells[c]);
}

} // namespace zolt::test
