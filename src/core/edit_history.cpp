#include "core/edit_history.h"

#include "core/netlist.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/table.h"

#include <algorithm>

namespace zolt {
namespace {

std::size_t bytesOf(const std::vector<Value>& cells) {
    std::size_t bytes = cells.capacity() * sizeof(Value);
    for (const Value& v : cells)
        if (v.isText())
            bytes += v.text().capacity();
    return bytes;
}

// Puts `cells` back into `row` from `firstColumn` on, as one change.
void setCells(Grid& grid, int row, int firstColumn, const std::vector<Value>& cells) {
    if (!grid.Contains(row, firstColumn))
        return;
    std::vector<Value> whole(
        grid.Cells().begin() + static_cast<std::ptrdiff_t>(row - 1) * grid.Columns(),
        grid.Cells().begin() + static_cast<std::ptrdiff_t>(row) * grid.Columns());
    std::copy(cells.begin(), cells.end(), whole.begin() + firstColumn);
    grid.SetRow(row, std::move(whole));
}

// One change of a table's rows with what it overwrote and what it wrote.
struct GridEdit {
    GridChange change;
    GridLoss loss;
    std::vector<Value> after;

    int rows() const { return change.lastRow - change.firstRow + 1; }
    void undo(Grid& grid) const {
        switch (change.kind) {
        case GridChange::Kind::CellsChanged:
            setCells(grid, change.firstRow, change.firstColumn, loss.cells);
            break;
        case GridChange::Kind::RowsInserted:
            grid.DeleteRows(change.firstRow, rows());
            break;
        case GridChange::Kind::RowsRemoved:
            grid.InsertRows(change.firstRow, loss.cells);
            break;
        case GridChange::Kind::Reset:
            grid.Replace(loss.rows, loss.columns, loss.cells);
            break;
        }
    }
    void redo(Grid& grid) const {
        switch (change.kind) {
        case GridChange::Kind::CellsChanged:
            setCells(grid, change.firstRow, change.firstColumn, after);
            break;
        case GridChange::Kind::RowsInserted:
            grid.InsertRows(change.firstRow, after);
            break;
        case GridChange::Kind::RowsRemoved:
            grid.DeleteRows(change.firstRow, rows());
            break;
        case GridChange::Kind::Reset:
            grid.Replace(change.lastRow, change.lastColumn + 1, after);
            break;
        }
    }
    std::size_t bytes() const { return sizeof(GridEdit) + bytesOf(loss.cells) + bytesOf(after); }
};

// The changes of one table in a row, in order. Many changes that rewrote much
// of the table (AutoGen, a clear, a large paste) become one replacement, so a
// step back is one reset of the views rather than thousands of small ones.
class TableEdits : public EditCommand {
public:
    explicit TableEdits(Table& table) : table_(table) {}
    Table& table() const { return table_; }

    void Add(GridEdit edit) {
        // An inserted blank row taken out again (an abandoned insert) leaves nothing.
        if (!edits_.empty() && edit.change.kind == GridChange::Kind::RowsRemoved) {
            const GridEdit& last = edits_.back();
            if (last.change.kind == GridChange::Kind::RowsInserted &&
                last.change.firstRow == edit.change.firstRow &&
                last.change.lastRow == edit.change.lastRow && last.after == edit.loss.cells) {
                edits_.pop_back();
                return;
            }
        }
        edits_.push_back(std::move(edit));
    }
    bool Empty() const { return edits_.empty() && !replaced_; }

    std::optional<EditPlace> Place() const override {
        EditPlace place{table_.netlist() && IsNetlistTable(table_.tableIndex())
                            ? table_.netlist()->NetlistName
                            : std::string(),
                        table_.tableIndex(), 0, 0};
        if (replaced_ || edits_.empty())
            return place;
        place.firstRow = edits_.front().change.firstRow;
        place.lastRow = edits_.front().change.lastRow;
        for (const GridEdit& e : edits_) {
            place.firstRow = std::min(place.firstRow, e.change.firstRow);
            place.lastRow = std::max(place.lastRow, e.change.lastRow);
        }
        return place;
    }

    void Compact() {
        const Grid& grid = table_.gridarray();
        const std::size_t cells = static_cast<std::size_t>(grid.Rows()) *
                                  static_cast<std::size_t>(std::max(grid.Columns(), 1));
        if (edits_.size() < kCompactFrom || edits_.size() * 4 < cells)
            return;
        Grid before = grid;
        for (auto e = edits_.rbegin(); e != edits_.rend(); ++e)
            e->undo(before);
        replaced_ = Replacement{std::move(before), grid};
        edits_.clear();
    }

