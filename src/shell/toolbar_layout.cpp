#include "shell/toolbar_layout.h"

#include "shell/command_table.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace zolt::shell {
namespace {

const char* const kHeader = "ZOLT Toolbars 1";

const char* kindName(ToolbarKind kind) {
    switch (kind) {
    case ToolbarKind::Main:
        return "main";
    case ToolbarKind::Netlist:
        return "netlist";
    case ToolbarKind::User:
        break;
    }
    return "user";
}

std::optional<ToolbarKind> kindOf(const std::string& word) {
    for (const ToolbarKind k : {ToolbarKind::Main, ToolbarKind::Netlist, ToolbarKind::User})
        if (word == kindName(k))
            return k;
    return std::nullopt;
}

std::optional<bool> flagOf(const std::string& word) {
    if (word == "1")
        return true;
    if (word == "0")
        return false;
    return std::nullopt;
}

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

std::vector<ToolbarTool> factoryTools(ToolbarKind kind) {
    std::vector<ToolbarTool> tools;
    for (const CommandDef& c : Commands())
        if (kind == ToolbarKind::Main ? c.mainToolbar : c.netlistToolbar)
            tools.push_back({c.id, true});
    return tools;
}

bool hasTool(const ToolbarDef& toolbar, const std::string& command) {
    return std::ranges::any_of(toolbar.tools,
                               [&](const ToolbarTool& t) { return t.command == command; });
}

bool knownCommand(const std::string& id) {
    return CommandNamed(id).has_value();
}

} // namespace

ToolbarDef* ToolbarLayout::Find(const std::string& name) {
    const auto it = std::ranges::find(toolbars, name, &ToolbarDef::name);
    return it == toolbars.end() ? nullptr : &*it;
}

bool ToolbarLayout::NameTaken(const std::string& name) const {
    return std::ranges::any_of(toolbars,
                               [&](const ToolbarDef& t) { return upper(t.name) == upper(name); });
}

ToolbarLayout FactoryToolbarLayout() {
    return ToolbarLayout{
        {{ToolbarKind::Main, "Main", true, factoryTools(ToolbarKind::Main)},
         {ToolbarKind::Netlist, "Netlist", true, factoryTools(ToolbarKind::Netlist)}},
        {}};
}

// One line a toolbar, then one a tool; the name comes last so that it may hold blanks.
std::string WriteToolbarLayout(const ToolbarLayout& layout) {
    std::ostringstream out;
    out << kHeader << '\n';
    for (const ToolbarDef& t : layout.toolbars) {
        out << "toolbar " << kindName(t.kind) << ' ' << (t.visible ? 1 : 0) << ' ' << t.name
            << '\n';
        for (const ToolbarTool& tool : t.tools)
            out << "tool " << tool.command << ' ' << (tool.shown ? 1 : 0) << '\n';
    }
    if (!layout.dockState.empty())
        out << "dock " << layout.dockState << '\n';
    return out.str();
}

std::optional<ToolbarLayout> ReadToolbarLayout(const std::string& text) {
    std::istringstream in(text);
    std::string line;
    // A file copied through a Windows editor keeps its carriage returns.
    const auto nextLine = [&] {
        if (!std::getline(in, line))
            return false;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        return true;
    };
    if (!nextLine() || line != kHeader)
        return std::nullopt;
    ToolbarLayout layout;
    while (nextLine()) {
        if (line.empty())
            continue;
        std::istringstream words(line);
        std::string keyword;
        words >> keyword;
        if (keyword == "toolbar") {
            std::string kind, visible, name;
            words >> kind >> visible;
            std::getline(words >> std::ws, name);
            const auto k = kindOf(kind);
            const auto v = flagOf(visible);
            if (!k || !v || name.empty() || layout.NameTaken(name))
                return std::nullopt;
            layout.toolbars.push_back({*k, name, *v, {}});
        } else if (keyword == "tool") {
            std::string command, shown, rest;
            words >> command >> shown >> rest;
            const auto s = flagOf(shown);
            if (layout.toolbars.empty() || !s || !rest.empty())
                return std::nullopt;
            ToolbarDef& toolbar = layout.toolbars.back();
            if (knownCommand(command) && !hasTool(toolbar, command))
                toolbar.tools.push_back({command, *s});
        } else if (keyword == "dock" && layout.dockState.empty()) {
            words >> layout.dockState;
        } else {
            return std::nullopt;
        }
    }
    // Main and Netlist come first, once each, as the window builds them.
    if (layout.toolbars.size() < 2 || layout.toolbars[0].kind != ToolbarKind::Main ||
        layout.toolbars[1].kind != ToolbarKind::Netlist ||
        std::ranges::count_if(layout.toolbars,
                              [](const ToolbarDef& t) { return t.kind != ToolbarKind::User; }) != 2)
        return std::nullopt;
    for (ToolbarDef& t : layout.toolbars)
        if (t.kind != ToolbarKind::User)
            for (const ToolbarTool& tool : factoryTools(t.kind))
                if (!hasTool(t, tool.command))
                    t.tools.push_back(tool);
    return layout;
}

} // namespace zolt::shell
