#include "assembly/feature_codes.h"

#include "core/netlist_operations.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/table_columns.h"
#include "core/table_kinds.h"
#include "core/value.h"

#include <algorithm>
#include <utility>

namespace zolt {
namespace {

std::vector<std::string> splitAtCommas(const std::string& text) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = text.find(',', start);
        parts.push_back(text.substr(start, comma - start));
        if (comma == std::string::npos)
            return parts;
        start = comma + 1;
    }
}

bool contains(const std::vector<std::string>& list, const std::string& item) {
    return std::find(list.begin(), list.end(), item) != list.end();
}

} // namespace

std::string FeatureCodeName(const std::string& line) {
    return line.substr(0, line.find(','));
}

std::vector<std::string> FeatureCodeNetlists(const std::string& line) {
    const std::size_t comma = line.find(',');
    if (comma == std::string::npos)
        return {};
    return splitAtCommas(line.substr(comma + 1));
}

FeatureCodes FeatureCodes::FromLines(const std::vector<std::string>& lines) {
    FeatureCodes codes;
    for (const std::string& line : lines)
        codes.Add(FeatureCodeName(line), FeatureCodeNetlists(line));
    return codes;
}

std::vector<std::string> FeatureCodes::ToLines() const {
    std::vector<std::string> lines;
    for (const FeatureCode& code : codes_) {
        std::string line = code.Name;
        for (const std::string& netlist : code.Netlists)
            line += "," + netlist;
        lines.push_back(std::move(line));
    }
    return lines;
}

bool FeatureCodes::Add(const std::string& name, std::vector<std::string> netlists) {
    if (Item(name))
        return false;
    codes_.push_back(FeatureCode{name, std::move(netlists)});
    return true;
}

bool FeatureCodes::Rename(const std::string& oldName, const std::string& newName) {
    const FeatureCode* code = Item(oldName);
    if (!code || (newName != oldName && Item(newName)))
        return false;
    FeatureCode moved{newName, code->Netlists};
    Remove(oldName);
    codes_.push_back(std::move(moved));
    return true;
}

FeatureCode* FeatureCodes::Item(const std::string& name) {
    return const_cast<FeatureCode*>(std::as_const(*this).Item(name));
}

const FeatureCode* FeatureCodes::Item(const std::string& name) const {
    const auto it = std::find_if(codes_.begin(), codes_.end(),
                                 [&](const FeatureCode& c) { return c.Name == name; });
    return it == codes_.end() ? nullptr : &*it;
}

FeatureCode* FeatureCodes::Item(std::size_t position) {
    return position >= 1 && position <= codes_.size() ? &codes_[position - 1] : nullptr;
}

bool FeatureCodes::Remove(const std::string& name) {
    const auto it = std::find_if(codes_.begin(), codes_.end(),
                                 [&](const FeatureCode& c) { return c.Name == name; });
    if (it == codes_.end())
        return false;
    codes_.erase(it);
    return true;
}

std::string FeatureCodes::DefaultName() const {
    std::size_t k = codes_.size() + 1;
    for (const FeatureCode& code : codes_)
        if (code.Name == "FeatureCode" + std::to_string(k))
            ++k;
    return "FeatureCode" + std::to_string(k);
}

void FeatureCodes::SetNetlist(const std::string& code, const std::string& netlist, bool ticked) {
    FeatureCode* item = Item(code);
    if (!item)
        return;
    auto& list = item->Netlists;
    const auto it = std::find(list.begin(), list.end(), netlist);
    if (ticked && it == list.end())
        list.push_back(netlist);
    else if (!ticked && it != list.end())
        list.erase(it);
}

std::vector<std::string> CandidateNetlists(const ProgramState& state) {
    std::vector<std::string> names;
    const CNetList* manual = nullptr;
    state.project().NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& netlist) {
        if (vb::UCase(netlist->NetlistName) == kManualNetlists)
            manual = netlist.get();
        else
            names.push_back(netlist->NetlistName);
    });
    if (const Table* codes = manual ? manual->GetTable(table::Code) : nullptr) {
        const Grid& grid = codes->gridarray();
        for (int row = 1; row <= grid.Rows(); ++row)
            if (row == 1 || grid.Text(row, code_column::NetlistName) !=
                                grid.Text(row - 1, code_column::NetlistName))
                names.push_back(grid.Text(row, code_column::NetlistName));
    }
    return names;
}

NameEdit EditFeatureCodeName(FeatureCodes& codes, const std::string& oldName,
                             const std::string& typed, Ui& ui) {
    if (typed.empty())
        return NameEdit::Refused;
    if (typed == oldName)
        return NameEdit::Unchanged;
    // The stored line ends the name at its first comma.
    if (typed.find(',') != std::string::npos) {
        ui.Show(MessageBox{"Feature Code Naming Violation",
                           "A Feature Code name cannot hold a comma.", Buttons::Ok, Icon::Stop, 1});
        return NameEdit::Violation;
    }
    if (codes.Item(typed)) {
        ui.Show(MessageBox{"Feature Code Naming Violation",
                           "Each Feature Code must have a unique name.", Buttons::Ok, Icon::Stop,
                           1});
        return NameEdit::Violation;
    }
    codes.Rename(oldName, typed);
    return NameEdit::Renamed;
}

std::vector<std::string> SelectFeatureCodeLines(const std::vector<std::string>& data,
                                                const std::vector<std::string>& ticked) {
    std::vector<std::string> lines;
    for (const std::string& name : ticked) {
        const auto it = std::find_if(data.begin(), data.end(), [&](const std::string& line) {
            return FeatureCodeName(line) == name;
        });
        if (it != data.end())
            lines.push_back(*it);
    }
    return lines;
}

std::vector<std::string> TickedFeatureCodes(const std::vector<std::string>& data,
                                            const std::vector<std::string>& selected) {
    std::vector<std::string> names;
    for (const std::string& line : data)
        if (contains(selected, line))
            names.push_back(FeatureCodeName(line));
    return names;
}

std::vector<std::string> ImportFeatureCodeList(const std::string& text,
                                               const std::vector<std::string>& names) {
    std::vector<std::string> found;
    std::string value;
    const auto take = [&] {
        std::string v = vb::Trim(value);
        if (v.size() >= 2 && v.front() == '"' && v.back() == '"')
            v = v.substr(1, v.size() - 2);
        if (contains(names, v) && !contains(found, v))
            found.push_back(v);
        value.clear();
    };
    for (const char c : text) {
        if (c == ',' || c == '\n' || c == '\r')
            take();
        else
            value += c;
    }
    take();
    return found;
}

std::vector<std::string> ChosenNetlistsOf(const std::vector<std::string>& selectedLines) {
    std::vector<std::string> chosen;
    for (const std::string& line : selectedLines)
        for (const std::string& netlist : FeatureCodeNetlists(line))
            if (!contains(chosen, netlist))
                chosen.push_back(netlist);
    return chosen;
}

} // namespace zolt
