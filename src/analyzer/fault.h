#pragma once

// One thing wrong with a built harness, written as the engineer types it:
// "open:J1-2", "dead:0-012", "short:J1-2,J2-7", "short:J1-2,J2-7=1500" (soft),
// "swap:J1-2,J1-3", "missing:D1", "reverse:D1", "value:R3=1500", "stuck-open:S1",
// "stuck-closed:S1".

#include "analyzer/harness.h"
#include "analyzer/point_names.h"

#include <optional>
#include <string>
#include <string_view>

namespace zolt::analyzer {

enum class FaultKind { Open, Dead, Short, Swap, Missing, Reverse, Value, StuckOpen, StuckClosed };

struct Fault {
    FaultKind kind = FaultKind::Open;
    int a = -1; // test points of the point faults
    int b = -1;
    int component = -1;         // index into the harness's components
    int switchIndex = -1;       // index into the harness's switches
    std::optional<double> ohms; // a soft short's resistance, a resistor's new value
    bool operator==(const Fault&) const = default;
};

struct FaultParse {
    std::optional<Fault> fault;
    std::string error; // why the text is no fault; empty when it is one
};

FaultParse ParseFault(std::string_view text, const PointNames& names, const Harness& harness);

// The text ParseFault reads back to the same fault.
std::string FaultText(const Fault& fault, const PointNames& names, const Harness& harness);

// The harness with the fault built in.
Harness WithFault(Harness harness, const Fault& fault);

} // namespace zolt::analyzer
