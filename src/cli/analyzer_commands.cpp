#include "cli/analyzer_commands.h"

#include "analyzer/coverage.h"
#include "analyzer/fault.h"
#include "analyzer/run.h"
#include "cli/compiled_image.h"
#include "cli/json_writer.h"
#include "core/ports/clock.h"
#include "reports/coverage_report.h"
#include "reports/report_header.h"

#include <charconv>
#include <iomanip>
#include <optional>
#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

using namespace analyzer;

struct RunArgs {
    std::string image;
    std::string harness;
    std::string pdf;
    std::vector<std::string> faults;
    Keys keys;
    std::size_t steps = RunOptions{}.stepLimit;
    std::vector<FaultClass> classes{std::begin(kFaultClasses), std::end(kFaultClasses)};
    bool json = false;
};

// Reads the options both commands share; the error text when they are bad.
std::optional<RunArgs> ParseArgs(const std::vector<std::string>& args, bool coverage,
                                 std::string& error) {
    RunArgs parsed;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& option = args[i];
        if (option == "--json") {
            parsed.json = true;
            continue;
        }
        if (!option.starts_with("--")) {
            if (!parsed.image.empty()) {
                error = "one program only: '" + option + "'";
                return std::nullopt;
            }
            parsed.image = option;
            continue;
        }
        const bool known =
            option == "--steps" || (coverage && (option == "--classes" || option == "--pdf")) ||
            (!coverage && (option == "--harness" || option == "--fault" || option == "--keys"));
        if (!known) {
            error = "unknown option '" + option + "'";
            return std::nullopt;
        }
        if (i + 1 >= args.size()) {
            error = "'" + option + "' needs a value";
            return std::nullopt;
        }
        const std::string& value = args[++i];
        if (option == "--harness") {
            parsed.harness = value;
        } else if (option == "--pdf") {
            parsed.pdf = value;
        } else if (option == "--fault") {
            parsed.faults.push_back(value);
        } else if (option == "--keys") {
            auto keys = ParseKeys(value);
            if (!keys.error.empty()) {
                error = keys.error;
                return std::nullopt;
            }
            parsed.keys = std::move(keys.keys);
        } else if (option == "--steps") {
            const auto [rest, ec] =
                std::from_chars(value.data(), value.data() + value.size(), parsed.steps);
            if (ec != std::errc() || rest != value.data() + value.size() || parsed.steps == 0) {
                error = "--steps needs a positive number";
                return std::nullopt;
            }
        } else {
            auto classes = ParseFaultClasses(value);
            if (!classes.error.empty()) {
                error = classes.error;
                return std::nullopt;
            }
            parsed.classes = std::move(classes.classes);
        }
    }
    if (!parsed.pdf.empty() && parsed.json)
        error = "give either --json or --pdf OUT.pdf";
    else if (parsed.image.empty())
        error = "no program named";
    return error.empty() ? std::optional(parsed) : std::nullopt;
}

std::string_view EndWord(RunEnd end) {
    switch (end) {
    case RunEnd::End:
        return "end";
    case RunEnd::Repeat:
        return "repeat";
    case RunEnd::LastLine:
        return "last-line";
    case RunEnd::StopKey:
        return "stop-key";
    case RunEnd::BreakOnError:
        return "break-on-error";
    case RunEnd::StepLimit:
        return "step-limit";
    case RunEnd::ProgramError:
        return "program-error";
    case RunEnd::OtherProgram:
        return "other-program";
    }
    return "";
}

std::string_view ErrorWord(ErrorKind kind) {
    switch (kind) {
    case ErrorKind::Open:
        return "open";
    case ErrorKind::Short:
        return "short";
    case ErrorKind::SoftShort:
        return "soft-short";
    case ErrorKind::Component:
        return "component";
    case ErrorKind::Switch:
        return "switch";
    }
    return "";
}

// "1-3, 5, 8": the lines that ran at least once.
std::string LinesRun(const std::vector<int>& timesRun) {
    std::string text;
    for (std::size_t l = 0; l < timesRun.size(); ++l) {
        if (timesRun[l] == 0)
            continue;
        std::size_t last = l;
        while (last + 1 < timesRun.size() && timesRun[last + 1] > 0)
            ++last;
        text += (text.empty() ? "" : ", ") + std::to_string(l + 1);
        if (last > l)
            text += "-" + std::to_string(last + 1);
        l = last;
    }
    return text.empty() ? "none" : text;
}

