#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace zolt::interchange {

// One element of an s-expression text: an atom (bare or quoted) or a list.
struct SExpression {
    std::string atom;
    std::vector<SExpression> items;
    bool isList = false;
    int line = 0;

    // The list's first atom: "net" for (net (code 1) …).
    std::string_view Head() const;
    // The lists among the items whose head is `name`.
    std::vector<const SExpression*> Children(std::string_view name) const;
    const SExpression* Child(std::string_view name) const;
    // The atom after the head of child `name`: "1" for (code 1); empty when none.
    std::string Value(std::string_view name) const;
};

struct SExpressionRead {
    SExpression root;
    std::string error; // "line 3: …"
    bool ok() const { return error.empty(); }
};

// Limits that keep a hostile file from taking the stack or the memory.
inline constexpr int kMaxNesting = 64;
inline constexpr std::size_t kMaxElements = 1'000'000;

// The single top-level list of `text`.
SExpressionRead ReadSExpression(std::string_view text);

} // namespace zolt::interchange
