#include "analyzer/run.h"

#include "analyzer/comma_list.h"
#include "analyzer/component_kind.h"
#include "core/value.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <memory>
#include <optional>

namespace zolt::analyzer {
namespace {

using compile::ImageNetlist;
using compile::ProgramImage;

enum class Op {
    Scan,
    Assemble,
    Loop,
    SwitchScan,
    Lite,
    Quiet,
    Outside,
    EndsRun,
    Goto,
    Gosub,
    Return,
    Branch,
    SkipNext,
    RepeatPrevious,
    Dbnzs,
    Switch,
    GoCase,
    End,
    Repeat,
    Reset,
    ResetSoft,
    Holding,
    HoldingTimes,
    Count,
    Wait,
    Show,
    ShowAndWait,
    KeyValue,
    BranchKey,
    BranchStart,
    Delay,
    DelayTenths,
    WireNames,
    WireColors,
    MiswireOn,
    MiswireOff,
    BreakOn,
    BreakOff,
    StopKeyOn,
    StopKeyOff,
    Lower,
    Upper,
};

// What a branch or skip looks at: the last scan, the holding value, a key.
enum class When {
    Always,
    Error,
    NoError,
    Open,
    NoOpen,
    Short,
    NoShort,
    Soft,
    NoSoft,
    Holding,
    NoHolding,
    Never,
};

enum class Counter { R, S };
enum class Change { Hold, Zero, Up, Down, Greater, Less, Equal };

struct Command {
    std::string_view name;
    Op op;
    int arg = 0; // scan parts, When, Change
    Counter counter = Counter::R;
    std::string_view note = {};
};

constexpr std::string_view kPrinter = "serial port and printer";
constexpr std::string_view kPort = "control port";
constexpr std::string_view kAccessory = "accessory points";

constexpr int kAll = kContinuity | kShorts | kComponents;
constexpr int W(When w) {
    return static_cast<int>(w);
}
constexpr int C(Change c) {
    return static_cast<int>(c);
}

constexpr Command kCommands[] = {
    {"TEST", Op::Scan, kAll},
    {"CONTINUITY", Op::Scan, kContinuity},
    {"CONTINUITY-RND", Op::Scan, kContinuity},
    {"NET", Op::Scan, kContinuity},
    {"NPROBE", Op::Scan, kContinuity},
    {"AUTO", Op::Scan, kContinuity},
    {"SHORT", Op::Scan, kShorts},
    {"ASSEMBLE", Op::Assemble, kShorts},
    {"LOOP", Op::Loop, kContinuity},
    {"SW-CLOSED", Op::SwitchScan, kSwitchesClosed},
    {"SW-OPEN", Op::SwitchScan, kSwitchesOpen},
    {"SW-RND-CLOSED", Op::SwitchScan, kSwitchesClosed},
    {"WPB", Op::SwitchScan, kSwitchesClosed},
    {"UWPB", Op::SwitchScan, kSwitchesOpen},
    {"SWITCH-RANDOM", Op::SwitchScan, kSwitchesClosed},
    {"LITE", Op::Lite},
    {"LITEOFF", Op::Quiet},
    // Settings of the real analyzer's display, speed and logging: nothing to simulate.
    {"ADV", Op::Quiet},
    {"ADVOFF", Op::Quiet},
    {"BEEP", Op::Quiet},
    {"BEEPOFF", Op::Quiet},
    {"DRIVE", Op::Quiet},
    {"DRIVEOFF", Op::Quiet},
    {"+FAST", Op::Quiet},
    {"-FAST", Op::Quiet},
    {"SDWL", Op::Quiet},
    {"SDWLOFF", Op::Quiet},
    {"STOP", Op::Quiet},
    {"STOPOFF", Op::Quiet},
    {"LAMP", Op::Quiet},
    {"LAMPOFF", Op::Quiet},
    {"IDWELL=", Op::Quiet},
    {"SOUND", Op::Quiet},
    {"ALARM", Op::Quiet},
    {"-ALARM", Op::Quiet},
    {"BACKGND", Op::Quiet},
    {"SCANBRK", Op::Quiet},
    {"SCANBRKOFF", Op::Quiet},
    {"NOP", Op::Quiet},
    {"TIMESTART", Op::Quiet},
    {"TIMESTOP", Op::Quiet},
    {"LOG", Op::Quiet},
    {"LOGOFF", Op::Quiet},
    {"LOG-SEL", Op::Quiet},
    {"PRINT", Op::Quiet},
    {"PRINTOFF", Op::Quiet},
    {"REPORT", Op::Quiet},
    {"PBEGIN", Op::Quiet},
    {"PEND", Op::Quiet},
    {"GOTO", Op::Goto},
    {"BRA", Op::Goto},
    {"GOSUB", Op::Gosub},
    {"RETURN", Op::Return},
    {"BER", Op::Branch, W(When::Error)},
    {"BNER", Op::Branch, W(When::NoError)},
    {"BOP", Op::Branch, W(When::Open)},
    {"BNOP", Op::Branch, W(When::NoOpen)},
    {"BSH", Op::Branch, W(When::Short)},
    {"BNSH", Op::Branch, W(When::NoShort)},
    {"BSS", Op::Branch, W(When::Soft)},
    {"BNSS", Op::Branch, W(When::NoSoft)},
    {"BHR", Op::Branch, W(When::Holding)},
    {"BNHR", Op::Branch, W(When::NoHolding)},
    // No background scan runs in the simulation, so it never finds an error.
    {"BBGND", Op::Branch, W(When::Never)},
    {"BBL", Op::Branch, W(When::Never)},
    {"BBRK", Op::Branch, W(When::Never)},
    {"BNBGND", Op::Branch, W(When::Always)},
    {"BNBL", Op::Branch, W(When::Always)},
    {"OESN", Op::SkipNext, W(When::Error)},
    {"ONESN", Op::SkipNext, W(When::NoError)},
    {"ONSSN", Op::SkipNext, W(When::NoSoft)},
    {"OERP", Op::RepeatPrevious, W(When::Error)},
    {"OSSRP", Op::RepeatPrevious, W(When::Soft)},
    {"DBNZS", Op::Dbnzs},
    {"SWITCH", Op::Switch},
    {"GOCASE", Op::GoCase},
    {"CASE", Op::Quiet},
    {"END", Op::End},
    {"REPEAT", Op::Repeat},
    {"RESET", Op::Reset},
    {"RSS", Op::ResetSoft},
    {"HOLDING=", Op::Holding},
    {"HOLDING*=", Op::HoldingTimes},
    {"RCOUNT=", Op::Count, C(Change::Hold), Counter::R},
    {"RCOUNT=0", Op::Count, C(Change::Zero), Counter::R},
    {"RCOUNT++", Op::Count, C(Change::Up), Counter::R},
    {"RCOUNT--", Op::Count, C(Change::Down), Counter::R},
    {"RCOUNT>", Op::Count, C(Change::Greater), Counter::R},
    {"RCOUNT<", Op::Count, C(Change::Less), Counter::R},
    {"RCOUNT==", Op::Count, C(Change::Equal), Counter::R},
    {"SCOUNT=", Op::Count, C(Change::Hold), Counter::S},
    {"SCOUNT=0", Op::Count, C(Change::Zero), Counter::S},
    {"SCOUNT++", Op::Count, C(Change::Up), Counter::S},
    {"ISCOUNT", Op::Count, C(Change::Up), Counter::S},
    {"SCOUNT--", Op::Count, C(Change::Down), Counter::S},
    {"SCOUNT>", Op::Count, C(Change::Greater), Counter::S},
    {"SCOUNT<", Op::Count, C(Change::Less), Counter::S},
    {"SCOUNT==", Op::Count, C(Change::Equal), Counter::S},
    {"KWAIT", Op::Wait},
    {"PROBE", Op::Wait},
    {"MESSAGE", Op::Show},
    {"FLASH", Op::Show},
    {"LINE4", Op::Show},
    {"SCROLL", Op::Show},
    {"MENU", Op::Show},
    {"KMESSAGE", Op::ShowAndWait},
    {"KFLASH", Op::ShowAndWait},
    {"KSCROLL", Op::ShowAndWait},
    {"KVALUE", Op::KeyValue},
    {"BKEY", Op::BranchKey},
    {"BST", Op::BranchStart},
    {"DELAY", Op::Delay},
    {"DELAYT", Op::DelayTenths},
    {"WIRES", Op::WireNames},
    {"CIRCUITS", Op::WireNames},
    {"COLORS", Op::WireColors},
    {"MISWIREON", Op::MiswireOn},
    {"MISWIREOFF", Op::MiswireOff},
    {"EBRK", Op::BreakOn},
    {"EBRKOFF", Op::BreakOff},
    {"LSTOP", Op::StopKeyOn},
    {"LSTOPOFF", Op::StopKeyOff},
    {"SETLOWER", Op::Lower},
    {"SETUPPER", Op::Upper},
    {"RUN", Op::EndsRun},
    {"SELECT", Op::EndsRun},
    {"DOWNLOAD", Op::EndsRun},
    {"PMESSAGE", Op::Outside, 0, Counter::R, kPrinter},
    {"PAGE", Op::Outside, 0, Counter::R, kPrinter},
    {"PROGRAM", Op::Outside, 0, Counter::R, kPrinter},
    {"FORMSIZE", Op::Outside, 0, Counter::R, kPrinter},
    {"PAGESIZE", Op::Outside, 0, Counter::R, kPrinter},
    {"SKIP", Op::Outside, 0, Counter::R, kPrinter},
    {"SERIAL1", Op::Outside, 0, Counter::R, kPrinter},
    {"SERIAL2", Op::Outside, 0, Counter::R, kPrinter},
    {"STRING", Op::Outside, 0, Counter::R, kPrinter},
    {"STRCMP", Op::Outside, 0, Counter::R, kPrinter},
    {"CLEARVARS", Op::Outside, 0, Counter::R, kPrinter},
    {"TESTTIME", Op::Outside, 0, Counter::R, kPrinter},
    {"OPERATOR", Op::Outside, 0, Counter::R, kPrinter},
    {"SET", Op::Outside, 0, Counter::R, kPort},
    {"CLEAR", Op::Outside, 0, Counter::R, kPort},
    {"BSET", Op::Outside, 0, Counter::R, kPort},
    {"BCLR", Op::Outside, 0, Counter::R, kPort},
    {"PSET", Op::Outside, 0, Counter::R, kPort},
    {"SYNC", Op::Outside, 0, Counter::R, kPort},
    {"SYNCHI", Op::Outside, 0, Counter::R, kPort},
    {"SYNCLO", Op::Outside, 0, Counter::R, kPort},
    {"BIT1", Op::Outside, 0, Counter::R, kPort},
    {"BIT4", Op::Outside, 0, Counter::R, kPort},
    {"BIT8", Op::Outside, 0, Counter::R, kPort},
    {"XBSET", Op::Outside, 0, Counter::R, kAccessory},
    {"XBCLR", Op::Outside, 0, Counter::R, kAccessory},
    {"XBSET(H)", Op::Outside, 0, Counter::R, kAccessory},
    {"XBCLR(H)", Op::Outside, 0, Counter::R, kAccessory},
    {"XBSET(R)", Op::Outside, 0, Counter::R, kAccessory},
    {"XBCLR(R)", Op::Outside, 0, Counter::R, kAccessory},
    {"XBSET(S)", Op::Outside, 0, Counter::R, kAccessory},
    {"XBCLR(S)", Op::Outside, 0, Counter::R, kAccessory},
    {"XCLEAR", Op::Outside, 0, Counter::R, kAccessory},
};

const Command* Find(std::string_view name) {
    for (const auto& command : kCommands)
        if (command.name == name)
            return &command;
    return nullptr;
}

std::optional<long> Number(std::string_view text) {
    long value = 0;
    const auto [rest, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || ec != std::errc() || rest != text.data() + text.size())
        return std::nullopt;
    return value;
}

class Interpreter {
public:
    Interpreter(const ProgramImage& image, const Harness& harness, const PointNames& names,
                const RunOptions& options)
        : image_(image), harness_(harness), conductors_(harness), names_(names), options_(options) {
        result_.timesRun.assign(image.sequence.size(), 0);
    }

