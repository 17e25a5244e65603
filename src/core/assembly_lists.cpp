#include "core/assembly_lists.h"

#include "core/value.h"

namespace zolt {
namespace {

// Netlist names are keys of the project: they compare without case.
bool sameName(const std::string& a, const std::string& b) {
    return vb::UCase(vb::Trim(a)) == vb::UCase(vb::Trim(b));
}

// The netlists of a feature code line stand behind its name, one after each comma.
std::vector<std::string> splitLine(const std::string& line) {
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (;;) {
        const auto comma = line.find(',', start);
        parts.push_back(line.substr(start, comma == std::string::npos ? comma : comma - start));
        if (comma == std::string::npos)
            return parts;
        start = comma + 1;
    }
}

std::string joinLine(const std::vector<std::string>& parts) {
    std::string line;
    for (std::size_t i = 0; i < parts.size(); ++i)
        line += (i ? "," : "") + parts[i];
    return line;
}

// Keyed lists take their entry out and back in at the same place under the new key.
template <typename List>
void renameEntries(List& list, const std::string& oldName, const std::string& newName) {
    for (std::size_t i = 1; i <= list.Count(); ++i) {
        if (!sameName(list.Item(i)->Name, oldName))
            continue;
        const bool keyed = list.KeyAt(i).has_value();
        auto item = *list.Remove(i);
        item.Name = newName;
        list.Add(std::move(item), keyed ? std::optional<std::string>(newName) : std::nullopt, i);
    }
}

template <typename List> void removeFirstNamed(List& list, const std::string& name) {
    for (std::size_t i = 1; i <= list.Count(); ++i)
        if (sameName(list.Item(i)->Name, name)) {
            list.Remove(i);
            return;
        }
}

} // namespace

void AssemblyData::RenameNetlist(const std::string& oldName, const std::string& newName) {
    for (auto& line : FeatureCodeData) {
        std::vector<std::string> parts = splitLine(line);
        for (std::size_t i = 1; i < parts.size(); ++i)
            if (sameName(parts[i], oldName))
                parts[i] = newName;
        line = joinLine(parts);
    }
    renameEntries(AssemblyOrderList, oldName, newName);
    renameEntries(NetlistInfoList, oldName, newName);
}

void AssemblyData::RemoveNetlist(const std::string& name) {
    // A code keeps its name, even when a netlist was called the same.
    for (auto& line : FeatureCodeData) {
        const std::vector<std::string> parts = splitLine(line);
        std::vector<std::string> kept{parts.front()};
        for (std::size_t i = 1; i < parts.size(); ++i)
            if (!sameName(parts[i], name))
                kept.push_back(parts[i]);
        line = joinLine(kept);
    }
    removeFirstNamed(AssemblyOrderList, name);
    removeFirstNamed(NetlistInfoList, name);
}

} // namespace zolt
