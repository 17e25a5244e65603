#include "compile/program_compile.h"

#include "compile/compile_control.h"
#include "core/app_info.h"
#include "core/parameters.h"
#include "core/project.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "sequence/system_sequence_table.h"
#include "tables/message_table.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <utility>

namespace zolt::compile {
namespace {

// What the run time reports when a cell cannot be what the feed needs; it ends
// in the "Compilation Failed!" box.
class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

constexpr const char* kTypeMismatch = "Type mismatch";
constexpr std::int32_t kWarningMask = 236768;
constexpr std::int32_t kWarningMaskQuiet = 236544;
constexpr int kLabelRows = 20;

float floatOf(const Value& cell) {
    const auto n = vb::CDbl(cell);
    if (!n)
        throw RunTimeError(kTypeMismatch);
    return static_cast<float>(*n);
}

const Grid& gridOf(const CNetList& netlist, TableId id) {
    static const Grid empty;
    const Table* table = netlist.GetTable(id);
    return table ? table->gridarray() : empty;
}

// One compile: the control fed with the whole program, the results collected.
class Run {
public:
    Run(const Project& project, const CompileRequest& request)
        : project_(project), request_(request), main_(*project.MainNetlist),
          messages_(main_.TableAs<CMessageTable>(table::Message)) {
        control_.StatusLine = [this](std::int32_t, std::int32_t, const std::string& text) {
            appendLine(text);
        };
        control_.LabelField = [this](std::int16_t id, const std::string& text) {
            onLabelField(id, text);
        };
        // The files are the caller's to write.
        control_.SetFileWriter([this](const std::string& path, const std::string& bytes) {
            result_.files.emplace_back(path, bytes);
            return true;
        });
        if (request.trace)
            control_.SetTrace([this](const std::string& line) { result_.trace.push_back(line); });
        for (int label = 1; label <= 2; ++label)
            if (messages_)
                storedLabels_[label - 1] =
                    label == 1 ? messages_->PLabelData() : messages_->PLabel2Data();
    }

    CompileResult Take() {
        configure();
        if (!request_.note.empty())
            appendLine(request_.note);
        try {
            compile();
        } catch (const RunTimeError& e) {
            result_.end = CompileEnd::Failed;
            result_.box = MessageBox{kAppTitle, std::string(e.what()) + "\nCompilation Failed!",
                                     Buttons::Ok, Icon::Warning};
        }
        result_.image = control_.Image();
        result_.diagnostics = control_.Diagnostics();
        result_.warnings = control_.WarningCount();
        result_.errors = control_.ErrorCount();
        result_.logMask = control_.LogMask();
        return std::move(result_);
    }

private:
    void configure();
    void compile();
    void appendLine(const std::string& text);
    void setResults(std::string text);
    bool checkNetlistReferences() const;
    bool isManualNetlist(const std::string& name) const;
    bool scanLabels(int label);
    void loadMainDataTables();
    std::int32_t loadNetlistTables(const CNetList& netlist);
    void feedCodes(const CNetList& netlist, std::int32_t& result);
    void replay(const NetlistFeed& feed);
    void takeWireOrder(const CNetList& netlist);
    void onLabelField(std::int16_t id, const std::string& text);

