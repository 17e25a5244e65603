#pragma once

#include <cstddef>

// Where each field sits in a line of a legacy archive's member files
// (docs/legacy-files.md), one namespace a file, so that a reader names the
// fields it takes.
namespace zolt::import::legacy_field {

// `.wep` keyword lines: "BLK name pins", "PIN pins", "LMP board point", "POL n", "WED n".
namespace wep {
enum : std::size_t { Keyword, First, Second };
}
namespace bft {
enum : std::size_t { Name, Pins, SwitchCount, SwitchType, LampBoard, LampPoint, Grid };
}
namespace dlb {
enum : std::size_t { Connector, SwitchName, Common };
}
namespace bar {
enum : std::size_t { Group, Connector, Pin, BaseColor, StripeColor };
}
namespace asn {
enum : std::size_t { TestPoint, Connector, Pin };
}
namespace cir {
enum : std::size_t { Wire, Unused, BaseColor, StripeColor };
}
namespace spl {
enum : std::size_t { Number, Wire };
}
namespace end {
enum : std::size_t { Connector, Pin, Wire };
}
namespace dev {
enum : std::size_t { Kind, Number, Wire1, Wire2, Value, LowerTol, UpperTol, Parameter };
}
namespace rev {
enum : std::size_t { Number, Connector1, Pin1, Connector2, Pin2 };
}
namespace sqf {
enum : std::size_t { Command, Parameter };
}
// `.par`: the lines of an entry, in the file's order.
namespace par {
enum : std::size_t { TestVoltage, Threshold2, Threshold1, TestCurrent };
}
namespace col {
enum : std::size_t { Number, BaseColor, StripeColor };
}
// `.NTO` and `*.MAN`: the parameters are every field from `Parameters` on.
namespace manual {
enum : std::size_t { NetName, Command, Parameters };
}

} // namespace zolt::import::legacy_field
