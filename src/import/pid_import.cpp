#include "import/pid_import.h"

#include "core/cp1252.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/file_bytes.h"
#include "file/table_links.h"
#include "import/pid_fields.h"
#include "import/pid_lines.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"

#include <map>
#include <stdexcept>

namespace zolt::import {
namespace {

constexpr const char* kAbort = "Abort Operation";

// A run-time fault of the import; the place is where the reader stood.
struct PidFailure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

enum class Section {
    Netlist,
    Header,
    Properties,
    Color,
    Wire,
    Pin,
    Splice,
    Device,
    Reverse,
    Group,
    Block,
    Fixture,
    Sequence,
    Message,
    TestParameter,
    Switch,
    Net,
    End
};

struct SectionName {
    const char* header;
    Section section;
    const char* place;
};

constexpr SectionName kSections[] = {
    {"[netlist]", Section::Netlist, "Netlist"},
    {"[netlists]", Section::Netlist, "Netlist"},
    {"[header]", Section::Header, "Header"},
    {"[headers]", Section::Header, "Header"},
    {"[properties]", Section::Properties, "Properties"},
    {"[property]", Section::Properties, "Properties"},
    {"[color]", Section::Color, "Color"},
    {"[wirecolor]", Section::Color, "Color"},
    {"[wirecolors]", Section::Color, "Color"},
    {"[circuit]", Section::Wire, "Wire"},
    {"[wire]", Section::Wire, "Wire"},
    {"[wires]", Section::Wire, "Wire"},
    {"[endpoint]", Section::Pin, "Pin"},
    {"[pin]", Section::Pin, "Pin"},
    {"[pins]", Section::Pin, "Pin"},
    {"[splice]", Section::Splice, "Splice"},
    {"[splices]", Section::Splice, "Splice"},
    {"[device]", Section::Device, "Component"},
    {"[component]", Section::Device, "Component"},
    {"[components]", Section::Device, "Component"},
    {"[reverse]", Section::Reverse, "Reversible"},
    {"[reversible]", Section::Reverse, "Reversible"},
    {"[reversibles]", Section::Reverse, "Reversible"},
    {"[group]", Section::Group, "Group"},
    {"[groups]", Section::Group, "Group"},
    {"[block]", Section::Block, "Connector"},
    {"[connector]", Section::Block, "Connector"},
    {"[connectors]", Section::Block, "Connector"},
    {"[fixture]", Section::Fixture, "Fixture"},
    {"[fixtures]", Section::Fixture, "Fixture"},
    {"[sequence]", Section::Sequence, "Sequence"},
    {"[sequences]", Section::Sequence, "Sequence"},
    {"[message]", Section::Message, "Message"},
    {"[messages]", Section::Message, "Message"},
    {"[testparameter]", Section::TestParameter, "Test Parameter"},
    {"[testparameters]", Section::TestParameter, "Test Parameter"},
    {"[switch]", Section::Switch, "Switch"},
    {"[switches]", Section::Switch, "Switch"},
    {"[net]", Section::Net, "Net"},
    {"[nets]", Section::Net, "Net"},
    {"[end]", Section::End, "End"},
};

const SectionName* sectionOf(std::string_view header) {
    const std::string lower = vb::LCase(header);
    for (const SectionName& name : kSections)
        if (lower == name.header)
            return &name;
    return nullptr;
}

std::string text(std::string_view field) {
    return std::string(field);
}

// "---" stands for an empty field.
std::string orEmpty(std::string_view field) {
    return field == "---" ? std::string() : std::string(field);
}

class PidImporter {
public:
    PidImporter(ProgramState& state, std::string_view text) : state_(state), lines_(text) {}

