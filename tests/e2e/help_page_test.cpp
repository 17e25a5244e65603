// The help page of the sequence commands against the dictionary zolt-cli lists.
#include "cli_runner.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <regex>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;
using zolt::test::ReadFile;
using zolt::test::RunCommand;

const fs::path kPage = zolt::test::kRepository / "data" / "help" / "sequence-commands.html";

std::string cli(const std::string& arguments) {
    const auto run = RunCommand("'" ZOLT_BIN_DIR "/zolt-cli' " + arguments);
    EXPECT_EQ(run.status, 0) << run.out;
    return run.out;
}

std::string trimmed(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string::npos ? ""
                                      : text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::string unescaped(std::string text) {
    for (const auto& [entity, c] :
         {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
        for (auto at = text.find(entity); at != std::string::npos; at = text.find(entity, at + 1))
            text.replace(at, std::string(entity).size(), c);
    return text;
}

using Row = std::vector<std::string>;

// name, type, low, high, description of each line of `zolt-cli commands`.
std::vector<Row> listed(const std::string& out) {
    std::vector<Row> rows;
    std::istringstream in(out);
    std::string line;
    std::getline(in, line); // the heading
    while (std::getline(in, line))
        rows.push_back({trimmed(line.substr(0, 16)), trimmed(line.substr(16, 6)),
                        trimmed(line.substr(22, 6)), trimmed(line.substr(28, 7)),
                        line.size() > 35 ? line.substr(35) : ""});
    return rows;
}

TEST(HelpPage, TheShippedCommandPageIsTheOneZoltCliMakes) {
    EXPECT_EQ(ReadFile(kPage), cli("commands --html"))
        << "make it anew: zolt-cli commands --html > data/help/sequence-commands.html";
}

TEST(HelpPage, ListsEveryCommandOfTheDictionaryWithTheProgramsThatKnowIt) {
    const std::string page = ReadFile(kPage);
    static const std::regex row(
        "<tr><td>(.*)</td><td>(.*)</td><td>(.*)</td><td>(.*)</td><td>(.*)</td><td>(.*)</td></tr>");
    std::vector<Row> shown;
    std::vector<std::string> programs;
    for (auto it = std::sregex_iterator(page.begin(), page.end(), row);
         it != std::sregex_iterator(); ++it) {
        Row r;
        for (int i = 1; i <= 5; ++i)
            r.push_back(unescaped((*it)[i]));
        shown.push_back(r);
        programs.push_back((*it)[6]);
    }
    const std::vector<Row> grv = listed(cli("commands --grv"));
    ASSERT_GT(grv.size(), 100u);
    EXPECT_EQ(shown, grv);
    std::set<std::string> plain;
    for (const Row& r : listed(cli("commands")))
        plain.insert(r[0]);
    for (std::size_t i = 0; i < shown.size() && i < programs.size(); ++i)
        EXPECT_EQ(programs[i], plain.contains(shown[i][0]) ? ".zlf, .grv" : ".grv") << shown[i][0];
    EXPECT_EQ(plain.size() + 2, grv.size()) << "PBEGIN and PEND belong to .grv programs only";
}

} // namespace
