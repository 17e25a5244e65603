#include "interchange/drawing_commands.h"

#include "core/netlist.h"
#include "core/netlist_operations.h"
#include "core/program_state.h"
#include "core/value.h"
#include "file/path_names.h"
#include "interchange/drawing_export.h"
#include "interchange/drawing_formats.h"
#include "interchange/drawing_import.h"

#include <filesystem>
#include <fstream>

namespace zolt::interchange {
namespace {

constexpr const char* kExportCaption = "Export Drawing";

Answer stop(ProgramState& state, const char* caption, const std::string& text) {
    state.ui().Show(MessageBox{caption, text, Buttons::Ok, Icon::Stop, 1});
    return Answer::No;
}

} // namespace

Answer ImportDrawingCommand(ProgramState& state) {
    const auto path = state.ui().ChooseFile(FileDialog{"Import Drawing", DrawingFilter(), {}, {}});
    if (!path)
        return Answer::Cancel;
    const std::string proposed =
        FilterNetlistNameTyping(std::filesystem::path(*path).stem().string(), true);
    const auto typed =
        state.ui().Ask(Prompt{"Import Drawing", "Name of the new netlist:", proposed});
    if (!typed)
        return Answer::Cancel;
    const std::string name = FilterNetlistNameTyping(vb::Trim(*typed), true);
    if (name.empty())
        return stop(state, kImportCaption, "A netlist needs a name.");
    for (const auto& label : state.project().CompileLabels)
        if (vb::TextEqualsNoCase(label, name))
            return stop(state, kImportCaption, "Only Unique Names Are Allowed");
    return ImportDrawingAsNetlist(state, *path, name);
}

Answer ExportDrawingCommand(ProgramState& state) {
    Project& project = state.project();
    std::vector<std::string> names;
    int active = 0;
    for (std::size_t i = 1; i <= project.NetlistCollection.Count(); ++i) {
        const CNetList* netlist = project.NetlistCollection.Item(i)->get();
        if (netlist == project.ActiveNetlist)
            active = static_cast<int>(names.size());
        names.push_back(netlist->NetlistName);
    }
    const auto picked =
        state.ui().Choose(Choice{kExportCaption, "Netlist to export:", names, active});
    if (!picked || *picked < 0 || *picked >= static_cast<int>(names.size()))
        return Answer::Cancel;
    const std::string& name = names[static_cast<std::size_t>(*picked)];
    const auto path =
        state.ui().ChooseFile(FileDialog{kExportCaption,
                                         "WireViz Files (*.yml)|*.yml|From/To Lists (*.csv)|*.csv",
                                         {},
                                         name + ".yml",
                                         true});
    if (!path)
        return Answer::Cancel;
    const std::string kind = file::UpperExtensionOf(*path);
    if (kind != "YML" && kind != "YAML" && kind != "CSV")
        return stop(state, kExportCaption,
                    "Name the file .yml for WireViz or .csv for a from/to list.");
    const Drawing drawing = DrawingOfNetlist(*project.FindNetlist(name), *project.MainNetlist);
    std::vector<std::string> notes;
    const std::string text =
        kind == "CSV" ? FromToText(drawing, notes) : WireVizText(drawing, notes);
    std::ofstream out(*path, std::ios::binary);
    if (!(out << text) || !out.flush())
        return stop(state, kExportCaption, "Cannot write " + *path);
    if (!notes.empty()) {
        std::string list = "Written without what the drawing cannot hold:";
        for (const std::string& note : notes)
            list += "\n" + note;
        state.ui().Show(MessageBox{kExportCaption, list, Buttons::Ok, Icon::Information, 1});
    }
    state.ui().SetStatusText(name + " exported to " + file::FileNameOf(*path));
    return Answer::Yes;
}

} // namespace zolt::interchange
