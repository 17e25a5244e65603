#include "reports/wire_summary.h"

#include "core/table_columns.h"

#include <algorithm>

namespace zolt::reports {

std::string TestPointOf(const Grid& fixture, const std::string& connector, const std::string& pin) {
    for (int r = 1; r <= fixture.Rows(); ++r)
        if (fixture.Text(r, fixture_column::Connector) == connector &&
            fixture.Text(r, fixture_column::Pin) == pin)
            return fixture.Text(r, fixture_column::TestPoint);
    return {};
}

namespace {

class EndSearch {
public:
    explicit EndSearch(WireSummaryRow& row) : row_(row) {}
    bool full() const { return found_ == 2; }
    void add(WireEnd end) {
        if (!full())
            row_.ends[found_++] = std::move(end);
    }

private:
    WireSummaryRow& row_;
    int found_ = 0;
};

void FindEnds(const HarnessTables& t, WireSummaryRow& row) {
    EndSearch search(row);
    for (int r = 1; r <= t.pins.Rows() && !search.full(); ++r)
        if (t.pins.Text(r, pin_column::Wire) == row.wire) {
            const std::string connector = t.pins.Text(r, pin_column::Connector);
            const std::string pin = t.pins.Text(r, pin_column::Pin);
            search.add({"Pin", connector, pin, TestPointOf(t.fixture, connector, pin)});
        }
    for (int r = 1; r <= t.components.Rows() && !search.full(); ++r) {
        const std::string device = t.components.Text(r, component_column::DeviceType);
        const std::string number = t.components.Text(r, component_column::Number);
        if (t.components.Text(r, component_column::Wire1) == row.wire)
            search.add({"Component", device, number, "Side 1"});
        if (t.components.Text(r, component_column::Wire2) == row.wire)
            search.add({"Component", device, number, "Side 2"});
    }
    for (int r = 1; r <= t.splices.Rows() && !search.full(); ++r)
        if (t.splices.Text(r, splice_column::Wire) == row.wire)
            search.add({"Splice", "SPLICE", t.splices.Text(r, splice_column::Number), ""});
}

bool SameEnd(const WireEnd& a, const WireEnd& b) {
    // An end that was not found joins nothing.
    return !a.kind.empty() && !b.kind.empty() && a.device == b.device && a.number == b.number;
}

bool ShareAnEnd(const WireSummaryRow& a, const WireSummaryRow& b) {
    for (const auto& x : a.ends)
        for (const auto& y : b.ends)
            if (SameEnd(x, y))
                return true;
    return false;
}

void Group(std::vector<WireSummaryRow>& rows) {
    int next = 1;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].group == 0)
            rows[i].group = next++;
        for (std::size_t j = 0; j < rows.size(); ++j)
            if (j != i && ShareAnEnd(rows[i], rows[j]))
                rows[j].group = rows[i].group;
    }
}

} // namespace

std::vector<WireSummaryRow> BuildWireSummary(const HarnessTables& tables, bool byGroup) {
    std::vector<WireSummaryRow> rows;
    rows.reserve(static_cast<std::size_t>(tables.wires.Rows()));
    for (int r = 1; r <= tables.wires.Rows(); ++r) {
        WireSummaryRow row;
        row.wire = tables.wires.Text(r, wire_column::Wire);
        row.colors = tables.wires.Text(r, wire_column::BaseColor);
        FindEnds(tables, row);
        rows.push_back(std::move(row));
    }
    Group(rows);
    if (byGroup)
        std::stable_sort(rows.begin(), rows.end(),
                         [](const auto& a, const auto& b) { return a.group < b.group; });
    return rows;
}

} // namespace zolt::reports