void PrintRunText(const RunResult& run, std::ostream& out) {
    out << "Display:\n";
    for (const auto& t : run.transcript)
        out << std::setw(6) << t.line << "  " << t.text << '\n';
    out << "Errors: " << run.errors.size() << '\n';
    for (const auto& e : run.errors)
        out << std::setw(6) << e.line << "  " << e.text << '\n';
    const auto& c = run.counters;
    out << "Ended on line " << run.endLine << ": " << run.endText << '\n'
        << "Counters: errors " << c.errors << ", opens " << c.opens << ", shorts " << c.shorts
        << ", soft shorts " << c.softShorts << ", components " << c.components << ", switches "
        << c.switches << ", RCOUNT " << c.rcount << ", SCOUNT " << c.scount << ", holding "
        << c.holding << '\n'
        << "Lines run: " << LinesRun(run.timesRun) << " (" << run.steps << " steps)\n"
        << "Simulated time: " << run.seconds << " s\n"
        << (run.Passed() ? "PASSED" : "FAILED") << '\n';
}

void PrintRunJson(const RunResult& run, std::ostream& out) {
    out << "{\"passed\": " << (run.Passed() ? "true" : "false") << ",\n \"display\": [";
    for (std::size_t i = 0; i < run.transcript.size(); ++i)
        out << (i ? ",\n  " : "\n  ") << "{\"line\": " << run.transcript[i].line
            << ", \"text\": " << JsonString(run.transcript[i].text) << '}';
    out << "],\n \"errors\": [";
    for (std::size_t i = 0; i < run.errors.size(); ++i)
        out << (i ? ",\n  " : "\n  ") << "{\"line\": " << run.errors[i].line << ", \"kind\": \""
            << ErrorWord(run.errors[i].kind) << "\", \"text\": " << JsonString(run.errors[i].text)
            << '}';
    const auto& c = run.counters;
    out << "],\n \"end\": {\"line\": " << run.endLine << ", \"how\": \"" << EndWord(run.end)
        << "\", \"text\": " << JsonString(run.endText)
        << "},\n \"counters\": {\"errors\": " << c.errors << ", \"opens\": " << c.opens
        << ", \"shorts\": " << c.shorts << ", \"softShorts\": " << c.softShorts
        << ", \"components\": " << c.components << ", \"switches\": " << c.switches
        << ", \"rcount\": " << c.rcount << ", \"scount\": " << c.scount
        << ", \"holding\": " << c.holding << "},\n \"timesRun\": [";
    for (std::size_t l = 0; l < run.timesRun.size(); ++l)
        out << (l ? ", " : "") << run.timesRun[l];
    out << "],\n \"steps\": " << run.steps << ", \"seconds\": " << run.seconds << "}\n";
}

void PrintCoverageJson(const Coverage& coverage, const PointNames& names, const Harness& harness,
                       std::ostream& out) {
    const auto percent = reports::CoveragePercent;
    out << "{\"passesDesignedHarness\": " << (coverage.good.Passed() ? "true" : "false")
        << ",\n \"classes\": [";
    for (std::size_t i = 0; i < coverage.classes.size(); ++i) {
        const auto& c = coverage.classes[i];
        out << (i ? ",\n  " : "\n  ") << "{\"class\": \"" << FaultClassName(c.faultClass)
            << "\", \"faults\": " << c.faults << ", \"detected\": " << c.detected
            << ", \"undetected\": " << c.faults - c.detected
            << ", \"percent\": " << percent(c.detected, c.faults) << '}';
    }
    out << "],\n \"faults\": " << coverage.faults << ", \"detected\": " << coverage.detected
        << ", \"percent\": " << percent(coverage.detected, coverage.faults)
        << ",\n \"undetected\": [";
    for (std::size_t i = 0; i < coverage.undetected.size(); ++i) {
        const auto& u = coverage.undetected[i];
        out << (i ? ",\n  " : "\n  ") << "{\"class\": \"" << FaultClassName(u.fault.faultClass)
            << "\", \"fault\": " << JsonString(FaultText(u.fault.fault, names, harness))
            << ", \"reason\": " << JsonString(u.reason) << '}';
    }
    out << "]}\n";
}

