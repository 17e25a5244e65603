#include "compile/compile_driver.h"

#include "compile/netlist_feed_of.h"
#include "core/app_info.h"
#include "core/ports/clock.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
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

float floatOf(const Value& cell) {
    const auto n = vb::CDbl(cell);
    if (!n)
        throw RunTimeError(kTypeMismatch);
    return static_cast<float>(*n);
}

Table* tableOf(const CNetList& netlist, TableId number) {
    return netlist.GetTable(number);
}

const Grid& gridOf(const CNetList& netlist, TableId number) {
    static const Grid empty;
    const Table* table = tableOf(netlist, number);
    return table ? table->gridarray() : empty;
}

} // namespace

std::string ProgramIdOf(const std::string& programName) {
    std::string id = programName.substr(0, 16);
    const auto blank = id.find(' ');
    if (blank != std::string::npos && blank >= 1)
        id.resize(blank);
    return id;
}

double OleDate(int year, int month, int day, int hour, int minute, int second) {
    using namespace std::chrono;
    const sys_days date =
        year_month_day{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                       std::chrono::day(static_cast<unsigned>(day))};
    const sys_days epoch = year_month_day{std::chrono::year(1899), December, std::chrono::day(30)};
    return static_cast<double>((date - epoch).count()) +
           (hour * 3600 + minute * 60 + second) / 86400.0;
}

CompileDriver::CompileDriver(ProgramState& state, NXComp& control, const Clock& clock)
    : state_(state), control_(control), clock_(clock) {
    control_.StatusLine = [this](std::int32_t, std::int32_t, const std::string& text) {
        appendLine(text);
    };
    control_.LabelField = [this](std::int16_t id, const std::string& text) {
        onLabelField(id, text);
    };
}

void CompileDriver::appendLine(const std::string& text) {
    if (results_.size() < kResultsLimit) {
        results_ += text + '\n';
        if (resultsChanged)
            resultsChanged(results_);
    }
    if (pump)
        pump();
}

void CompileDriver::Load() {
    CParamList& params = state_.Params();
    compWarnings_ = params.Number(param::CompWarnings) != 0;
    const std::filesystem::path file(state_.document().CurrentFile);
    control_.SetProgramName(file.stem().string());
    control_.SetProgramFolder(file.parent_path().string());
    std::error_code ignored;
    std::filesystem::remove(file.parent_path() / (file.stem().string() + ".bin"), ignored);
    state_.frame().CommandsChanged();
    control_.SetProgramId(ProgramIdOf(control_.ProgramName()));
    control_.SetWarningMask(compWarnings_ ? kWarningMask : kWarningMaskQuiet);
    const Value logMask = params.Val(param::CompLogMask);
    control_.SetLogMask(logMask.text().empty() ? -1 : vb::CLng(logMask).value_or(-1));
    control_.Reset();
    control_.SetDwellTime(params.Number(param::DwellTime));
    control_.SetSwitchType(static_cast<std::int32_t>(params.Number(param::SwitchType)));
    control_.SetFixturePoints(2048);
    control_.SetOptionFlag18(true);
    control_.SetSeqBuild(params.Number(param::SeqBuild) != 0);
    control_.SetOptionValue5(1000);
}

CompileEnd CompileDriver::Run() {
    Ui& ui = state_.ui();
    ui.SetBusy(true);
    try {
        control_.SetOptionFlag2(true);
        if (!CheckNetlistReferences()) {
            results_ += "Compilation aborted. All netlists referrenced \nin the Sequence Table are "
                        "not present.";
            if (resultsChanged)
                resultsChanged(results_);
            ui.SetBusy(false);
            return CompileEnd::MissingNetlist;
        }
        const Grid& messages = gridOf(*state_.project().MainNetlist, table::Message);
        for (int r = 1; r <= messages.Rows(); ++r)
            control_.AddMessage(messages.Text(r, message_column::Number),
                                messages.Text(r, message_column::Message));
        storedDataAsked_ = false;
        if (!scanLabels(1) || !scanLabels(2)) {
            ui.SetBusy(false);
            return CompileEnd::Aborted;
        }
        LoadMainDataTables();
        const int count = static_cast<int>(state_.project().NetlistCollection.Count());
        for (int i = count; i >= 1; --i) {
            if (LoadNetlistTables(i) != 0)
                break;
            if (pump)
                pump();
        }
        appendCounts();
        // Download follows the image the compile wrote.
        state_.frame().CommandsChanged();
        ui.SetBusy(false);
        return CompileEnd::Finished;
    } catch (const RunTimeError& e) {
        ui.SetBusy(false);
        ui.Show(MessageBox{kAppTitle, std::string(e.what()) + "\nCompilation Failed!", Buttons::Ok,
                           Icon::Warning});
        return CompileEnd::Failed;
    }
}

