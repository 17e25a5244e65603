#pragma once

#include "file/program_format.h"
#include "import/import_support.h"
#include "import/legacy_members.h"
#include "import/zip_archive.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace zolt {
class ProgramState;
class CNetList;
} // namespace zolt

namespace zolt::import {

// One run of the legacy import (`modOldZolt`): the archive of the program and
// those of the netlists its sequence names, read into a new program.
class LegacyImporter {
public:
    LegacyImporter(ProgramState& state, const std::string& source, const ImportContext& context,
                   const ArchiveLimits& limits);
    file::OpenOutcome Run();

private:
    // The steps, in their order.
    bool confirmTarget();
    bool unpack(const std::filesystem::path& archive, const std::filesystem::path& folder);
    void checkLegacyFeatures();
    void readSequence();
    void readMessages(const std::string& extension, int recordType);
    void readTestParameters();
    void importFurtherNetlists();
    void readManualNetlists();
    void setParameters();
    void readColors();
    bool writeAndBackUp();

    // `ImportNetlistFiles`: the member files of one netlist.
    void importNetlistFiles(CNetList& netlist, const std::string& base);
    void convertWep(const std::string& base);
    void readConnectors(CNetList& netlist, const std::string& base);
    void readSwitches(CNetList& netlist, const std::string& base);
    void readGroups(CNetList& netlist, const std::string& base);
    void readFixture(CNetList& netlist, const std::string& base);
    void readSimpleTable(CNetList& netlist, const std::string& base, const char* extension);

    std::vector<std::string> lines(const std::string& fileName) const;
    void showCount(int count, const char* table);
    void refuse(const std::string& text);

    ProgramState& state_;
    std::filesystem::path source_;
    ImportContext context_;
    ArchiveLimits limits_;
    std::string name_; // the program's base name, as the archive's members are named
    std::filesystem::path target_;
    std::unique_ptr<WorkFolder> work_;
    MemberFiles members_;
    std::vector<std::string> furtherNetlists_;
    std::set<std::string> switchCommons_;
    std::set<int> switchTypes_;
    bool lamps_ = false;
    bool grids_ = false;
    bool switches_ = false;
};

} // namespace zolt::import
