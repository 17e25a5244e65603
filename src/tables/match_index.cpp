#include "tables/match_index.h"

#include <cstdint>

namespace zolt {
namespace {

std::string_view trimView(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// Several texts in one key: each with its length in front, so that no text
// can run into the next.
void appendPart(std::string& key, std::string_view part) {
    const auto n = static_cast<std::uint32_t>(part.size());
    for (int i = 0; i < 4; ++i)
        key.push_back(static_cast<char>(n >> (8 * i)));
    key.append(part);
}

template <typename Map> void addCount(Map& map, std::string_view key, int delta) {
    auto it = map.find(key);
    if (it == map.end())
        it = map.emplace(std::string(key), 0).first;
    it->second += delta;
    if (it->second == 0)
        map.erase(it);
}

} // namespace

std::string_view TrimmedCellText(const Value& cell, std::string& scratch) {
    if (const auto* text = std::get_if<std::string>(&cell.storage()))
        return trimView(*text);
    if (cell.isNull())
        return {};
    scratch = cell.text();
    return trimView(scratch);
}

void MatchIndex::Build(const Grid& grid) {
    counts_.clear();
    Add(grid, 1, grid.Rows());
}

std::string MatchIndex::rowKey(const Grid& grid, int row) const {
    std::string key;
    std::string scratch;
    for (const int column : columns_)
        appendPart(key, TrimmedCellText(grid.At(row, column), scratch));
    return key;
}

void MatchIndex::change(const Grid& grid, int firstRow, int lastRow, int delta) {
    std::string scratch;
    for (int row = firstRow; row <= lastRow; ++row) {
        if (columns_.size() == 1)
            addCount(counts_, TrimmedCellText(grid.At(row, columns_.front()), scratch), delta);
        else
            addCount(counts_, rowKey(grid, row), delta);
    }
}

int MatchIndex::Count(const std::vector<std::string_view>& values) const {
    if (values.size() != columns_.size())
        return 0;
    TextMap<int>::const_iterator found;
    if (values.size() == 1) {
        found = counts_.find(values.front());
    } else {
        std::string key;
        for (const std::string_view value : values)
            appendPart(key, value);
        found = counts_.find(key);
    }
    return found == counts_.end() ? 0 : found->second;
}

void DistinctIndex::Build(const Grid& grid) {
    keys_.clear();
    Add(grid, 1, grid.Rows());
}

void DistinctIndex::change(const Grid& grid, int firstRow, int lastRow, int delta) {
    std::string matchScratch;
    std::string keyScratch;
    for (int row = firstRow; row <= lastRow; ++row) {
        const std::string_view match = TrimmedCellText(grid.At(row, matchColumn_), matchScratch);
        auto it = keys_.find(match);
        if (it == keys_.end())
            it = keys_.emplace(std::string(match), TextMap<int>{}).first;
        addCount(it->second, TrimmedCellText(grid.At(row, keyColumn_), keyScratch), delta);
        if (it->second.empty())
            keys_.erase(it);
    }
}

int DistinctIndex::Count(std::string_view value, std::string_view newValue) const {
    const auto it = keys_.find(value);
    if (it == keys_.end())
        return 1;
    const TextMap<int>& keys = it->second;
    return static_cast<int>(keys.size()) + (keys.contains(newValue) ? 0 : 1);
}

} // namespace zolt