    RunResult Run() {
        std::size_t line = 1;
        while (!ended_) {
            if (line > image_.sequence.size()) {
                finish(line, RunEnd::LastLine, "ran past the last line");
                break;
            }
            if (result_.steps == options_.stepLimit) {
                finish(line, RunEnd::StepLimit,
                       "stopped after " + std::to_string(options_.stepLimit) +
                           " steps: the sequence loops without end");
                break;
            }
            ++result_.steps;
            ++result_.timesRun[line - 1];
            const auto& item = image_.sequence[line - 1];
            line = step(line, vb::UCase(item.command), item.parameter, true);
        }
        return std::move(result_);
    }

private:
    struct LastScan {
        int opens = 0, shorts = 0, soft = 0, components = 0;
        bool Any() const { return opens + shorts + soft + components > 0; }
    };

    // Runs one item; the line to go on with.
    std::size_t step(std::size_t line, const std::string& name, const std::string& parameter,
                     bool inSequence) {
        const Command* command = Find(name);
        if (!command)
            return macroOrUnknown(line, name, inSequence);
        const std::size_t next = line + 1;
        switch (command->op) {
        case Op::Scan:
            scan(line, parameter, command->arg);
            return next;
        case Op::Assemble:
            scan(line, parameter, command->arg);
            waitForStart(line);
            return next;
        case Op::Loop:
            scan(line, lastNetlist_, command->arg);
            return next;
        case Op::SwitchScan:
            switchScan(line, name, parameter, command->arg);
            return next;
        case Op::Lite:
            lite(line, parameter);
            return next;
        case Op::Quiet:
            return next;
        case Op::Outside:
            say(line, name + (parameter.empty() ? "" : " " + parameter) + ": " +
                          std::string(command->note) + ", outside the simulation");
            return next;
        case Op::EndsRun:
            finish(line, RunEnd::OtherProgram,
                   name + " hands over to another program, outside the simulation");
            return line;
        case Op::Goto:
            return flow(line, parameter, inSequence, true);
        case Op::Gosub:
            if (!inSequence)
                return flow(line, parameter, inSequence, true);
            returns_.push_back(next);
            return flow(line, parameter, inSequence, true);
        case Op::Return:
            if (returns_.empty()) {
                finish(line, RunEnd::ProgramError, "RETURN without GOSUB");
                return line;
            }
            {
                const std::size_t back = returns_.back();
                returns_.pop_back();
                return back;
            }
        case Op::Branch:
            return flow(line, parameter, inSequence, holds(static_cast<When>(command->arg)));
        case Op::SkipNext:
            return holds(static_cast<When>(command->arg)) ? line + 2 : next;
        case Op::RepeatPrevious:
            // The simulated harness does not change between readings: one repeat
            // shows the same errors again, then the run goes on.
            if (inSequence && line > 1 && repeated_ != line &&
                holds(static_cast<When>(command->arg))) {
                repeated_ = line;
                return line - 1;
            }
            repeated_ = 0;
            return next;
        case Op::Dbnzs:
            counters().scount -= 1;
            return flow(line, parameter, inSequence, counters().scount != 0);
        case Op::Switch:
            return caseLine(line, counters().holding).value_or(next);
        case Op::GoCase: {
            const auto target = caseLine(line, Number(parameter).value_or(-1));
            if (!target)
                finish(line, RunEnd::ProgramError, "no CASE " + parameter + " for GOCASE");
            return target.value_or(line);
        }
        case Op::End:
            finish(line, RunEnd::End, "END");
            return line;
        case Op::Repeat:
            finish(line, RunEnd::Repeat, "REPEAT: ready for the next harness");
            return line;
        case Op::Reset:
            counters().errors = counters().opens = counters().shorts = counters().components = 0;
            counters().switches = 0;
            counters().softShorts = 0;
            return next;
        case Op::ResetSoft:
            counters().softShorts = 0;
            return next;
        case Op::Holding:
            counters().holding = static_cast<int>(Number(parameter).value_or(0));
            return next;
        case Op::HoldingTimes:
            counters().holding *= static_cast<int>(Number(parameter).value_or(0));
            return next;
        case Op::Count:
            count(command->counter, static_cast<Change>(command->arg));
            return next;
        case Op::Wait:
            waitForStart(line);
            return next;
        case Op::Show:
            show(line, parameter);
            return next;
        case Op::ShowAndWait:
            show(line, parameter);
            waitForStart(line);
            return next;
        case Op::KeyValue: {
            const std::string key = nextKey().value_or("START");
            counters().holding = static_cast<int>(Number(key).value_or(0));
            return next;
        }
        case Op::BranchKey:
            return flow(line, parameter, inSequence, takeKeyIf("KEY"));
        case Op::BranchStart:
            return flow(line, parameter, inSequence, takeKeyIf("START"));
        case Op::Delay:
            result_.seconds += static_cast<double>(Number(parameter).value_or(0));
            return next;
        case Op::DelayTenths:
            result_.seconds += static_cast<double>(Number(parameter).value_or(0)) / 10.0;
            return next;
        case Op::WireNames:
            settings_.wireInfo = WireInfo::Names;
            return next;
        case Op::WireColors:
            settings_.wireInfo = WireInfo::Colors;
            return next;
        case Op::MiswireOn:
        case Op::MiswireOff:
            settings_.miswire = command->op == Op::MiswireOn;
            return next;
        case Op::BreakOn:
        case Op::BreakOff:
            breakOnError_ = command->op == Op::BreakOn;
            return next;
        case Op::StopKeyOn:
        case Op::StopKeyOff:
            stopKey_ = command->op == Op::StopKeyOn;
            return next;
        case Op::Lower:
            settings_.lower = static_cast<int>(Number(parameter).value_or(0));
            return next;
        case Op::Upper:
            settings_.upper = static_cast<int>(Number(parameter).value_or(kPoints - 1));
            return next;
        }
        return next;
    }

