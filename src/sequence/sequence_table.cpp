#include "sequence/sequence_table.h"

#include "core/app_info.h"
#include "core/parameters.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "sequence/program_kind.h"
#include "sequence/sequence_renumbering.h"
#include "sequence/system_sequence_table.h"
#include "tables/data_validation.h"
#include "tables/message_table.h"

namespace zolt {
namespace {

namespace col = sequence_column;
constexpr int kBackspace = 8;
constexpr int kTab = 9;

bool IsNumericKind(int type) {
    return type == command_type::Number || type == command_type::LineNumber ||
           type == command_type::MessageId;
}

bool IsNetlistKind(int type) {
    return type == command_type::Netlist || type == command_type::UncheckedNetlist;
}

} // namespace

namespace {

const TableSpec& sequenceSpec() {
    namespace c = sequence_column;
    using A = ButtonAction;
    const auto detail = [](int maxLength) {
        return ColumnSpec{.field = NewFieldDef(field_type::Text, false, maxLength),
                          .shown = ColumnShown::DetailView};
    };
    static const TableSpec descriptor{
        .id = table::Sequence,
        // The line number is the row's own; nobody types it.
        .columns =
            ColumnsOf(c::kCaptions,
                      {{c::Line, TypedColumn(NewFieldDef(field_type::Integer, false, 0))},
                       {c::Command, // Room for the longest name of the dictionary (CONTINUITY-RND).
                        {.caption = "Command",
                         .field = NewFieldDef(field_type::Text, true, 15),
                         .kind = CellKind::Command}},
                       {c::Parameter, TypedColumn(NewFieldDef(field_type::Text, false, 20))},
                       {c::Description, detail(80)},
                       {c::Version, detail(13)},
                       {c::LongValue, HiddenColumn()},
                       {c::ShortValue, HiddenColumn()}}),
        .buttons = {{"cmdEdit", "&Edit", "Edit the messages", A::ShowTable, 0, table::Message},
                    {"cmdViewSelect", ">>", "Command Descriptions", A::ViewSelect}}};
    return descriptor;
}

} // namespace

CSequenceTable::CSequenceTable(ProgramState& state) : DataTable(state, sequenceSpec()) {}

const CSystemSequenceTable* CSequenceTable::dictionary() const {
    return state().project().MainNetlist
               ? state().project().MainNetlist->TableAs<CSystemSequenceTable>(table::SequenceList)
               : nullptr;
}

int CSequenceTable::typeOf(const std::string& command) const {
    const CSystemSequenceTable* d = dictionary();
    return d ? d->GetCommandType(command) : command_type::Unknown;
}

bool CSequenceTable::SkipsParameter(const std::string& command) const {
    return TakesNoParameter(typeOf(command));
}

int CSequenceTable::LineType(int row) const {
    return typeOf(vb::Trim(gridarray().Text(row, col::Command)));
}

std::string CSequenceTable::descriptionFor(const std::string& command,
                                           const std::string& parameter) const {
    if (typeOf(command) == command_type::MessageId) {
        const auto* messages =
            state().project().MainNetlist
                ? state().project().MainNetlist->TableAs<CMessageTable>(table::Message)
                : nullptr;
        const auto number = vb::CInt(Value(vb::Trim(parameter)));
        return messages && number ? messages->GetMessage(*number) : std::string();
    }
    const CSystemSequenceTable* d = dictionary();
    return d ? d->GetCommandDescription(command) : std::string();
}

std::string TooManyLinesText(int firstLine, int lastLine) {
    return RefusedRecordsText("Maximum number of commands is " +
                                  std::to_string(CSequenceTable::kMaxLines),
                              firstLine, lastLine);
}

bool CSequenceTable::AddRecord_v1(int row, std::int16_t lineNumber, const std::string& command,
                                  const std::string& parameter, const std::string& /*description*/,
                                  const std::string& version, std::int32_t longValue,
                                  std::int16_t shortValue) {
    if (row > kMaxLines) {
        ui().Message(TooManyLinesText(lineNumber, lineNumber), kAppTitle);
        return false;
    }
    if (row > gridarray().Rows())
        ReDimGrid(row, gridColumns());
    Grid& grid = gridarray();
    const std::string name = vb::Trim(command);
    const std::string value = vb::Trim(parameter);
    grid.Set(row, col::Line, Value(lineNumber));
    grid.Set(row, col::Command, Value(name));
    grid.Set(row, col::Parameter, Value(value));
    grid.Set(row, col::Description, Value(descriptionFor(name, value)));
    grid.Set(row, col::Version, Value(vb::Trim(version)));
    grid.Set(row, col::LongValue, Value(longValue));
    grid.Set(row, col::ShortValue, Value(shortValue));
    return true;
}

void CSequenceTable::AddRecord_v1(int row, const std::vector<Value>& fields) {
    const auto at = [&](std::size_t i) { return i < fields.size() ? fields[i] : Value(); };
    AddRecord_v1(row, vb::CInt(at(0)).value_or(0), at(1).text(), at(2).text(), at(3).text(),
                 at(4).text(), vb::CLng(at(5)).value_or(0), vb::CInt(at(6)).value_or(0));
}

void CSequenceTable::UpdateSequenceNumbers() {
    RenumberLines(gridarray());
}

void CSequenceTable::UpdateMessages() {
    Grid& grid = gridarray();
    // Only texts that differ are written: each write is an edit the history keeps.
    for (int row = 1; row <= grid.Rows(); ++row)
        if (LineType(row) == command_type::MessageId) {
            std::string text = descriptionFor(vb::Trim(grid.Text(row, col::Command)),
                                              grid.Text(row, col::Parameter));
            if (grid.Text(row, col::Description) != text)
                grid.Set(row, col::Description, Value(std::move(text)));
        }
}

void CSequenceTable::RenameNetlist(const std::string& oldName, const std::string& newName) {
    const std::string old = vb::UCase(vb::Trim(oldName));
    Grid& grid = gridarray();
    for (int row = 1; row <= grid.Rows(); ++row)
        if (vb::UCase(vb::Trim(grid.Text(row, col::Parameter))) == old)
            grid.Set(row, col::Parameter, Value(newName));
}

bool CSequenceTable::DeleteLine(int row, bool ask) {
    if (!gridarray().Contains(row, 0))
        return false;
    if (ask && !Confirm(Confirmations().deleteRecord))
        return false;
    gridarray().DeleteRows(row, 1);
    ReDimGrid(gridarray().Rows(), gridColumns());
    FollowDeletedLine(gridarray(), row, [this](const std::string& c) { return typeOf(c); });
    state().SetDirty(true);
    return true;
}

bool CSequenceTable::DeleteRecord(int row) {
    return DeleteLine(row, true);
}

int CSequenceTable::KeyPress(int column, int commandType, int key) const {
    if (key >= 'a' && key <= 'z' && params().Number(param::UpperCase) != 0)
        key -= 'a' - 'A';
    if (column == col::Parameter && key != kBackspace && key != kTab) {
        if (TakesNoParameter(commandType))
            return 0;
        const bool digit = key >= '0' && key <= '9';
        if (IsNumericKind(commandType) && !digit)
            return 0;
    }
    return key;
}

ErrorCode CSequenceTable::refuse(ErrorCode code, const std::string& text, bool show) const {
    if (show)
        ui().Message(text, kAppTitle, Buttons::Ok, Icon::Warning);
    return code;
}

ErrorCode CSequenceTable::checkNetlistName(const std::string& text, bool show) const {
    const std::string name = vb::Trim(text);
    const std::string upper = vb::UCase(name);
    bool found = false;
    state().project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        if (found || !netlist)
            return;
        if (vb::UCase(vb::Trim(netlist->NetlistName)) == "MANUAL NETLISTS") {
            const Table* codes = netlist->GetTable(table::Code);
            if (!codes)
                return;
            const Grid& grid = codes->gridarray();
            for (int row = 1; row <= grid.Rows() && !found; ++row)
                found = vb::Trim(grid.Text(row, code_column::NetlistName)) == name;
        } else {
            found = vb::UCase(vb::Trim(netlist->NetlistName)) == upper;
        }
    });
    return found ? code::None : refuse(code::NoSuchNetlist, "Enter Valid Netlist name", show);
}

