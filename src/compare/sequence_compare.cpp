#include "compare/sequence_compare.h"

#include "compare/line_alignment.h"
#include "core/grid.h"
#include "core/table_columns.h"
#include "core/value.h"
#include "sequence/system_sequence_table.h"

#include <map>
#include <optional>

namespace zolt::compare {
namespace {

namespace col = sequence_column;

struct Line {
    std::string number;                // as the line column shows it
    std::string text;                  // "CONTINUITY LAMP"
    std::string key;                   // the text with a branch's target left out
    std::string branchTo;              // a branch's parameter; empty for other lines
    std::optional<std::size_t> target; // the index of the line a branch reaches
};

std::vector<Line> LinesOf(const Grid& rows, const CommandTypes& types) {
    std::vector<Line> lines;
    std::map<std::string, std::size_t> byNumber;
    for (int r = 1; r <= rows.Rows(); ++r) {
        const std::string command = vb::Trim(rows.Text(r, col::Command));
        const std::string parameter = vb::Trim(rows.Text(r, col::Parameter));
        if (command.empty() && parameter.empty())
            continue;
        Line line;
        line.number = vb::Trim(rows.Text(r, col::Line));
        if (line.number.empty())
            line.number = std::to_string(r);
        line.text = parameter.empty() ? command : command + " " + parameter;
        const bool branch =
            !parameter.empty() && types(vb::UCase(command)) == command_type::LineNumber;
        line.key = branch ? command + " @" : line.text;
        line.branchTo = branch ? parameter : std::string();
        byNumber.emplace(line.number, lines.size());
        lines.push_back(std::move(line));
    }
    for (auto& line : lines) {
        if (line.branchTo.empty())
            continue;
        if (const auto found = byNumber.find(line.branchTo); found != byNumber.end())
            line.target = found->second;
    }
    return lines;
}

std::vector<std::string> Keys(const std::vector<Line>& lines) {
    std::vector<std::string> keys;
    keys.reserve(lines.size());
    for (const auto& line : lines)
        keys.push_back(line.key);
    return keys;
}

std::string Shown(const Line& line) {
    return line.number + " " + line.text;
}

} // namespace

Differences CompareSequences(const Grid& before, const CommandTypes& typesBefore, const Grid& after,
                             const CommandTypes& typesAfter) {
    const auto a = LinesOf(before, typesBefore);
    const auto b = LinesOf(after, typesAfter);
    const auto pairs = AlignLines(Keys(a), Keys(b));
    std::map<std::size_t, std::size_t> aToB;
    for (const auto& [i, j] : pairs)
        aToB.emplace(i, j);

    Differences out;
    auto add = [&](std::string text) { out.push_back({"sequence", "Sequence", std::move(text)}); };
    auto reach = [](const std::vector<Line>& lines, const std::optional<std::size_t>& target) {
        return target ? Shown(lines[*target]) : std::string("no line");
    };
    WalkAlignment(
        pairs, a.size(), b.size(), [&](std::size_t i) { add("-" + Shown(a[i])); },
        [&](std::size_t j) { add("+" + Shown(b[j])); },
        [&](std::size_t i, std::size_t j) {
            const Line& was = a[i];
            const Line& now = b[j];
            const auto mapped = was.target ? aToB.find(*was.target) : aToB.end();
            const std::optional<std::size_t> expected =
                mapped == aToB.end() ? std::nullopt : std::optional(mapped->second);
            if (!was.branchTo.empty() && expected != now.target)
                add(Shown(now) + " now reaches " + reach(b, now.target) + " (was " +
                    reach(a, was.target) + ")");
        });
    return out;
}

} // namespace zolt::compare
