#pragma once

// What the scans of a netlist find on a harness: continuity of each net, shorts
// between nets (hard, and soft through a resistance), and the component checks.
// Each check is a function of its own so that a single fault can be judged by
// the few nets and conductors it touches.

#include "analyzer/conductors.h"
#include "analyzer/harness.h"
#include "analyzer/point_names.h"
#include "compile/program_image.h"

#include <optional>
#include <string>
#include <vector>

namespace zolt::analyzer {

enum class ErrorKind { Open, Short, SoftShort, Component, Switch };

struct ScanError {
    ErrorKind kind = ErrorKind::Open;
    std::string text; // the error line the operator reads
    bool operator==(const ScanError&) const = default;
};

// The parts of a scan command.
enum ScanPart : int {
    kContinuity = 1,
    kShorts = 2,
    kComponents = 4,
    kSwitchesClosed = 8, // the operator works each switch and it must close
    kSwitchesOpen = 16,  // at rest every switch must read open
};

// The settings of the sequence that change what a scan reports.
// What an open error says of the net's wires: WIRES the names, COLORS the colours.
enum class WireInfo { NamesAndColors, Names, Colors };

struct ScanSettings {
    bool miswire = false; // MISWIREON: an open names where the stray end went
    WireInfo wireInfo = WireInfo::NamesAndColors;
    int lower = 0; // SETLOWER / SETUPPER: the short scan's points
    int upper = kPoints - 1;
    bool operator==(const ScanSettings&) const = default;
};

// A netlist with the net of every test point looked up once, and the test
// parameters its component checks read with.
class NetlistIndex {
public:
    NetlistIndex(const compile::ImageNetlist& netlist,
                 const std::vector<compile::ImageTestParameter>& testParameters);
    const compile::ImageNetlist& Netlist() const { return *netlist_; }
    const std::vector<compile::ImageTestParameter>& TestParameters() const {
        return *testParameters_;
    }
    int NetOf(int point) const;
    // The net's test points on the fixture.
    const std::vector<int>& Points(std::size_t net) const { return nets_[net]; }
    std::size_t NetCount() const { return nets_.size(); }
    // The wires of a net as an open error names them: " (W5, RED/BLK)"; the wire
    // that lands on `stray` alone when the image says so; empty when it names none.
    std::string WireText(std::size_t net, int stray, WireInfo info) const;

private:
    const compile::ImageNetlist* netlist_;
    const std::vector<compile::ImageTestParameter>* testParameters_;
    std::vector<int> netOf_;
    std::vector<std::vector<int>> nets_;
};

std::optional<ScanError> NetContinuity(const NetlistIndex& index, std::size_t net,
                                       const Conductors& conductors, const PointNames& names,
                                       const ScanSettings& settings);

std::vector<ScanError> ConductorShorts(const NetlistIndex& index, int conductor,
                                       const Conductors& conductors, const PointNames& names,
                                       const ScanSettings& settings);

std::optional<ScanError> SoftShortError(const NetlistIndex& index, const SoftShort& soft,
                                        const Conductors& conductors, const PointNames& names,
                                        const ScanSettings& settings);

std::optional<ScanError> ComponentError(const NetlistIndex& index,
                                        const compile::ImageComponent& component,
                                        const std::vector<HarnessComponent>& fitted,
                                        const Conductors& conductors);

// The netlist's switches that have test points: "SWITCH S1 DID NOT CLOSE" (or OPEN).
std::vector<ScanError> SwitchErrors(const NetlistIndex& index, int parts,
                                    const std::vector<HarnessSwitch>& fitted);

// Every check of the parts asked for, in the order the analyzer reports them.
std::vector<ScanError> Scan(const NetlistIndex& index, int parts, const Harness& harness,
                            const Conductors& conductors, const PointNames& names,
                            const ScanSettings& settings);

} // namespace zolt::analyzer
