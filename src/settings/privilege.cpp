#include "settings/privilege.h"

#include "core/program_state.h"
#include "core/value.h"

namespace zolt::settings {
namespace {

constexpr const char* kPrivilegedUser = "ANALYST";
constexpr const char* kPrivilegedPassword = "WIREMAPS";

} // namespace

bool UnlockPrivilegedMode(ProgramState& state, const std::string& user,
                          const std::string& password) {
    if (vb::UCase(user) != kPrivilegedUser || vb::UCase(password) != kPrivilegedPassword)
        return false;
    state.session().PrivilegedMode = true;
    return true;
}

} // namespace zolt::settings
