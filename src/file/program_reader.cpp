#include "core/app_info.h"
#include "core/netlist_operations.h"
#include "core/ports/frame_controls.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/file_bytes.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/read_limits.h"
#include "file/record_layouts.h"
#include "file/table_links.h"

namespace zolt::file {
namespace {

// A stop of the reader with its own message (the other stops say where the
// file could not be read).
struct ReadStop {
    std::string message;
};

// The records of a block refused past a table's limit, told in one box.
struct RefusedRun {
    int count = 0;
    int first = 0;
    int last = 0;
    void Add(int number) {
        if (count++ == 0)
            first = number;
        last = number;
    }
};

// A fixture record naming MAIN says the netlist's fixture is MAIN's; looked at
// without copying, as every fixture record passes here.
bool isMainMarker(const Value& field) {
    const auto* text = std::get_if<std::string>(&field.storage());
    if (!text)
        return false;
    std::string_view name = *text;
    while (!name.empty() && name.front() == ' ')
        name.remove_prefix(1);
    while (!name.empty() && name.back() == ' ')
        name.remove_suffix(1);
    return name == "MAIN";
}

constexpr const char* kOldVersionCaption = "Old Version Detected...";
constexpr const char* kOldVersionText =
    "ZOLT 6.0 with GRV has detected that this file was made with a previous version of GRV "
    "software and contains data elements that must be converted to the new GRV format to work "
    "with this version. The conversion process will preserve the data and behavior of the "
    "original program. The original program will be stored in the Backup folder.";

// The cell, trimmed and in upper case, is `word`.
bool isWord(const Value& cell, const char* word) {
    return vb::UCase(vb::Trim(cell.text())) == word;
}

class ProgramReader {
public:
    ProgramReader(ProgramState& state, std::string_view bytes, const std::string& path,
                  ReadFacts& facts, std::optional<TablePick> pick = std::nullopt)
        : state_(state), in_(bytes), facts_(facts), grv_(UpperExtensionOf(path) == "GRV"),
          pick_(pick) {}

    void Run() {
        facts_.header = ReadHeader(in_);
        state_.ui().SetBusy(true);
        state_.project().CompiledDate = facts_.header.CompiledDate;
        state_.project().NeedsCompile = facts_.header.NeedsCompile;
        for (;;) {
            const Frame frame = ReadFrame(in_);
            if (readBlock(frame))
                break;
        }
    }

    const std::string& stage() const { return stage_; }
    void setStage(std::string stage) { stage_ = std::move(stage); }

private:
    // Reads one block; true at the end record.
    bool readBlock(const Frame& frame) {
        const BlockInfo* block = BlockOf(frame.RecordType);
        if (!block && pick_)
            throw ReadStop{"Data format error."};
        if (!block)
            throw ReadStop{"Record type, " + std::to_string(frame.RecordType) + ", Not found"};
        stage_ = block->readerStage;
        if (block->versionMessage &&
            (frame.RecordVersion < 1 || frame.RecordVersion > block->highestVersion))
            throw ReadStop{block->versionMessage};
        if (block->mainOnlyMessage && frame.NetlistIndex != 0 && frame.RecordCount != 0)
            throw ReadStop{block->mainOnlyMessage};
        switch (frame.RecordType) {
        case 150:
            readNetlists(frame);
            return false;
        case 140:
            readSystemParameters(frame);
            return false;
        case 214:
        case 215:
        case 216:
            readAssemblyList(frame);
            return false;
        case 999:
            if (pick_)
                throw ReadStop{"Table not found."};
            readImage(frame);
            return true;
        default:
            readTable(frame);
            // A picked block ends the read: what follows it is never looked at.
            return pick_ && frame.RecordType == pick_->recordType &&
                   frame.NetlistIndex == pick_->netlistIndex;
        }
    }

    // The count of a block, refused when the rest of the file cannot hold it.
    int countOf(const Frame& frame, std::size_t minimumRecord) const {
        if (frame.RecordCount < 0)
            throw FormatError("negative record count");
        if (static_cast<std::size_t>(frame.RecordCount) * minimumRecord > in_.remaining())
            throw FormatError("count beyond the end of the file");
        return frame.RecordCount;
    }