ErrorCode CSequenceTable::checkParameter(const std::string& command, const std::string& text,
                                         bool show) const {
    const int type = typeOf(command);
    if (IsNetlistKind(type)) {
        if (IsGrvProgram(state())) {
            const std::string upper = vb::UCase(vb::Trim(text));
            if (upper.find("PATTERN") == std::string::npos) {
                if (upper == "THIS")
                    return code::None;
            } else {
                const std::string number = upper.size() > 7 ? upper.substr(7) : std::string();
                if (number.empty())
                    return refuse(code::PatternWithoutNumber,
                                  std::string("Valid entry is") + " 'Pattern' " +
                                      " followed by the number 1.",
                                  show);
                if (vb::IsNumeric(std::string_view(number)) && vb::Val(number) == 1)
                    return code::None;
                return refuse(code::PatternNumberNotOne, "Pattern number must be 1.", show);
            }
        }
        return checkNetlistName(text, show);
    }
    if (type == command_type::MacroWithText && vb::Trim(text).empty())
        return refuse(code::ParameterRequired, "Enter Parameter Value", show);
    if (IsNumericKind(type)) {
        const CSystemSequenceTable* d = dictionary();
        const std::string low = d ? d->GetCommandLow(command) : std::string();
        const std::string high = d ? d->GetCommandHigh(command) : std::string();
        const double value = vb::Val(text);
        if (IsShortNumber(text) && vb::Val(low) <= value && value <= vb::Val(high))
            return code::None;
        return refuse(code::OutOfRange, "Enter a Numeric Value From " + low + " to " + high, show);
    }
    return code::None;
}

