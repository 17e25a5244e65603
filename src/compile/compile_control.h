#pragma once

#include "compile/diagnostics.h"
#include "compile/netlist_feed.h"
#include "compile/program_image.h"

#include <cstdint>
#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace zolt::compile {

// The compile control: fed call by call with the program's tables, it analyses
// them, reports every finding through `StatusLine`, and on `Compile` writes
// `<ProgramFolder>/<ProgramName>.bin` (only without errors) and `.dgn`.
// Every property set and operation call is passed to the trace, when one is set.
class NXComp {
public:
    using StatusLineEvent = std::function<void(std::int32_t, std::int32_t, const std::string&)>;
    using LabelFieldEvent = std::function<void(std::int16_t, const std::string&)>;
    using Trace = std::function<void(const std::string&)>;
    // Stores the bytes of an output file; false when they could not be stored.
    using FileWriter = std::function<bool(const std::string& path, const std::string& bytes)>;

    StatusLineEvent StatusLine;
    LabelFieldEvent LabelField;
    void SetTrace(Trace trace) { trace_ = std::move(trace); }
    // Where `Compile` puts the image and the .dgn file: the disk unless told.
    void SetFileWriter(FileWriter writer) { writeFile_ = std::move(writer); }

    // Properties.
    const std::string& ProgramName() const { return image_.header.programName; }
    void SetProgramName(const std::string& name);
    const std::string& ProgramFolder() const { return folder_; }
    void SetProgramFolder(const std::string& folder);
    const std::string& ProgramId() const { return image_.header.programId; }
    void SetProgramId(const std::string& id);
    bool OptionFlag2() const { return image_.header.optionFlag2; }
    void SetOptionFlag2(bool on);
    std::int32_t WarningMask() const { return image_.header.warningMask; }
    void SetWarningMask(std::int32_t mask);
    std::int32_t LogMask() const { return image_.header.logMask; }
    void SetLogMask(std::int32_t mask);
    double DwellTime() const { return image_.header.dwellTime; }
    void SetDwellTime(double seconds);
    std::int32_t SwitchType() const { return image_.header.switchType; }
    void SetSwitchType(std::int32_t type);
    std::int16_t FixturePoints() const {
        return static_cast<std::int16_t>(image_.header.fixturePoints);
    }
    void SetFixturePoints(std::int16_t points);
    bool OptionFlag18() const { return image_.header.optionFlag18; }
    void SetOptionFlag18(bool on);
    std::int16_t OptionValue5() const { return image_.header.optionValue5; }
    void SetOptionValue5(std::int16_t value);
    bool SeqBuild() const { return image_.header.seqBuild; }
    void SetSeqBuild(bool on);
    std::int32_t WarningCount() const { return warnings_; }
    std::int32_t ErrorCount() const { return errors_; }

    // Operations; each gives 0 when it was taken.
    std::int32_t Reset();
    std::int32_t AddMessage(const std::string& id, const std::string& text);
    std::int32_t AddSequenceLine(const std::string& command, const std::string& parameter);
    std::int32_t AddMacroLine(const std::string& macro, const std::string& command,
                              const std::string& parameter);
    std::int32_t AddTestParameter(float voltage, float secondValue, float threshold, float current);
    std::int32_t AddDevice(const std::string& kind, const std::string& side1,
                           const std::string& side2, const std::string& description);
    std::int32_t AddCommandDef(const std::string& name, std::int32_t type, std::int32_t low,
                               std::int32_t high, const std::string& description);
    std::int32_t LoadLabelFile(const std::string& path, std::int32_t label);
    std::int32_t BeginNetlist();
    std::int32_t EndNetlist(const std::string& name);
    std::int32_t Compile();
    std::int32_t AddCode(const std::string& command, const std::string& parameter);
    std::int32_t AddFixturePoint(std::int32_t board, std::int32_t point,
                                 const std::string& connector, const std::string& pin);
    std::int32_t AddConnector(const std::string& name, std::int32_t pins, std::int32_t switches,
                              std::int32_t lamp1, std::int32_t lamp2, const std::string& grid);
    std::int32_t AddSwitch(const std::string& connector, const std::string& pin,
                           const std::string& commons, std::int16_t ordinal);
    std::int32_t AddGroup(const std::string& group, const std::string& connector,
                          const std::string& pin, const std::string& base,
                          const std::string& stripe);
    std::int32_t AddWire(const std::string& wire, const std::string& base,
                         const std::string& stripe, std::int32_t flags);
    std::int32_t AddPin(const std::string& connector, const std::string& pin,
                        const std::string& wire);
    std::int32_t AddSplice(std::int32_t number, const std::string& wire);
    std::int32_t AddComponent(const std::string& kind, std::int32_t number,
                              const std::string& wire1, const std::string& wire2,
                              std::int32_t parameter);
    std::int32_t AddReversible(std::int32_t number, const std::string& connector1,
                               const std::string& pin1, const std::string& connector2,
                               const std::string& pin2);
    // The next wire of the last closed netlist in build order; empty at the end.
    std::string NextBuildItem(std::int32_t kind);

    // What the last Compile produced (also when it wrote no file).
    const ProgramImage& Image() const { return image_; }
    const std::vector<Diagnostic>& Diagnostics() const { return diagnostics_; }

private:
    void trace(const std::string& line) const;
    template <typename Field, typename T>
    void set(const char* property, Field& field, const T& value);
    void closeNetlist(const std::string& name);
    void report(const Diagnostic& diagnostic);
    void log(int bit, const std::string& line);
    bool writeFiles();
    static bool writeToDisk(const std::string& path, const std::string& bytes);

    ProgramImage image_;
    std::string folder_;
    Trace trace_;
    FileWriter writeFile_ = writeToDisk;
    bool open_ = false;
    NetlistFeed feed_;
    std::vector<std::string> closedNetlists_;
    std::deque<std::string> buildQueue_;
    std::vector<Diagnostic> diagnostics_;
    std::vector<std::string> dgnLines_;
    std::int32_t warnings_ = 0;
    std::int32_t errors_ = 0;
    std::int32_t listed_ = 0;
};

// The text of an argument as the trace shows it: texts quoted, numbers plain.
std::string TraceText(const std::string& text);

} // namespace zolt::compile
