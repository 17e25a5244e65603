#include "core/assembly_lists.h"

namespace zolt {
namespace {

template <typename List> void removeFirstNamed(List& list, const std::string& name) {
    for (std::size_t i = 1; i <= list.Count(); ++i)
        if (list.Item(i)->Name == name) {
            list.Remove(i);
            return;
        }
}

} // namespace

void AssemblyData::RemoveNetlist(const std::string& name) {
    removeFirstNamed(AssemblyOrderList, name);
    // Entries naming several netlists lose this one; single entries stay.
    for (auto& entry : FeatureCodeData) {
        if (entry.find(',') == std::string::npos)
            continue;
        std::vector<std::string> kept;
        std::size_t start = 0;
        while (start <= entry.size()) {
            const auto comma = entry.find(',', start);
            const auto part =
                entry.substr(start, comma == std::string::npos ? std::string::npos : comma - start);
            if (part != name)
                kept.push_back(part);
            if (comma == std::string::npos)
                break;
            start = comma + 1;
        }
        std::string joined;
        for (std::size_t i = 0; i < kept.size(); ++i)
            joined += (i ? "," : "") + kept[i];
        entry = joined;
    }
    removeFirstNamed(NetlistInfoList, name);
}

} // namespace zolt
