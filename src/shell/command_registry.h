#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace zolt::shell {

// What each command of the command table does and when it can be used: the
// one place a command's id meets its handler. Binding an id the table does not
// list is a programming error; a listed id left without a handler is found by
// `Unbound` at start-up.
class CommandRegistry {
public:
    using Handler = std::function<void()>;
    using Condition = std::function<bool()>;

    // `enabledWhen` empty: the command can always be used.
    void Bind(std::string_view id, Handler handler, Condition enabledWhen = {});
    // Runs the command; false when no handler is bound to `id`.
    bool Run(std::string_view id) const;
    bool Enabled(std::string_view id) const;
    // The commands of the table that have no handler.
    std::vector<std::string> Unbound() const;

private:
    struct Binding {
        Handler handler;
        Condition enabledWhen;
    };
    std::map<std::string, Binding, std::less<>> bindings_;
};

} // namespace zolt::shell
