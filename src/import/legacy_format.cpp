#include "file/path_names.h"
#include "import/legacy_import.h"
#include "import/legacy_importer.h"

namespace zolt::import {
namespace {

// `.zos` on the Open road: reading is the whole import.
class LegacyArchiveFormat final : public file::ProgramFormat {
public:
    LegacyArchiveFormat(const Clock& clock, std::string dataDirectory)
        : clock_(clock), dataDirectory_(std::move(dataDirectory)) {}

    std::string NameFilter() const override { return "ZOLT-DOS Files (*.zos)|*.zos"; }
    std::string OpenGroup() const override { return "ZOLT, ZOLT-GRV Files"; }
    int OpenRank() const override { return 20; }
    bool SupportsFile(const std::string& path) const override {
        return file::UpperExtensionOf(path) == "ZOS";
    }
    file::OpenOutcome Read(ProgramState& state, const std::string& path) const override {
        return ImportLegacyFile(state, path, ImportContext{clock_, dataDirectory_, {}});
    }

private:
    const Clock& clock_;
    std::string dataDirectory_;
};

} // namespace

void RegisterImportFormats(file::ProgramFormats& formats, const Clock& clock,
                           const std::string& dataDirectory) {
    formats.Register(std::make_unique<LegacyArchiveFormat>(clock, dataDirectory));
}

void RegisterOpenFormats(file::ProgramFormats& formats, const Clock& clock,
                         const std::string& dataDirectory) {
    file::RegisterProgramFileFormats(formats, dataDirectory);
    RegisterImportFormats(formats, clock, dataDirectory);
}

} // namespace zolt::import
