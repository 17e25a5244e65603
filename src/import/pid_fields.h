#pragma once

#include <cstddef>

// Where each field sits in a line of a PID file's sections (docs/legacy-files.md),
// one namespace a section, so that the reader names the fields it takes.
namespace zolt::import::pid_field {

namespace netlist {
enum : std::size_t { Name };
}
namespace property {
enum : std::size_t { Name, Value };
}
namespace color {
enum : std::size_t { Name, Number };
}
namespace wire {
enum : std::size_t { Wire, Unused, BaseColor, StripeColor };
}
namespace pin {
enum : std::size_t { Connector, Pin, Wire };
}
namespace splice {
enum : std::size_t { Number, Wire };
}
namespace device {
enum : std::size_t { Kind, Number, Wire1, Wire2, Value };
}
namespace reversible {
enum : std::size_t { Number, Connector1, Pin1, Connector2, Pin2 };
}
namespace group {
enum : std::size_t { Group, Connector, Pin, Unused, BaseColor, StripeColor };
}
// The three switch counts are added up; the lamp is "board-point".
namespace block {
enum : std::size_t { Name, Pins, Switches1, Switches2, Switches3, Grid, Unused, Lamp };
}
namespace fixture {
enum : std::size_t { TestPoint, Connector, Pin };
}
namespace sequence {
enum : std::size_t { Line, Command, Parameter };
}
// The text is the rest of the line after the ID.
namespace message {
enum : std::size_t { Id };
}
namespace test_parameter {
enum : std::size_t { Row, TestVoltage, TestCurrent, Threshold1, Threshold2 };
}
namespace switches {
enum : std::size_t { Connector, SwitchName, SwitchCommon };
}
// The parameters run from `FirstParameter` to `LastParameter`, up to a comment.
namespace net {
enum : std::size_t { Name, Command, FirstParameter, LastParameter = 5 };
}

} // namespace zolt::import::pid_field
