#include "cli/report_command.h"

#include "cli/batch_session.h"
#include "cli/program_files.h"
#include "core/ports/clock.h"
#include "core/table_kinds.h"
#include "core/value.h"
#include "reports/report_catalog.h"
#include "reports/report_text.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

struct Options {
    std::string file;
    std::string netlist = "MAIN";
    std::vector<std::string> names;
    std::string summary;
    std::string pdf;
    bool text = false;
};

std::vector<std::string> SplitAtCommas(const std::string& list) {
    std::vector<std::string> parts;
    std::istringstream in(list);
    for (std::string part; std::getline(in, part, ',');)
        if (!vb::Trim(part).empty())
            parts.push_back(vb::Trim(part));
    return parts;
}

// Names compare without case and blanks: "Fixture Connections", "fixtureconnections".
std::string Key(const std::string& name) {
    std::string key;
    for (char c : vb::UCase(name))
        if (c != ' ')
            key += c;
    return key;
}

std::optional<Options> Parse(const std::vector<std::string>& args, std::string& problem) {
    Options o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--text")
            o.text = true;
        else if (a == "--netlist" && hasValue)
            o.netlist = args[++i];
        else if (a == "--tables" && hasValue)
            o.names = SplitAtCommas(args[++i]);
        else if (a == "--summary" && hasValue)
            o.summary = args[++i];
        else if (a == "--pdf" && hasValue)
            o.pdf = args[++i];
        else if (o.file.empty() && !a.starts_with("--"))
            o.file = a;
        else {
            problem = "unexpected argument '" + a + "'";
            return std::nullopt;
        }
    }
    if (o.file.empty())
        problem = "no program file given";
    else if (o.names.empty() && o.summary.empty())
        problem = "no report chosen (--tables or --summary)";
    else if (!o.summary.empty() && o.summary != "wire" && o.summary != "group")
        problem = "--summary takes 'wire' or 'group'";
    else if (o.text == !o.pdf.empty())
        problem = "give either --pdf OUT.pdf or --text";
    return problem.empty() ? std::optional(o) : std::nullopt;
}

using Choices = std::vector<reports::ReportChoice>;

// A choice by its check box text or its table's name ("Pins" or "Pin").
Choices::const_iterator FindChoice(const Choices& choices, const std::string& name) {
    return std::find_if(choices.begin(), choices.end(), [&](const reports::ReportChoice& c) {
        return Key(c.checkBox) == Key(name) ||
               (c.kind == reports::ReportKind::Table && c.table &&
                (Key(GetTableName(*c.table)) == Key(name) || TableIndexOf(name) == c.table));
    });
}

} // namespace

int ReportCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                  SettingsStore& settings, const PdfWriter& pdf, std::ostream& out,
                  std::ostream& err) {
    std::string problem;
    const auto options = Parse(args, problem);
    if (!options) {
        err << "ERROR: " << problem << "\n";
        return 2;
    }
    if (!options->pdf.empty() && !pdf) {
        err << "ERROR: this build writes no PDF; use --text\n";
        return 2;
    }
    std::ostringstream events;
    BatchSession session(events, settings);
    session.setDataDirectory(dataDirectory);
    ProgramState& state = session.state();
    const WorkingImage image(options->file);
    if (OpenProgram(state, options->file, dataDirectory) != Answer::Yes) {
        err << events.str();
        return 1;
    }
    const CNetList* netlist = state.project().FindNetlist(options->netlist);
    if (!netlist) {
        err << "ERROR: no netlist '" << options->netlist << "' in " << options->file << "\n";
        return 1;
    }
    auto choices = reports::PrintChoices(*netlist);
    for (const auto& c : reports::GrvPrintChoices(state))
        choices.push_back(c);
    // Ticked boxes, printed in the dialog's order whatever order they were named in.
    std::vector<bool> ticked(choices.size(), false);
    for (const auto& name : options->names) {
        const auto choice = FindChoice(choices, name);
        if (choice == choices.end() || choice->kind == reports::ReportKind::SummaryByWire ||
            choice->kind == reports::ReportKind::SummaryByGroup) {
            err << "ERROR: unknown report '" << name << "'\n";
            return 2;
        }
        ticked[static_cast<std::size_t>(choice - choices.begin())] = true;
    }
    std::vector<reports::ReportChoice> chosen;
    for (std::size_t i = 0; i < choices.size(); ++i)
        if (ticked[i])
            chosen.push_back(choices[i]);
    if (!options->summary.empty())
        chosen.push_back(*FindChoice(choices, options->summary == "wire"
                                                  ? "Wire Summary (by wire)"
                                                  : "Wire Summary (by group)"));
    for (const auto& c : chosen)
        if (!c.enabled) {
            err << "ERROR: nothing to print for '" << vb::Trim(c.checkBox) << "' of "
                << netlist->NetlistName << "\n";
            return 1;
        }

    const reports::ReportContext context{state, *netlist, SystemClock().Now()};
    std::vector<reports::Report> made;
    for (const auto& c : chosen)
        made.push_back(reports::MakeReport(context, c));
    if (options->text) {
        out << reports::ReportText(made);
        return 0;
    }
    std::string error;
    if (!pdf(made, options->pdf, error)) {
        err << "ERROR: cannot write '" << options->pdf << "': " << error << "\n";
        return 1;
    }
    return 0;
}

} // namespace zolt::cli
