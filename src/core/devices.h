#pragma once

#include <string>
#include <vector>

namespace zolt {

// A component definition of ZOLT.DEV: the names of its two sides.
struct CComponent {
    std::string ComponentName;
    std::string Side1;
    std::string Side2;
    std::vector<std::string> Fields;
};

// A macro of ZOLT.MAC: its name and the lines of its body.
struct CMacro {
    std::string MacroName;
    std::vector<std::string> Lines;
};

} // namespace zolt