    std::size_t macroOrUnknown(std::size_t line, const std::string& name, bool inSequence) {
        bool found = false;
        for (const auto& body : image_.macros) {
            if (vb::UCase(body.macro) != name)
                continue;
            found = true;
            if (inSequence && !ended_)
                step(line, vb::UCase(body.command), body.parameter, false);
        }
        if (!found)
            say(line, name + ": not a command the simulation knows; passed over");
        return line + 1;
    }

    // A branch to `parameter` when `taken`; branches inside a macro body are not followed.
    std::size_t flow(std::size_t line, const std::string& parameter, bool inSequence, bool taken) {
        if (!inSequence) {
            say(line, "a branch inside a macro body is not followed");
            return line + 1;
        }
        if (!taken)
            return line + 1;
        const auto target = Number(parameter);
        if (!target || *target < 1 || static_cast<std::size_t>(*target) > image_.sequence.size()) {
            finish(line, RunEnd::ProgramError, "line " + parameter + " does not exist");
            return line;
        }
        return static_cast<std::size_t>(*target);
    }

    bool holds(When when) const {
        switch (when) {
        case When::Always:
            return true;
        case When::Never:
            return false;
        case When::Error:
            return last_.Any();
        case When::NoError:
            return !last_.Any();
        case When::Open:
            return last_.opens > 0;
        case When::NoOpen:
            return last_.opens == 0;
        case When::Short:
            return last_.shorts > 0;
        case When::NoShort:
            return last_.shorts == 0;
        case When::Soft:
            return last_.soft > 0;
        case When::NoSoft:
            return last_.soft == 0;
        case When::Holding:
            return result_.counters.holding != 0;
        case When::NoHolding:
            return result_.counters.holding == 0;
        }
        return false;
    }

