#include "file/program_format.h"

#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "sequence/program_kind.h"

#include <algorithm>
#include <map>

namespace zolt::file {
namespace {

// `.zlf`, `.grv` and `.zlt`: one binary format, told apart by the extension.
class ProgramFileFormat final : public ProgramFormat {
public:
    ProgramFileFormat(const ProgramKind& kind, std::string dataDirectory)
        : kind_(kind), dataDirectory_(std::move(dataDirectory)) {}

    std::string NameFilter() const override {
        const std::string extension(kind_.extension);
        return std::string(kind_.name) + " (*." + extension + ")|*." + extension;
    }
    std::string OpenGroup() const override { return std::string(kind_.openGroup); }
    int OpenRank() const override { return kind_.openRank; }
    bool SupportsFile(const std::string& path) const override {
        return ProgramKindOf(path) == &kind_;
    }
    bool IsFamily() const override { return kind_.family; }
    OpenOutcome Read(ProgramState& state, const std::string& path) const override {
        OpenOutcome outcome{Answer::No, path};
        outcome.result = ReadProgramFile(state, path, &outcome.facts, dataDirectory_);
        return outcome;
    }
    bool CanWrite() const override { return true; }
    Answer Write(ProgramState& state, const std::string& path) const override {
        return WriteProgramFile(state, path);
    }

private:
    const ProgramKind& kind_;
    std::string dataDirectory_;
};

} // namespace

Answer ProgramFormat::Write(ProgramState& state, const std::string& /*path*/) const {
    state.ui().Message("This kind of file can only be read.", "Abort File Write");
    return Answer::No;
}

void ProgramFormats::Register(std::unique_ptr<ProgramFormat> format) {
    formats_.push_back(std::move(format));
}

const ProgramFormat* ProgramFormats::Find(const std::string& path) const {
    for (const auto& format : formats_)
        if (format->SupportsFile(path))
            return format.get();
    return nullptr;
}

bool ProgramFormats::IsFamily(const std::string& path) const {
    const ProgramFormat* format = Find(path);
    return format && format->IsFamily();
}

std::string ProgramFormats::OpenFilter() const {
    std::vector<const ProgramFormat*> ranked;
    for (const auto& format : formats_)
        ranked.push_back(format.get());
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto* a, const auto* b) { return a->OpenRank() < b->OpenRank(); });
    std::vector<std::string> groups;
    std::map<std::string, std::string> patterns;
    for (const ProgramFormat* format : ranked) {
        const std::string filter = format->NameFilter();
        const std::string pattern = filter.substr(filter.rfind('|') + 1);
        std::string& list = patterns[format->OpenGroup()];
        if (list.empty())
            groups.push_back(format->OpenGroup());
        list += (list.empty() ? "" : ";") + pattern;
    }
    std::string filter;
    for (const std::string& group : groups)
        filter +=
            (filter.empty() ? "" : "|") + group + " (" + patterns[group] + ")|" + patterns[group];
    return filter;
}

void RegisterProgramFileFormats(ProgramFormats& formats, const std::string& dataDirectory) {
    for (const ProgramKind& kind : kProgramKinds)
        formats.Register(std::make_unique<ProgramFileFormat>(kind, dataDirectory));
}

OpenOutcome OpenByFormat(ProgramState& state, const ProgramFormats& formats,
                         const std::string& path) {
    state.DestroyAll();
    state.params().LoadFilePropertyParameters();
    ResetNetlistTabs(state);
    Document& document = state.document();
    document.CurrentFile.clear();
    document.FileOpen = true;
    state.SetDirty(false);
    const ProgramFormat* format = formats.Find(path);
    OpenOutcome outcome;
    if (format)
        outcome = format->Read(state, path);
    else
        state.ui().Message("Invalid file extention - ." + ExtensionOf(path), "Abort File Open");
    if (outcome.result != Answer::Yes) {
        state.DestroyAll();
        document.FileOpen = false;
        state.ui().SetBusy(false);
        return outcome;
    }
    document.CurrentFile = outcome.document;
    return outcome;
}

Answer WriteByFormat(ProgramState& state, const ProgramFormats& formats, const std::string& path) {
    const ProgramFormat* format = formats.Find(path);
    if (format && format->CanWrite())
        return format->Write(state, path);
    return WriteProgramFile(state, path);
}

} // namespace zolt::file