void PrintCoverageText(const Coverage& coverage, const PointNames& names, const Harness& harness,
                       const std::string& programName, std::ostream& out) {
    const auto percent = reports::CoveragePercent;
    out << "Program: " << programName << '\n';
    if (!coverage.good.Passed())
        out << "The program does not pass its own designed harness (" << coverage.good.errors.size()
            << " errors, ended: " << coverage.good.endText
            << "); each fault was run and compared with that run.\n";
    out << "class       faults  detected  undetected  percent\n";
    for (const auto& c : coverage.classes)
        out << std::left << std::setw(10) << FaultClassName(c.faultClass) << std::right
            << std::setw(8) << c.faults << std::setw(10) << c.detected << std::setw(12)
            << c.faults - c.detected << std::setw(8) << percent(c.detected, c.faults) << "%\n";
    out << std::left << std::setw(10) << "all" << std::right << std::setw(8) << coverage.faults
        << std::setw(10) << coverage.detected << std::setw(12)
        << coverage.faults - coverage.detected << std::setw(8)
        << percent(coverage.detected, coverage.faults) << "%\n";
    if (!coverage.undetected.empty())
        out << "Undetected:\n";
    for (const auto& u : coverage.undetected)
        out << "  " << FaultText(u.fault.fault, names, harness) << ": " << u.reason << '\n';
}

} // namespace

int AnalyzerRunCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                       SettingsStore& settings, std::ostream& out, std::ostream& err) {
    std::string error;
    const auto parsed = ParseArgs(args, false, error);
    if (!parsed) {
        err << "ERROR: " << error << '\n';
        return 2;
    }
    const auto image = CompiledImage(parsed->image, dataDirectory, settings, err);
    if (!image)
        return 2;
    std::optional<compile::ProgramImage> other;
    if (!parsed->harness.empty()) {
        other = CompiledImage(parsed->harness, dataDirectory, settings, err);
        if (!other)
            return 2;
    }
    const compile::ProgramImage& built = other ? *other : *image;
    const PointNames names({&built, &*image});
    Harness harness = DesignedHarness(built);
    std::vector<std::string> faultTexts;
    for (const auto& text : parsed->faults) {
        const FaultParse fault = ParseFault(text, names, harness);
        if (!fault.fault) {
            err << "ERROR: " << fault.error << '\n';
            return 2;
        }
        faultTexts.push_back(FaultText(*fault.fault, names, harness));
        harness = WithFault(std::move(harness), *fault.fault);
    }
    const RunResult run = Run(*image, harness, names, {parsed->keys, parsed->steps});
    if (parsed->json) {
        PrintRunJson(run, out);
    } else {
        out << "Program: " << image->header.programName << " (" << image->header.programId
            << ")\nHarness: " << (parsed->harness.empty() ? "as designed" : parsed->harness)
            << ", netlists";
        for (const auto& name : HarnessNetlists(built))
            out << ' ' << name;
        out << '\n';
        for (const auto& text : faultTexts)
            out << "Fault: " << text << '\n';
        PrintRunText(run, out);
    }
    return run.Passed() ? 0 : 1;
}

int CoverageCommand(const std::vector<std::string>& args, const std::string& dataDirectory,
                    SettingsStore& settings, const PdfWriter& pdf, std::ostream& out,
                    std::ostream& err) {
    std::string error;
    const auto parsed = ParseArgs(args, true, error);
    if (!parsed) {
        err << "ERROR: " << error << '\n';
        return 2;
    }
    if (!parsed->pdf.empty() && !pdf) {
        err << "ERROR: this build writes no PDF; use --json or the plain table\n";
        return 2;
    }
    const auto image = CompiledImage(parsed->image, dataDirectory, settings, err);
    if (!image)
        return 2;
    const PointNames names({&*image});
    const Harness harness = DesignedHarness(*image);
    RunOptions options;
    options.stepLimit = parsed->steps;
    const Coverage coverage = MeasureCoverage(*image, harness, names, parsed->classes, options);
    if (!parsed->pdf.empty()) {
        const std::string printed = reports::FormatReportTime(SystemClock().Now());
        if (!pdf(reports::CoverageReports(coverage, names, harness, parsed->image, printed),
                 parsed->pdf, error)) {
            err << "ERROR: cannot write '" << parsed->pdf << "': " << error << '\n';
            return 1;
        }
        return 0;
    }
    if (parsed->json)
        PrintCoverageJson(coverage, names, harness, out);
    else
        PrintCoverageText(coverage, names, harness, image->header.programName, out);
    return 0;
}

} // namespace zolt::cli