    const Project& project_;
    const CompileRequest& request_;
    const CNetList& main_;
    const CMessageTable* messages_;
    NXComp control_;
    CompileResult result_;
    std::array<int, 3> plabelState_{}; // by label, 1 and 2
    std::array<Grid, 2> storedLabels_;
    bool storedDataAsked_ = false;
};

void Run::appendLine(const std::string& text) {
    if (result_.results.size() < CompileResult::kResultsLimit)
        setResults(result_.results + text + '\n');
}

void Run::setResults(std::string text) {
    result_.results = std::move(text);
    if (request_.resultsChanged)
        request_.resultsChanged(result_.results);
}

void Run::configure() {
    const CompileSettings& settings = request_.settings;
    const std::filesystem::path file(request_.programFile);
    control_.SetProgramName(file.stem().string());
    control_.SetProgramFolder(file.parent_path().string());
    control_.SetProgramId(ProgramIdOf(control_.ProgramName()));
    control_.SetWarningMask(settings.compWarnings ? kWarningMask : kWarningMaskQuiet);
    control_.SetLogMask(settings.logMask.text().empty() ? -1
                                                        : vb::CLng(settings.logMask).value_or(-1));
    control_.Reset();
    control_.SetDwellTime(settings.dwellTime);
    control_.SetSwitchType(settings.switchType);
    control_.SetFixturePoints(2048);
    control_.SetOptionFlag18(true);
    control_.SetSeqBuild(settings.seqBuild);
    control_.SetOptionValue5(1000);
}

void Run::compile() {
    control_.SetOptionFlag2(true);
    if (!checkNetlistReferences()) {
        setResults(result_.results + "Compilation aborted. All netlists referrenced \nin the "
                                     "Sequence Table are not present.");
        result_.end = CompileEnd::MissingNetlist;
        return;
    }
    const Grid& messages = gridOf(main_, table::Message);
    for (int r = 1; r <= messages.Rows(); ++r)
        control_.AddMessage(messages.Text(r, message_column::Number),
                            messages.Text(r, message_column::Message));
    if (!scanLabels(1) || !scanLabels(2)) {
        if (!result_.question)
            result_.end = CompileEnd::Aborted;
        return;
    }
    loadMainDataTables();
    for (std::size_t i = project_.NetlistCollection.Count(); i >= 1; --i)
        if (loadNetlistTables(**project_.NetlistCollection.Item(i)) != 0)
            break;
    const std::string warnings = request_.settings.compWarnings
                                     ? std::to_string(control_.WarningCount())
                                     : std::string("Turned Off");
    setResults(result_.results + "\nWarnings: " + warnings +
               "\nErrors: " + std::to_string(control_.ErrorCount()));
    result_.end = CompileEnd::Finished;
}

bool Run::isManualNetlist(const std::string& name) const {
    const std::string wanted = vb::UCase(vb::Trim(name));
    std::vector<const CNetList*> netlists = request_.manualNetlists;
    if (netlists.empty())
        project_.NetlistCollection.ForEach(
            [&](const std::unique_ptr<CNetList>& netlist) { netlists.push_back(netlist.get()); });
    for (const CNetList* netlist : netlists) {
        if (vb::UCase(netlist->NetlistName).find("MANUAL") == std::string::npos)
            continue;
        const Grid& codes = gridOf(*netlist, table::Code);
        for (int r = 1; r <= codes.Rows(); ++r)
            if (vb::UCase(codes.Text(r, code_column::NetlistName)) == wanted)
                return true;
        return false;
    }
    return false;
}

// Only the last netlist line of the sequence decides.
bool Run::checkNetlistReferences() const {
    const auto* dictionary = main_.TableAs<CSystemSequenceTable>(table::SequenceList);
    const Grid& sequence = gridOf(main_, table::Sequence);
    bool anyLine = false;
    bool isManual = false;
    bool isKnown = false;
    for (int r = 1; r <= sequence.Rows(); ++r) {
        if (!dictionary || dictionary->GetCommandType(sequence.Text(r, sequence_column::Command)) !=
                               command_type::Netlist)
            continue;
        anyLine = true;
        isManual = false;
        isKnown = false;
        const std::string parameter = sequence.Text(r, sequence_column::Parameter);
        if (isManualNetlist(parameter)) {
            isManual = true;
            continue;
        }
        project_.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
            isKnown = isKnown || vb::UCase(netlist->NetlistName) == parameter;
        });
    }
    return !anyLine || isManual || isKnown;
}

