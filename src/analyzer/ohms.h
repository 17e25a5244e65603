#pragma once

// How the component check reads a resistor: its test parameter row drives the
// row's current through it, and the voltage across it must lie between the row's
// two thresholds. Volts over milliamps, as the File Settings' Test Resistance.

#include "compile/program_image.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt::analyzer {

struct OhmsLimits {
    double low = 0;
    double high = 0;
    bool Within(double ohms) const;
};

// The limits of test parameter `row` (0: the program's defaults); none for a row
// without a current ("N/A") or one the image does not hold.
std::optional<OhmsLimits> ResistanceLimits(const std::vector<compile::ImageTestParameter>& rows,
                                           int row);

// "1500", "2.2": as the error lines and fault texts write a resistance.
std::string OhmsText(double ohms);

} // namespace zolt::analyzer
