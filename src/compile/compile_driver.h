#pragma once

#include "compile/program_compile.h"

#include <functional>
#include <string>

namespace zolt {
class ProgramState;
class Clock;
} // namespace zolt

namespace zolt::compile {

// The user's compile of the open program without its window: the request made
// from the program's settings, the boxes shown, the files written and what a
// compile changes applied to the program.
class CompileDriver {
public:
    CompileDriver(ProgramState& state, const Clock& clock);

    // Told whenever the results text grew.
    std::function<void(const std::string&)> resultsChanged;
    // Told each control call, in order with the boxes, when set.
    std::function<void(const std::string&)> traced;

    // The window's load: deletes the old image and disables the download.
    void Load();
    // The request of a compile of the open program as its settings stand now.
    CompileRequest Request() const;
    // Compiles `program`, the open project or a variant of it, and applies the
    // result to the open program; the build order reaches its Wires tables
    // only when `program` is the open project itself.
    CompileEnd Run(const Project& program, CompileRequest request);
    // The open project as it stands.
    CompileEnd Run();

    const CompileResult& Result() const { return result_; }
    const std::string& Results() const { return result_.results; }

private:
    void apply(const Project& program);
    void writeFiles();
    std::size_t showTrace(std::size_t from) const;

    ProgramState& state_;
    const Clock& clock_;
    CompileResult result_;
};

} // namespace zolt::compile
