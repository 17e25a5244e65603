#pragma once

#include "shell/command_table.h"

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace zolt::shell {

// What each command does, when it can be used and, for a checkable one, when
// it is checked: the one place a command meets its handler. The frame asks
// again whenever the state behind the commands may have changed, so nothing
// else sets a command's enabled or checked state. A command left without a
// handler is found by `Unbound` at start-up.
class CommandRegistry {
public:
    using Handler = std::function<void()>;
    using Condition = std::function<bool()>;

    // `enabledWhen` empty: the command can always be used.
    void Bind(Command command, Handler handler, Condition enabledWhen = {});
    // A checkable command's check mark; unset, the action keeps its own.
    void BindChecked(Command command, Condition checkedWhen);
    // Runs the command; false when no handler is bound.
    bool Run(Command command) const;
    bool Enabled(Command command) const;
    std::optional<bool> Checked(Command command) const;
    // The commands that have no handler.
    std::vector<Command> Unbound() const;

private:
    struct Binding {
        Handler handler;
        Condition enabledWhen;
        Condition checkedWhen;
    };
    const Binding& binding(Command command) const;
    std::array<Binding, kCommandCount> bindings_;
};

} // namespace zolt::shell
