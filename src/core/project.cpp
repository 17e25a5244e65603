#include "core/project.h"

#include "core/value.h"

namespace zolt {

CNetList* Project::FindNetlist(const std::string& name) const {
    const auto* found = NetlistCollection.Item(std::string_view(name));
    return found ? found->get() : nullptr;
}

CNetList* Project::NetlistByIndex(std::int32_t index) const {
    CNetList* found = nullptr;
    NetlistCollection.ForEach([&](const std::unique_ptr<CNetList>& n) {
        if (!found && n->netlistIndex == index)
            found = n.get();
    });
    return found;
}

std::string Project::GetComponentSide(const std::string& name, int side) const {
    const std::string key = vb::UCase(vb::Trim(name));
    std::string result;
    bool found = false;
    DeviceList.ForEach([&](const CComponent& c) {
        if (!found && vb::UCase(vb::Trim(c.ComponentName)) == key) {
            found = true;
            result = side == 1 ? c.Side1 : c.Side2;
        }
    });
    return result;
}

} // namespace zolt