    // Yes, or Cancel when the user stopped; No without a section header;
    // throws PidFailure.
    Answer Run() {
        place_ = "Opening";
        current_ = state_.project().MainNetlist;
        if (!lines_.SkipToHeader()) {
            noHeader_ = true;
            return Answer::No;
        }
        while (!lines_.AtEnd()) {
            const std::string header(lines_.Header());
            const SectionName* name = sectionOf(header);
            if (!name) {
                if (!askSkip(header))
                    return Answer::Cancel;
                lines_.SkipToHeader();
                continue;
            }
            place_ = name->place;
            if (name->section == Section::End)
                break;
            readSection(name->section);
        }
        place_ = "Closing";
        if (auto* sequence = mainTable<CSequenceTable>(table::Sequence))
            sequence->UpdateMessages();
        return Answer::Yes;
    }

    bool NoHeader() const { return noHeader_; }
    std::string Place() const {
        if (lines_.LineNumber() == 0 || place_ == "Opening" || place_ == "Closing")
            return place_;
        return place_ + " section, line " + std::to_string(lines_.LineNumber());
    }

private:
    bool askSkip(const std::string& header) {
        return state_.ui().Show(MessageBox{"Warning",
                                           header + " section header not recognized, continue?",
                                           Buttons::OkCancel, Icon::Warning, 1}) == Answer::Ok;
    }

    template <typename T = Table> T* mainTable(TableId number) const {
        return dynamic_cast<T*>(state_.project().MainNetlist->GetTable(number));
    }

    RowAppender mainRows(TableId number) {
        return RowAppender(*state_.project().MainNetlist->GetTable(number), 0);
    }
    RowAppender currentRows(TableId number) {
        return RowAppender(*current_->GetTable(number), FileIndexOf(state_, *current_));
    }

    std::string_view field(std::size_t i) const {
        const auto& fields = lines_.Fields();
        if (i >= fields.size())
            throw PidFailure("missing field");
        return fields[i];
    }
    std::string_view optional(std::size_t i, std::string_view absent = {}) const {
        const auto& fields = lines_.Fields();
        return i < fields.size() ? fields[i] : absent;
    }
    static std::int16_t integer(std::string_view field) {
        const auto n = vb::CInt(Value(field));
        if (!n)
            throw PidFailure("not a number");
        return *n;
    }
    static double real(std::string_view field) {
        const auto n = vb::CDbl(Value(field));
        if (!n)
            throw PidFailure("not a number");
        return *n;
    }

    void readSection(Section section) {
        switch (section) {
        case Section::Netlist:
            return readNetlists();
        case Section::Header:
            return readHeaders();
        case Section::Properties:
            return readProperties();
        case Section::Color:
            return readColors();
        case Section::Wire:
            return readWires();
        case Section::Pin:
            return readPins();
        case Section::Splice:
            return readSplices();
        case Section::Device:
            return readDevices();
        case Section::Reverse:
            return readReversibles();
        case Section::Group:
            return readGroups();
        case Section::Block:
            return readBlocks();
        case Section::Fixture:
            return readFixture();
        case Section::Sequence:
            return readSequence();
        case Section::Message:
            return readMessages();
        case Section::TestParameter:
            return readTestParameters();
        case Section::Switch:
            return readSwitches();
        case Section::Net:
            return readNets();
        case Section::End:
            return;
        }
    }

    void readNetlists() {
        while (lines_.NextPidLine()) {
            // The manual netlist is the one name with a blank in it.
            const std::string whole = vb::UCase(lines_.Line());
            const std::string name =
                whole == kManualNetlists ? whole : vb::UCase(field(pid_field::netlist::Name));
            if (name != kMain && !state_.project().FindNetlist(name))
                AddNetlist(state_, name);
            if (name == kManualNetlists) {
                state_.project().FindNetlist(name)->NetlistType = 1;
                SetParameterOn(state_, param::ManualNet);
            }
            current_ = state_.project().FindNetlist(name);
        }
    }

    void readHeaders() {
        RowAppender rows = mainRows(table::Message);
        rows.Reserve(lines_.DataLinesAhead());
        std::int16_t id = 100;
        while (lines_.NextPidLine())
            rows.Append(MessageRecord{Value(++id), Value(text(lines_.Line()))});
    }

