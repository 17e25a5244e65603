#pragma once

#include "interchange/drawing_formats.h"

namespace zolt::interchange {

// A from/to list: rows of from connector, from pin, to connector, to pin, and
// optionally wire and colour ("GRN" or "GRN/BLK"); a first row whose first
// cell starts with "from" is the heading. Each row is a wire between two
// cavities (named W1, W2, … where the row names none); the connectors are those
// the rows name, with pins enough for them.
DrawingRead ReadFromToList(std::string_view text, const DrawingOptions& options);

} // namespace zolt::interchange
