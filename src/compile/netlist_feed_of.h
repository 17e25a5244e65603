#pragma once

#include "compile/netlist_feed.h"

#include <string>

namespace zolt {
struct Project;
class CNetList;
} // namespace zolt

namespace zolt::compile {

// The program settings that change what a netlist's tables feed.
struct FeedSettings {
    bool lampPin = false;  // the connectors' lamp points count
    bool switches = false; // the switch rows count
};

// A netlist's feed, or the run-time error that stops the compile ("Type
// mismatch"); `feed` then holds the rows read before it, in feed order.
struct FeedOutcome {
    NetlistFeed feed;
    std::string error;
};

// What the tables of `netlist` (a netlist of `project`) feed the compile
// control, read by column name. Code netlists are fed by their blocks instead.
FeedOutcome FeedOf(const Project& project, const CNetList& netlist, const FeedSettings& settings);

// The control's device kind code of a ZOLT.DEV name ("DIODE" -> "DIOM"); any
// other name unchanged. `HasDeviceKindCode` tells the names that have a code.
std::string DeviceKindCode(const std::string& componentName);
bool HasDeviceKindCode(const std::string& componentName);

} // namespace zolt::compile
