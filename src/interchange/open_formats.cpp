#include "interchange/open_formats.h"

#include "file/path_names.h"
#include "import/legacy_import.h"
#include "import/pid_import.h"
#include "interchange/drawing_import.h"

#include <filesystem>

namespace zolt::interchange {
namespace {

std::string programBeside(const std::string& path) {
    return std::filesystem::path(path).replace_extension(".zlf").string();
}

// A drawing opens as a new program made from it; nothing is written.
class DrawingProgramFormat final : public file::ProgramFormat {
public:
    DrawingProgramFormat(const DrawingFormat& format, const Clock& clock, std::string dataDirectory)
        : format_(format), clock_(clock), dataDirectory_(std::move(dataDirectory)) {}

    std::string NameFilter() const override { return format_.nameFilter; }
    std::string OpenGroup() const override { return "Drawings"; }
    int OpenRank() const override { return 30; }
    bool SupportsFile(const std::string& path) const override {
        return FindDrawingFormat(path) == &format_;
    }
    file::OpenOutcome Read(ProgramState& state, const std::string& path) const override {
        return ImportDrawingProgram(
            state, path, import::ImportContext{clock_, dataDirectory_, programBeside(path)});
    }

private:
    const DrawingFormat& format_;
    const Clock& clock_;
    std::string dataDirectory_;
};

class PidProgramFormat final : public file::ProgramFormat {
public:
    PidProgramFormat(const Clock& clock, std::string dataDirectory)
        : clock_(clock), dataDirectory_(std::move(dataDirectory)) {}

    std::string NameFilter() const override { return "PID Files (*.pid)|*.pid"; }
    std::string OpenGroup() const override { return "PID Files"; }
    int OpenRank() const override { return 40; }
    bool SupportsFile(const std::string& path) const override {
        return file::UpperExtensionOf(path) == "PID";
    }
    file::OpenOutcome Read(ProgramState& state, const std::string& path) const override {
        const std::string program = programBeside(path);
        const Answer result = import::ImportPIDFile(
            state, path, import::ImportContext{clock_, dataDirectory_, program});
        return {result, result == Answer::Yes ? program : std::string()};
    }

private:
    const Clock& clock_;
    std::string dataDirectory_;
};

} // namespace

void RegisterOpenFormats(file::ProgramFormats& formats, const Clock& clock,
                         const std::string& dataDirectory) {
    import::RegisterOpenFormats(formats, clock, dataDirectory);
    for (const DrawingFormat& format : DrawingFormats())
        formats.Register(std::make_unique<DrawingProgramFormat>(format, clock, dataDirectory));
}

void RegisterImportableFormats(file::ProgramFormats& formats, const Clock& clock,
                               const std::string& dataDirectory) {
    RegisterOpenFormats(formats, clock, dataDirectory);
    formats.Register(std::make_unique<PidProgramFormat>(clock, dataDirectory));
}

} // namespace zolt::interchange
