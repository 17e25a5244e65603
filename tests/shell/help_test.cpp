#include "core/app_info.h"
#include "desktop.h"
#include "import/zip_archive.h"
#include "shell/about_dialog.h"
#include "shell/help_documents.h"
#include "support/file_contents.h"

#include <deque>
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace zolt::shell {
namespace {

namespace fs = std::filesystem;
using test_desktop::Desktop;

const fs::path kHelp = fs::path(ZOLT_BIN_DIR) / "help";

// Writes down what it was asked to show and answers with a set failure.
struct RecordingViewer final : DocumentViewer {
    std::vector<std::string>* opened;
    ViewFailure answer = ViewFailure::None;
    ViewFailure Open(const std::string& target) override {
        opened->push_back(target);
        return answer;
    }
};

struct HelpDesktop : Desktop {
    std::vector<std::string> opened;
    HelpDesktop() {
        auto viewer = std::make_unique<RecordingViewer>();
        viewer->opened = &opened;
        window.UseDocumentViewer(std::move(viewer));
    }
};

// The local pages a page links to, by href and src; web addresses are left to the browser.
std::vector<std::string> links(const std::string& html) {
    static const std::regex link(R"re((?:href|src)\s*=\s*"([^"]*)")re");
    std::vector<std::string> found;
    for (auto it = std::sregex_iterator(html.begin(), html.end(), link);
         it != std::sregex_iterator(); ++it)
        found.push_back((*it)[1]);
    return found;
}

TEST(Help, EveryPageIsReachableFromTheHelpMenuAndNoLinkIsBroken) {
    HelpDesktop d;
    for (const HelpDocument& document : HelpDocuments())
        d.window.ToolClick(document.command);
    ASSERT_EQ(d.opened.size(), HelpDocuments().size()) << "each command opens its page";
    EXPECT_TRUE(d.ui.Boxes().empty());

    std::set<fs::path> reached;
    std::deque<fs::path> queue(d.opened.begin(), d.opened.end());
    while (!queue.empty()) {
        const fs::path page = fs::weakly_canonical(queue.front());
        queue.pop_front();
        if (!reached.insert(page).second || page.extension() != ".html")
            continue;
        const std::string html = test::ReadFile(page);
        for (const std::string& target : links(html)) {
            if (target.starts_with("http://") || target.starts_with("https://"))
                continue;
            const auto hash = target.find('#');
            const fs::path file = page.parent_path() / target.substr(0, hash);
            ASSERT_TRUE(fs::is_regular_file(file)) << page << " links to missing " << target;
            if (hash != std::string::npos) {
                EXPECT_NE(test::ReadFile(file).find("id=\"" + target.substr(hash + 1) + "\""),
                          std::string::npos)
                    << page << " links to a missing anchor " << target;
            }
            queue.push_back(file);
        }
    }
    for (const auto& entry : fs::recursive_directory_iterator(kHelp))
        if (entry.is_regular_file()) {
            EXPECT_TRUE(reached.contains(fs::weakly_canonical(entry.path())))
                << entry.path() << " cannot be reached from the Help menu";
        }
}

TEST(Help, F1OpensThePageOfTheActiveTableWindowAndTheContentsWithoutOne) {
    HelpDesktop d;
    d.window.ToolClick("ID_Help");
    ASSERT_EQ(d.opened.size(), 1u);
    EXPECT_EQ(fs::path(d.opened[0]).filename(), "index.html");
    d.window.ToolClick("ID_Fixture");
    d.window.ToolClick("ID_Help");
    EXPECT_EQ(fs::path(d.opened.back()).filename(), TableHelpPage(table::Fixture));
    for (const TableId table : kAllTables)
        EXPECT_TRUE(fs::is_regular_file(kHelp / TableHelpPage(table))) << ToInt(table);
}

TEST(Help, MissingFilesAndAFailingViewerAreReportedInTheirOwnWords) {
    test::QtApp();
    ScriptedUi ui;
    std::vector<std::string> opened;
    RecordingViewer viewer;
    viewer.opened = &opened;
    HelpViewer nowhere("/no/such/zolt/help", viewer, ui);
    nowhere.ShowHelpPage("index.html");
    nowhere.ShowDocument(*FindHelpDocument("ID_QuickStart"));
    EXPECT_TRUE(opened.empty());
    ASSERT_EQ(ui.Boxes().size(), 2u);
    EXPECT_TRUE(ui.Boxes()[0].text.starts_with("ZOLT Help File Not Found"));
    EXPECT_EQ(ui.Boxes()[1].text, "/no/such/zolt/help/quick-start.html was not found.");
    EXPECT_EQ(ui.Boxes()[1].caption, "Quick Start Guide");

    ui.ClearEvents();
    viewer.answer = ViewFailure::NoAssociation;
    HelpViewer help(kHelp.string(), viewer, ui);
    help.ShowDocument(*FindHelpDocument("ID_GRVHelp"));
    help.ShowWebSite();
    ASSERT_EQ(ui.Boxes().size(), 2u);
    EXPECT_EQ(ui.Boxes()[0].text, ViewFailureText(ViewFailure::NoAssociation, opened.front()));
    EXPECT_EQ(ui.Boxes()[1].caption, "Thessor Web Site");
    EXPECT_EQ(opened.back(), kWebSite);
}

// A failed view names the viewer the target needs; a missing file is named in
// MissingFilesAndAFailingViewerAreReportedInTheirOwnWords.
TEST(ViewFailureWording, NamesTheViewerTheTargetNeeds) {
    // clang-format off
    for (const auto& [failure, target, text] : {
             std::tuple{ViewFailure::InvalidAssociation, "/x/Guide.pdf", "Incomplete or invalid file association. A PDF viewer is needed in order to view this selection."},
             {ViewFailure::NoAssociation, "/x/notes.xyz", "No association for file extension. It is needed in order to view this selection."},
             {ViewFailure::NoAssociation, "https://example.org", "No association for file extension. A web browser is needed in order to view this selection."}})
        EXPECT_EQ(ViewFailureText(failure, target), text) << target;
    // clang-format on
}

TEST(About, NamesTheVersionTheLibrariesWithTheirLicencesAndTheFolders) {
    test::QtApp();
    const QString body = AboutDialog::Body(
        {{"Help", "/opt/zolt/help"}, {"ProgramsDirectory", "/home/u/Thessor Data/Programs"}});
    for (const QString& part :
         {QStringLiteral("ZOLT 6.0"), QStringLiteral("6.0.0 (Build 1)"),
          QString::fromLatin1(qVersion()), QStringLiteral("Lesser General Public License"),
          QString::fromStdString(import::ZipLibraryVersion()), QStringLiteral("BSD 3-Clause"),
          QStringLiteral("/opt/zolt/help"), QStringLiteral("/home/u/Thessor Data/Programs")})
        EXPECT_TRUE(body.contains(part)) << part.toStdString();
}

} // namespace
} // namespace zolt::shell
