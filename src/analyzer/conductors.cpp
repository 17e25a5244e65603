#include "analyzer/conductors.h"

#include "analyzer/point_names.h"

#include <algorithm>

namespace zolt::analyzer {

HarnessConductors::HarnessConductors(const Harness& harness)
    : of_(harness.conductor), members_(2 * kPoints) {
    for (int p = 0; p < static_cast<int>(of_.size()); ++p)
        members_[static_cast<std::size_t>(of_[static_cast<std::size_t>(p)])].push_back(p);
}

int HarnessConductors::Of(int point) const {
    return of_[static_cast<std::size_t>(point)];
}

std::vector<int> HarnessConductors::Members(int conductor) const {
    return members_[static_cast<std::size_t>(conductor)];
}

MovedConductors::MovedConductors(const HarnessConductors& base, std::vector<Move> moves,
                                 std::optional<Move> renamed)
    : base_(base), moves_(std::move(moves)), renamed_(renamed) {}

int MovedConductors::Renamed(int conductor) const {
    return renamed_ && renamed_->first == conductor ? renamed_->second : conductor;
}

int MovedConductors::Of(int point) const {
    for (const auto& [p, c] : moves_)
        if (p == point)
            return c;
    return base_.Of(point);
}

std::vector<int> MovedConductors::Members(int conductor) const {
    std::vector<int> members;
    for (const int p : base_.Members(conductor))
        if (Of(p) == conductor)
            members.push_back(p);
    for (const auto& [p, c] : moves_)
        if (c == conductor && base_.Of(p) != conductor)
            members.push_back(p);
    std::ranges::sort(members);
    return members;
}

} // namespace zolt::analyzer
