#include "core/table.h"

#include "core/program_state.h"

#include <algorithm>

namespace zolt {

Table::Table(ProgramState& state, TableId tableIndex, int recordType, int gridColumns)
    : state_(state), tableIndex_(tableIndex), recordType_(recordType), gridColumns_(gridColumns) {
    ReDimGrid(0, gridColumns);
    grid_.Watch(this);
}

void Table::ReDimGrid(int rows, int columns) {
    grid_.ReDim(rows, columns);
}

void Table::AddRecord_v1(int row, const std::vector<Value>& fields) {
    if (row > grid_.Rows())
        ReDimGrid(row, gridColumns_);
    for (std::size_t c = 0; c < fields.size() && static_cast<int>(c) < gridColumns_; ++c)
        grid_.Set(row, static_cast<int>(c),
                  fields[c].isText() ? Value(vb::Trim(fields[c].text())) : fields[c]);
}

void Table::Destroy() {
    grid_ = Grid();
    netlist_ = nullptr;
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
    state_.History().TableChanged(*this, change, std::move(loss));
    for (TableListener* listener : listeners_)
        listener->TableChanged(change);
}

} // namespace zolt