    Table& tableOf(const Frame& frame, TableId tableNumber) const {
        const CNetList* netlist = nullptr;
        if (BlockOf(frame.RecordType)->mainOnlyMessage)
            netlist = state_.project().MainNetlist;
        else if (frame.NetlistIndex >= 0)
            if (const auto* found = state_.project().NetlistCollection.Item(
                    static_cast<std::size_t>(frame.NetlistIndex) + 1))
                netlist = found->get();
        Table* table = netlist ? netlist->GetTable(tableNumber) : nullptr;
        if (!table)
            throw FormatError("no netlist at that index");
        return *table;
    }

    void readNetlists(const Frame& frame) {
        const int count = frame.RecordCount < 0 ? 0 : countOf(frame, 6);
        for (int i = 1; i <= count; ++i) {
            in_.Integer(); // the number is given anew
            const std::int16_t type = in_.Integer();
            const std::string name = vb::Trim(in_.String());
            if (name.empty() || state_.project().FindNetlist(name) ||
                state_.project().NetlistCollection.Count() >= kMaxNetlists)
                throw FormatError("bad netlist name");
            AddNetlist(state_, name);
            state_.project().FindNetlist(name)->NetlistType = type;
        }
        state_.frame().SetTabBarVisible(count > 0);
    }

    void readTable(const Frame& frame) {
        const RecordLayout& layout = *LayoutOf(frame.RecordType);
        Table& table = tableOf(frame, layout.tableNumber);
        // Views and history hear of the block once, not of every cell.
        const TableLoad load(table);
        if (frame.RecordVersion == 1 && (frame.RecordType == 30 || frame.RecordType == 70)) {
            readCombinedColorTable(frame, table, layout);
            return;
        }
        if (frame.RecordVersion == 1 && frame.RecordType == 40) {
            readLegacyColors(frame, table);
            return;
        }
        const int count = countOf(frame, layout.MinimumSize());
        const bool labels = frame.RecordType == 81 || frame.RecordType == 82;
        // Rows built here and stored at once, without a cell-by-cell store.
        const bool bulk = !labels && table.PlacesRecordsOnly();
        const auto columns = static_cast<std::size_t>(table.gridColumns());
        std::vector<Value> cells;
        if (labels) {
            PrepareLabelStore(table, frame.RecordType);
        } else if (bulk) {
            cells = table.gridarray().Cells();
            cells.resize(static_cast<std::size_t>(count) * columns);
        } else {
            table.ReDimGrid(count, table.gridColumns());
        }
        int stored = 0;
        const int limit = RecordLimit(frame.RecordType);
        RefusedRun refused;
        std::vector<Value> args;
        for (int i = 1; i <= count; ++i) {
            ReadRecord(in_, layout, frame.NetlistIndex, args);
            if (frame.RecordType == 10 && isMainMarker(args[0])) {
                SetFixtureUsesMain(table);
                continue;
            }
            // A record past the table's limit is read but not kept.
            if (limit > 0 && stored >= limit) {
                refused.Add(frame.RecordType == 130 ? vb::CInt(args[0]).value_or(0)
                                                    : limit + refused.count + 1);
                continue;
            }
            if (frame.RecordType == 30 || frame.RecordType == 70)
                markNoColor(args, layout);
            if (frame.RecordType == 130)
                convertSequenceStep(args);
            if (frame.RecordType == 40)
                splitColor(args);
            ++stored;
            if (labels)
                AddLabelRecord(table, frame.RecordType, stored, args);
            else if (bulk)
                table.PlaceRecord(std::span(cells).subspan(
                                      static_cast<std::size_t>(stored - 1) * columns, columns),
                                  args);
            else
                table.AddRecord_v1(stored, args);
        }
        if (bulk) {
            cells.resize(static_cast<std::size_t>(stored) * columns);
            table.gridarray().Replace(stored, table.gridColumns(), std::move(cells));
        } else if (!labels && stored < count) {
            table.ReDimGrid(stored, table.gridColumns());
        }
        if (refused.count > 0)
            state_.ui().Message(
                RefusedRecordsMessage(frame.RecordType, refused.first, refused.last), kAppTitle);
    }

