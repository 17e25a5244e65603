#pragma once

#include <cstdint>
#include <string>

namespace zolt {

// One line of ZOLT.DEV: a device kind and the names of its two sides.
struct CComponent {
    std::string ComponentName;
    std::string Side1;
    std::string Side2;
    std::string Description;
};

// One line of ZOLT.MAC: one step of the body of a macro command.
struct CMacro {
    std::string MacroName;
    // Kept as read; nothing reads it back.
    std::int16_t MacroStep = 0;
    std::string Command;
    std::string Parameter;
};

} // namespace zolt
