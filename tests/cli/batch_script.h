#pragma once

#include "cli/batch_session.h"

#include <sstream>
#include <string>

namespace zolt::test {

// What a batch script printed and how it ended.
struct ScriptRun {
    int status = -1;
    std::string out;
    std::string err;
    std::string printed() const { return out + err; }
};

// Runs a script through a batch session of its own.
inline ScriptRun RunScript(const std::string& script, const std::string& dataDirectory = {}) {
    std::ostringstream out;
    std::ostringstream err;
    cli::BatchSession session(out);
    session.setDataDirectory(dataDirectory);
    std::istringstream in(script);
    const int status = session.Run(in, err);
    return {status, out.str(), err.str()};
}

} // namespace zolt::test