bool Run::scanLabels(int label) {
    const Grid& sequence = gridOf(main_, table::Sequence);
    const std::string command = label == 1 ? "PLABEL" : "PLABEL2";
    const int low = label == 1 ? 80 : 100;
    const int high = label == 1 ? 100 : 120;
    auto abort = [&](const std::string& text) {
        result_.box = MessageBox{"Compile Aborted", text, Buttons::Ok, Icon::Stop};
        return false;
    };
    plabelState_[label] = 0;
    std::string previous;
    for (int r = 1; r <= sequence.Rows(); ++r) {
        if (sequence.Text(r, sequence_column::Command) != command)
            continue;
        const std::string file = sequence.Text(r, sequence_column::Parameter);
        if (plabelState_[label] > 0 && file != previous)
            return abort("Multiple " + command + " commands in sequence table. \nEach " + command +
                         " must refer to same '.ejf' file!");
        const Grid& rows = gridOf(main_, table::Message);
        for (int m = 1; m <= rows.Rows(); ++m) {
            const auto id = rows.At(m, message_column::Number).number();
            if (id && *id >= low && *id < high)
                return abort(label == 1 ? "When using PLABEL commands, no message ID's can have a "
                                          "value between 80 and 100"
                                        : "When using PLABEL2 commands, no message ID's can have a "
                                          "value between 100 and 119");
        }
        const std::filesystem::path folder(request_.settings.ejfFolder);
        std::filesystem::path path = folder / (file + ".EJF");
        if (!std::filesystem::exists(path) && std::filesystem::exists(folder / (file + ".ejf")))
            path = folder / (file + ".ejf");
        Grid& stored = storedLabels_[label - 1];
        bool hasStored = false;
        for (int s = 1; s <= stored.Rows(); ++s)
            hasStored = hasStored || !stored.Text(s, message_column::Number).empty();
        const std::string title = vb::UCase(file + ".ejf") + " File Not Found!";
        const std::string text = "A " + command +
                                 " command in the Sequence Table \n referenced the " + file +
                                 ".ejf file.";
        if (std::filesystem::exists(path)) {
            stored.ReDim(kLabelRows, stored.Columns());
            for (int s = 1; s <= kLabelRows; ++s)
                for (int c = 0; c < stored.Columns(); ++c)
                    stored.Set(s, c, Value());
            control_.LoadLabelFile(path.string(), label);
            result_.labelData[label - 1] = stored;
            plabelState_[label] = 1;
        } else if (!hasStored) {
            result_.box = MessageBox{title, text, Buttons::Ok, Icon::Stop};
            return false;
        } else {
            if (!storedDataAsked_) {
                storedDataAsked_ = true;
                // The run cannot go on without the answer: it is asked, and the
                // compile made again from the start with it.
                if (!request_.useStoredLabels) {
                    result_.end = CompileEnd::Asking;
                    result_.question =
                        MessageBox{title, text + "\nLabel data from previous session will be used!",
                                   Buttons::OkCancel, Icon::Stop};
                    return false;
                }
                if (!*request_.useStoredLabels)
                    return false;
            }
            plabelState_[label] = 2;
        }
        if (plabelState_[label] == 0)
            return abort(command + " command, but no plabel messages found");
        previous = file;
    }
    return true;
}

// The label file's fields become the stored rows of its label.
void Run::onLabelField(std::int16_t id, const std::string& text) {
    if (!messages_)
        return;
    const int label = id >= 100 ? 2 : 1;
    Grid& stored = storedLabels_[label - 1];
    const int row = id - (label == 2 ? 99 : 79);
    if (row > stored.Rows())
        stored.ReDim(row, stored.Columns());
    stored.Set(row, message_column::Number, Value(id));
    stored.Set(row, message_column::Message, Value(vb::Trim(text)));
    result_.labelData[label - 1] = stored;
}

