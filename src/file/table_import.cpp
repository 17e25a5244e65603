// Copy Table from Other File: the tabs of another program file and the table
// of one of them, loaded by the program file reader as a project of its own.
#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "file/byte_stream.h"
#include "file/file_bytes.h"
#include "file/program_file.h"
#include "file/program_header.h"
#include "file/read_limits.h"
#include "file/record_layouts.h"
#include "file/record_types.h"
#include "file/table_transfer.h"
#include "sequence/sequence_table.h"
#include "tables/color_table.h"
#include "tables/data_table.h"
#include "tables/data_validation.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <set>

namespace zolt::file {
namespace {

struct FileTab {
    std::string name;
    int type = 0; // 1 for the manual netlists
};

void stop(Ui& ui, const std::string& text) {
    ui.Show(MessageBox{"Abort File Read", text, Buttons::Ok, Icon::Stop, 1});
}

// Tells what loading the other file had to say; false when it failed.
bool told(Ui& ui, const LoadedProgram& loaded) {
    for (const MessageBox& box : loaded.facts.notices)
        ui.Show(box);
    if (!loaded.ok())
        stop(ui, loaded.error);
    return loaded.ok();
}

// The color table of the other file, loaded apart and without a word: the
// colors come after the wires and groups in a file. nullptr when it has none.
const CColorTable* colorsOf(const LoadedProgram& loaded) {
    return loaded.ok() ? loaded.project->MainNetlist->TableAs<CColorTable>(table::Color) : nullptr;
}

// MAIN and the netlists of the file's netlist list, in the order of the
// file's netlist positions; nullopt after the box when the list is damaged.
std::optional<std::vector<FileTab>> readTabs(Ui& ui, std::string_view bytes) {
    std::vector<FileTab> tabs{{kMain, 0}};
    std::set<std::string> names{kMain};
    try {
        ByteReader in(bytes);
        ReadHeader(in);
        const Frame frame = ReadFrame(in);
        if (frame.RecordType != record::Netlists)
            throw FormatError("no netlist list");
        if (frame.RecordVersion != 1) {
            stop(ui, "Netlist Record Version Unsupported");
            return std::nullopt;
        }
        if (frame.RecordCount < 0 || static_cast<std::size_t>(frame.RecordCount) >= kMaxNetlists)
            throw FormatError("netlist count");
        for (int i = 0; i < frame.RecordCount; ++i) {
            in.Integer();
            const int type = in.Integer();
            const std::string name = vb::Trim(in.String());
            // The reader refuses the same names: each tab must be one netlist.
            if (name.empty() || !names.insert(vb::UCase(name)).second)
                throw FormatError("bad netlist name");
            tabs.push_back({name, type});
        }
    } catch (const FormatError&) {
        stop(ui, "File Data Format Error");
        return std::nullopt;
    }
    return tabs;
}

// Whether a tab of the file holds a table of this kind at all.
bool fits(TableId kind, const FileTab& tab, bool isMain) {
    switch (KindOf(kind).scope) {
    case TableScope::ManualNetlists:
        return tab.type == 1;
    case TableScope::Project:
        return isMain;
    case TableScope::Netlist:
        break;
    }
    return KindOf(kind).onManualNetlists || tab.type != 1;
}

// The color number a cell holds; 0 for none.
int colorNumber(const Grid& rows, int r, int c) {
    const std::string cell = vb::Trim(rows.Text(r, c));
    return vb::IsNumeric(std::string_view(cell)) ? static_cast<int>(ToLong(Value(cell))) : 0;
}

bool holdsColors(const Grid& rows, const std::vector<int>& colorColumns) {
    for (int r = 1; r <= rows.Rows(); ++r)
        for (const int c : colorColumns)
            if (colorNumber(rows, r, c) != 0)
                return true;
    return false;
}

// Wires and groups keep color numbers: each becomes the number of the same
// color text in this project, which gains the colors it lacks. A number the
// other file's colors do not name meant no color there, and means none here.
void translateColors(Grid& rows, const std::vector<int>& colorColumns, const CColorTable& from,
                     CColorTable* to) {
    bool full = false; // told once
    for (int r = 1; r <= rows.Rows(); ++r)
        for (const int c : colorColumns) {
            const int number = colorNumber(rows, r, c);
            if (number == 0)
                continue;
            const std::string text = from.GetColors(number);
            int id = text.empty() || !to ? 0 : to->GetColorID(text);
            if (id == 0 && !text.empty() && to && !full) {
                id = to->AddNewColor(text);
                full = id == 0;
            }
            rows.Set(r, c, id == 0 ? Value(kNoColor) : Value(std::to_string(id)));
        }
}

} // namespace

bool CopyTableFromOtherFile(ProgramState& state, DataTable* target, const TabPicker& pick) {
    Ui& ui = state.ui();
    const auto refuse = [&ui](const std::string& text) { return RefuseCopy(ui, text); };
    if (!target)
        return refuse("Table must be selected to import into.");
    const TableId kind = target->tableIndex();
    const bool mainOnly = kind == table::Sequence || kind == table::Color ||
                          kind == table::Message || kind == table::SequenceList;
    if (mainOnly && target->netlist() != state.project().MainNetlist)
        return refuse("Table selected can only be imported in MAIN tab.");

    FileDialog dialog;
    dialog.title = "SELECT FILE TO IMPORT FROM";
    dialog.filter = "ZOLT Files (*.zlf)|*.zlf";
    dialog.directory = state.params().Text(param::ProgramsDirectory);
    const auto chosen = ui.ChooseFile(dialog);
    if (!chosen || vb::Trim(*chosen).empty())
        return refuse("File not Specified");
    const std::string path = *chosen;
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return refuse(path + " not found");
    const auto bytes = ReadFileBytes(path, kMaxProgramFileSize);
    if (!bytes) {
        stop(ui, "Error reading file at start");
        return false;
    }

    const auto tabs = readTabs(ui, *bytes);
    if (!tabs)
        return false;
    TabOffer offer{OverwriteCaption(*target), "Select Tab to Import", {}};
    std::vector<int> positions; // of the offered tabs in the file's netlist list
    for (std::size_t i = 0; i < tabs->size(); ++i)
        if (fits(kind, (*tabs)[i], i == 0)) {
            offer.tabs.push_back((*tabs)[i].name);
            positions.push_back(static_cast<int>(i));
        }
    if (offer.tabs.empty()) {
        ui.Message("No relevant tabs found", kAppTitle, Buttons::Ok, Icon::Information);
        return false;
    }
    const auto picked = pick(offer);
    if (!picked)
        return false;
    const auto at = std::find(offer.tabs.begin(), offer.tabs.end(), *picked);
    if (at == offer.tabs.end()) {
        ui.Message("Netlist Not Found!", kAppTitle);
        return false;
    }
    const int position = positions[static_cast<std::size_t>(at - offer.tabs.begin())];

    const LoadedProgram other = LoadPickedTable(*bytes, path, {target->recordType(), position});
    if (!told(ui, other))
        return false;
    const BlockInfo* block = BlockOf(target->recordType());
    const CNetList* netlist = other.project->MainNetlist;
    if (!block || !block->mainOnlyMessage) {
        const auto* item =
            other.project->NetlistCollection.Item(static_cast<std::size_t>(position) + 1);
        netlist = item ? item->get() : nullptr;
    }
    const Table* source = netlist ? netlist->GetTable(kind) : nullptr;
    if (!source) {
        stop(ui, "Table not found.");
        return false;
    }
    Grid rows = source->gridarray();

    // Without the other file's colors its numbers would come across as other colors here.
    std::optional<LoadedProgram> colors;
    const CColorTable* from = nullptr;
    const std::vector<int> colorColumns = target->Descriptor().ColumnsOfKind(CellKind::Color);
    if (holdsColors(rows, colorColumns)) {
        colors = LoadPickedTable(*bytes, path, {record::Color, 0});
        from = colorsOf(*colors);
        if (!from) {
            stop(ui, "The colors of " + std::filesystem::path(path).filename().string() +
                         " cannot be read (" + colors->error + "); the table was not copied.");
            return false;
        }
    }
    state.history().NameStep("Import " + TableCaption(kind) + " Table");
    if (from)
        translateColors(rows, colorColumns, *from,
                        state.project().MainNetlist->TableAs<CColorTable>(table::Color));
    ReplaceRows(*target, std::move(rows));
    // Message lines describe this project's messages.
    if (auto* sequence = dynamic_cast<CSequenceTable*>(target))
        sequence->UpdateMessages();
    return true;
}

} // namespace zolt::file
