#include "cli/command_listing.h"

#include "cli/batch_session.h"
#include "sequence/load_system_sequence_table.h"
#include "sequence/system_sequence_table.h"

#include <iomanip>
#include <ostream>
#include <set>
#include <sstream>

namespace zolt::cli {
namespace {

struct DictionaryEntry {
    std::string name, type, low, high, description;
};

std::vector<DictionaryEntry> loadDictionary(bool grv) {
    std::ostringstream quiet;
    BatchSession session(quiet);
    CSystemSequenceTable dictionary(session.state());
    LoadSystemSequenceTable(dictionary, grv ? "COMMANDS.GRV" : "COMMANDS.ZLF");
    const Grid& g = dictionary.gridarray();
    using C = CSystemSequenceTable;
    std::vector<DictionaryEntry> entries;
    for (int row = 1; row <= g.Rows(); ++row)
        entries.push_back({g.Text(row, C::Name), g.Text(row, C::Type), g.Text(row, C::Low),
                           g.Text(row, C::High), g.Text(row, C::Description)});
    return entries;
}

std::string escaped(const std::string& text) {
    std::string out;
    for (const char c : text) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

const char* const kPageHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Sequence Commands - ZOLT Help</title>
<link rel="stylesheet" href="help.css">
</head>
<body>
<nav><a href="index.html">Contents</a> | <a href="sequence.html">The sequence</a> | <a href="keyboard.html">Keyboard</a></nav>
<h1>Sequence commands</h1>
<p>Every command the analyzer runs, as the sequence editor offers it in its drop-down list and
as the compiler checks it. This page is made from the program's own command dictionary
(<code>zolt-cli commands --html</code>), so it always lists what this version of ZOLT knows.
<code>PBEGIN</code> and <code>PEND</code> exist in <code>.grv</code> programs only
(see the <a href="grv-guide.html">GRV User Guide</a>).</p>
<h2>Parameter types</h2>
<table>
<tr><th>Type</th><th>Parameter</th></tr>
<tr><td>0</td><td>none; the parameter cell stays empty</td></tr>
<tr><td>1</td><td>a number from Low to High</td></tr>
<tr><td>2</td><td>a netlist name, <code>MAIN</code> when left empty; the compiler checks that it exists</td></tr>
<tr><td>3</td><td>a line number of the sequence (a branch); it moves with its line when lines are inserted or deleted</td></tr>
<tr><td>4</td><td>a message number of the Messages table; the description column shows the message</td></tr>
<tr><td>5</td><td>a netlist name, as type 2</td></tr>
<tr><td>6</td><td>none; a macro whose steps come from ZOLT.MAC</td></tr>
<tr><td>7</td><td>a text that must be given; a macro (for <code>PLABEL</code> and <code>PLABEL2</code> the label file)</td></tr>
</table>
<h2>The commands</h2>
<table class="commands">
<tr><th>Command</th><th>Type</th><th>Low</th><th>High</th><th>Description</th><th>Programs</th></tr>
)";

const char* const kPageTail = R"(</table>
</body>
</html>
)";

} // namespace

void PrintCommandDictionary(std::ostream& out, bool grv) {
    const auto line = [&](const std::string& name, const std::string& type, const std::string& low,
                          const std::string& high, const std::string& description) {
        out << std::left << std::setw(16) << name << std::setw(6) << type << std::setw(6) << low
            << std::setw(7) << high << description << '\n';
    };
    line("COMMAND", "TYPE", "LOW", "HIGH", "DESCRIPTION");
    for (const DictionaryEntry& e : loadDictionary(grv))
        line(e.name, e.type, e.low, e.high, e.description);
}

void PrintCommandDictionaryPage(std::ostream& out) {
    std::set<std::string> plain;
    for (const DictionaryEntry& e : loadDictionary(false))
        plain.insert(e.name);
    out << kPageHead;
    for (const DictionaryEntry& e : loadDictionary(true))
        out << "<tr><td>" << escaped(e.name) << "</td><td>" << escaped(e.type) << "</td><td>"
            << escaped(e.low) << "</td><td>" << escaped(e.high) << "</td><td>"
            << escaped(e.description) << "</td><td>"
            << (plain.contains(e.name) ? ".zlf, .grv" : ".grv") << "</td></tr>\n";
    out << kPageTail;
}

} // namespace zolt::cli
