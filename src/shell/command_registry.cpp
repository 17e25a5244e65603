#include "shell/command_registry.h"

#include "shell/command_table.h"

#include <stdexcept>

namespace zolt::shell {

void CommandRegistry::Bind(std::string_view id, Handler handler, Condition enabledWhen) {
    if (!FindCommand(std::string(id).c_str()))
        throw std::logic_error("no command " + std::string(id) + " in the command table");
    bindings_[std::string(id)] = Binding{std::move(handler), std::move(enabledWhen)};
}

bool CommandRegistry::Run(std::string_view id) const {
    const auto it = bindings_.find(id);
    if (it == bindings_.end() || !it->second.handler)
        return false;
    it->second.handler();
    return true;
}

bool CommandRegistry::Enabled(std::string_view id) const {
    const auto it = bindings_.find(id);
    return it != bindings_.end() && it->second.handler &&
           (!it->second.enabledWhen || it->second.enabledWhen());
}

std::vector<std::string> CommandRegistry::Unbound() const {
    std::vector<std::string> missing;
    for (const CommandDef& c : Commands()) {
        const auto it = bindings_.find(std::string_view(c.id));
        if (it == bindings_.end() || !it->second.handler)
            missing.emplace_back(c.id);
    }
    return missing;
}

} // namespace zolt::shell
