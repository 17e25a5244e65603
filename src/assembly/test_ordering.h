#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace zolt {

class ProgramState;
class Ui;

// A netlist as it stands on the assembly line.
struct OrderedNetlist {
    std::string Name;
    std::string Description;
    bool PartOfMain = false;
};

// An assembly station: the netlists tested there, in order, and the pattern
// (0 for none, 1 to 50) that ties them to a block of the sequence.
struct Station {
    std::string Name;
    int Pattern = 0;
    std::vector<OrderedNetlist> Netlists;
};

// Where a netlist stands: its station and its index among that station's netlists.
struct NetlistPlace {
    std::size_t station = 0;
    std::size_t index = 0;
};

// The assembly line being laid out: the working copy of the netlist
// information and the assembly order while the Assembly Order dialog is open.
// Station 0 is "General", which holds the netlists not placed yet; it cannot
// be renamed, deleted or given a pattern. Stations stay sorted by pattern.
class TestOrdering {
public:
    static constexpr int kMaxPattern = 50;
    static constexpr const char* kGeneral = "General";

    // Every netlist but "MANUAL NETLISTS", then the manual ones, under General;
    // then each netlist of the assembly order moves to its station.
    static TestOrdering Load(const ProgramState& state);

    const std::vector<Station>& Stations() const { return stations_; }
    std::optional<NetlistPlace> Find(const std::string& netlist) const;
    std::optional<std::size_t> FindStation(const std::string& name) const;

    // The icon keys and the label the tree shows.
    static std::string StationImage(const Station& station);
    static std::string NetlistImage(const OrderedNetlist& netlist);
    static std::string NetlistText(const OrderedNetlist& netlist);

    // "Station" and the first number no station's name matches in one pass.
    std::string NewStationName() const;
    // A new station behind `selected`, with its pattern (0 behind General);
    // the index of the new station.
    std::size_t NewStation(std::size_t selected);
    // An empty or unchanged label keeps the old name; a name another station
    // has gets the naming violation box. True when the station was renamed.
    bool RenameStation(std::size_t station, const std::string& label, Ui& ui);
    // Asks first; the netlists go back under General. True when deleted.
    bool DeleteStation(std::size_t station, Ui& ui);
    // Sets the pattern and moves the station to keep the patterns ascending;
    // the station's new index.
    std::size_t SetPattern(std::size_t station, int pattern);

    // Asks for the description through the Ui; false when cancelled.
    bool EditDescription(const std::string& netlist, Ui& ui);
    void SetDescription(const std::string& netlist, const std::string& description);
    void SetPartOfMain(const std::string& netlist, bool partOfMain);
    void TogglePartOfMain(const std::string& netlist);
    // Moves a netlist under a station, before the netlist at `index` (at the
    // end when `index` is past the last).
    bool MoveNetlist(const std::string& netlist, std::size_t station, std::size_t index);
    // Whether a station may go to `index` among the stations: General stays
    // first and the patterns stay ascending.
    bool CanMoveStation(std::size_t station, std::size_t index) const;
    // The moved station's new index, or nullopt when the move is refused.
    std::optional<std::size_t> MoveStation(std::size_t station, std::size_t index);

    // OK of the dialog: asks before stations without netlists are dropped
    // (false: back to the dialog), then rewrites the netlist information and
    // the assembly order and marks the document changed.
    bool Accept(ProgramState& state, Ui& ui) const;

private:
    void insertStation(Station station, std::size_t index);
    OrderedNetlist* netlist(const std::string& name);

    std::vector<Station> stations_;
};

} // namespace zolt
