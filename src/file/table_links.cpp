#include "file/table_links.h"

#include "core/program_state.h"

namespace zolt::file {
namespace {

std::string colorText(const Grid& grid, int row) {
    const std::string base = vb::Trim(grid.Text(row, 1));
    const std::string stripe = vb::Trim(grid.Text(row, 2));
    if (base.empty())
        return {};
    return stripe.empty() ? base : base + "/" + stripe;
}

bool knownColor(const Grid& grid, const std::string& text) {
    for (int r = 1; r <= grid.Rows(); ++r)
        if (colorText(grid, r) == text)
            return true;
    return false;
}

std::int16_t nextColorNumber(const Grid& grid) {
    for (std::int16_t n = 1;; ++n) {
        bool taken = false;
        for (int r = 1; r <= grid.Rows() && !taken; ++r)
            taken = grid.At(r, 0).number() == n;
        if (!taken)
            return n;
    }
}

void addNewColor(Table& colors, const std::string& text) {
    Grid& grid = colors.gridarray();
    const std::size_t slash = text.find('/');
    const std::string base = vb::Trim(text.substr(0, slash));
    const std::string stripe = slash == std::string::npos ? "" : vb::Trim(text.substr(slash + 1));
    const ProgramState& state = colors.state();
    const std::int32_t netlist = state.ActiveNetlist ? state.ActiveNetlist->netlistIndex : 0;
    const int row = grid.Rows() + 1;
    colors.AddRecord_v1(row,
                        {Value(nextColorNumber(grid)), Value(base), Value(stripe), Value(netlist)});
}

} // namespace

bool FixtureUsesMain(const Table& /*fixture*/) {
    return false;
}

void SetFixtureUsesMain(Table& /*fixture*/) {}

void AddLegacyColors(Table& colors, const std::string& first, const std::string& second) {
    for (const std::string& text : {vb::Trim(first), vb::Trim(second)})
        if (!text.empty() && !knownColor(colors.gridarray(), text))
            addNewColor(colors, text);
}

const Grid* LabelStore(const Table& /*messages*/, int /*recordType*/) {
    return nullptr;
}

void PrepareLabelStore(Table& /*messages*/, int /*recordType*/) {}

void AddLabelRecord(Table& /*messages*/, int /*recordType*/, int /*row*/,
                    const std::vector<Value>& /*args*/) {}

bool RebuildCommandDictionary(ProgramState& /*state*/, const std::string& /*path*/) {
    return true;
}

void LoadDeviceAndMacroLists(ProgramState& /*state*/) {}

} // namespace zolt::file
