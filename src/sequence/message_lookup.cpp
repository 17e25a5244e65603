#include "sequence/message_lookup.h"

#include "core/table.h"

namespace zolt {

std::string GetMessage(const Table& messages, const std::string& number) {
    if (!vb::IsNumeric(std::string_view(number)))
        return {};
    const double wanted = vb::Val(number);
    const Grid& grid = messages.gridarray();
    for (int row = 1; row <= grid.Rows(); ++row) {
        const auto id = grid.At(row, 0).number();
        if (id && *id == wanted)
            return grid.Text(row, 1);
    }
    return {};
}

} // namespace zolt