void Run::loadMainDataTables() {
    const auto* dictionary = main_.TableAs<CSystemSequenceTable>(table::SequenceList);
    const Grid& sequence = gridOf(main_, table::Sequence);
    std::vector<std::string> macros;
    for (int r = 1; r <= sequence.Rows(); ++r) {
        const std::string command = sequence.Text(r, sequence_column::Command);
        control_.AddSequenceLine(command, vb::Trim(sequence.Text(r, sequence_column::Parameter)));
        // A PID file may spell a macro "Alarmoff"; ZOLT.MAC names it "ALARMOFF".
        const std::string name = vb::UCase(vb::Trim(command));
        if (dictionary && dictionary->IsMacro(command) &&
            std::find(macros.begin(), macros.end(), name) == macros.end())
            macros.push_back(name);
    }
    for (const std::string& name : macros)
        project_.MacroList.ForEach([&](const CMacro& m) {
            if (vb::UCase(m.MacroName) == name)
                control_.AddMacroLine(m.MacroName, m.Command, m.Parameter);
        });

    const CompileSettings& settings = request_.settings;
    const float voltage = floatOf(settings.testVoltage);
    const float current = floatOf(settings.testCurrent);
    const float threshold = floatOf(settings.threshold);
    control_.AddTestParameter(voltage, threshold, threshold, current);
    const Grid& tests = gridOf(main_, table::TestParameter);
    for (int r = 1; r <= tests.Rows(); ++r) {
        namespace col = test_parameter_column;
        if (tests.Text(r, col::Threshold1) == "N/A")
            control_.AddTestParameter(0, 0, 0, 0);
        else
            control_.AddTestParameter(
                floatOf(tests.At(r, col::TestVoltage)), floatOf(tests.At(r, col::Threshold2)),
                floatOf(tests.At(r, col::Threshold1)), floatOf(tests.At(r, col::TestCurrent)));
    }

    project_.DeviceList.ForEach([&](const CComponent& c) {
        control_.AddDevice(DeviceKindCode(c.ComponentName), c.Side1, c.Side2, c.Description);
    });

    for (int label = 1; label <= 2 && messages_; ++label) {
        if (plabelState_[label] != 2)
            continue;
        const Grid& stored = storedLabels_[label - 1];
        for (int r = 1; r <= stored.Rows(); ++r)
            control_.AddMessage(stored.Text(r, message_column::Number),
                                stored.Text(r, message_column::Message));
    }

    const Grid& commands = gridOf(main_, table::SequenceList);
    auto number = [&](int r, int c) {
        const std::string text = vb::Trim(commands.Text(r, c));
        return vb::IsNumeric(std::string_view(text)) ? vb::CLng(Value(text)).value_or(0) : 0;
    };
    for (int r = 1; r <= commands.Rows(); ++r)
        control_.AddCommandDef(vb::Trim(commands.Text(r, CSystemSequenceTable::Name)),
                               number(r, CSystemSequenceTable::Type),
                               number(r, CSystemSequenceTable::Low),
                               number(r, CSystemSequenceTable::High),
                               vb::Trim(commands.Text(r, CSystemSequenceTable::Description)));
}

void Run::feedCodes(const CNetList& netlist, std::int32_t& result) {
    const Grid& codes = gridOf(netlist, table::Code);
    std::string current = codes.Text(1, code_column::NetlistName);
    for (int r = 1; r <= codes.Rows(); ++r) {
        const std::string name = codes.Text(r, code_column::NetlistName);
        if (name.empty())
            continue;
        if (name != current) {
            control_.EndNetlist(vb::UCase(vb::Trim(current)));
            control_.BeginNetlist();
            current = name;
        }
        control_.AddCode(codes.Text(r, code_column::Command),
                         codes.Text(r, code_column::Parameters));
    }
    result = control_.EndNetlist(vb::UCase(vb::Trim(current)));
}

std::int32_t Run::loadNetlistTables(const CNetList& netlist) {
    appendLine("Compiling: " + netlist.NetlistName);
    control_.BeginNetlist();
    std::int32_t result = 0;
    if (gridOf(netlist, table::Code).Rows() > 0) {
        feedCodes(netlist, result);
        return result;
    }
    const FeedOutcome outcome = FeedOf(project_, netlist, request_.settings.feed);
    replay(outcome.feed);
    if (!outcome.error.empty())
        throw RunTimeError(outcome.error);
    result = netlist.netlistIndex != 0
                 ? control_.EndNetlist(vb::UCase(vb::Trim(netlist.NetlistName)))
                 : control_.Compile();
    if (control_.SeqBuild())
        takeWireOrder(netlist);
    result_.compiledDate = OleDate(request_.now);
    return result;
}