    // Version 1 wires and groups: the two colors in one "base/stripe" text.
    void readCombinedColorTable(const Frame& frame, Table& table, const RecordLayout& layout) {
        const int before = layout.fieldCount - 2; // the texts before the combined one
        const int count = countOf(frame, 4 + 2 * static_cast<std::size_t>(before + 1));
        table.ReDimGrid(count, table.gridColumns());
        for (int i = 1; i <= count; ++i) {
            const Value sequence(in_.Long());
            std::vector<Value> args;
            for (int f = 0; f < before; ++f)
                args.emplace_back(in_.String());
            std::string base, stripe;
            SplitColorText(in_.String(), base, stripe);
            args.emplace_back(base);
            args.push_back(sequence);
            args.emplace_back(std::int32_t{frame.NetlistIndex});
            args.emplace_back(stripe);
            markNoColor(args, layout);
            table.AddRecord_v1(i, args);
        }
    }

    void readLegacyColors(const Frame& frame, Table& colors) {
        const int count = countOf(frame, 8);
        bool full = false; // told once, by the color that found the table full
        for (int i = 1; i <= count; ++i) {
            in_.Long();
            in_.Integer();
            std::string first, second;
            SplitColorText(in_.String(), first, second);
            if (!full)
                full = !AddLegacyColors(colors, first, second);
        }
    }

    // A color's text holds base and stripe; the table keeps them apart.
    static void splitColor(std::vector<Value>& args) {
        std::string base, stripe;
        SplitColorText(args[1].text(), base, stripe);
        args[1] = Value(base);
        args[2] = Value(stripe);
    }

    // "---" stood for no color in the files; the program shows "(none)".
    static void markNoColor(std::vector<Value>& args, const RecordLayout& layout) {
        const std::size_t base = static_cast<std::size_t>(layout.fieldCount) - 2;
        for (std::size_t i : {base, args.size() - 1})
            if (args[i].text() == "---")
                args[i] = Value("(none)");
    }

    // Older programs wrote the pattern commands as macro commands.
    void convertSequenceStep(std::vector<Value>& args) {
        bool changed = false;
        if (isWord(args[1], "MBEGIN")) {
            args[1] = Value("PBEGIN");
            changed = true;
        } else if (isWord(args[1], "MEND")) {
            args[1] = Value("PEND");
            changed = true;
        }
        if (isWord(args[2], "MACRO1")) {
            args[2] = Value("MAIN");
            changed = true;
        }
        if (!changed)
            return;
        state_.SetDirty(true);
        if (!grv_)
            facts_.oldAssemblyData = true;
    }

    void readSystemParameters(const Frame& frame) {
        const int count = frame.RecordCount < 0 ? 0 : countOf(frame, 8);
        CParamList& params = state_.Params();
        for (int i = 1; i <= count; ++i) {
            const std::string name = vb::Trim(in_.String());
            in_.Integer(); // class
            const std::string value = vb::Trim(in_.String());
            in_.Integer(); // value type
            // Only the parameters that travel with a file can come from one.
            const CParameter* known = params.Find(name);
            if (known && known->Group == ParamGroup::File)
                params.SetVal(name, Value(value));
        }
    }

    void readAssemblyList(const Frame& frame) {
        AssemblyData& lists = state_.project().Assembly;
        const bool oldInfo = frame.RecordType == 215 && facts_.header.Version < "2";
        const std::size_t minimum = frame.RecordType == 214 ? 2 : frame.RecordType == 216 ? 4 : 6;
        const int count = frame.RecordCount < 0 ? 0 : countOf(frame, minimum);
        if (lists.FeatureCodeData.size() + lists.NetlistInfoList.Count() +
                lists.AssemblyOrderList.Count() + static_cast<std::size_t>(count) >
            kMaxListEntries)
            throw FormatError("too many list entries");
        for (int i = 1; i <= count; ++i) {
            if (frame.RecordType == 214) {
                lists.FeatureCodeData.push_back(in_.String());
            } else if (frame.RecordType == 216) {
                CAssemblyRec rec;
                rec.Flag = in_.Integer() != 0;
                rec.Name = in_.String();
                addKeyed(lists.AssemblyOrderList, rec, rec.Name);
            } else {
                CNetlistInfo info;
                info.Name = in_.String();
                info.Description = in_.String();
                info.Station = in_.String();
                if (oldInfo) {
                    state_.SetDirty(true);
                    facts_.oldAssemblyData = true;
                } else {
                    info.Pattern = in_.Integer();
                    info.Ordered = in_.Integer() != 0;
                    info.PartOfMain = in_.Integer() != 0;
                }
                addKeyed(lists.NetlistInfoList, info, info.Name);
            }
        }
    }

