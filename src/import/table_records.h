#pragma once

#include "core/value.h"

namespace zolt::import {

// One row of a table as an import brings it, each field by its column's name;
// the row's sequence and netlist are the appender's to add.
struct FixtureRecord {
    Value testPoint, connector, pin;
};
struct ConnectorRecord {
    Value connector, pinsQty, switchesQty, lampBoard, lampPoint, grid;
};
struct ColorRecord {
    Value number, color, displayValue;
};
struct WireRecord {
    Value wire, baseColor, stripeColor;
};
struct PinRecord {
    Value connector, pin, wire;
};
struct GroupRecord {
    Value group, connector, pin, baseColor, stripeColor;
};
struct SpliceRecord {
    Value number, wire;
};
struct ComponentRecord {
    Value deviceType, number, wire1, wire2, value, lowerTolerance, upperTolerance, parameter;
};
struct ReversibleRecord {
    Value number, connector1, pin1, connector2, pin2;
};
struct MessageRecord {
    Value number, message;
};
struct TestParameterRecord {
    Value value, testVoltage, testCurrent, threshold1, threshold2;
};
struct SequenceRecord {
    Value line, command, parameter, description, version;
};
struct SwitchRecord {
    Value connector, switchName, switchCommons;
};
struct CodeRecord {
    Value netlistName, command, parameters, colors;
};

} // namespace zolt::import
