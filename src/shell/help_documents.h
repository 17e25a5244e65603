#pragma once

#include "core/ports/document_viewer.h"
#include "core/table_kinds.h"
#include "shell/command_table.h"

#include <string>
#include <vector>

namespace zolt {
class Ui;
}

namespace zolt::shell {

// A document of the Help menu: the command that opens it and its page in the help folder.
struct HelpDocument {
    Command command;
    const char* page;
    const char* title;
};

// The Help menu's documents, ZOLT Help first.
const std::vector<HelpDocument>& HelpDocuments();
const HelpDocument* FindHelpDocument(Command command);
// The document of a tool identifier; nullptr when none opens with it.
const HelpDocument* FindHelpDocument(const std::string& id);

// The page F1 shows for the window of a table.
std::string TableHelpPage(TableId table);

// What the user reads when the system could not show `target`.
std::string ViewFailureText(ViewFailure failure, const std::string& target);

// Opens the help pages and guides in the system's browser, and says why not when it cannot.
class HelpViewer {
public:
    HelpViewer(std::string helpFolder, DocumentViewer& viewer, Ui& ui)
        : folder_(std::move(helpFolder)), viewer_(viewer), ui_(ui) {}

    const std::string& Folder() const { return folder_; }
    // A page of ZOLT Help; a missing one shows "ZOLT Help File Not Found".
    void ShowHelpPage(const std::string& page);
    // A guide of the Help menu, by its command.
    void ShowDocument(const HelpDocument& document);
    void ShowWebSite();

private:
    void open(const std::string& target, const std::string& caption);

    std::string folder_;
    DocumentViewer& viewer_;
    Ui& ui_;
};

} // namespace zolt::shell
