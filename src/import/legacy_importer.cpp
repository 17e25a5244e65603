#include "import/legacy_importer.h"

#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_kinds.h"
#include "file/path_names.h"
#include "file/program_file.h"
#include "file/record_types.h"
#include "file/table_links.h"
#include "import/legacy_fields.h"
#include "import/program_label.h"
#include "sequence/sequence_table.h"
#include "sequence/system_sequence_table.h"

namespace zolt::import {

namespace fs = std::filesystem;

namespace {

constexpr const char* kAbortImport = "Abort Import Operation";

std::string featureWarning(const std::string& feature, const std::string& name) {
    return "The ZOLT-DOS '" + feature + "' feature is not supported in " + name +
           ".\nOnly partial data will be imported and the program may not \ncompile correctly.";
}

// The first field of a line is the ID, the rest of the line the text.
std::pair<std::int16_t, std::string> idAndText(const std::string& line) {
    const std::string trimmed = vb::Trim(line);
    const std::size_t blank = trimmed.find_first_of(" \t");
    const std::string id = trimmed.substr(0, blank);
    return {LegacyNumber(id),
            blank == std::string::npos ? std::string() : vb::Trim(trimmed.substr(blank + 1))};
}

} // namespace

LegacyImporter::LegacyImporter(ProgramState& state, const std::string& source,
                               const ImportContext& context, const ArchiveLimits& limits)
    : state_(state), source_(source), context_(context), limits_(limits),
      name_(file::StripExtension(file::FileNameOf(source))) {}

std::vector<std::string> LegacyImporter::lines(const std::string& fileName) const {
    const auto file = members_.Find(fileName);
    return file ? ReadMemberLines(*file) : std::vector<std::string>();
}

void LegacyImporter::showCount(int count, const char* table) {
    state_.SetStatusText(std::to_string(count) + " record " + table);
}

void LegacyImporter::refuse(const std::string& text) {
    state_.ui().Message(text, kAbortImport, Buttons::Ok, Icon::Stop);
}

bool LegacyImporter::confirmTarget() {
    const fs::path folder = source_.parent_path();
    std::string label = name_;
    target_ = folder / (label + ".zlf");
    if (!IsValidProgramLabel(target_.string())) {
        const auto edited = EditProgramLabel(state_.ui(), folder.string(), label);
        if (!edited)
            return false;
        target_ = folder / (*edited + ".zlf");
    }
    std::error_code ec;
    if (fs::exists(target_, ec) &&
        state_.ui().Message("File " + target_.filename().string() +
                                " already exists.  File will be overwritten, Proceed?",
                            "Warning", Buttons::OkCancel, Icon::Question) != Answer::Ok)
        return false;
    return true;
}

bool LegacyImporter::unpack(const fs::path& archive, const fs::path& folder) {
    std::error_code ec;
    fs::create_directories(folder, ec);
    const UnpackResult result = UnpackArchive(archive.string(), folder.string(), limits_);
    if (!result.ok) {
        refuse("The archive " + archive.filename().string() +
               " cannot be imported: " + result.refusal + ".");
        return false;
    }
    members_.Add(folder, result.files);
    return true;
}

void LegacyImporter::checkLegacyFeatures() {
    Ui& ui = state_.ui();
    if (members_.Has(name_ + ".spt"))
        ui.Message("Special Test Table File (.SPT) Exists and Can't Be Imported", "Warning",
                   Buttons::Ok, Icon::Warning);
    if (members_.Has(name_ + ".opt"))
        ui.Message(featureWarning("Option", name_), "Warning", Buttons::Ok, Icon::Warning);
    if (members_.Has(name_ + ".sq2"))
        ui.Message(featureWarning("Dual-Analyzer", name_), "Warning", Buttons::Ok, Icon::Warning);
}

void LegacyImporter::readSequence() {
    auto* sequence =
        dynamic_cast<CSequenceTable*>(state_.project().MainNetlist->GetTable(table::Sequence));
    const auto* dictionary = dynamic_cast<const CSystemSequenceTable*>(
        state_.project().MainNetlist->GetTable(table::SequenceList));
    if (!sequence || !dictionary)
        return;
    RowAppender rows(*sequence, 0);
    const std::string self = vb::UCase(name_);
    for (const std::string& line : lines(name_ + ".sqf")) {
        const auto fields = LegacyFields(line);
        if (fields.empty())
            continue;
        const std::string command = vb::UCase(fields[legacy_field::sqf::Command]);
        std::string parameter = FieldAt(fields, legacy_field::sqf::Parameter);
        const int type = dictionary->GetCommandType(command);
        if (type == command_type::Unknown)
            continue;
        if (type == command_type::Netlist || type == command_type::UncheckedNetlist) {
            if (vb::UCase(parameter) == self)
                parameter = kMain;
            else if (!parameter.empty())
                furtherNetlists_.push_back(vb::UCase(parameter));
        } else if (TakesNoParameter(type)) {
            parameter.clear();
        }
        rows.Append(SequenceRecord{Value(static_cast<std::int16_t>(rows.Count() + 1)),
                                   Value(command), Value(parameter), Value(""), Value("")});
        showCount(rows.Count(), "Sequence");
    }
}

void LegacyImporter::readMessages(const std::string& extension, int recordType) {
    Table& messages = *state_.project().MainNetlist->GetTable(table::Message);
    const auto text = lines(name_ + extension);
    if (recordType == file::record::Message) {
        RowAppender rows(messages, 0);
        for (const std::string& line : text) {
            if (vb::Trim(line).empty())
                continue;
            const auto [id, message] = idAndText(line);
            rows.Append(MessageRecord{Value(id), Value(message)});
            showCount(rows.Count(), "Message");
        }
        return;
    }
    if (text.empty())
        return;
    file::PrepareLabelStore(messages, recordType);
    int row = 0;
    for (const std::string& line : text) {
        if (vb::Trim(line).empty())
            continue;
        const auto [id, message] = idAndText(line);
        file::AddLabelRecord(
            messages, recordType, ++row,
            {Value(id), Value(message), Value(std::int32_t{0}), Value(std::int32_t{0})});
        showCount(row, "PLabel Message");
    }
}

void LegacyImporter::readTestParameters() {
    Table& parameters = *state_.project().MainNetlist->GetTable(table::TestParameter);
    const auto file = members_.Find(name_ + ".par");
    RowAppender rows(parameters, 0);
    if (!file) {
        state_.ui().Message("Test Parameter Table Not Found", "Warning", Buttons::Ok,
                            Icon::Warning);
        CParamList& params = state_.params();
        const double threshold = params.Number(param::Threshold);
        rows.Append(TestParameterRecord{
            Value(std::int16_t{1}), Value(params.Number(param::TestVoltage)),
            Value(params.Number(param::TestCurrent)), Value(threshold), Value(threshold)});
        return;
    }
    const auto text = ReadMemberLines(*file);
    // A first line, then entries of four values and a line between them.
    for (std::size_t at = 1; at + 4 <= text.size(); at += 5) {
        namespace f = legacy_field::par;
        const auto value = [&](std::size_t line) {
            return Value(vb::Val(vb::LTrim(text[at + line])));
        };
        rows.Append(TestParameterRecord{Value(static_cast<std::int16_t>(rows.Count() + 1)),
                                        value(f::TestVoltage), value(f::TestCurrent),
                                        value(f::Threshold1), value(f::Threshold2)});
    }
}

void LegacyImporter::importFurtherNetlists() {
    std::set<std::string> done;
    for (const std::string& name : furtherNetlists_) {
        if (!done.insert(name).second || name == kMain)
            continue;
        if (!state_.project().FindNetlist(name))
            AddNetlist(state_, name);
        CNetList& netlist = *state_.project().FindNetlist(name);
        std::error_code ec;
        for (const auto& entry : fs::directory_iterator(source_.parent_path(), ec)) {
            if (vb::UCase(entry.path().filename().string()) != name + ".ZOS")
                continue;
            if (unpack(entry.path(), work_->path() / name))
                importNetlistFiles(netlist, entry.path().stem().string());
            break;
        }
    }
}

void LegacyImporter::readManualNetlists() {
    std::vector<fs::path> files = members_.WithExtension(".NTO");
    for (const fs::path& file : members_.WithExtension(".MAN"))
        files.push_back(file);
    std::vector<std::vector<std::string>> records;
    for (const fs::path& file : files)
        for (const std::string& line : ReadMemberLines(file))
            if (auto fields = LegacyFields(line); !fields.empty())
                records.push_back(std::move(fields));
    if (records.empty())
        return;
    if (!state_.project().FindNetlist(kManualNetlists))
        AddNetlist(state_, kManualNetlists);
    CNetList& manual = *state_.project().FindNetlist(kManualNetlists);
    RowAppender rows(*manual.GetTable(table::Code), FileIndexOf(state_, manual));
    for (const auto& fields : records) {
        std::string code;
        using namespace legacy_field::manual;
        for (std::size_t i = Parameters; i < fields.size(); ++i)
            code += (code.empty() ? "" : " ") + fields[i];
        rows.Append(CodeRecord{Value(fields[NetName]), Value(FieldAt(fields, Command)), Value(code),
                               Value("")});
    }
    SetParameterOn(state_, param::ManualNet);
}

void LegacyImporter::setParameters() {
    if (switches_)
        SetParameterOn(state_, param::Switches);
    if (lamps_)
        SetParameterOn(state_, param::LampPin);
    if (grids_)
        SetParameterOn(state_, param::GridLocation);
    if (!switchTypes_.empty()) {
        CParameter& type = state_.params().GetParam(param::SwitchType);
        type.SetValue(type.Type, Value(std::int32_t{*switchTypes_.begin()}));
    }
    bool groups = false;
    for (std::size_t i = 1; i <= state_.project().NetlistCollection.Count(); ++i)
        groups = groups || (*state_.project().NetlistCollection.Item(i))
                                   ->GetTable(table::Groups)
                                   ->gridarray()
                                   .Rows() > 0;
    state_.params().SetVal(param::Group, Value(groups));
    AppendImportNote(state_, "ZOS", context_.clock.Now());
}

void LegacyImporter::readColors() {
    RowAppender rows(*state_.project().MainNetlist->GetTable(table::Color), 0);
    for (const std::string& line : lines(name_ + ".col")) {
        const auto fields = LegacyFields(line);
        using namespace legacy_field::col;
        if (fields.size() <= BaseColor)
            continue;
        rows.Append(ColorRecord{Value(LegacyNumber(fields[Number])), Value(fields[BaseColor]),
                                Value(FieldAt(fields, StripeColor))});
    }
}

bool LegacyImporter::writeAndBackUp() {
    state_.document().CurrentFile = target_.string();
    if (file::WriteProgramFile(state_, target_.string()) != Answer::Yes)
        return false;
    std::error_code ec;
    const fs::path backup = fs::path(state_.params().Text(param::BackupFilesDirectory)) / "DOS";
    fs::create_directories(backup, ec);
    const fs::path moved = backup / source_.filename();
    if (!fs::copy_file(source_, moved, fs::copy_options::overwrite_existing, ec) ||
        !fs::remove(source_, ec)) {
        refuse(source_.filename().string() + " could not be moved to the backup folder " +
               backup.string() + ".");
        return true;
    }
    state_.ui().Message(name_ + " was moved to backup folder", "Import Completed");
    return true;
}

file::OpenOutcome LegacyImporter::Run() {
    if (!confirmTarget())
        return {Answer::Cancel, {}};
    work_ = std::make_unique<WorkFolder>(source_.parent_path());
    if (!work_->ok()) {
        refuse("The work folder " + (source_.parent_path() / "temp").string() + " cannot be made.");
        return {Answer::No, {}};
    }
    if (!unpack(source_, work_->path() / "main"))
        return {Answer::No, {}};
    checkLegacyFeatures();
    if (!members_.Has(name_ + ".con")) {
        state_.ui().Message("Import of " + name_ + "\nwas not successful!", kAbortImport,
                            Buttons::Ok, Icon::Stop);
        return {Answer::No, {}};
    }
    state_.SetStatusText("Importing " + name_ + "...");
    ImportContext context = context_;
    context.documentPath = target_.string();
    StartEmptyProgram(state_, context);
    LoadMissingDataLists(state_, context);
    state_.ui().SetBusy(true);
    readSequence();
    readMessages(".mes", file::record::Message);
    readMessages(".mm1", file::record::Labels);
    readMessages(".mm2", file::record::Labels2);
    readTestParameters();
    FillMissingTestParameters(state_);
    importNetlistFiles(*state_.project().MainNetlist, name_);
    importFurtherNetlists();
    readManualNetlists();
    setParameters();
    readColors();
    if (auto* sequence =
            dynamic_cast<CSequenceTable*>(state_.project().MainNetlist->GetTable(table::Sequence)))
        sequence->UpdateMessages();
    std::string main = kMain;
    ActivateNetlist(state_, main);
    state_.ui().SetBusy(false);
    state_.ClearStatusText();
    if (!writeAndBackUp())
        return {Answer::No, {}};
    state_.SetDirty(false);
    return {Answer::Yes, target_.string()};
}

file::OpenOutcome ImportLegacyFile(ProgramState& state, const std::string& path,
                                   const ImportContext& context, const ArchiveLimits& limits) {
    file::OpenOutcome outcome;
    try {
        outcome = LegacyImporter(state, path, context, limits).Run();
    } catch (const std::exception&) {
        state.ui().Message("Import of " + file::StripExtension(file::FileNameOf(path)) +
                               "\nwas not successful!",
                           kAbortImport, Buttons::Ok, Icon::Stop);
        outcome = {Answer::No, {}};
    }
    if (outcome.result != Answer::Yes) {
        StartEmptyProgram(state, context);
        state.ui().SetBusy(false);
    }
    return outcome;
}

} // namespace zolt::import
