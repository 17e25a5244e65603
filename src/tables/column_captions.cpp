#include "tables/column_captions.h"

#include "core/table_kinds.h"

namespace zolt {

std::vector<std::string> ColumnCaptions(TableId n) {
    switch (n) {
    case table::Groups:
        return {"Group", "Connector", "Pin", "Base Color", "Stripe Color", "Sequence", "Netlist"};
    case table::Fixture:
        return {"TestPoint", "Connector", "Pin", "Sequence", "Netlist", "Connector", "Pin"};
    case table::Connector:
        return {"Connector",  "Pins Qty", "Switches Qty", "Lamp Board",
                "Lamp Point", "Grid",     "Sequence",     "Netlist"};
    case table::Color:
        return {"Number", "Color", "Display Value", "ColorID"};
    case table::Wire:
        return {"Wire", "Base Color", "Stripe Color", "Sequence", "Netlist"};
    case table::Pin:
        return {"Connector", "Pin", "Wire", "Sequence", "Netlist"};
    case table::Splice:
        return {"Number", "Wire", "Sequence", "Netlist"};
    case table::Component:
        return {"Device Type", "Number",     "Wire 1",    "Wire 2",   "Value",
                "Lower Tol.",  "Upper Tol.", "Parameter", "Sequence", "Netlist"};
    case table::Message:
        return {"Number", "Message", "Sequence", "Netlist"};
    case table::TestParameter:
        return {"Value",       "Test Voltage", "Test Current", "Threshold 1",
                "Threshold 2", "Sequence",     "Netlist"};
    case table::Sequence:
        return {"Sequence", "Command",  "Parameter", "Desc/Notes/Mess",
                "Version",  "Sequence", "Netlist"};
    case table::Switches:
        return {"Connector", "Switch Name", "Switch Commons", "Seq", "Netlist"};
    case table::Reversible:
        return {"Number", "Connector 1", "Pin 1", "Connector 2", "Pin 2", "Sequence", "Netlist"};
    case table::Code:
        return {"NetList", "Command", "Parameter(s)", "Base/Stripe Color", "Sequence", "Netlist"};
    default:
        return {};
    }
}

} // namespace zolt
