#include "file/program_format.h"

#include "core/ports/ui.h"
#include "core/program_state.h"
#include "file/path_names.h"
#include "file/program_file.h"

#include <algorithm>
#include <map>

namespace zolt::file {
namespace {

// `.zlf`, `.grv` and `.zlt`: one binary format, told apart by the extension.
class ProgramFileFormat final : public ProgramFormat {
public:
    ProgramFileFormat(std::string extension, std::string name, std::string group, int rank,
                      std::string dataDirectory)
        : extension_(std::move(extension)), name_(std::move(name)), group_(std::move(group)),
          rank_(rank), dataDirectory_(std::move(dataDirectory)) {}

    std::string NameFilter() const override {
        return name_ + " (*." + extension_ + ")|*." + extension_;
    }
    std::string OpenGroup() const override { return group_; }
    int OpenRank() const override { return rank_; }
    bool SupportsFile(const std::string& path) const override {
        return UpperExtensionOf(path) == vb::UCase(extension_);
    }
    OpenOutcome Read(ProgramState& state, const std::string& path) const override {
        return {ReadProgramFile(state, path, nullptr, dataDirectory_), path};
    }
    bool CanWrite() const override { return true; }
    Answer Write(ProgramState& state, const std::string& path) const override {
        return WriteProgramFile(state, path);
    }

private:
    std::string extension_;
    std::string name_;
    std::string group_;
    int rank_;
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
    const std::string programs = "ZOLT, ZOLT-GRV Files";
    formats.Register(
        std::make_unique<ProgramFileFormat>("zlf", "ZOLT Files", programs, 10, dataDirectory));
    formats.Register(
        std::make_unique<ProgramFileFormat>("grv", "ZOLT-GRV Files", programs, 30, dataDirectory));
    formats.Register(std::make_unique<ProgramFileFormat>("zlt", "ZOLT Templates", "ZOLT Templates",
                                                         40, dataDirectory));
}

} // namespace zolt::file
