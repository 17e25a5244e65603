#include "assembly/test_ordering.h"

#include "assembly/feature_codes.h"
#include "core/ports/ui.h"
#include "core/program_state.h"
#include "core/value.h"

#include <algorithm>
#include <iterator>

namespace zolt {
namespace {

constexpr const char* kCaption = "Assembly Order";

std::ptrdiff_t offset(std::size_t index) {
    return static_cast<std::ptrdiff_t>(index);
}

} // namespace

TestOrdering TestOrdering::Load(const ProgramState& state) {
    TestOrdering ordering;
    ordering.stations_.push_back(Station{kGeneral, 0, {}});
    auto& general = ordering.stations_.front().Netlists;
    for (const std::string& name : CandidateNetlists(state))
        if (!ordering.Find(name))
            general.push_back(OrderedNetlist{name, {}, false});

    const CAssemblyOrderList& order = state.project().Assembly.AssemblyOrderList;
    for (std::size_t i = order.Count(); i >= 1; --i) {
        const CNetlistInfo* info =
            state.project().Assembly.NetlistInfoList.Item(order.Item(i)->Name);
        if (!info || info->Station.empty())
            continue;
        const auto place = ordering.Find(order.Item(i)->Name);
        if (!place)
            continue;
        auto station = ordering.FindStation(info->Station);
        if (!station) {
            // Walking the order backward, a station seen earlier goes before
            // the stations of its pattern made so far.
            std::size_t at = 1;
            while (at < ordering.stations_.size() && ordering.stations_[at].Pattern < info->Pattern)
                ++at;
            ordering.insertStation(Station{info->Station, info->Pattern, {}}, at);
            station = at;
        }
        auto& from = ordering.stations_[place->station].Netlists;
        from.erase(from.begin() + offset(place->index));
        ordering.stations_[*station].Netlists.insert(
            ordering.stations_[*station].Netlists.begin(),
            OrderedNetlist{info->Name, info->Description, info->PartOfMain});
    }
    return ordering;
}

std::optional<NetlistPlace> TestOrdering::Find(const std::string& netlist) const {
    for (std::size_t s = 0; s < stations_.size(); ++s)
        for (std::size_t i = 0; i < stations_[s].Netlists.size(); ++i)
            if (vb::TextEqualsNoCase(stations_[s].Netlists[i].Name, netlist))
                return NetlistPlace{s, i};
    return std::nullopt;
}

std::optional<std::size_t> TestOrdering::FindStation(const std::string& name) const {
    for (std::size_t s = 0; s < stations_.size(); ++s)
        if (stations_[s].Name == name)
            return s;
    return std::nullopt;
}

std::string TestOrdering::StationImage(const Station& station) {
    return "Pattern" + std::to_string(station.Pattern);
}

std::string TestOrdering::NetlistImage(const OrderedNetlist& netlist) {
    return std::string(netlist.Description.empty() ? "NetlistOnly" : "NetlistDescribed") +
           (netlist.PartOfMain ? "+" : "");
}

std::string TestOrdering::NetlistText(const OrderedNetlist& netlist) {
    return netlist.Description.empty() ? netlist.Name : netlist.Name + " - " + netlist.Description;
}

std::string TestOrdering::NewStationName() const {
    int k = 1;
    for (const Station& station : stations_)
        if (station.Name == "Station" + std::to_string(k))
            ++k;
    return "Station" + std::to_string(k);
}

std::size_t TestOrdering::NewStation(std::size_t selected) {
    selected = std::min(selected, stations_.size() - 1);
    const int pattern = selected == 0 ? 0 : stations_[selected].Pattern;
    insertStation(Station{NewStationName(), pattern, {}}, selected + 1);
    return selected + 1;
}

bool TestOrdering::RenameStation(std::size_t station, const std::string& label, Ui& ui) {
    if (station == 0 || station >= stations_.size())
        return false;
    if (label.empty() || label == stations_[station].Name)
        return false;
    if (FindStation(label)) {
        ui.Show(MessageBox{"Station Naming Violation", "Each Station must have a unique name.",
                           Buttons::Ok, Icon::Stop, 1});
        return false;
    }
    stations_[station].Name = label;
    return true;
}

bool TestOrdering::DeleteStation(std::size_t station, Ui& ui) {
    if (station == 0 || station >= stations_.size())
        return false;
    const Answer answer = ui.Show(MessageBox{"Station Delete Warning",
                                             "You are about to delete: " + stations_[station].Name +
                                                 ".  This action can not be undone.",
                                             Buttons::OkCancel, Icon::Warning, 1});
    if (answer != Answer::Ok)
        return false;
    auto& general = stations_.front().Netlists;
    auto& moved = stations_[station].Netlists;
    general.insert(general.end(), std::make_move_iterator(moved.begin()),
                   std::make_move_iterator(moved.end()));
    stations_.erase(stations_.begin() + offset(station));
    return true;
}

std::size_t TestOrdering::SetPattern(std::size_t station, int pattern) {
    if (station == 0 || station >= stations_.size())
        return station;
    stations_[station].Pattern = pattern;
    std::size_t target = station;
    if (stations_[station - 1].Pattern > pattern) {
        while (stations_[target - 1].Pattern > pattern)
            --target;
    } else {
        while (target + 1 < stations_.size() && stations_[target + 1].Pattern < pattern)
            ++target;
    }
    if (target == station)
        return station;
    Station moved = std::move(stations_[station]);
    stations_.erase(stations_.begin() + offset(station));
    stations_.insert(stations_.begin() + offset(target), std::move(moved));
    return target;
}

OrderedNetlist* TestOrdering::netlist(const std::string& name) {
    const auto place = Find(name);
    return place ? &stations_[place->station].Netlists[place->index] : nullptr;
}

bool TestOrdering::EditDescription(const std::string& name, Ui& ui) {
    OrderedNetlist* item = netlist(name);
    if (!item)
        return false;
    const auto typed =
        ui.Ask(Prompt{kCaption, "Netlist Description for " + item->Name, item->Description});
    if (!typed)
        return false;
    item->Description = *typed;
    return true;
}

void TestOrdering::SetDescription(const std::string& name, const std::string& description) {
    if (OrderedNetlist* item = netlist(name))
        item->Description = description;
}

void TestOrdering::SetPartOfMain(const std::string& name, bool partOfMain) {
    if (OrderedNetlist* item = netlist(name))
        item->PartOfMain = partOfMain;
}

void TestOrdering::TogglePartOfMain(const std::string& name) {
    if (OrderedNetlist* item = netlist(name))
        item->PartOfMain = !item->PartOfMain;
}

bool TestOrdering::MoveNetlist(const std::string& name, std::size_t station, std::size_t index) {
    const auto place = Find(name);
    if (!place || station >= stations_.size())
        return false;
    auto& from = stations_[place->station].Netlists;
    OrderedNetlist moved = std::move(from[place->index]);
    from.erase(from.begin() + offset(place->index));
    auto& to = stations_[station].Netlists;
    if (place->station == station && place->index < index)
        --index;
    to.insert(to.begin() + offset(std::min(index, to.size())), std::move(moved));
    return true;
}

bool TestOrdering::CanMoveStation(std::size_t station, std::size_t index) const {
    if (station == 0 || station >= stations_.size() || index == 0 || index >= stations_.size())
        return false;
    std::vector<int> patterns;
    for (const Station& s : stations_)
        patterns.push_back(s.Pattern);
    const int moved = patterns[station];
    patterns.erase(patterns.begin() + offset(station));
    patterns.insert(patterns.begin() + offset(index), moved);
    return std::is_sorted(patterns.begin(), patterns.end());
}

std::optional<std::size_t> TestOrdering::MoveStation(std::size_t station, std::size_t index) {
    if (!CanMoveStation(station, index))
        return std::nullopt;
    Station moved = std::move(stations_[station]);
    stations_.erase(stations_.begin() + offset(station));
    stations_.insert(stations_.begin() + offset(index), std::move(moved));
    return index;
}

void TestOrdering::insertStation(Station station, std::size_t index) {
    stations_.insert(stations_.begin() + offset(std::min(index, stations_.size())),
                     std::move(station));
}

bool TestOrdering::Accept(ProgramState& state, Ui& ui) const {
    const bool emptyStation = std::any_of(stations_.begin() + 1, stations_.end(),
                                          [](const Station& s) { return s.Netlists.empty(); });
    if (emptyStation &&
        ui.Show(MessageBox{"Save GRV Netlist Information",
                           "The Stations that do not have Netlists under them will be deleted.\n"
                           "Do you wish to continue?",
                           Buttons::YesNo, Icon::None, 1}) == Answer::No)
        return false;
    CAssemblyOrderList& order = state.project().Assembly.AssemblyOrderList;
    CNetlistInfoList& info = state.project().Assembly.NetlistInfoList;
    order.Clear();
    info.Clear();
    for (std::size_t s = 1; s < stations_.size(); ++s)
        for (const OrderedNetlist& n : stations_[s].Netlists) {
            order.Add(CAssemblyRec{n.Name, true}, n.Name);
            info.Add(CNetlistInfo{n.Name, n.Description, stations_[s].Name,
                                  static_cast<std::int16_t>(stations_[s].Pattern), true,
                                  n.PartOfMain},
                     n.Name);
        }
    for (const OrderedNetlist& n : stations_.front().Netlists)
        order.Add(CAssemblyRec{n.Name, false}, n.Name);
    state.SetDirty(true);
    return true;
}

} // namespace zolt