    void readProperties() {
        CParamList& params = state_.params();
        namespace f = pid_field::property;
        while (lines_.NextPidLine()) {
            const std::string name(field(f::Name));
            if (!params.IsParam(name, false))
                continue;
            CParameter& parameter = params.GetParam(name);
            const std::string value(optional(f::Value));
            switch (parameter.Type) {
            case ParamType::Boolean:
            case ParamType::Real:
                parameter.SetValue(parameter.Type, Value(value));
                break;
            case ParamType::Integer:
                // Taken only when the line's first field reads as a number, which a
                // name never does: an integer property keeps the program's value
                // rather than a rounded one (DwellTime 0.5 would become 0).
                if (vb::IsNumeric(field(f::Name)))
                    parameter.SetValue(parameter.Type, Value(value));
                break;
            default:
                parameter.SetValue(parameter.Type,
                                   Value(vb::Trim(lines_.Line().substr(field(f::Name).size()))));
            }
        }
    }

    void readColors() {
        RowAppender rows = mainRows(table::Color);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::color;
        while (lines_.NextPidLine())
            rows.Append(ColorRecord{Value(integer(field(f::Number))), Value(text(field(f::Name))),
                                    Value("")});
    }

    void readWires() {
        RowAppender rows = currentRows(table::Wire);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::wire;
        while (lines_.NextPidLine())
            rows.Append(WireRecord{Value(text(field(f::Wire))),
                                   Value(orEmpty(optional(f::BaseColor))),
                                   Value(orEmpty(optional(f::StripeColor)))});
    }

    void readPins() {
        RowAppender rows = currentRows(table::Pin);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::pin;
        while (lines_.NextPidLine()) {
            const std::string_view wire = field(f::Wire);
            rows.Append(PinRecord{Value(text(field(f::Connector))), Value(text(field(f::Pin))),
                                  Value(wire == "*UNC*" ? std::string("(none)") : text(wire))});
        }
    }

    void readSplices() {
        RowAppender rows = currentRows(table::Splice);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::splice;
        while (lines_.NextPidLine())
            rows.Append(
                SpliceRecord{Value(integer(field(f::Number))), Value(text(field(f::Wire)))});
    }

    void readDevices() {
        RowAppender rows = mainRows(table::Component);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::device;
        while (lines_.NextPidLine()) {
            std::string kind(field(f::Kind));
            if (kind == "DIOM")
                kind = "DIODE";
            else if (kind == "RESM")
                kind = "RESISTOR";
            rows.Append(ComponentRecord{Value(kind), Value(integer(field(f::Number))),
                                        Value(text(field(f::Wire1))), Value(text(field(f::Wire2))),
                                        Value(integer(field(f::Value))), Value(), Value(),
                                        Value()});
        }
    }

    void readReversibles() {
        RowAppender rows = currentRows(table::Reversible);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::reversible;
        while (lines_.NextPidLine())
            rows.Append(
                ReversibleRecord{Value(integer(field(f::Number))),
                                 Value(text(field(f::Connector1))), Value(text(field(f::Pin1))),
                                 Value(text(field(f::Connector2))), Value(text(field(f::Pin2)))});
    }

    void readGroups() {
        RowAppender rows = currentRows(table::Groups);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::group;
        while (lines_.NextPidLine())
            rows.Append(GroupRecord{Value(text(field(f::Group))), Value(text(field(f::Connector))),
                                    Value(text(field(f::Pin))),
                                    Value(orEmpty(optional(f::BaseColor))),
                                    Value(orEmpty(optional(f::StripeColor)))});
    }

