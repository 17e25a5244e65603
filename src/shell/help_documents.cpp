#include "shell/help_documents.h"

#include "core/app_info.h"
#include "core/ports/ui.h"

#include <filesystem>

namespace zolt::shell {
namespace {

const char* const kHelpPage = "index.html";

// The program a document needs, named in the association boxes; empty when unknown.
std::string viewerOf(const std::string& target) {
    const auto extension = std::filesystem::path(target).extension().string();
    if (target.starts_with("http://") || target.starts_with("https://") || extension == ".html" ||
        extension == ".htm")
        return "A web browser";
    if (extension == ".pdf")
        return "A PDF viewer";
    return {};
}

std::string neededSentence(const std::string& target) {
    const std::string viewer = viewerOf(target);
    return viewer.empty() ? "It is needed in order to view this selection."
                          : viewer + " is needed in order to view this selection.";
}

} // namespace

const std::vector<HelpDocument>& HelpDocuments() {
    static const std::vector<HelpDocument> documents = {
        {Command::Help, kHelpPage, "ZOLT Help"},
        {Command::QuickStart, "quick-start.html", "Quick Start Guide"},
        {Command::AnalyzerGuide, "analyzer-guide.html", "Analyzer User Guide"},
        {Command::GRVHelp, "grv-guide.html", "GRV User Guide"},
        {Command::ApplicationNotes, "application-notes.html", "Application Notes"},
    };
    return documents;
}

const HelpDocument* FindHelpDocument(Command command) {
    for (const HelpDocument& d : HelpDocuments())
        if (command == d.command)
            return &d;
    return nullptr;
}

const HelpDocument* FindHelpDocument(const std::string& id) {
    const auto command = CommandNamed(id);
    return command ? FindHelpDocument(*command) : nullptr;
}

std::string TableHelpPage(TableId table) {
    return KindOf(table).helpPage;
}

std::string ViewFailureText(ViewFailure failure, const std::string& target) {
    switch (failure) {
    case ViewFailure::None:
        return {};
    case ViewFailure::DdeTimeout:
        return "DDE Time out";
    case ViewFailure::DdeFailed:
        return "DDE transaction failed";
    case ViewFailure::DdeBusy:
        return "DDE busy";
    case ViewFailure::DllNotFound:
        return "DLL not found";
    case ViewFailure::Unknown:
        return "An unknown error has occurred.";
    case ViewFailure::NoAssociation:
        return "No association for file extension. " + neededSentence(target);
    case ViewFailure::InvalidAssociation:
        return "Incomplete or invalid file association. " + neededSentence(target);
    case ViewFailure::FileNotFound:
        return target + " was not found.";
    case ViewFailure::PathNotFound:
        return "Path not found";
    case ViewFailure::AccessDenied:
        return "Access denied";
    case ViewFailure::OutOfMemory:
        return "Out of memory";
    case ViewFailure::BadExecutable:
        return "Invalid EXE file or error in EXE image";
    case ViewFailure::SharingViolation:
        return "A sharing violation occurred";
    }
    return "An unknown error has occurred.";
}

void HelpViewer::ShowHelpPage(const std::string& page) {
    const std::string path = (std::filesystem::path(folder_) / page).string();
    if (!std::filesystem::is_regular_file(path)) {
        ui_.Message("ZOLT Help File Not Found\n\n" + path, kAppTitle, Buttons::Ok, Icon::Warning);
        return;
    }
    open(path, "ZOLT Help");
}

void HelpViewer::ShowDocument(const HelpDocument& document) {
    if (document.page == std::string(kHelpPage)) {
        ShowHelpPage(kHelpPage);
        return;
    }
    const std::string path = (std::filesystem::path(folder_) / document.page).string();
    if (!std::filesystem::is_regular_file(path)) {
        ui_.Message(ViewFailureText(ViewFailure::FileNotFound, path), document.title, Buttons::Ok,
                    Icon::Warning);
        return;
    }
    open(path, document.title);
}

void HelpViewer::ShowWebSite() {
    open(kWebSite, "Thessor Web Site");
}

void HelpViewer::open(const std::string& target, const std::string& caption) {
    const ViewFailure failure = viewer_.Open(target);
    if (failure != ViewFailure::None)
        ui_.Message(ViewFailureText(failure, target), caption, Buttons::Ok, Icon::Warning);
}

} // namespace zolt::shell