void CompileDriver::appendCounts() {
    const std::string warnings =
        compWarnings_ ? std::to_string(control_.WarningCount()) : std::string("Turned Off");
    results_ += "\nWarnings: " + warnings + "\nErrors: " + std::to_string(control_.ErrorCount());
    if (resultsChanged)
        resultsChanged(results_);
}

bool CompileDriver::IsManualNetlist(const std::string& name) const {
    const std::string wanted = vb::UCase(vb::Trim(name));
    std::vector<const CNetList*> netlists = manualLookup_;
    if (netlists.empty())
        for (std::size_t i = 1; i <= state_.project().NetlistCollection.Count(); ++i)
            netlists.push_back(state_.project().NetlistCollection.Item(i)->get());
    for (const CNetList* each : netlists) {
        const CNetList& netlist = *each;
        if (vb::UCase(netlist.NetlistName).find("MANUAL") == std::string::npos)
            continue;
        const Grid& codes = gridOf(netlist, table::Code);
        for (int r = 1; r <= codes.Rows(); ++r)
            if (vb::UCase(codes.Text(r, code_column::NetlistName)) == wanted)
                return true;
        return false;
    }
    return false;
}

bool CompileDriver::CheckNetlistReferences() const {
    const auto* dictionary = dynamic_cast<const CSystemSequenceTable*>(
        tableOf(*state_.project().MainNetlist, table::SequenceList));
    const Grid& sequence = gridOf(*state_.project().MainNetlist, table::Sequence);
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
        if (IsManualNetlist(parameter)) {
            isManual = true;
            continue;
        }
        for (std::size_t i = 1; i <= state_.project().NetlistCollection.Count(); ++i)
            if (vb::UCase((*state_.project().NetlistCollection.Item(i))->NetlistName) == parameter)
                isKnown = true;
    }
    return !anyLine || isManual || isKnown;
}

