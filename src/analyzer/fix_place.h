#pragma once

#include "analyzer/coverage.h"
#include "core/edit_history.h"

#include <optional>

namespace zolt {
struct Project;
}

namespace zolt::analyzer {

// The row of the program whose change would let its sequence see an undetected
// fault: the sequence line its reason names, else the pin, component or switch
// the fault is on. Nothing when the program holds no such row.
std::optional<EditPlace> FixPlace(const Project& project, const UndetectedFault& undetected,
                                  const PointNames& names, const Harness& harness);

} // namespace zolt::analyzer
