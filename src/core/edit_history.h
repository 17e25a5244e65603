#pragma once

#include "core/assembly_lists.h"
#include "core/grid.h"
#include "core/table_kinds.h"
#include "core/value.h"

#include <cstddef>
#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace zolt {

class CNetList;
class ProgramState;
class Table;

// Where a step changed rows: the netlist (empty for a project-wide table), the
// table and the rows, from 1, as they stand after the step.
struct EditPlace {
    std::string netlist;
    TableId table = TableId::Pin;
    int firstRow = 0;
    int lastRow = 0;
};

// One undoable change. Undo and Redo each either do their whole work or throw
// with nothing changed that the caller cannot put back by the opposite call.
class EditCommand {
public:
    virtual ~EditCommand() = default;
    virtual void Undo() = 0;
    virtual void Redo() = 0;
    // Bytes the command keeps, roughly: what the history costs.
    virtual std::size_t Bytes() const = 0;
    // The rows it changes; nullopt for a change of no table.
    virtual std::optional<EditPlace> Place() const { return std::nullopt; }
};

// A netlist outside the project, with the place it had there.
struct DetachedNetlist {
    std::unique_ptr<CNetList> netlist;
    std::size_t position = 0; // in the netlist collection, from 1
    int listRow = 0;          // in MAIN's netlist list, from 1
};

// Undo and redo of every edit, as commands in the order they were made: the
// cells, rows and whole contents of tables (told by the tables themselves),
// netlists added, renamed or deleted, parameters. The commands of one user
// gesture make one step, so one Undo takes back one gesture. The compiled image
// is no part of it; the document is clean exactly at the step last saved.
class EditHistory {
public:
    explicit EditHistory(ProgramState& state, std::size_t limit = 100);
    ~EditHistory();
    EditHistory(const EditHistory&) = delete;
    EditHistory& operator=(const EditHistory&) = delete;

    // A project was opened or closed: the history starts anew from it, and
    // records only while a project is open.
    void Reset();
    // The project goes: nothing is recorded until the next Reset.
    void Stop();
    // The project was saved: this state is the clean one.
    void MarkSaved();
    // Ends the current gesture: its edits become one step. True when there were any.
    bool Record();
    // Names the current gesture for the Edit menu ("Delete Pin Record"); the first name stays.
    void NameStep(const std::string& name);

    bool CanUndo() const { return !undo_.empty(); }
    bool CanRedo() const { return !redo_.empty(); }
    // "Undo Delete Pin Record", or "Undo" with nothing to undo; likewise for redo.
    // With more netlists than MAIN, a step on a netlist's table names it:
    // "Undo Delete Pin Record (LH)".
    std::string UndoText() const;
    std::string RedoText() const;
    // The rows the next Undo or Redo changes, so that they can be shown.
    std::optional<EditPlace> UndoPlace() const;
    std::optional<EditPlace> RedoPlace() const;
    // Puts the project back one step; false when there is none. A step that
    // throws half way is put back as it was before the exception goes on.
    bool Undo();
    bool Redo();
    // What the kept steps cost in bytes.
    std::size_t Bytes() const;

    // Recording, from the places that make the changes.
    bool Recording() const { return recording_ && !replaying_; }
    void TableChanged(Table& table, const GridChange& change, GridLoss loss);
    void NetlistAdded(const std::string& name);
    // Takes the netlist over; without a recording it is simply released.
    void NetlistDeleted(DetachedNetlist detached, AssemblyData assemblyBefore);
    void NetlistRenamed(const std::string& oldName, const std::string& newName);
    void ParameterChanged(const std::string& name, Value before, Value after);

private:
    struct Step {
        std::string name;
        std::vector<std::unique_ptr<EditCommand>> commands;
    };
    void add(std::unique_ptr<EditCommand> command);
    bool step(std::deque<Step>& from, std::deque<Step>& to, bool undo);
    void settle();
    std::string stepText(const char* verb, const std::deque<Step>& steps) const;
    static std::optional<EditPlace> placeOf(const std::deque<Step>& steps);

    ProgramState& state_;
    std::size_t limit_;
    bool recording_ = false;
    bool replaying_ = false;
    Step open_;
    std::deque<Step> undo_;
    std::deque<Step> redo_;
    // Steps on the undo stack at the last save; none when that state is gone.
    std::optional<std::size_t> saved_;
};

} // namespace zolt
