#include "analyzer/ohms.h"

#include <algorithm>
#include <sstream>

namespace zolt::analyzer {
namespace {

// The thresholds are single floats: a resistor right on a limit must pass.
constexpr double kReadingTolerance = 1e-6;

} // namespace

bool OhmsLimits::Within(double ohms) const {
    return ohms >= low * (1 - kReadingTolerance) && ohms <= high * (1 + kReadingTolerance);
}

std::optional<OhmsLimits> ResistanceLimits(const std::vector<compile::ImageTestParameter>& rows,
                                           int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        return std::nullopt;
    const auto& p = rows[static_cast<std::size_t>(row)];
    if (p.current <= 0)
        return std::nullopt;
    const double a = p.threshold / p.current * 1000.0;
    const double b = p.secondValue / p.current * 1000.0;
    return OhmsLimits{std::min(a, b), std::max(a, b)};
}

std::string OhmsText(double ohms) {
    std::ostringstream out;
    out << ohms;
    return out.str();
}

} // namespace zolt::analyzer
