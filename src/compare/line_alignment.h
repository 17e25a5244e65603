#pragma once

#include <string>
#include <utility>
#include <vector>

namespace zolt::compare {

// The pairs of equal entries (index in `a`, index in `b`) of a longest common
// subsequence, in order: what is not paired was inserted or removed. A run
// of equal entries at either end is paired without a search, so that a small
// change in a long list costs little.
std::vector<std::pair<std::size_t, std::size_t>> AlignLines(const std::vector<std::string>& a,
                                                            const std::vector<std::string>& b);

} // namespace zolt::compare
