#include "core/table.h"

namespace zolt {

Table::Table(ProgramState& state, TableId tableIndex, int recordType, int gridColumns)
    : state_(state), tableIndex_(tableIndex), recordType_(recordType), gridColumns_(gridColumns) {
    ReDimGrid(0, gridColumns);
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

} // namespace zolt
