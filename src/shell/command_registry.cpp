#include "shell/command_registry.h"

namespace zolt::shell {

const CommandRegistry::Binding& CommandRegistry::binding(Command command) const {
    return bindings_[static_cast<std::size_t>(command)];
}

void CommandRegistry::Bind(Command command, Handler handler, Condition enabledWhen) {
    Binding& b = bindings_[static_cast<std::size_t>(command)];
    b.handler = std::move(handler);
    b.enabledWhen = std::move(enabledWhen);
}

void CommandRegistry::BindChecked(Command command, Condition checkedWhen) {
    bindings_[static_cast<std::size_t>(command)].checkedWhen = std::move(checkedWhen);
}

bool CommandRegistry::Run(Command command) const {
    const Binding& b = binding(command);
    if (!b.handler)
        return false;
    b.handler();
    return true;
}

bool CommandRegistry::Enabled(Command command) const {
    const Binding& b = binding(command);
    return b.handler && (!b.enabledWhen || b.enabledWhen());
}

std::optional<bool> CommandRegistry::Checked(Command command) const {
    const Binding& b = binding(command);
    return b.checkedWhen ? std::optional(b.checkedWhen()) : std::nullopt;
}

std::vector<Command> CommandRegistry::Unbound() const {
    std::vector<Command> missing;
    for (const CommandDef& c : Commands())
        if (!binding(c.command).handler)
            missing.push_back(c.command);
    return missing;
}

} // namespace zolt::shell
