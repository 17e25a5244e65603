#include "cli/assembly_commands.h"

#include "assembly/compile_progress.h"
#include "assembly/feature_codes.h"
#include "assembly/grv_test_compile.h"
#include "assembly/test_ordering.h"
#include "cli/batch_session.h"
#include "cli/commands.h"
#include "cli/printing_progress.h"
#include "cli/program_files.h"
#include "cli/script_words.h"
#include "core/ports/clock.h"
#include "file/document_lifecycle.h"
#include "file/program_file.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <optional>
#include <ostream>
#include <sstream>

namespace zolt::cli {
namespace {

using Args = BatchSession::Args;

void storeFeatureCodes(ProgramState& state, const FeatureCodes& codes) {
    state.project().Assembly.FeatureCodeData = codes.ToLines();
    state.SetDirty(true);
}

void featureAdd(BatchSession& s, const Args& args) {
    ProgramState& state = s.RequireProject();
    FeatureCodes codes = FeatureCodes::FromLines(state.project().Assembly.FeatureCodeData);
    const std::vector<std::string> candidates = CandidateNetlists(state);
    for (std::size_t i = 2; i < args.size(); ++i)
        if (std::find(candidates.begin(), candidates.end(), args[i]) == candidates.end())
            throw CommandError("'" + args[i] + "' is not a netlist of the project");
    const std::string name = codes.DefaultName();
    codes.Add(name);
    const NameEdit edit = EditFeatureCodeName(codes, name, args[1], s.ui());
    if (edit == NameEdit::Violation || edit == NameEdit::Refused)
        return;
    for (std::size_t i = 2; i < args.size(); ++i)
        codes.SetNetlist(args[1], args[i], true);
    storeFeatureCodes(state, codes);
}

void feature(BatchSession& s, const Args& args) {
    const std::string usage = "feature add NAME [NETLIST...] | rename NAME NEW | delete NAME | "
                              "select NAME...";
    RequireArgs(args, 1, 10000, usage);
    ProgramState& state = s.RequireProject();
    const std::string& verb = args[0];
    FeatureCodes codes = FeatureCodes::FromLines(state.project().Assembly.FeatureCodeData);
    const auto require = [&](const std::string& name) {
        if (!codes.Item(name))
            throw CommandError("no feature code named '" + name + "'");
    };
    if (verb == "add") {
        RequireArgs(args, 2, 10000, "feature add NAME [NETLIST...]");
        featureAdd(s, args);
    } else if (verb == "rename") {
        RequireArgs(args, 3, 3, "feature rename NAME NEW");
        require(args[1]);
        if (EditFeatureCodeName(codes, args[1], args[2], s.ui()) == NameEdit::Renamed)
            storeFeatureCodes(state, codes);
    } else if (verb == "delete") {
        RequireArgs(args, 2, 2, "feature delete NAME");
        require(args[1]);
        codes.Remove(args[1]);
        storeFeatureCodes(state, codes);
    } else if (verb == "select") {
        for (std::size_t i = 1; i < args.size(); ++i)
            require(args[i]);
        state.project().SelectedFeatureCodes = SelectFeatureCodeLines(
            state.project().Assembly.FeatureCodeData, Args(args.begin() + 1, args.end()));
    } else {
        throw CommandError("usage: " + usage);
    }
}

// The Assembly Order dialog stays open from the first station command to `order ok`.
struct OrderingSession {
    std::optional<TestOrdering> ordering;
    TestOrdering& open(ProgramState& state) {
        if (!ordering)
            ordering = TestOrdering::Load(state);
        return *ordering;
    }
};

std::size_t requireStation(const TestOrdering& ordering, const std::string& name) {
    const auto station = ordering.FindStation(name);
    if (!station)
        throw CommandError("no station named '" + name + "'");
    return *station;
}

void station(BatchSession& s, const Args& args, OrderingSession& session) {
    const std::string usage = "station add NAME PATTERN | place NETLIST STATION [DESC] [main]";
    RequireArgs(args, 3, 5, usage);
    ProgramState& state = s.RequireProject();
    TestOrdering& ordering = session.open(state);
    if (args[0] == "add") {
        RequireArgs(args, 3, 3, "station add NAME PATTERN");
        if (ordering.FindStation(args[1]))
            throw CommandError("a station named '" + args[1] + "' exists already");
        const int pattern = ParseInt(args[2], "PATTERN");
        if (pattern < 0 || pattern > TestOrdering::kMaxPattern)
            throw CommandError("PATTERN must lie from 0 to 50");
        const std::size_t added = ordering.NewStation(ordering.Stations().size() - 1);
        ordering.RenameStation(added, args[1], s.ui());
        ordering.SetPattern(added, pattern);
    } else if (args[0] == "place") {
        const bool main =
            args.size() >= 4 && args.back() == "main" && !s.WasQuoted(args.size() - 1);
        const std::size_t described = args.size() - (main ? 1 : 0);
        if (described > 4)
            throw CommandError("usage: station place NETLIST STATION [DESC] [main]");
        if (!ordering.Find(args[1]))
            throw CommandError("no netlist named '" + args[1] + "' on the assembly line");
        const std::size_t to = requireStation(ordering, args[2]);
        ordering.MoveNetlist(args[1], to, ordering.Stations()[to].Netlists.size());
        if (described == 4)
            ordering.SetDescription(args[1], args[3]);
        ordering.SetPartOfMain(args[1], main);
    } else {
        throw CommandError("usage: " + usage);
    }
}

void order(BatchSession& s, const Args& args, OrderingSession& session) {
    RequireArgs(args, 1, 1, "order ok");
    if (args[0] != "ok")
        throw CommandError("usage: order ok");
    ProgramState& state = s.RequireProject();
    if (session.open(state).Accept(state, s.ui()))
        session.ordering.reset();
}

// The selection dialog opened and accepted: the codes ticked last time, as they read now.
bool acceptSelection(ProgramState& state) {
    const auto& data = state.project().Assembly.FeatureCodeData;
    state.project().SelectedFeatureCodes = SelectFeatureCodeLines(
        data, TickedFeatureCodes(data, state.project().SelectedFeatureCodes));
    return true;
}

// `overwrite` answers "File Exists, Overwrite?" with OK; without it the box
// takes the script's next answer, Cancel when there is none.
bool grvCompile(BatchSession& s, const std::string& outPath, bool overwrite = false) {
    ProgramState& state = s.RequireProject();
    SystemClock clock;
    file::DocumentLifecycle document(
        state, file::DocumentEnvironment{clock, "zolt-cli", s.dataDirectory()});
    PrintingProgress progress(s.out());
    TestCompileSteps steps;
    steps.saveChanges = [&] { return document.PromptSaveChanges(true, false, false); };
    steps.selectFeatureCodes = [&] { return acceptSelection(state); };
    steps.saveAs = [&] {
        if (!file::KeepsFamilyIntact(s.ui(), state.document().CurrentFile, outPath))
            return;
        if (overwrite && std::filesystem::exists(outPath))
            s.ui().QueueFirst(Answer::Ok);
        if (!file::ConfirmOverwrite(s.ui(), outPath))
            return;
        // As `saveas` does it: written, then read back from the new file.
        if (WriteProgram(state, outPath) == Answer::Yes)
            OpenProgram(state, outPath, s.dataDirectory());
    };
    return RunGRVTestCompile(state, progress, steps);
}

} // namespace

void RegisterAssemblyCommands(BatchSession& session) {
    auto ordering = std::make_shared<OrderingSession>();
    session.Register("feature", feature);
    session.Register(
        "station", [ordering](BatchSession& s, const Args& args) { station(s, args, *ordering); });
    session.Register("order",
                     [ordering](BatchSession& s, const Args& args) { order(s, args, *ordering); });
    // A project that is opened or made anew closes the dialog.
    for (const char* command : {"new", "open", "saveas"})
        if (auto handler = session.Registered(command))
            session.Register(command, [ordering, handler](BatchSession& s, const Args& args) {
                ordering->ordering.reset();
                handler(s, args);
            });
    session.Register("grv-compile", [ordering](BatchSession& s, const Args& args) {
        RequireArgs(args, 1, 1, "grv-compile OUT.zlf");
        ordering->ordering.reset();
        grvCompile(s, args[0]);
    });
}

int GrvCompileProgramFile(const std::string& path, const std::vector<std::string>& features,
                          const std::string& outPath, bool overwrite,
                          const std::string& dataDirectory, SettingsStore& settings,
                          std::ostream& out, std::ostream& err) {
    BatchSession session(out, settings);
    session.setDataDirectory(dataDirectory);
    ProgramState& state = session.state();
    if (OpenProgram(state, path, dataDirectory) != Answer::Yes) {
        err << "ERROR: cannot read '" << path << "'\n";
        return 1;
    }
    for (const std::string& name : features)
        if (FeatureCodeName(name).empty() ||
            std::none_of(state.project().Assembly.FeatureCodeData.begin(),
                         state.project().Assembly.FeatureCodeData.end(),
                         [&](const std::string& line) { return FeatureCodeName(line) == name; })) {
            err << "ERROR: no feature code named '" << name << "'\n";
            return 1;
        }
    state.project().SelectedFeatureCodes =
        SelectFeatureCodeLines(state.project().Assembly.FeatureCodeData, features);
    if (!grvCompile(session, outPath, overwrite)) {
        err << "ERROR: the test compile did not finish\n";
        return 1;
    }
    if (state.document().CurrentFile != outPath) {
        std::error_code ec;
        const bool replaceable = !overwrite && std::filesystem::exists(outPath, ec) &&
                                 !std::filesystem::equivalent(path, outPath, ec);
        err << "ERROR: the new program was not saved to '" << outPath << "'"
            << (replaceable ? " (it exists: --overwrite replaces it)" : "") << "\n";
        return 1;
    }
    return 0;
}

} // namespace zolt::cli
