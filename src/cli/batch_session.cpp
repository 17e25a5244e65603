#include "cli/batch_session.h"

#include "cli/commands.h"
#include "cli/script_words.h"
#include "file/table_factory.h"

#include <istream>
#include <ostream>

namespace zolt::cli {

BatchSession::BatchSession(std::ostream& out) : BatchSession(out, ownSettings_) {}

BatchSession::BatchSession(std::ostream& out, SettingsStore& settings)
    : out_(out), state_(Ports{ui_, settings, frame_, frame_}, MakeTable) {
    ui_.OnEvent([this](const ScriptedUi::Event& e) { printEvent(e); });
    state_.params().LoadDirectoryParameters(false);
    state_.params().LoadCommParameters();
    RegisterAllCommands(*this);
}

void BatchSession::printEvent(const ScriptedUi::Event& e) {
    using Kind = ScriptedUi::Event::Kind;
    switch (e.kind) {
    case Kind::Box:
        out_ << "BOX " << Quoted(e.caption) << ' ' << Quoted(e.text) << " -> " << e.answer << '\n';
        break;
    case Kind::Prompt:
        out_ << "PROMPT " << Quoted(e.caption) << ' ' << Quoted(e.text) << " -> "
             << (e.cancelled ? std::string("CANCEL") : Quoted(e.answer)) << '\n';
        break;
    case Kind::Choice:
        out_ << "CHOICE " << Quoted(e.caption) << ' ' << Quoted(e.text) << " -> "
             << (e.cancelled ? std::string("CANCEL") : Quoted(e.answer)) << '\n';
        break;
    case Kind::File:
        out_ << "FILE " << Quoted(e.caption) << " -> "
             << (e.cancelled ? std::string("CANCEL") : Quoted(e.answer)) << '\n';
        break;
    case Kind::Status:
        out_ << "STATUS " << Quoted(e.text) << '\n';
        break;
    case Kind::Debug:
        out_ << "DEBUG " << Quoted(e.text) << '\n';
        break;
    }
}

void BatchSession::Register(const std::string& command, Handler handler) {
    commands_[command] = std::move(handler);
}

BatchSession::Handler BatchSession::Registered(const std::string& command) const {
    const auto found = commands_.find(command);
    return found == commands_.end() ? Handler() : found->second;
}

void BatchSession::RunWords(const Args& words) {
    if (words.empty())
        return;
    const auto it = commands_.find(words[0]);
    if (it == commands_.end())
        throw CommandError("unknown command '" + words[0] + "'");
    it->second(*this, Args(words.begin() + 1, words.end()));
}

int BatchSession::Run(std::istream& script, std::ostream& err) {
    std::string line;
    int number = 0;
    while (std::getline(script, line)) {
        ++number;
        try {
            const auto words = SplitWords(line);
            Args texts;
            quoted_.clear();
            for (const auto& w : words) {
                texts.push_back(w.text);
                quoted_.push_back(w.quoted);
            }
            RunWords(texts);
        } catch (const std::exception& e) {
            out_.flush();
            err << "ERROR line " << number << ": " << e.what() << '\n';
            return 2;
        }
    }
    out_.flush();
    return 0;
}

ProgramState& BatchSession::RequireProject() {
    if (!state_.document().FileOpen || !state_.project().MainNetlist)
        throw CommandError("no project is open (use 'new' first)");
    return state_;
}

void RequireArgs(const BatchSession::Args& args, std::size_t min, std::size_t max,
                 const std::string& usage) {
    if (args.size() < min || args.size() > max)
        throw CommandError("usage: " + usage);
}

int ParseInt(const std::string& text, const std::string& what) {
    std::size_t used = 0;
    int value = 0;
    try {
        value = std::stoi(text, &used);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used == 0 || used != text.size())
        throw CommandError(what + " must be a whole number, not '" + text + "'");
    return value;
}

} // namespace zolt::cli
