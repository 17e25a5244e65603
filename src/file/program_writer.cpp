#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "file/file_bytes.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/read_limits.h"
#include "file/record_layouts.h"
#include "file/record_types.h"
#include "file/table_links.h"
#include "sequence/program_kind.h"

#include <filesystem>
#include <limits>

namespace zolt::file {
namespace {

constexpr std::size_t kMaxImageSize = kMaxProgramFileSize;

std::int16_t countOf(std::size_t n) {
    if (n > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max()))
        throw FormatError("overflow");
    return static_cast<std::int16_t>(n);
}

bool isPatternStep(const Grid& grid, int row) {
    const std::string command = vb::UCase(vb::Trim(grid.Text(row, sequence_column::Command)));
    return command == "PBEGIN" || command == "PEND";
}

// A parameter is written only when it differs from its default.
bool differsFromDefault(const CParameter& p) {
    return !(vb::LooseEquals(p.Val, p.Default) || p.Val.text() == p.Default.text());
}

class ProgramWriter {
public:
    // `parameters`: those of the File group are written; `imageFile` names
    // the document whose `.bin` goes along, none when empty.
    ProgramWriter(const Project& project, std::vector<const CParameter*> parameters,
                  std::string imageFile, const std::string& path)
        : project_(project), parameters_(std::move(parameters)), imageFile_(std::move(imageFile)),
          grv_(IsGrvFileName(path)) {}

    std::string Build() {
        stage_ = "FILE HEADER";
        FileHeader header;
        header.CompiledDate = project_.CompiledDate;
        header.NeedsCompile = project_.NeedsCompile;
        WriteHeader(out_, header);
        writeNetlists();
        for (const RecordLayout* layout : WriterOrder())
            writeTables(*layout);
        writeSystemParameters();
        if (grv_)
            writeAssemblyLists();
        writeEnd();
        return out_.TakeBytes();
    }

    const std::string& stage() const { return stage_; }
    void setStage(std::string stage) { stage_ = std::move(stage); }

private:
    void frame(std::int16_t type, std::int16_t version, std::size_t count, std::int16_t netlist) {
        WriteFrame(out_, Frame{type, version, 0, countOf(count), netlist, {}});
    }

    void writeNetlists() {
        stage_ = BlockOf(record::Netlists)->writerStage;
        const Grid& list = project_.MainNetlist->NetlistArray;
        frame(record::Netlists, 1, static_cast<std::size_t>(list.Rows()), 0);
        for (int r = 1; r <= list.Rows(); ++r) {
            const std::string name = list.Text(r, netlist_list_column::Name);
            const CNetList* netlist = project_.FindNetlist(name);
            out_.Integer(IntegerOf(list.At(r, netlist_list_column::Index)));
            out_.Integer(netlist ? netlist->NetlistType : 0);
            out_.String(name);
        }
    }