    std::optional<std::size_t> caseLine(std::size_t line, long value) const {
        for (std::size_t l = 1; l <= image_.sequence.size(); ++l)
            if (vb::UCase(image_.sequence[l - 1].command) == "CASE" &&
                Number(image_.sequence[l - 1].parameter) == value && l != line)
                return l;
        return std::nullopt;
    }

    void count(Counter which, Change change) {
        int& value = which == Counter::R ? counters().rcount : counters().scount;
        int& holding = counters().holding;
        switch (change) {
        case Change::Hold:
            value = holding;
            break;
        case Change::Zero:
            value = 0;
            break;
        case Change::Up:
            ++value;
            break;
        case Change::Down:
            --value;
            break;
        case Change::Greater:
            holding = value > holding ? 1 : 0;
            break;
        case Change::Less:
            holding = value < holding ? 1 : 0;
            break;
        case Change::Equal:
            holding = value == holding ? 1 : 0;
            break;
        }
    }

    const NetlistIndex* netlist(std::size_t line, const std::string& name) {
        const std::string wanted = vb::UCase(name);
        if (const auto known = indexes_.find(wanted); known != indexes_.end())
            return known->second.get();
        for (const auto& n : image_.netlists) {
            if (n.name != wanted)
                continue;
            if (n.manual) {
                say(line, wanted + " holds codes only; its scan is not simulated");
                return nullptr;
            }
            return indexes_
                .emplace(wanted, std::make_unique<NetlistIndex>(n, image_.testParameters))
                .first->second.get();
        }
        finish(line, RunEnd::ProgramError, "netlist " + wanted + " is not in the program");
        return nullptr;
    }

