#pragma once

#include "core/headless/headless_frame.h"
#include "core/headless/memory_settings_store.h"
#include "core/headless/scripted_ui.h"
#include "core/program_state.h"

#include <functional>
#include <iosfwd>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace zolt {
class DataTable;
}

namespace zolt::cli {

// A line of a script that cannot run; reported as "ERROR line N: ...".
class CommandError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// Runs the program's own operations line by line, without a screen: boxes and
// prompts are answered from the queue of `answer` and printed as they happen.
class BatchSession {
public:
    using Args = std::vector<std::string>;
    using Handler = std::function<void(BatchSession&, const Args&)>;

    // Settings that live as long as the session.
    explicit BatchSession(std::ostream& out);
    // Settings read from and kept in `settings`, the desktop's own store or a file.
    BatchSession(std::ostream& out, SettingsStore& settings);

    ProgramState& state() { return state_; }
    ScriptedUi& ui() { return ui_; }
    HeadlessFrame& frame() { return frame_; }
    std::ostream& out() { return out_; }

    void Register(const std::string& command, Handler handler);
    // The handler a command has so far; empty when none. A group may wrap it.
    Handler Registered(const std::string& command) const;
    // Runs every line; 0 when the script ran, 2 at the first line that could not.
    int Run(std::istream& script, std::ostream& err);
    void RunWords(const Args& words);
    // Whether word i of the line being run (0 = the command) was written in quotes.
    bool WasQuoted(std::size_t argIndex) const {
        return argIndex + 1 < quoted_.size() && quoted_[argIndex + 1];
    }

    // The open project; a CommandError when there is none.
    ProgramState& RequireProject();

    // Where the program's data files (ZOLT.MAC, ZOLT.DEV) are read from; empty
    // reads none.
    const std::string& dataDirectory() const { return dataDirectory_; }
    void setDataDirectory(std::string directory) { dataDirectory_ = std::move(directory); }

private:
    void printEvent(const ScriptedUi::Event& event);

    std::ostream& out_;
    ScriptedUi ui_;
    MemorySettingsStore ownSettings_;
    HeadlessFrame frame_;
    ProgramState state_;
    std::map<std::string, Handler> commands_;
    std::vector<bool> quoted_;
    std::string dataDirectory_;
};

// Argument helpers shared by the command files.
void RequireArgs(const BatchSession::Args& args, std::size_t min, std::size_t max,
                 const std::string& usage);
int ParseInt(const std::string& text, const std::string& what);
// The named table of the active netlist (MAIN's when the project has one only).
DataTable& TableArg(BatchSession& s, const std::string& name);

} // namespace zolt::cli
