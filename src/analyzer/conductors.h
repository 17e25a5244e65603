#pragma once

// The conductors of a harness as a scan reads them: which conductor a test point
// lies on and which points a conductor joins. A fault seen through
// MovedConductors costs only the points it moves.

#include "analyzer/harness.h"

#include <optional>
#include <utility>
#include <vector>

namespace zolt::analyzer {

class Conductors {
public:
    virtual ~Conductors() = default;
    virtual int Of(int point) const = 0;
    virtual std::vector<int> Members(int conductor) const = 0;
    // What a conductor of the fault-free harness is now called: a short merges two.
    virtual int Renamed(int conductor) const = 0;
};

class HarnessConductors final : public Conductors {
public:
    explicit HarnessConductors(const Harness& harness);
    int Of(int point) const override;
    std::vector<int> Members(int conductor) const override;
    int Renamed(int conductor) const override { return conductor; }

private:
    std::vector<int> of_;
    std::vector<std::vector<int>> members_;
};

// A point and the conductor it moves to.
using Move = std::pair<int, int>;

class MovedConductors final : public Conductors {
public:
    // `renamed`: a conductor whose points all moved to another, and that one.
    MovedConductors(const HarnessConductors& base, std::vector<Move> moves,
                    std::optional<Move> renamed = std::nullopt);
    int Of(int point) const override;
    std::vector<int> Members(int conductor) const override;
    int Renamed(int conductor) const override;
    const std::vector<Move>& Moves() const { return moves_; }

private:
    const HarnessConductors& base_;
    std::vector<Move> moves_;
    std::optional<Move> renamed_;
};

} // namespace zolt::analyzer
