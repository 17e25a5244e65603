#pragma once

#include "compare/from_to_list.h"

#include <functional>
#include <string>
#include <vector>

namespace zolt::compare {

// One kind of drawing file a netlist can be verified against: its entry of a
// file dialog's filter and its reader. A new kind registers here, and every
// road that reads a drawing (the desktop, zolt-cli verify) takes it.
struct DrawingFormat {
    std::string name;                    // "From/To List"
    std::vector<std::string> extensions; // lower case, without the dot: {"csv"}
    std::function<FromToList(const std::string& path)> read;
};

const std::vector<DrawingFormat>& DrawingFormats();

// "From/To List (*.csv)|*.csv|All Drawings (…)|…": the program's filter form.
std::string DrawingFilter();

// The drawing at `path` by its extension (case ignored); the reader's message,
// naming the file, when it cannot be used.
FromToList ReadDrawingFile(const std::string& path);

} // namespace zolt::compare