    void readBlocks() {
        RowAppender rows = currentRows(table::Connector);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::block;
        while (lines_.NextPidLine()) {
            const int switches = integer(optional(f::Switches1, "0")) +
                                 integer(optional(f::Switches2, "0")) +
                                 integer(optional(f::Switches3, "0"));
            const std::string_view grid = optional(f::Grid, "-");
            const std::string_view lamp = optional(f::Lamp, "-1");
            std::int16_t board = 0;
            std::int16_t point = 0;
            if (lamp != "-1") {
                const std::size_t dash = lamp.find('-');
                if (dash == std::string_view::npos)
                    throw PidFailure("lamp without a dash");
                board = integer(lamp.substr(0, dash));
                point = integer(lamp.substr(dash + 1));
                SetParameterOn(state_, param::LampPin);
            }
            if (grid != "-")
                SetParameterOn(state_, param::GridLocation);
            if (switches > 0)
                SetParameterOn(state_, param::Switches);
            // An absent grid location is stored as the editor stores an empty one.
            rows.Append(ConnectorRecord{Value(text(field(f::Name))), Value(integer(field(f::Pins))),
                                        Value(static_cast<std::int16_t>(switches)), Value(board),
                                        Value(point),
                                        Value(grid == "-" ? std::string("0") : text(grid))});
        }
    }

    void readFixture() {
        RowAppender rows = currentRows(table::Fixture);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::fixture;
        while (lines_.NextPidLine()) {
            if (vb::UCase(field(f::TestPoint)) == kMain) {
                file::SetFixtureUsesMain(rows.table());
                continue;
            }
            rows.Append(FixtureRecord{Value(text(field(f::TestPoint))),
                                      Value(text(field(f::Connector))),
                                      Value(text(field(f::Pin)))});
        }
    }

    // A line's number is its row: lines numbered 10, 20, 30 become 1, 2, 3, and a
    // branch to one of them follows it to its row.
    void readSequence() {
        struct Line {
            std::string command, parameter;
        };
        RowAppender rows = mainRows(table::Sequence);
        std::vector<Line> lines;
        std::map<int, int> rowOfNumber;
        namespace f = pid_field::sequence;
        while (lines_.NextPidLine()) {
            const int number = integer(field(f::Line));
            const int row = rows.Count() + static_cast<int>(lines.size()) + 1;
            rowOfNumber.try_emplace(number, row);
            lines.push_back({text(field(f::Command)), text(optional(f::Parameter))});
        }
        const auto* dictionary = mainTable<CSystemSequenceTable>(table::SequenceList);
        rows.Reserve(static_cast<int>(lines.size()));
        for (Line& line : lines) {
            if (dictionary &&
                dictionary->GetCommandType(line.command) == command_type::LineNumber) {
                const auto target = vb::CInt(Value(line.parameter));
                if (const auto moved = target ? rowOfNumber.find(*target) : rowOfNumber.end();
                    moved != rowOfNumber.end())
                    line.parameter = std::to_string(moved->second);
            }
            rows.Append(SequenceRecord{Value(static_cast<std::int16_t>(rows.Count() + 1)),
                                       Value(line.command), Value(line.parameter), Value(""),
                                       Value("0")});
        }
    }

    void readMessages() {
        RowAppender rows = mainRows(table::Message);
        rows.Reserve(lines_.DataLinesAhead());
        while (lines_.NextPidLine()) {
            const std::string_view line = lines_.Line();
            const std::size_t blank = line.find_first_of(" \t");
            const std::string rest =
                blank == std::string_view::npos ? std::string() : text(line.substr(blank + 1));
            rows.Append(MessageRecord{Value(integer(field(pid_field::message::Id))), Value(rest)});
        }
    }

    void readTestParameters() {
        Table& parameters = *state_.project().MainNetlist->GetTable(table::TestParameter);
        namespace f = pid_field::test_parameter;
        while (lines_.NextPidLine()) {
            const std::int16_t row = integer(field(f::Row));
            const double voltage = real(field(f::TestVoltage));
            const double current = real(field(f::TestCurrent));
            const double threshold1 = real(field(f::Threshold1));
            const double threshold2 = real(field(f::Threshold2));
            if (row < 1 || row > 15)
                continue;
            if (row > parameters.gridarray().Rows())
                parameters.ReDimGrid(row, parameters.gridColumns());
            parameters.AddRecord_v1(row, {Value(row), Value(voltage), Value(current),
                                          Value(threshold1), Value(threshold2),
                                          Value(std::int32_t{row}), Value(std::int32_t{0})});
        }
    }