    void Undo() override {
        Grid& grid = table_.gridarray();
        if (replaced_) {
            grid = replaced_->before;
            return;
        }
        std::size_t done = 0;
        try {
            for (auto e = edits_.rbegin(); e != edits_.rend(); ++e, ++done)
                e->undo(grid);
        } catch (...) {
            for (auto e = edits_.end() - static_cast<std::ptrdiff_t>(done); e != edits_.end(); ++e)
                e->redo(grid);
            throw;
        }
    }
    void Redo() override {
        Grid& grid = table_.gridarray();
        if (replaced_) {
            grid = replaced_->after;
            return;
        }
        std::size_t done = 0;
        try {
            for (auto e = edits_.begin(); e != edits_.end(); ++e, ++done)
                e->redo(grid);
        } catch (...) {
            for (auto e = edits_.begin() + static_cast<std::ptrdiff_t>(done); e != edits_.begin();)
                (--e)->undo(grid);
            throw;
        }
    }
    std::size_t Bytes() const override {
        std::size_t bytes = sizeof(*this);
        for (const GridEdit& e : edits_)
            bytes += e.bytes();
        if (replaced_)
            bytes += bytesOf(replaced_->before.Cells()) + bytesOf(replaced_->after.Cells());
        return bytes;
    }

private:
    static constexpr std::size_t kCompactFrom = 64;
    struct Replacement {
        Grid before;
        Grid after;
    };
    Table& table_;
    std::vector<GridEdit> edits_;
    std::optional<Replacement> replaced_;
};

// A netlist added (present after the edit) or deleted (absent after it). While
// absent it lives here, tables and all, so it comes back as the same objects.
class NetlistPresence : public EditCommand {
public:
    NetlistPresence(ProgramState& state, std::string name, DetachedNetlist detached,
                    AssemblyData before)
        : state_(state), name_(std::move(name)), added_(!detached.netlist),
          detached_(std::move(detached)), before_(std::move(before)),
          after_(state.project().Assembly) {}

    void Undo() override { added_ ? takeOut(before_) : putBack(before_); }
    void Redo() override { added_ ? putBack(after_) : takeOut(after_); }
    std::size_t Bytes() const override { return sizeof(*this); }

private:
    void takeOut(const AssemblyData& assembly) {
        detached_ = DetachNetlist(state_, name_);
        state_.project().Assembly = assembly;
    }
    void putBack(const AssemblyData& assembly) {
        AttachNetlist(state_, std::move(detached_));
        detached_ = {};
        state_.project().Assembly = assembly;
    }

