#include "file/program_reader.h"

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
#include "file/record_types.h"
#include "file/table_links.h"
#include "sequence/program_kind.h"

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

// The cell, trimmed and in upper case, is `word`.
bool isWord(const Value& cell, const char* word) {
    return vb::UCase(vb::Trim(cell.text())) == word;
}

// Fills a project block by block; `ui` hears of records refused past a limit.
class ProgramReader {
public:
    ProgramReader(Project& project, Ui& ui, std::string_view bytes, const std::string& path,
                  ReadFacts& facts, std::optional<TablePick> pick = std::nullopt)
        : project_(project), ui_(ui), in_(bytes), facts_(facts), grv_(IsGrvFileName(path)),
          pick_(pick) {}

    void Run() {
        facts_.header = ReadHeader(in_);
        project_.CompiledDate = facts_.header.CompiledDate;
        project_.NeedsCompile = facts_.header.NeedsCompile;
        for (;;) {
            const Frame frame = ReadFrame(in_);
            if (readBlock(frame))
                break;
        }
    }

    const std::string& stage() const { return stage_; }

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
        case record::Netlists:
            readNetlists(frame);
            return false;
        case record::SystemParameters:
            readSystemParameters(frame);
            return false;
        case record::FeatureCodes:
        case record::NetlistInfo:
        case record::AssemblyOrder:
            readAssemblyList(frame);
            return false;
        case record::End:
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

    Table& tableOf(const Frame& frame, TableId id) const {
        const CNetList* netlist = nullptr;
        if (BlockOf(frame.RecordType)->mainOnlyMessage)
            netlist = project_.MainNetlist;
        else if (frame.NetlistIndex >= 0)
            if (const auto* found = project_.NetlistCollection.Item(
                    static_cast<std::size_t>(frame.NetlistIndex) + 1))
                netlist = found->get();
        Table* table = netlist ? netlist->GetTable(id) : nullptr;
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
            if (name.empty() || project_.FindNetlist(name) ||
                project_.NetlistCollection.Count() >= kMaxNetlists)
                throw FormatError("bad netlist name");
            AddNetlistToProject(project_, name).NetlistType = type;
        }
    }

    void readTable(const Frame& frame) {
        const RecordLayout& layout = *LayoutOf(frame.RecordType);
        Table& table = tableOf(frame, layout.tableIndex);
        // Views and history hear of the block once, not of every cell.
        const TableLoad load(table);
        if (frame.RecordVersion == 1 &&
            (frame.RecordType == record::Wire || frame.RecordType == record::Groups)) {
            readCombinedColorTable(frame, table, layout);
            return;
        }
        if (frame.RecordVersion == 1 && frame.RecordType == record::Color) {
            readLegacyColors(frame, table);
            return;
        }
        const int count = countOf(frame, layout.MinimumSize());
        const bool labels =
            frame.RecordType == record::Labels || frame.RecordType == record::Labels2;
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
            if (frame.RecordType == record::Fixture && isMainMarker(args[0])) {
                SetFixtureUsesMain(table);
                continue;
            }
            // A record past the table's limit is read but not kept.
            if (limit > 0 && stored >= limit) {
                refused.Add(frame.RecordType == record::Sequence ? vb::CInt(args[0]).value_or(0)
                                                                 : limit + refused.count + 1);
                continue;
            }
            if (frame.RecordType == record::Wire || frame.RecordType == record::Groups)
                markNoColor(args, layout);
            if (frame.RecordType == record::Sequence)
                convertSequenceStep(args);
            if (frame.RecordType == record::Color)
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
            ui_.Message(RefusedRecordsMessage(frame.RecordType, refused.first, refused.last),
                        kAppTitle);
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
        markConverted();
        if (!grv_)
            facts_.oldAssemblyData = true;
    }

    void markConverted() {
        facts_.converted = true;
        project_.NeedsCompile = true;
    }

    void readSystemParameters(const Frame& frame) {
        const int count = frame.RecordCount < 0 ? 0 : countOf(frame, 8);
        auto& params = project_.FileParameters;
        for (int i = 1; i <= count; ++i) {
            const std::string name = vb::Trim(in_.String());
            in_.Integer(); // class
            const std::string value = vb::Trim(in_.String());
            in_.Integer(); // value type
            // Only the parameters that travel with a file can come from one.
            if (CParameter* known = params.Item(vb::LCase(name)))
                known->Val = Value(value);
        }
    }

    void readAssemblyList(const Frame& frame) {
        AssemblyData& lists = project_.Assembly;
        const bool oldInfo = frame.RecordType == record::NetlistInfo && facts_.header.Version < "2";
        const std::size_t minimum = frame.RecordType == record::FeatureCodes    ? 2
                                    : frame.RecordType == record::AssemblyOrder ? 4
                                                                                : 6;
        const int count = frame.RecordCount < 0 ? 0 : countOf(frame, minimum);
        if (lists.FeatureCodeData.size() + lists.NetlistInfoList.Count() +
                lists.AssemblyOrderList.Count() + static_cast<std::size_t>(count) >
            kMaxListEntries)
            throw FormatError("too many list entries");
        for (int i = 1; i <= count; ++i) {
            if (frame.RecordType == record::FeatureCodes) {
                lists.FeatureCodeData.push_back(in_.String());
            } else if (frame.RecordType == record::AssemblyOrder) {
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
                    markConverted();
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

    Project& project_;
    Ui& ui_;
    ByteReader in_;
    ReadFacts& facts_;
    bool grv_;
    std::optional<TablePick> pick_;
    std::string stage_ = "start";
};

} // namespace

std::string ReadProgramInto(ProgramState& loader, std::string_view bytes, const std::string& path,
                            ReadFacts& facts, std::optional<TablePick> pick) {
    loader.project().Assembly.Clear();
    if (!loader.project().MainNetlist)
        loader.CreateMain();
    if (!RebuildCommandDictionary(loader, path))
        return "Error reading file at start";
    ProgramReader reader(loader.project(), loader.ui(), bytes, path, facts, pick);
    try {
        reader.Run();
    } catch (const ReadStop& stop) {
        return stop.message;
    } catch (const std::exception&) {
        return "Error reading file at " + reader.stage();
    }
    return {};
}

void SplitColorText(const std::string& text, std::string& base, std::string& stripe) {
    const std::size_t slash = text.find('/');
    base = text.substr(0, slash);
    stripe = slash == std::string::npos ? std::string() : text.substr(slash + 1);
}

} // namespace zolt::file