    void readSwitches() {
        RowAppender rows = mainRows(table::Switches);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::switches;
        while (lines_.NextPidLine()) {
            rows.Append(SwitchRecord{Value(text(field(f::Connector))),
                                     Value(text(field(f::SwitchName))),
                                     Value(text(field(f::SwitchCommon)))});
            SetParameterOn(state_, param::Switches);
        }
    }

    void readNets() {
        RowAppender rows = currentRows(table::Code);
        rows.Reserve(lines_.DataLinesAhead());
        namespace f = pid_field::net;
        while (lines_.NextPidLine()) {
            const std::string_view name = field(f::Name);
            if (name == "-")
                throw PidFailure("net without a name");
            std::string joined;
            for (std::size_t i = f::FirstParameter;
                 i <= f::LastParameter && i < lines_.Fields().size(); ++i) {
                const std::string_view part = lines_.Fields()[i];
                if (part.front() == '\'')
                    break;
                joined += (joined.empty() ? "" : " ") + text(part);
            }
            const std::string_view line = lines_.Line();
            const std::size_t apostrophe = line.find('\'');
            const std::string comment = apostrophe == std::string_view::npos
                                            ? std::string()
                                            : text(line.substr(apostrophe + 1));
            rows.Append(CodeRecord{Value(text(name)), Value(text(optional(f::Command))),
                                   Value(joined), Value(comment)});
        }
    }

    ProgramState& state_;
    PidLines lines_;
    CNetList* current_ = nullptr;
    std::string place_;
    bool noHeader_ = false;
};

Answer fail(ProgramState& state, const ImportContext& context, const std::string& message) {
    StartEmptyProgram(state, context);
    LoadMissingDataLists(state, context);
    state.ui().SetBusy(false);
    if (!message.empty())
        state.ui().Show(MessageBox{kAbort, message, Buttons::Ok, Icon::Stop, 1});
    return Answer::No;
}

} // namespace

Answer ImportPIDText(ProgramState& state, std::string_view bytes, const ImportContext& context) {
    StartEmptyProgram(state, context);
    state.ui().SetBusy(true);
    // Editors that save as UTF-8 may put a byte-order mark before the first header.
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (bytes.starts_with(kByteOrderMark))
        bytes.remove_prefix(kByteOrderMark.size());
    const std::string utf8 = cp1252::toUtf8(BeforeEndOfFileMark(bytes));
    PidImporter importer(state, utf8);
    Answer result = Answer::No;
    try {
        result = importer.Run();
    } catch (const std::exception&) {
        return fail(state, context, "Failure reading PID file at " + importer.Place());
    }
    if (importer.NoHeader())
        return fail(state, context, "No section header found in file");
    if (result != Answer::Yes) {
        fail(state, context, {});
        return result;
    }
    // The table of fixed rows holds all of them, as in a new program.
    FillMissingTestParameters(state);
    AppendImportNote(state, "PID", context.clock.Now());
    std::string main = kMain;
    ActivateNetlist(state, main);
    if (!LoadMissingDataLists(state, context))
        return fail(state, context, "Failure reading PID file at Closing");
    state.ui().SetBusy(false);
    return Answer::Yes;
}

Answer ImportPIDFile(ProgramState& state, const std::string& path, const ImportContext& context) {
    const auto bytes = file::ReadFileBytes(path, kMaxPidFileSize);
    if (!bytes) {
        StartEmptyProgram(state, context);
        return fail(state, context, "Failure reading PID file at Opening");
    }
    return ImportPIDText(state, *bytes, context);
}

} // namespace zolt::import