    ProgramState& state_;
    std::string name_;
    bool added_;
    DetachedNetlist detached_;
    AssemblyData before_;
    AssemblyData after_;
};

class NetlistRename : public EditCommand {
public:
    NetlistRename(ProgramState& state, std::string oldName, std::string newName)
        : state_(state), oldName_(std::move(oldName)), newName_(std::move(newName)) {}
    void Undo() override { RenameNetlistEntry(state_, newName_, oldName_); }
    void Redo() override { RenameNetlistEntry(state_, oldName_, newName_); }
    std::size_t Bytes() const override { return sizeof(*this); }

private:
    ProgramState& state_;
    std::string oldName_;
    std::string newName_;
};

class ParameterChange : public EditCommand {
public:
    ParameterChange(ProgramState& state, std::string name, Value before, Value after)
        : state_(state), name_(std::move(name)), before_(std::move(before)),
          after_(std::move(after)) {}
    void Undo() override { state_.params().SetVal(name_, before_); }
    void Redo() override { state_.params().SetVal(name_, after_); }
    std::size_t Bytes() const override { return sizeof(*this); }

private:
    ProgramState& state_;
    std::string name_;
    Value before_;
    Value after_;
};

} // namespace

EditHistory::EditHistory(ProgramState& state, std::size_t limit) : state_(state), limit_(limit) {}

EditHistory::~EditHistory() = default;

void EditHistory::Reset() {
    Stop();
    recording_ = state_.document().FileOpen && state_.project().MainNetlist;
    saved_ = state_.IsDirty() ? std::nullopt : std::optional<std::size_t>(0);
}

void EditHistory::Stop() {
    recording_ = false;
    open_ = {};
    undo_.clear();
    redo_.clear();
    saved_.reset();
}

void EditHistory::MarkSaved() {
    Record();
    saved_ = undo_.size();
}

void EditHistory::NameStep(const std::string& name) {
    if (Recording() && open_.name.empty())
        open_.name = name;
}

void EditHistory::add(std::unique_ptr<EditCommand> command) {
    open_.commands.push_back(std::move(command));
}

bool EditHistory::Record() {
    std::erase_if(open_.commands, [](const std::unique_ptr<EditCommand>& c) {
        const auto* edits = dynamic_cast<TableEdits*>(c.get());
        return edits && edits->Empty();
    });
    if (open_.commands.empty()) {
        open_ = {};
        return false;
    }
    for (auto& command : open_.commands)
        if (auto* edits = dynamic_cast<TableEdits*>(command.get()))
            edits->Compact();
    if (saved_ && *saved_ > undo_.size())
        saved_.reset(); // the saved state was on the redo side
    redo_.clear();
    undo_.push_back(std::exchange(open_, {}));
    if (undo_.size() > limit_) {
        undo_.pop_front();
        if (saved_)
            saved_ = *saved_ > 0 ? std::optional<std::size_t>(*saved_ - 1) : std::nullopt;
    }
    return true;
}

std::optional<EditPlace> EditHistory::placeOf(const std::deque<Step>& steps) {
    if (steps.empty())
        return std::nullopt;
    for (const auto& command : steps.back().commands)
        if (auto place = command->Place())
            return place;
    return std::nullopt;
}

std::string EditHistory::stepText(const char* verb, const std::deque<Step>& steps) const {
    if (steps.empty())
        return verb;
    std::string text =
        std::string(verb) + " " + (steps.back().name.empty() ? "Edit" : steps.back().name);
    const auto place = placeOf(steps);
    if (place && !place->netlist.empty() && state_.project().NetlistCollection.Count() > 1)
        text += " (" + place->netlist + ")";
    return text;
}

std::string EditHistory::UndoText() const {
    return stepText("Undo", undo_);
}

std::string EditHistory::RedoText() const {
    return stepText("Redo", redo_);
}

std::optional<EditPlace> EditHistory::UndoPlace() const {
    return placeOf(undo_);
}

std::optional<EditPlace> EditHistory::RedoPlace() const {
    return placeOf(redo_);
}

bool EditHistory::Undo() {
    Record();
    return step(undo_, redo_, true);
}

bool EditHistory::Redo() {
    Record();
    return step(redo_, undo_, false);
}

bool EditHistory::step(std::deque<Step>& from, std::deque<Step>& to, bool undo) {
    if (from.empty())
        return false;
    Step& current = from.back();
    replaying_ = true;
    std::size_t done = 0;
    try {
        if (undo)
            for (auto c = current.commands.rbegin(); c != current.commands.rend(); ++c, ++done)
                (*c)->Undo();
        else
            for (auto& c : current.commands) {
                c->Redo();
                ++done;
            }
    } catch (...) {
        // Put back what was done of the step: the project stays at the step it was at.
        if (undo)
            for (auto c = current.commands.end() - static_cast<std::ptrdiff_t>(done);
                 c != current.commands.end(); ++c)
                (*c)->Redo();
        else
            for (auto c = current.commands.begin() + static_cast<std::ptrdiff_t>(done);
                 c != current.commands.begin();)
                (*--c)->Undo();
        replaying_ = false;
        throw;
    }
    replaying_ = false;
    to.push_back(std::move(current));
    from.pop_back();
    settle();
    return true;
}

void EditHistory::settle() {
    const bool clean = saved_ && *saved_ == undo_.size();
    state_.SetDirty(!clean);
    if (!clean)
        state_.project().NeedsCompile = true;
}

std::size_t EditHistory::Bytes() const {
    std::size_t bytes = 0;
    for (const auto* steps : {&undo_, &redo_})
        for (const Step& s : *steps)
            for (const auto& c : s.commands)
                bytes += c->Bytes();
    return bytes;
}

void EditHistory::TableChanged(Table& table, const GridChange& change, GridLoss loss) {
    if (!Recording())
        return;
    GridEdit edit{change, std::move(loss), {}};
    const Grid& grid = table.gridarray();
    switch (change.kind) {
    case GridChange::Kind::CellsChanged:
        for (int c = change.firstColumn; c <= change.lastColumn; ++c)
            edit.after.push_back(grid.At(change.firstRow, c));
        break;
    case GridChange::Kind::RowsInserted:
    case GridChange::Kind::Reset: {
        const auto first = grid.Cells().begin() +
                           static_cast<std::ptrdiff_t>(change.firstRow - 1) * grid.Columns();
        edit.after.assign(first, first + static_cast<std::ptrdiff_t>(edit.rows()) * grid.Columns());
        break;
    }
    case GridChange::Kind::RowsRemoved:
        break;
    }
    auto* last =
        open_.commands.empty() ? nullptr : dynamic_cast<TableEdits*>(open_.commands.back().get());
    if (!last || &last->table() != &table) {
        add(std::make_unique<TableEdits>(table));
        last = static_cast<TableEdits*>(open_.commands.back().get());
    }
    last->Add(std::move(edit));
}

void EditHistory::NetlistAdded(const std::string& name) {
    if (Recording())
        add(std::make_unique<NetlistPresence>(state_, name, DetachedNetlist{},
                                              state_.project().Assembly));
}

void EditHistory::NetlistDeleted(DetachedNetlist detached, AssemblyData assemblyBefore) {
    if (!Recording() || !detached.netlist)
        return;
    std::string name = detached.netlist->NetlistName;
    add(std::make_unique<NetlistPresence>(state_, std::move(name), std::move(detached),
                                          std::move(assemblyBefore)));
}

void EditHistory::NetlistRenamed(const std::string& oldName, const std::string& newName) {
    if (Recording())
        add(std::make_unique<NetlistRename>(state_, oldName, newName));
}

void EditHistory::ParameterChanged(const std::string& name, Value before, Value after) {
    if (Recording())
        add(std::make_unique<ParameterChange>(state_, name, std::move(before), std::move(after)));
}

} // namespace zolt
