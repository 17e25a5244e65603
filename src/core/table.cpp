#include "core/table.h"

namespace zolt {

Table::Table(ProgramState& state, int tableIndex, int recordType, int gridColumns)
    : state_(state), tableIndex_(tableIndex), recordType_(recordType), gridColumns_(gridColumns) {
    ReDimGrid(0, gridColumns);
}

void Table::ReDimGrid(int rows, int columns) {
    grid_.ReDim(rows, columns);
    gridRows_ = rows;
}

void Table::Destroy() {
    grid_ = Grid();
    gridRows_ = 0;
    netlist_ = nullptr;
}

} // namespace zolt