bool CompileDriver::scanLabels(int label) {
    auto* messages =
        dynamic_cast<CMessageTable*>(tableOf(*state_.project().MainNetlist, table::Message));
    const Grid& sequence = gridOf(*state_.project().MainNetlist, table::Sequence);
    const std::string command = label == 1 ? "PLABEL" : "PLABEL2";
    const int low = label == 1 ? 80 : 100;
    const int high = label == 1 ? 100 : 120;
    Ui& ui = state_.ui();
    auto abort = [&](const std::string& text) {
        ui.Show(MessageBox{"Compile Aborted", text, Buttons::Ok, Icon::Stop});
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
        const Grid& rows = messages->gridarray();
        for (int m = 1; m <= rows.Rows(); ++m) {
            const auto id = rows.At(m, message_column::Number).number();
            if (id && *id >= low && *id < high)
                return abort(label == 1 ? "When using PLABEL commands, no message ID's can have a "
                                          "value between 80 and 100"
                                        : "When using PLABEL2 commands, no message ID's can have a "
                                          "value between 100 and 119");
        }
        const std::filesystem::path folder(state_.Params().Text(param::EJFDirectory));
        std::filesystem::path path = folder / (file + ".EJF");
        if (!std::filesystem::exists(path) && std::filesystem::exists(folder / (file + ".ejf")))
            path = folder / (file + ".ejf");
        Grid& stored = label == 1 ? messages->PLabelData() : messages->PLabel2Data();
        bool hasStored = false;
        for (int s = 1; s <= stored.Rows(); ++s)
            hasStored = hasStored || !stored.Text(s, message_column::Number).empty();
        const std::string title = vb::UCase(file + ".ejf") + " File Not Found!";
        const std::string text = "A " + command +
                                 " command in the Sequence Table \n referenced the " + file +
                                 ".ejf file.";
        if (std::filesystem::exists(path)) {
            stored.ReDim(20, stored.Columns());
            for (int s = 1; s <= 20; ++s)
                for (int c = 0; c < stored.Columns(); ++c)
                    stored.Set(s, c, Value());
            control_.LoadLabelFile(path.string(), label);
            plabelState_[label] = 1;
        } else if (!hasStored) {
            ui.Show(MessageBox{title, text, Buttons::Ok, Icon::Stop});
            return false;
        } else {
            if (!storedDataAsked_) {
                storedDataAsked_ = true;
                if (ui.Show(MessageBox{title,
                                       text + "\nLabel data from previous session will be used!",
                                       Buttons::OkCancel, Icon::Stop}) == Answer::Cancel)
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

void CompileDriver::onLabelField(std::int16_t id, const std::string& text) {
    auto* messages =
        dynamic_cast<CMessageTable*>(tableOf(*state_.project().MainNetlist, table::Message));
    if (!messages)
        return;
    if (id >= 100)
        messages->AddPLabel2Record_V1(id - 99, {Value(id), Value(text)});
    else
        messages->AddPLabelRecord_V1(id - 79, {Value(id), Value(text)});
}

void CompileDriver::LoadMainDataTables() {
    const CNetList& main = *state_.project().MainNetlist;
    const auto* dictionary =
        dynamic_cast<const CSystemSequenceTable*>(tableOf(main, table::SequenceList));
    const Grid& sequence = gridOf(main, table::Sequence);
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
        state_.project().MacroList.ForEach([&](const CMacro& m) {
            if (vb::UCase(m.MacroName) == name)
                control_.AddMacroLine(m.MacroName, m.Command, m.Parameter);
        });

    CParamList& params = state_.Params();
    const float voltage = floatOf(params.Val(param::TestVoltage));
    const float current = floatOf(params.Val(param::TestCurrent));
    const float threshold = floatOf(params.Val(param::Threshold));
    control_.AddTestParameter(voltage, threshold, threshold, current);
    const Grid& tests = gridOf(main, table::TestParameter);
    for (int r = 1; r <= tests.Rows(); ++r) {
        namespace col = test_parameter_column;
        if (tests.Text(r, col::Threshold1) == "N/A")
            control_.AddTestParameter(0, 0, 0, 0);
        else
            control_.AddTestParameter(
                floatOf(tests.At(r, col::TestVoltage)), floatOf(tests.At(r, col::Threshold2)),
                floatOf(tests.At(r, col::Threshold1)), floatOf(tests.At(r, col::TestCurrent)));
    }

    state_.project().DeviceList.ForEach([&](const CComponent& c) {
        control_.AddDevice(DeviceKindCode(c.ComponentName), c.Side1, c.Side2, c.Description);
    });

    if (const auto* messages = dynamic_cast<const CMessageTable*>(tableOf(main, table::Message))) {
        for (int label = 1; label <= 2; ++label) {
            if (plabelState_[label] != 2)
                continue;
            const Grid& stored = label == 1 ? messages->PLabelData() : messages->PLabel2Data();
            for (int r = 1; r <= stored.Rows(); ++r)
                control_.AddMessage(stored.Text(r, message_column::Number),
                                    stored.Text(r, message_column::Message));
        }
    }
    plabelState_[1] = 0;

    const Grid& commands = gridOf(main, table::SequenceList);
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

void CompileDriver::feedCodes(const CNetList& netlist, std::int32_t& result) {
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

std::int32_t CompileDriver::LoadNetlistTables(int position) {
    CNetList& netlist =
        **state_.project().NetlistCollection.Item(static_cast<std::size_t>(position));
    appendLine("Compiling: " + netlist.NetlistName);
    control_.BeginNetlist();
    std::int32_t result = 0;
    if (gridOf(netlist, table::Code).Rows() > 0) {
        feedCodes(netlist, result);
        return result;
    }

    CParamList& params = state_.Params();
    const FeedOutcome outcome =
        FeedOf(state_.project(), netlist,
               {params.Number(param::LampPin) != 0, params.Number(param::Switches) != 0});
    replay(outcome.feed);
    if (!outcome.error.empty())
        throw RunTimeError(outcome.error);

    result = netlist.netlistIndex != 0
                 ? control_.EndNetlist(vb::UCase(vb::Trim(netlist.NetlistName)))
                 : control_.Compile();

    if (control_.SeqBuild())
        rebuildWires(netlist);

    state_.SetDirty(true);
    state_.project().NeedsCompile = false;
    const LocalTime now = clock_.Now();
    state_.project().CompiledDate =
        OleDate(now.year, now.month, now.day, now.hour, now.minute, now.second);
    return result;
}

void CompileDriver::replay(const NetlistFeed& feed) {
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

void CompileDriver::rebuildWires(CNetList& netlist) {
    Table* table = tableOf(netlist, table::Wire);
    if (!table)
        return;
    const Grid copy = table->gridarray();
    table->ReDimGrid(0, copy.Columns());
    Grid& wires = table->gridarray();
    for (std::string wire = control_.NextBuildItem(1); !wire.empty();
         wire = control_.NextBuildItem(1)) {
        const int row = wires.Rows() + 1;
        table->ReDimGrid(row, copy.Columns());
        wires.Set(row, wire_column::Wire, Value(wire));
        for (int r = 1; r <= copy.Rows(); ++r)
            if (copy.Text(r, wire_column::Wire) == wire) {
                wires.Set(row, wire_column::BaseColor, copy.At(r, wire_column::BaseColor));
                wires.Set(row, wire_column::StripeColor, copy.At(r, wire_column::StripeColor));
                break;
            }
    }
}

} // namespace zolt::compile
