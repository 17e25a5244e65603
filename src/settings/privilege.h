#pragma once

#include <string>

namespace zolt {
class ProgramState;
}

namespace zolt::settings {

// The privilege dialog's check: user name and password, compared in capitals.
// On a match privileged mode is on; a failed attempt changes nothing.
bool UnlockPrivilegedMode(ProgramState& state, const std::string& user,
                          const std::string& password);

} // namespace zolt::settings