    void scan(std::size_t line, const std::string& name, int parts) {
        lastNetlist_ = name;
        const NetlistIndex* index = netlist(line, name);
        last_ = {};
        if (!index)
            return;
        result_.scans.push_back({index->Netlist().name, parts, settings_});
        for (auto& error : Scan(*index, parts, harness_, conductors_, names_, settings_)) {
            switch (error.kind) {
            case ErrorKind::Open:
                ++last_.opens;
                ++counters().opens;
                break;
            case ErrorKind::Short:
                ++last_.shorts;
                ++counters().shorts;
                break;
            case ErrorKind::SoftShort:
                ++last_.soft;
                ++counters().softShorts;
                break;
            case ErrorKind::Component:
                ++last_.components;
                ++counters().components;
                break;
            case ErrorKind::Switch:
                ++last_.components;
                ++counters().switches;
                break;
            }
            ++counters().errors;
            say(line, error.text);
            result_.errors.push_back({line, error.kind, std::move(error.text)});
        }
        if (last_.Any() && breakOnError_)
            finish(line, RunEnd::BreakOnError, "EBRK: testing broken off on the error");
    }

    void switchScan(std::size_t line, const std::string& name, const std::string& netlistName,
                    int parts) {
        const NetlistIndex* index = netlist(line, netlistName);
        if (!index) {
            last_ = {};
            return;
        }
        const auto& switches = index->Netlist().switches;
        if (std::ranges::any_of(switches, [](const compile::ImageSwitch& s) {
                return s.testPoint < 0 || s.commonTestPoint < 0;
            }))
            say(line, name + " " + netlistName +
                          ": switches without test points in the image are not simulated");
        scan(line, netlistName, parts);
    }

