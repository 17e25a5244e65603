#include "analyzer/fix_place.h"

#include "analyzer/component_kind.h"
#include "compare/row_places.h"

namespace zolt::analyzer {

std::optional<EditPlace> FixPlace(const Project& project, const UndetectedFault& undetected,
                                  const PointNames& names, const Harness& harness) {
    if (undetected.line > 0)
        return compare::SequencePlace(static_cast<int>(undetected.line));
    const Fault& fault = undetected.fault.fault;
    if (fault.component >= 0) {
        const auto& c = harness.components[static_cast<std::size_t>(fault.component)];
        return compare::ComponentPlace(project, ComponentName(c.kind, c.number));
    }
    if (fault.switchIndex >= 0) {
        const auto& s = harness.switches[static_cast<std::size_t>(fault.switchIndex)];
        return compare::SwitchPlace(project, s.connector, s.name);
    }
    if (fault.a < 0)
        return std::nullopt;
    return compare::PinPlace(project, names.Name(fault.a));
}

} // namespace zolt::analyzer
