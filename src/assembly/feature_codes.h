#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zolt {

class ProgramState;
class Ui;

// One option of the product and the netlists that belong to it.
struct FeatureCode {
    std::string Name;
    std::vector<std::string> Netlists;
};

// The feature codes while they are being edited, keyed by name (compared
// exactly). A renamed code moves to the end, so the lines written back are in
// the order of creation with renamed codes last.
class FeatureCodes {
public:
    // Parses lines of the form Name,NetlistA,NetlistB.
    static FeatureCodes FromLines(const std::vector<std::string>& lines);
    std::vector<std::string> ToLines() const;

    // False when the name is taken.
    bool Add(const std::string& name, std::vector<std::string> netlists = {});
    bool Rename(const std::string& oldName, const std::string& newName);
    FeatureCode* Item(const std::string& name);
    const FeatureCode* Item(const std::string& name) const;
    FeatureCode* Item(std::size_t position); // 1-based
    std::size_t Count() const { return codes_.size(); }
    bool Remove(const std::string& name);
    const std::vector<FeatureCode>& All() const { return codes_; }

    // "FeatureCode" and a number: the count + 1, raised by one pass over the codes.
    std::string DefaultName() const;
    // Ticks or clears one netlist of a code, keeping the order of ticking.
    void SetNetlist(const std::string& code, const std::string& netlist, bool ticked);

private:
    std::vector<FeatureCode> codes_;
};

// The name of a line of `FeatureCodeData`: what stands before the first comma.
std::string FeatureCodeName(const std::string& line);
// The netlists of a line: the parts behind the first comma.
std::vector<std::string> FeatureCodeNetlists(const std::string& line);

// The netlists a feature code may name: every netlist but "MANUAL NETLISTS" (by
// its upper-case name), then the names of that netlist's Code table rows, a
// repeat of the row before left out.
std::vector<std::string> CandidateNetlists(const ProgramState& state);

// What became of a typed feature code name.
enum class NameEdit { Refused, Unchanged, Violation, Renamed };
// Applies a name typed over `oldName`: empty is refused, a name holding a comma
// or one another code has gets the naming violation box, else the code is renamed.
NameEdit EditFeatureCodeName(FeatureCodes& codes, const std::string& oldName,
                             const std::string& typed, Ui& ui);

// The lines of `data` whose codes are ticked, in the order of `ticked`.
std::vector<std::string> SelectFeatureCodeLines(const std::vector<std::string>& data,
                                                const std::vector<std::string>& ticked);
// The names of the lines of `data` that also stand in `selected`: the ticks the
// selection dialog opens with.
std::vector<std::string> TickedFeatureCodes(const std::vector<std::string>& data,
                                            const std::vector<std::string>& selected);
// The names of a comma-separated list that are among `names` (exact match);
// unknown ones are skipped.
std::vector<std::string> ImportFeatureCodeList(const std::string& text,
                                               const std::vector<std::string>& names);
// The netlists of the selected lines, first seen first, each once.
std::vector<std::string> ChosenNetlistsOf(const std::vector<std::string>& selectedLines);

} // namespace zolt