ErrorCode CSequenceTable::CheckField(int column, std::string& value, int mode, const EditRow& row) {
    ErrorCode result = DataTable::CheckField(column, value, mode, row);
    if (result == code::None && column == col::Parameter)
        result = checkParameter(vb::Trim(row.Cell(col::Command)), value, WantsMessage(mode));
    // A netlist is stored by its own name, whatever case it was typed in.
    if (result == code::None && column == col::Parameter &&
        IsNetlistKind(typeOf(vb::Trim(row.Cell(col::Command)))))
        if (const CNetList* netlist = state().project().FindNetlist(vb::UCase(vb::Trim(value))))
            value = netlist->NetlistName;
    return result;
}

ErrorCode CSequenceTable::CheckRecord(int& column, int mode, EditRow& row) {
    const ErrorCode result = DataTable::CheckRecord(column, mode | check_mode::Silent, row);
    if (result != code::None && WantsMessage(mode)) {
        // The failing cell tells its own story, once.
        std::string text = row.Cell(column);
        CheckField(column, text, mode, row);
    }
    return result;
}

void CSequenceTable::AfterCellCommitted(int column, EditRow& row) {
    const std::string command = vb::Trim(row.Cell(col::Command));
    const int type = typeOf(command);
    if (column == col::Command) {
        if (IsNetlistKind(type))
            row.SetCell(col::Parameter, "MAIN");
        else if (type == command_type::None || type == command_type::Macro ||
                 type == command_type::LineNumber || type == command_type::MessageId ||
                 type == command_type::MacroWithText)
            row.SetCell(col::Parameter, "");
        const CSystemSequenceTable* d = dictionary();
        row.SetCell(col::Description, d ? d->GetCommandDescription(command) : std::string());
    } else if (column == col::Parameter && type == command_type::MessageId &&
               IsShortNumber(row.Cell(col::Parameter))) {
        row.SetCell(col::Description, descriptionFor(command, row.Cell(col::Parameter)));
    }
}

void CSequenceTable::AfterCommit(int gridRow, const EditRow& row) {
    Grid& grid = gridarray();
    grid.Set(gridRow, col::Line, Value(static_cast<std::int16_t>(gridRow)));
    grid.Set(gridRow, col::Command, Value(vb::Trim(row.Cell(col::Command))));
    grid.Set(gridRow, col::Parameter, Value(vb::Trim(row.Cell(col::Parameter))));
    grid.Set(gridRow, col::Version, Value(vb::Trim(row.Cell(col::Version))));
}

void CSequenceTable::AfterRowsInserted(int row, int count) {
    for (int i = 0; i < count; ++i)
        FollowInsertedLine(gridarray(), row, [this](const std::string& c) { return typeOf(c); });
}

void CSequenceTable::AfterInsertAbandoned(int row) {
    FollowDeletedLine(gridarray(), row, [this](const std::string& c) { return typeOf(c); });
}

void CSequenceTable::AfterRowsDeleted(const std::vector<std::vector<std::string>>& removed) {
    // The line number of a removed row is the row it stood at.
    for (const auto& texts : removed) {
        const std::string line = texts.empty() ? std::string() : texts[0];
        if (vb::IsNumeric(std::string_view(line)))
            FollowDeletedLine(gridarray(), static_cast<int>(vb::Val(line)),
                              [this](const std::string& c) { return typeOf(c); });
    }
    UpdateSequenceNumbers();
}

std::optional<std::string> CSequenceTable::Refusal(TableCommand command) const {
    if ((command == TableCommand::Add || command == TableCommand::Insert) &&
        gridarray().Rows() >= kMaxLines)
        return "Maximum number of Sequence commands is " + std::to_string(kMaxLines) + ".";
    return std::nullopt;
}

ConfirmTexts CSequenceTable::Confirmations() const {
    return {"Clear Sequence Table?", "Delete Sequence Record?", "Delete Sequence Records?"};
}

} // namespace zolt