    void lite(std::size_t line, const std::string& name) {
        const NetlistIndex* index = netlist(line, name);
        if (!index)
            return;
        std::string lamps;
        for (const auto& c : index->Netlist().connectors)
            if (c.lamp1 >= 0)
                lamps += (lamps.empty() ? "" : ", ") + c.name;
        say(line, "LAMPS LIT: " + (lamps.empty() ? std::string("none") : lamps));
    }

    void show(std::size_t line, const std::string& id) {
        const auto wanted = Number(id);
        for (const auto& message : image_.messages)
            if (message.id == id || (wanted && Number(message.id) == wanted)) {
                say(line, message.text);
                return;
            }
        say(line, "(message " + id + " is not in the program)");
    }

    std::optional<std::string> nextKey() {
        if (key_ >= options_.keys.size())
            return std::nullopt;
        return options_.keys[key_++];
    }

    bool takeKeyIf(std::string_view wanted) {
        if (key_ >= options_.keys.size() || options_.keys[key_] != wanted)
            return false;
        ++key_;
        return true;
    }

    // Waits for START; STOP ends the run where LSTOP allows it.
    void waitForStart(std::size_t line) {
        while (const auto key = nextKey()) {
            if (*key == "START")
                return;
            if (*key == "STOP" && stopKey_) {
                finish(line, RunEnd::StopKey, "STOP key");
                return;
            }
        }
    }

    void say(std::size_t line, std::string text) {
        result_.transcript.push_back({line, std::move(text)});
    }

    void finish(std::size_t line, RunEnd end, std::string text) {
        if (ended_)
            return;
        ended_ = true;
        result_.endLine = line;
        result_.end = end;
        result_.endText = std::move(text);
    }

    Counters& counters() { return result_.counters; }
    const Counters& counters() const { return result_.counters; }

    const ProgramImage& image_;
    const Harness& harness_;
    const HarnessConductors conductors_;
    const PointNames& names_;
    const RunOptions& options_;
    RunResult result_;
    ScanSettings settings_;
    LastScan last_;
    std::vector<std::size_t> returns_;
    std::map<std::string, std::unique_ptr<NetlistIndex>> indexes_;
    std::string lastNetlist_ = "MAIN";
    std::size_t key_ = 0;
    std::size_t repeated_ = 0;
    bool breakOnError_ = false;
    bool stopKey_ = false;
    bool ended_ = false;
};

} // namespace

KeysParse ParseKeys(std::string_view text) {
    KeysParse parse;
    for (const auto word : CommaList(text)) {
        const std::string key = vb::UCase(word);
        if (key != "START" && key != "STOP" && key != "KEY" && !Number(key)) {
            parse.error = "unknown key '" + key + "' (start, stop, key or a number)";
            return parse;
        }
        parse.keys.push_back(key);
    }
    return parse;
}

int ScanPartsOf(std::string_view command) {
    const Command* found = Find(vb::UCase(command));
    const bool scan = found && (found->op == Op::Scan || found->op == Op::Assemble ||
                                found->op == Op::SwitchScan);
    return scan ? found->arg : 0;
}

bool RunResult::Passed() const {
    const bool meant = end == RunEnd::End || end == RunEnd::Repeat || end == RunEnd::LastLine;
    return meant && counters.errors == 0;
}

RunResult Run(const ProgramImage& image, const Harness& harness, const PointNames& names,
              const RunOptions& options) {
    return Interpreter(image, harness, names, options).Run();
}

} // namespace zolt::analyzer
