#pragma once

#include <cstddef>

namespace zolt::file {

// Bounds that keep a damaged or hostile file from costing more than a real
// project could: beyond them the read fails like a file that ends too soon.
inline constexpr std::size_t kMaxProgramFileSize = std::size_t{256} << 20;
inline constexpr std::size_t kMaxListEntries = 65536;

} // namespace zolt::file
