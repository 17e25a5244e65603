#include "compare/line_alignment.h"

#include <algorithm>
#include <cstdint>

namespace zolt::compare {

std::vector<std::pair<std::size_t, std::size_t>> AlignLines(const std::vector<std::string>& a,
                                                            const std::vector<std::string>& b) {
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    std::size_t head = 0;
    while (head < a.size() && head < b.size() && a[head] == b[head]) {
        pairs.emplace_back(head, head);
        ++head;
    }
    std::size_t tail = 0;
    while (tail < a.size() - head && tail < b.size() - head &&
           a[a.size() - 1 - tail] == b[b.size() - 1 - tail])
        ++tail;
    const std::size_t n = a.size() - head - tail;
    const std::size_t m = b.size() - head - tail;
    // Beyond this the middle parts are told as removed and inserted whole
    // rather than holding a table of their every pair in memory.
    constexpr std::size_t kLargestSearch = std::size_t{1} << 24;
    const bool search = (n + 1) * (m + 1) <= kLargestSearch;
    // Lengths of the common subsequences of the suffixes of the middle parts.
    std::vector<std::uint32_t> length(search ? (n + 1) * (m + 1) : 0, 0);
    auto at = [&](std::size_t i, std::size_t j) -> std::uint32_t& {
        return length[i * (m + 1) + j];
    };
    for (std::size_t i = search ? n : 0; i-- > 0;)
        for (std::size_t j = m; j-- > 0;)
            at(i, j) = a[head + i] == b[head + j] ? at(i + 1, j + 1) + 1
                                                  : std::max(at(i + 1, j), at(i, j + 1));
    for (std::size_t i = 0, j = 0; search && i < n && j < m;) {
        if (a[head + i] == b[head + j]) {
            pairs.emplace_back(head + i, head + j);
            ++i;
            ++j;
        } else if (at(i + 1, j) >= at(i, j + 1)) {
            ++i;
        } else {
            ++j;
        }
    }
    for (std::size_t k = tail; k-- > 0;)
        pairs.emplace_back(a.size() - 1 - k, b.size() - 1 - k);
    return pairs;
}

void WalkAlignment(const std::vector<std::pair<std::size_t, std::size_t>>& pairs, std::size_t aSize,
                   std::size_t bSize, const std::function<void(std::size_t)>& removed,
                   const std::function<void(std::size_t)>& added,
                   const std::function<void(std::size_t, std::size_t)>& paired) {
    std::size_t i = 0;
    std::size_t j = 0;
    for (std::size_t p = 0; p <= pairs.size(); ++p) {
        const std::size_t nextA = p < pairs.size() ? pairs[p].first : aSize;
        const std::size_t nextB = p < pairs.size() ? pairs[p].second : bSize;
        for (; i < nextA; ++i)
            removed(i);
        for (; j < nextB; ++j)
            added(j);
        if (p == pairs.size())
            break;
        paired(i++, j++);
    }
}

} // namespace zolt::compare
