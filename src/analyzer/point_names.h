#pragma once

// How the operator reads a test point: by the connector pin wired to it where the
// image says so ("J1-2"), otherwise as the fixture point ("0-012").

#include "compile/program_image.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace zolt::analyzer {

// Test points of the analyzer: 16 boards of 128.
inline constexpr int kPoints = 2048;

// "B-PPP": 1541 is "12-005".
std::string TestPointText(int point);
// A test point written "B-PPP" (the point part may be short: "3-7"); nullopt otherwise.
std::optional<int> ParseTestPoint(std::string_view text);

class PointNames {
public:
    PointNames() = default;
    // The first image that names a point wins.
    explicit PointNames(const std::vector<const compile::ProgramImage*>& images);

    std::string Name(int point) const;
    // A pin name ("J1-2", any case) or a test point ("0-012").
    std::optional<int> Find(std::string_view text) const;

    // The connector of a named pin; empty when the image does not say.
    std::string Connector(int point) const;

private:
    std::map<int, std::string> names_;
    std::map<int, std::string> connectors_;
    std::map<std::string, int> points_; // upper case
};

} // namespace zolt::analyzer