    void writeTables(const RecordLayout& layout) {
        stage_ = BlockOf(layout.recordType)->writerStage;
        std::size_t position = 0;
        project_.NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
            const auto index = static_cast<std::int16_t>(position++);
            Table* table = netlist->GetTable(layout.tableIndex);
            if (!table)
                return;
            switch (layout.recordType) {
            case record::Fixture:
                if (FixtureUsesMain(*table)) {
                    frame(record::Fixture, 1, 1, index);
                    out_.Long(0);
                    out_.String("MAIN");
                    out_.String("");
                    out_.String("");
                    return;
                }
                break;
            case record::Wire:
                clearNoColor(table->gridarray(), {1, 2});
                break;
            case record::Color:
                writeColors(table->gridarray(), index);
                return;
            case record::Groups:
                clearNoColor(table->gridarray(), {3, 4});
                break;
            case record::Labels:
            case record::Labels2:
                if (const Grid* store = LabelStore(*table, layout.recordType))
                    writeRows(layout, *store, index, usedRows(*store));
                return;
            default:
                break;
            }
            writeRows(layout, table->gridarray(), index);
        });
    }

    // The label stores keep 20 rows whether used or not: their empty rows at
    // the end are not written.
    static int usedRows(const Grid& grid) {
        for (int r = grid.Rows(); r >= 1; --r)
            for (int c = 0; c < grid.Columns(); ++c)
                if (!grid.At(r, c).isNull() && !grid.At(r, c).text().empty())
                    return r;
        return 0;
    }

    void writeRows(const RecordLayout& layout, const Grid& grid, std::int16_t index) {
        writeRows(layout, grid, index, grid.Rows());
    }

    void writeRows(const RecordLayout& layout, const Grid& grid, std::int16_t index, int lastRow) {
        std::vector<int> rows;
        for (int r = 1; r <= lastRow; ++r)
            if (!(layout.recordType == record::Sequence && !grv_ && isPatternStep(grid, r)))
                rows.push_back(r);
        if (rows.empty())
            return;
        frame(layout.recordType, layout.version, rows.size(), index);
        std::int32_t running = 0;
        for (int r : rows)
            WriteRecord(out_, layout, grid, r, ++running);
    }

    // "(none)" is stored as color number 0, in the row store as in the file.
    static void clearNoColor(Grid& grid, std::initializer_list<int> columns) {
        for (int r = 1; r <= grid.Rows(); ++r)
            for (int c : columns)
                if (const auto* text = std::get_if<std::string>(&grid.At(r, c).storage());
                    text && *text == "(none)")
                    grid.Set(r, c, Value(std::int16_t{0}));
    }

    // The color table keeps base and stripe in two columns; the record has one
    // color text, so both travel in it as "base/stripe". The Long is 0.
    void writeColors(const Grid& grid, std::int16_t index) {
        if (grid.Rows() == 0)
            return;
        frame(record::Color, 2, static_cast<std::size_t>(grid.Rows()), index);
        for (int r = 1; r <= grid.Rows(); ++r) {
            const std::string base = grid.Text(r, color_column::Color);
            const std::string stripe = grid.Text(r, color_column::DisplayValue);
            out_.Long(0);
            out_.Integer(IntegerOf(grid.At(r, color_column::Number)));
            out_.String(stripe.empty() ? base : base + "/" + stripe);
        }
    }

    void writeSystemParameters() {
        stage_ = BlockOf(record::SystemParameters)->writerStage;
        std::vector<const CParameter*> saved;
        for (const CParameter* p : parameters_)
            if (p->Group == ParamGroup::File && differsFromDefault(*p))
                saved.push_back(p);
        frame(record::SystemParameters, 1, saved.size(), 0);
        for (const CParameter* p : saved) {
            out_.String(p->Name);
            out_.Integer(static_cast<std::int16_t>(p->Group));
            out_.String(p->Val.text());
            out_.Integer(static_cast<std::int16_t>(p->Type));
        }
    }

    void writeAssemblyLists() {
        const AssemblyData& lists = project_.Assembly;
        stage_ = BlockOf(record::NetlistInfo)->writerStage;
        if (lists.NetlistInfoList.Count() > 0) {
            frame(record::NetlistInfo, 1, lists.NetlistInfoList.Count(), kProjectWideIndex);
            lists.NetlistInfoList.ForEach([&](const CNetlistInfo& info) {
                out_.String(info.Name);
                out_.String(info.Description);
                out_.String(info.Station);
                out_.Integer(info.Pattern);
                out_.Integer(info.Ordered ? -1 : 0);
                out_.Integer(info.PartOfMain ? -1 : 0);
            });
        }
        stage_ = BlockOf(record::FeatureCodes)->writerStage;
        if (!lists.FeatureCodeData.empty()) {
            frame(record::FeatureCodes, 1, lists.FeatureCodeData.size(), kProjectWideIndex);
            for (const std::string& line : lists.FeatureCodeData)
                out_.String(line);
        }
        stage_ = BlockOf(record::AssemblyOrder)->writerStage;
        if (lists.AssemblyOrderList.Count() > 0) {
            frame(record::AssemblyOrder, 1, lists.AssemblyOrderList.Count(), kProjectWideIndex);
            lists.AssemblyOrderList.ForEach([&](const CAssemblyRec& rec) {
                out_.Integer(rec.Flag ? -1 : 0);
                out_.String(rec.Name);
            });
        }
    }

    // The image is looked for under the document's current name, so that Save
    // As carries it to the new name.
    void writeEnd() {
        stage_ = BlockOf(record::End)->writerStage;
        std::optional<std::string> image;
        if (!imageFile_.empty()) {
            const std::string bin = CompanionPath(imageFile_, ".bin");
            std::error_code ec;
            if (std::filesystem::exists(bin, ec)) {
                image = ReadFileBytes(bin, kMaxImageSize);
                if (!image)
                    throw FormatError("cannot read the image");
            }
        }
        frame(record::End, 1, image ? 1 : 0, 0);
        if (image)
            out_.Raw(*image);
    }

    const Project& project_;
    std::vector<const CParameter*> parameters_;
    std::string imageFile_;
    bool grv_;
    ByteWriter out_;
    std::string stage_ = "Kill File";
};

// `reason`, the system's words for a failure on disk, goes on a line of its own.
Answer fail(ProgramState& state, const std::string& stage, const std::string& reason = {}) {
    state.ui().SetBusy(false);
    std::string text = "WRITE FAILED AT: " + stage;
    if (!reason.empty())
        text += "\n" + reason;
    state.ui().Show(MessageBox{"Abort File Write", text, Buttons::Ok, Icon::Stop, 1});
    return Answer::No;
}

} // namespace

std::optional<std::string> ProgramFileBytes(ProgramState& state, const std::string& path,
                                            std::string* failedStage) {
    return ProjectFileBytes(state.project(), state.params().All(), state.document().CurrentFile,
                            path, failedStage);
}

std::optional<std::string> ProjectFileBytes(const Project& project,
                                            std::vector<const CParameter*> parameters,
                                            const std::string& imageFile, const std::string& path,
                                            std::string* failedStage) {
    ProgramWriter writer(project, std::move(parameters), imageFile, path);
    try {
        if (!project.MainNetlist)
            throw FormatError("no project");
        return writer.Build();
    } catch (const std::exception&) {
        if (failedStage)
            *failedStage = writer.stage();
        return std::nullopt;
    }
}

Answer WriteProgramFile(ProgramState& state, const std::string& path) {
    state.ui().SetBusy(true);
    std::string stage;
    const auto bytes = ProgramFileBytes(state, path, &stage);
    if (!bytes)
        return fail(state, stage);
    std::string reason;
    switch (SaveFileAtomically(path, *bytes, &reason)) {
    case SaveStep::TemporaryFile:
        return fail(state, "FIND FILE", reason);
    case SaveStep::Replace:
        return fail(state, "REMOVE EXISTING", reason);
    case SaveStep::Ok:
        break;
    }
    state.ui().SetBusy(false);
    state.SetDirty(false);
    return Answer::Yes;
}

} // namespace zolt::file