    template <typename T>
    static void addKeyed(KeyedCollection<T>& list, T item, const std::string& name) {
        const bool added =
            name.empty() ? list.Add(std::move(item)) : list.Add(std::move(item), name);
        if (!added)
            throw FormatError("duplicate key");
    }

    void readImage(const Frame& frame) {
        if (frame.RecordCount <= 0)
            return;
        facts_.image = std::string(in_.Rest());
        facts_.imageStored = true;
        facts_.imageSize = facts_.image.size();
    }

    ProgramState& state_;
    ByteReader in_;
    ReadFacts& facts_;
    bool grv_;
    std::optional<TablePick> pick_;
    std::string stage_ = "start";
};

Answer fail(ProgramState& state, const std::string& message) {
    state.ui().SetBusy(false);
    state.ui().Show(MessageBox{"Abort File Read", message, Buttons::Ok, Icon::Stop, 1});
    return Answer::No;
}

void prepare(ProgramState& state) {
    state.project().Assembly.Clear();
    if (!state.project().MainNetlist)
        state.CreateMain();
}

Answer finish(ProgramState& state, const std::string& dataDirectory) {
    if (!dataDirectory.empty() && !LoadDeviceAndMacroLists(state, dataDirectory))
        return fail(state, "Error reading file at End");
    std::string main = "MAIN";
    ActivateNetlist(state, main);
    state.ui().SetBusy(false);
    return Answer::Yes;
}

} // namespace

Answer ParseProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                         ReadFacts& out, const std::string& dataDirectory) {
    prepare(state);
    if (!RebuildCommandDictionary(state, path))
        return Answer::No;
    ProgramReader reader(state, bytes, path, out);
    try {
        reader.Run();
    } catch (const ReadStop& stop) {
        return fail(state, stop.message);
    } catch (const std::exception&) {
        return fail(state, "Error reading file at " + reader.stage());
    }
    reader.setStage("End");
    return finish(state, dataDirectory);
}

Answer ReadPickedTable(ProgramState& scratch, std::string_view bytes, const std::string& path,
                       TablePick pick) {
    prepare(scratch);
    ReadFacts facts;
    ProgramReader reader(scratch, bytes, path, facts, pick);
    try {
        reader.Run();
    } catch (const ReadStop& stop) {
        return fail(scratch, stop.message);
    } catch (const std::exception&) {
        return fail(scratch, "Error reading file at " + reader.stage());
    }
    scratch.ui().SetBusy(false);
    return Answer::Yes;
}

Answer ApplyReadFacts(ProgramState& state, const std::string& path, const ReadFacts& facts) {
    // Asked once per read: OK converts the program to the assembly family's form.
    if (facts.oldAssemblyData)
        state.document().ConvertToGRV =
            state.ui().Show(MessageBox{kOldVersionCaption, kOldVersionText, Buttons::OkCancel,
                                       Icon::None, 1}) == Answer::Ok;
    if (facts.imageStored && !WriteFileBytes(CompanionPath(path, ".bin"), facts.image))
        return fail(state, "Error reading file at Binary file");
    return Answer::Yes;
}

Answer ReadProgramBytes(ProgramState& state, std::string_view bytes, const std::string& path,
                        ReadFacts* facts, const std::string& dataDirectory) {
    ReadFacts local;
    ReadFacts& out = facts ? *facts : local;
    const Answer result = ParseProgramBytes(state, bytes, path, out, dataDirectory);
    return result == Answer::Yes ? ApplyReadFacts(state, path, out) : result;
}

Answer ReadProgramFile(ProgramState& state, const std::string& path, ReadFacts* facts,
                       const std::string& dataDirectory) {
    const auto bytes = ReadFileBytes(path, kMaxProgramFileSize);
    if (!bytes) {
        prepare(state);
        if (!RebuildCommandDictionary(state, path))
            return Answer::No;
        return fail(state, "Error reading file at start");
    }
    return ReadProgramBytes(state, *bytes, path, facts, dataDirectory);
}

void SplitColorText(const std::string& text, std::string& base, std::string& stripe) {
    const std::size_t slash = text.find('/');
    base = text.substr(0, slash);
    stripe = slash == std::string::npos ? std::string() : text.substr(slash + 1);
}

} // namespace zolt::file
