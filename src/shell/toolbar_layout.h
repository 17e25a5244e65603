#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt::shell {

enum class ToolbarKind { Main, Netlist, User };

// One button of a toolbar: the command it runs and whether it shows.
struct ToolbarTool {
    std::string command;
    bool shown = true;
    bool operator==(const ToolbarTool&) const = default;
};

struct ToolbarDef {
    ToolbarKind kind = ToolbarKind::User;
    std::string name;
    bool visible = true;
    std::vector<ToolbarTool> tools;
    bool operator==(const ToolbarDef&) const = default;
};

// Every toolbar with its tools in order, Main and Netlist first, and where the
// window docked them (the toolkit's own state, base64, empty for its default).
struct ToolbarLayout {
    std::vector<ToolbarDef> toolbars;
    std::string dockState;
    bool operator==(const ToolbarLayout&) const = default;

    ToolbarDef* Find(const std::string& name);
    // True when `name` is taken, case ignored: toolbar names must tell them apart on screen.
    bool NameTaken(const std::string& name) const;
};

// The toolbars the program comes with, from the command table.
ToolbarLayout FactoryToolbarLayout();

// The text of the toolbar layout file.
std::string WriteToolbarLayout(const ToolbarLayout& layout);
// nullopt for a damaged text. Commands the program no longer has are left out,
// and tools of Main and Netlist the text does not know come in at the end.
std::optional<ToolbarLayout> ReadToolbarLayout(const std::string& text);

} // namespace zolt::shell
