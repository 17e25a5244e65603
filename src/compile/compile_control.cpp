#include "compile/compile_control.h"

#include "compile/label_file.h"
#include "compile/netlist_analysis.h"
#include "compile/sequence_analysis.h"
#include "core/value.h"
#include "file/file_bytes.h"
#include "tables/code_table.h"

#include <algorithm>
#include <filesystem>
#include <type_traits>

namespace zolt::compile {
namespace {

std::string num(double n) {
    return vb::NumberText(n);
}
std::string flag(bool b) {
    return b ? "True" : "False";
}

} // namespace

std::string TraceText(const std::string& text) {
    std::string out = "\"";
    for (char c : text)
        out += c == '"' ? std::string("\"\"") : std::string(1, c);
    return out + '"';
}

void NXComp::trace(const std::string& line) const {
    if (trace_)
        trace_(line);
}

template <typename Field, typename T>
void NXComp::set(const char* property, Field& field, const T& value) {
    if constexpr (std::is_same_v<T, bool>)
        trace(std::string(property) + " = " + flag(value));
    else if constexpr (std::is_arithmetic_v<T>)
        trace(std::string(property) + " = " + num(value));
    else
        trace(std::string(property) + " = " + TraceText(value));
    field = static_cast<Field>(value);
}

// A part-written image must not be taken for one.
bool NXComp::writeToDisk(const std::string& path, const std::string& bytes) {
    if (file::WriteFileBytes(path, bytes))
        return true;
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    return false;
}

void NXComp::SetProgramName(const std::string& name) {
    set("ProgramName", image_.header.programName, name);
}
void NXComp::SetProgramFolder(const std::string& folder) {
    set("ProgramFolder", folder_, folder);
}
void NXComp::SetProgramId(const std::string& id) {
    set("ProgramId", image_.header.programId, id);
}
void NXComp::SetOptionFlag2(bool on) {
    set("OptionFlag2", image_.header.optionFlag2, on);
}
void NXComp::SetWarningMask(std::int32_t mask) {
    set("WarningMask", image_.header.warningMask, mask);
}
void NXComp::SetLogMask(std::int32_t mask) {
    set("LogMask", image_.header.logMask, mask);
}
void NXComp::SetDwellTime(double seconds) {
    set("DwellTime", image_.header.dwellTime, seconds);
}
void NXComp::SetSwitchType(std::int32_t type) {
    set("SwitchType", image_.header.switchType, type);
}
void NXComp::SetFixturePoints(std::int16_t points) {
    set("FixturePoints", image_.header.fixturePoints, points);
}
void NXComp::SetOptionFlag18(bool on) {
    set("OptionFlag18", image_.header.optionFlag18, on);
}
void NXComp::SetOptionValue5(std::int16_t value) {
    set("OptionValue5", image_.header.optionValue5, value);
}
void NXComp::SetSeqBuild(bool on) {
    set("SeqBuild", image_.header.seqBuild, on);
}

std::int32_t NXComp::Reset() {
    trace("Reset()");
    const ImageHeader header = image_.header;
    image_ = ProgramImage{};
    image_.header = header;
    open_ = false;
    feed_ = NetlistFeed{};
    closedNetlists_.clear();
    buildQueue_.clear();
    diagnostics_.clear();
    dgnLines_.clear();
    warnings_ = errors_ = listed_ = 0;
    return 0;
}

std::int32_t NXComp::AddMessage(const std::string& id, const std::string& text) {
    trace("AddMessage(" + TraceText(id) + ", " + TraceText(text) + ")");
    // The unused rows of a stored label are no message.
    if (!id.empty() || !text.empty())
        image_.messages.push_back({id, text});
    return 0;
}

std::int32_t NXComp::AddSequenceLine(const std::string& command, const std::string& parameter) {
    trace("AddSequenceLine(" + TraceText(command) + ", " + TraceText(parameter) + ")");
    image_.sequence.push_back({command, parameter});
    return 0;
}

std::int32_t NXComp::AddMacroLine(const std::string& macro, const std::string& command,
                                  const std::string& parameter) {
    trace("AddMacroLine(" + TraceText(macro) + ", " + TraceText(command) + ", " +
          TraceText(parameter) + ")");
    image_.macros.push_back({macro, command, parameter});
    return 0;
}

std::int32_t NXComp::AddTestParameter(float voltage, float secondValue, float threshold,
                                      float current) {
    trace("AddTestParameter(" + num(voltage) + ", " + num(secondValue) + ", " + num(threshold) +
          ", " + num(current) + ")");
    image_.testParameters.push_back({voltage, secondValue, threshold, current});
    return 0;
}

std::int32_t NXComp::AddDevice(const std::string& kind, const std::string& side1,
                               const std::string& side2, const std::string& description) {
    trace("AddDevice(" + TraceText(kind) + ", " + TraceText(side1) + ", " + TraceText(side2) +
          ", " + TraceText(description) + ")");
    image_.devices.push_back({kind, side1, side2, description});
    return 0;
}

std::int32_t NXComp::AddCommandDef(const std::string& name, std::int32_t type, std::int32_t low,
                                   std::int32_t high, const std::string& description) {
    trace("AddCommandDef(" + TraceText(name) + ", " + num(type) + ", " + num(low) + ", " +
          num(high) + ", " + TraceText(description) + ")");
    image_.commands.push_back({name, type, low, high, description});
    return 0;
}

std::int32_t NXComp::LoadLabelFile(const std::string& path, std::int32_t label) {
    trace("LoadLabelFile(" + TraceText(path) + ", " + num(label) + ")");
    const char* table = "Label";
    const auto fields = ReadLabelFields(path);
    if (!fields) {
        report({Code::LabelFileUnreadable, "MAIN", table, 0,
                "label file '" + path + "' cannot be read"});
        return 1;
    }
    if (fields->size() > static_cast<std::size_t>(kMaxLabelFields))
        report({Code::LabelFileTooLong, "MAIN", table, 0,
                "label file '" + path + "' has " + std::to_string(fields->size()) +
                    " fields, more than the " + std::to_string(kMaxLabelFields) +
                    " a label holds: shorten it to compile"});
    // Every PLABEL line of a sequence names the same file; its fields count once.
    const auto kind = static_cast<std::int16_t>(label == 2 ? 2 : 1);
    std::erase_if(image_.labels, [&](const ImageLabelField& l) { return l.label == kind; });
    const int first = label == 2 ? 100 : 80;
    for (std::size_t i = 0; i < fields->size() && i < static_cast<std::size_t>(kMaxLabelFields);
         ++i) {
        const auto id = static_cast<std::int16_t>(first + static_cast<int>(i));
        image_.labels.push_back({kind, id, (*fields)[i]});
        if (LabelField)
            LabelField(id, (*fields)[i]);
    }
    return 0;
}

std::int32_t NXComp::BeginNetlist() {
    trace("BeginNetlist()");
    open_ = true;
    feed_ = NetlistFeed{};
    return 0;
}

std::int32_t NXComp::EndNetlist(const std::string& name) {
    trace("EndNetlist(" + TraceText(name) + ")");
    if (!open_)
        return 1;
    closeNetlist(name);
    return 0;
}

void NXComp::closeNetlist(const std::string& name) {
    open_ = false;
    feed_.name = name;
    NetlistContext context;
    context.fixturePoints = image_.header.fixturePoints;
    context.testParameterCount = static_cast<int>(image_.testParameters.size());
    for (const auto& d : image_.devices)
        context.deviceKinds.insert(d.kind);
    const auto& codes = CCodeTable::Codes();
    context.codeNames.insert(codes.begin(), codes.end());
    context.ownFixture = name == "MAIN";
    context.switchType = image_.header.switchType;
    NetlistAnalysis analysis = AnalyseNetlist(feed_, context);
    if (std::find(closedNetlists_.begin(), closedNetlists_.end(), name) != closedNetlists_.end())
        report({Code::NetlistNameRepeated, name, feed_.codes.empty() ? "Netlist" : "Code", 0,
                "netlist '" + name +
                    "' is compiled twice: no sequence line could tell which is meant (the rows of "
                    "a block of codes must follow one another)"});
    for (const auto& d : analysis.diagnostics)
        report(d);
    const ImageNetlist& n = analysis.netlist;
    std::size_t points = 0;
    for (const auto& net : n.nets)
        points += net.size();
    log(log_bit::NetlistSummary, name + ": " + std::to_string(n.nets.size()) + " nets, " +
                                     std::to_string(points) + " test points, " +
                                     std::to_string(n.components.size()) + " components");
    for (std::size_t i = 0; i < n.nets.size(); ++i) {
        std::string line = name + " net " + std::to_string(i) + ":";
        for (std::uint16_t tp : n.nets[i])
            line += ' ' + TestPointText(tp / 128, tp % 128);
        log(log_bit::NetListing, line);
    }
    buildQueue_.assign(analysis.buildOrder.begin(), analysis.buildOrder.end());
    if (!buildQueue_.empty()) {
        std::string line = name + " build order:";
        for (const auto& wire : analysis.buildOrder)
            line += ' ' + wire;
        log(log_bit::BuildOrder, line);
    }
    closedNetlists_.push_back(name);
    image_.netlists.push_back(std::move(analysis.netlist));
}

std::int32_t NXComp::Compile() {
    trace("Compile()");
    if (!open_)
        return 1;
    closeNetlist("MAIN");
    SequenceContext context{&image_.commands, &image_.macros, {}, {}};
    context.netlists.insert(closedNetlists_.begin(), closedNetlists_.end());
    for (const auto& m : image_.messages)
        if (vb::IsNumeric(std::string_view(m.id)))
            context.messageIds.insert(static_cast<long>(vb::Val(m.id)));
    for (const auto& l : image_.labels)
        context.messageIds.insert(l.id);
    for (const auto& d : AnalyseSequence(image_.sequence, context))
        report(d);
    return writeFiles() ? 0 : 1;
}

bool NXComp::writeFiles() {
    const std::string base = (std::filesystem::path(folder_) / image_.header.programName).string();
    const std::string binPath = base + ".bin";
    bool written = true;
    if (errors_ == 0) {
        std::vector<std::uint8_t> bytes;
        try {
            bytes = WriteImage(image_);
        } catch (const std::exception& e) {
            report({Code::ImageNotWritten, "MAIN", "Image", 0, e.what()});
        }
        if (errors_ == 0 && writeFile_(binPath, std::string(bytes.begin(), bytes.end()))) {
            log(log_bit::ImageSummary, "Image: " + std::to_string(bytes.size()) +
                                           " bytes, CRC-32 " + PayloadCrcText(bytes));
        } else {
            if (errors_ == 0)
                report({Code::ImageNotWritten, "MAIN", "Image", 0,
                        "'" + binPath + "' cannot be written"});
            written = false;
        }
    }
    std::string dgn;
    for (const auto& line : dgnLines_)
        dgn += line + "\r\n";
    return writeFile_(base + ".dgn", dgn) && written;
}

void NXComp::report(const Diagnostic& d) {
    diagnostics_.push_back(d);
    const std::string line = FormatDiagnostic(d);
    dgnLines_.push_back(line);
    const int bit = MaskBitOf(d.code);
    if (bit >= 0 && (image_.header.warningMask >> bit & 1) == 0)
        return;
    (SeverityOf(d.code) == Severity::Error ? errors_ : warnings_)++;
    if (image_.header.optionValue5 > 0 && listed_ >= image_.header.optionValue5)
        return;
    ++listed_;
    if (StatusLine)
        StatusLine(static_cast<std::int32_t>(d.code), d.row, line);
}

void NXComp::log(int bit, const std::string& line) {
    if ((image_.header.logMask >> bit & 1) == 0)
        return;
    dgnLines_.push_back(line);
    if (StatusLine)
        StatusLine(0, 0, line);
}

std::int32_t NXComp::AddCode(const std::string& command, const std::string& parameter) {
    trace("AddCode(" + TraceText(command) + ", " + TraceText(parameter) + ")");
    feed_.codes.push_back({command, parameter});
    return 0;
}

std::int32_t NXComp::AddFixturePoint(std::int32_t board, std::int32_t point,
                                     const std::string& connector, const std::string& pin) {
    trace("AddFixturePoint(" + num(board) + ", " + num(point) + ", " + TraceText(connector) + ", " +
          TraceText(pin) + ")");
    feed_.fixture.push_back({board, point, connector, pin});
    return 0;
}

std::int32_t NXComp::AddConnector(const std::string& name, std::int32_t pins, std::int32_t switches,
                                  std::int32_t lamp1, std::int32_t lamp2, const std::string& grid) {
    trace("AddConnector(" + TraceText(name) + ", " + num(pins) + ", " + num(switches) + ", " +
          num(lamp1) + ", " + num(lamp2) + ", " + TraceText(grid) + ")");
    feed_.connectors.push_back({name, pins, switches, lamp1, lamp2, grid});
    return 0;
}

std::int32_t NXComp::AddSwitch(const std::string& connector, const std::string& pin,
                               const std::string& commons, std::int16_t ordinal) {
    trace("AddSwitch(" + TraceText(connector) + ", " + TraceText(pin) + ", " + TraceText(commons) +
          ", " + num(ordinal) + ")");
    feed_.switches.push_back({connector, pin, commons, ordinal});
    return 0;
}

std::int32_t NXComp::AddGroup(const std::string& group, const std::string& connector,
                              const std::string& pin, const std::string& base,
                              const std::string& stripe) {
    trace("AddGroup(" + TraceText(group) + ", " + TraceText(connector) + ", " + TraceText(pin) +
          ", " + TraceText(base) + ", " + TraceText(stripe) + ")");
    feed_.groups.push_back({group, connector, pin, base, stripe});
    return 0;
}

std::int32_t NXComp::AddWire(const std::string& wire, const std::string& base,
                             const std::string& stripe, std::int32_t flags) {
    trace("AddWire(" + TraceText(wire) + ", " + TraceText(base) + ", " + TraceText(stripe) + ", " +
          num(flags) + ")");
    feed_.wires.push_back({wire, base, stripe});
    return 0;
}

std::int32_t NXComp::AddPin(const std::string& connector, const std::string& pin,
                            const std::string& wire) {
    trace("AddPin(" + TraceText(connector) + ", " + TraceText(pin) + ", " + TraceText(wire) + ")");
    feed_.pins.push_back({connector, pin, wire});
    return 0;
}

std::int32_t NXComp::AddSplice(std::int32_t number, const std::string& wire) {
    trace("AddSplice(" + num(number) + ", " + TraceText(wire) + ")");
    feed_.splices.push_back({number, wire});
    return 0;
}

std::int32_t NXComp::AddComponent(const std::string& kind, std::int32_t number,
                                  const std::string& wire1, const std::string& wire2,
                                  std::int32_t parameter) {
    trace("AddComponent(" + TraceText(kind) + ", " + num(number) + ", " + TraceText(wire1) + ", " +
          TraceText(wire2) + ", " + num(parameter) + ")");
    feed_.components.push_back({kind, number, wire1, wire2, parameter});
    return 0;
}

std::int32_t NXComp::AddReversible(std::int32_t number, const std::string& connector1,
                                   const std::string& pin1, const std::string& connector2,
                                   const std::string& pin2) {
    trace("AddReversible(" + num(number) + ", " + TraceText(connector1) + ", " + TraceText(pin1) +
          ", " + TraceText(connector2) + ", " + TraceText(pin2) + ")");
    feed_.reversibles.push_back({number, connector1, pin1, connector2, pin2});
    return 0;
}

std::string NXComp::NextBuildItem(std::int32_t kind) {
    trace("NextBuildItem(" + num(kind) + ")");
    if (kind != 1 || buildQueue_.empty())
        return {};
    std::string wire = std::move(buildQueue_.front());
    buildQueue_.pop_front();
    return wire;
}

} // namespace zolt::compile
