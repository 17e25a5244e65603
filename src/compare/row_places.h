#pragma once

// Where in a program a thing the engineer reads by name lives: the tab, the
// table and the row to bring to the front.

#include "compare/difference.h"
#include "core/edit_history.h"

#include <optional>
#include <string>

namespace zolt {
struct Project;
}

namespace zolt::compare {

// The Pins row of a cavity ("J1-2", any case): MAIN's first, then each tab's.
std::optional<EditPlace> PinPlace(const Project& project, const std::string& pin);
// The Components row of "R3".
std::optional<EditPlace> ComponentPlace(const Project& project, const std::string& name);
// The Switches row of a connector's switch.
std::optional<EditPlace> SwitchPlace(const Project& project, const std::string& connector,
                                     const std::string& name);
// A row of the Sequence table, from 1, under whichever tab is in front.
EditPlace SequencePlace(int row);

// The row of `project` a difference is about; the table alone when the row is
// only in the other program, nothing for the file's settings.
std::optional<EditPlace> PlaceOf(const Project& project, const Difference& difference);

} // namespace zolt::compare
