#include "core/table.h"

#include "core/program_state.h"

#include <algorithm>

namespace zolt {
namespace {

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

void TrimText(Value& value) {
    const auto* text = std::get_if<std::string>(&value.storage());
    if (text && !text->empty() && (text->front() == ' ' || text->back() == ' '))
        value = Value(trimmed(*text));
}

Table::Table(ProgramState& state, TableId tableIndex, int gridColumns)
    : state_(&state), tableIndex_(tableIndex), gridColumns_(gridColumns) {
    ReDimGrid(0, gridColumns);
    grid_.Watch(this);
}

void Table::ReDimGrid(int rows, int columns) {
    grid_.ReDim(rows, columns);
}

void Table::AddRecord_v1(int row, const std::vector<Value>& fields) {
    if (row > grid_.Rows())
        ReDimGrid(row, gridColumns_);
    if (!grid_.Contains(row, 0))
        return;
    const auto first = grid_.Cells().begin() + static_cast<std::ptrdiff_t>(row - 1) * gridColumns_;
    std::vector<Value> cells(first, first + gridColumns_);
    std::vector<Value> arguments = fields;
    PlaceRecord(cells, arguments);
    // One change of the columns that differ: the history keeps only those, and
    // the indexes hear of the row once.
    grid_.SetRow(row, std::move(cells));
}

void Table::PlaceRecord(std::span<Value> row, std::vector<Value>& fields) const {
    const std::size_t count = std::min(fields.size(), row.size());
    for (std::size_t c = 0; c < count; ++c) {
        row[c] = std::move(fields[c]);
        TrimText(row[c]);
    }
}

void Table::Destroy() {
    grid_ = Grid();
    netlist_ = nullptr;
}

void Table::BeginLoad() {
    const GridChange change{GridChange::Kind::Reset, 1, grid_.Rows(), 0, grid_.Columns() - 1};
    GridAboutToChange(change);
    // Only the history wants the old rows back.
    beforeLoad_ =
        GridLoss{state_ && state_->history().Recording() ? grid_.Cells() : std::vector<Value>{},
                 grid_.Rows(), grid_.Columns()};
    grid_.Watch(nullptr);
}

void Table::EndLoad() {
    grid_.Watch(this);
    const GridChange change{GridChange::Kind::Reset, 1, grid_.Rows(), 0, grid_.Columns() - 1};
    GridChanged(change, std::exchange(beforeLoad_, {}));
}

void Table::AddListener(TableListener& listener) {
    listeners_.push_back(&listener);
}

void Table::RemoveListener(TableListener& listener) {
    std::erase(listeners_, &listener);
}

void Table::GridAboutToChange(const GridChange& change) {
    for (TableListener* listener : listeners_)
        listener->TableAboutToChange(change);
}

void Table::GridChanged(const GridChange& change, GridLoss loss) {
    if (state_)
        state_->history().TableChanged(*this, change, std::move(loss));
    for (TableListener* listener : listeners_)
        listener->TableChanged(change);
}

} // namespace zolt
