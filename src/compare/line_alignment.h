#pragma once

#include <functional>
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

// Goes along two lists of `aSize` and `bSize` entries in the order of their
// alignment: the entries only in the first, then those only in the second,
// before each pair and after the last.
void WalkAlignment(const std::vector<std::pair<std::size_t, std::size_t>>& pairs, std::size_t aSize,
                   std::size_t bSize, const std::function<void(std::size_t)>& removed,
                   const std::function<void(std::size_t)>& added,
                   const std::function<void(std::size_t, std::size_t)>& paired);

} // namespace zolt::compare