void Run::replay(const NetlistFeed& feed) {
    for (const auto& p : feed.fixture)
        control_.AddFixturePoint(p.board, p.point, p.connector, p.pin);
    for (const auto& c : feed.connectors)
        control_.AddConnector(c.name, c.pins, c.switches, c.lamp1, c.lamp2, c.grid);
    for (const auto& s : feed.switches)
        control_.AddSwitch(s.connector, s.pin, s.commons, s.ordinal);
    for (const auto& g : feed.groups)
        control_.AddGroup(g.group, g.connector, g.pin, g.base, g.stripe);
    for (const auto& w : feed.wires)
        control_.AddWire(w.name, w.base, w.stripe, 0);
    for (const auto& p : feed.pins)
        control_.AddPin(p.connector, p.pin, p.wire);
    for (const auto& s : feed.splices)
        control_.AddSplice(s.number, s.wire);
    for (const auto& c : feed.components)
        control_.AddComponent(c.kind, c.number, c.wire1, c.wire2, c.parameter);
    for (const auto& r : feed.reversibles)
        control_.AddReversible(r.number, r.connector1, r.pin1, r.connector2, r.pin2);
}

// The Wires rows in build order, each keeping its colors; wires the build
// order does not name are left out.
void Run::takeWireOrder(const CNetList& netlist) {
    const Table* table = netlist.GetTable(table::Wire);
    if (!table)
        return;
    const Grid& before = table->gridarray();
    Grid wires(0, before.Columns());
    for (std::string wire = control_.NextBuildItem(1); !wire.empty();
         wire = control_.NextBuildItem(1)) {
        const int row = wires.Rows() + 1;
        wires.ReDim(row, before.Columns());
        wires.Set(row, wire_column::Wire, Value(wire));
        for (int r = 1; r <= before.Rows(); ++r)
            if (before.Text(r, wire_column::Wire) == wire) {
                wires.Set(row, wire_column::BaseColor, before.At(r, wire_column::BaseColor));
                wires.Set(row, wire_column::StripeColor, before.At(r, wire_column::StripeColor));
                break;
            }
    }
    result_.wireOrders.push_back({netlist.NetlistName, std::move(wires)});
}

} // namespace

CompileSettings CompileSettingsOf(CParamList& params) {
    CompileSettings settings;
    settings.compWarnings = params.Number(param::CompWarnings) != 0;
    settings.logMask = params.Val(param::CompLogMask);
    settings.dwellTime = params.Number(param::DwellTime);
    settings.switchType = static_cast<std::int32_t>(params.Number(param::SwitchType));
    settings.seqBuild = params.Number(param::SeqBuild) != 0;
    settings.testVoltage = params.Val(param::TestVoltage);
    settings.testCurrent = params.Val(param::TestCurrent);
    settings.threshold = params.Val(param::Threshold);
    settings.feed = {params.Number(param::LampPin) != 0, params.Number(param::Switches) != 0};
    settings.ejfFolder = params.Text(param::EJFDirectory);
    return settings;
}

CompileResult Compile(const Project& project, const CompileRequest& request) {
    return Run(project, request).Take();
}

void ReportUnwrittenImage(CompileResult& result, const std::string& path) {
    const Diagnostic finding{Code::ImageNotWritten, "MAIN", "Image", 0,
                             "'" + path + "' cannot be written"};
    const std::string line = FormatDiagnostic(finding);
    result.diagnostics.push_back(finding);
    ++result.errors;
    const auto counts = result.results.rfind("\nWarnings: ");
    if (counts != std::string::npos) {
        result.results.insert(counts, line + '\n');
        const auto errors = result.results.rfind("\nErrors: ");
        result.results.resize(errors);
        result.results += "\nErrors: " + std::to_string(result.errors);
    }
    for (auto& [file, bytes] : result.files)
        if (file.ends_with(".dgn"))
            bytes += line + "\r\n";
}

std::string ProgramIdOf(const std::string& programName) {
    std::string id = programName.substr(0, 16);
    const auto blank = id.find(' ');
    if (blank != std::string::npos && blank >= 1)
        id.resize(blank);
    return id;
}

double OleDate(const LocalTime& t) {
    using namespace std::chrono;
    const sys_days date = year_month_day{std::chrono::year(t.year),
                                         std::chrono::month(static_cast<unsigned>(t.month)),
                                         std::chrono::day(static_cast<unsigned>(t.day))};
    const sys_days epoch = year_month_day{std::chrono::year(1899), December, std::chrono::day(30)};
    return static_cast<double>((date - epoch).count()) +
           (t.hour * 3600 + t.minute * 60 + t.second) / 86400.0;
}

} // namespace zolt::compile
