#include "reports/report_text.h"

#include "reports/page_layout.h"

namespace zolt::reports {
namespace {

void AppendCells(std::string& out, const std::vector<std::string>& cells) {
    for (std::size_t c = 0; c < cells.size(); ++c) {
        if (c > 0)
            out += '\t';
        out += cells[c];
    }
    out += '\n';
}

std::vector<std::string> SpanLine(const Report& report) {
    std::vector<std::string> cells(report.captions.size());
    for (const auto& span : report.spans)
        if (span.firstColumn >= 0 && static_cast<std::size_t>(span.firstColumn) < cells.size())
            cells[static_cast<std::size_t>(span.firstColumn)] = span.text;
    return cells;
}

} // namespace

std::string ReportText(const std::vector<Report>& reports) {
    std::string out;
    for (const auto& report : reports) {
        const PageLayout layout = LayOut(report);
        for (const auto& p : Paginate(report, layout)) {
            const ReportHeader& h = report.header;
            for (const auto* label : {&h.product, &h.build, &h.heading, &h.fileName, &h.baseName,
                                      &h.compiled, &h.printed})
                out += *label + '\n';
            if (!report.spans.empty())
                AppendCells(out, SpanLine(report));
            AppendCells(out, report.captions);
            for (int r = p.firstRow; r < p.firstRow + p.rowCount; ++r)
                AppendCells(out, report.rows[static_cast<std::size_t>(r)]);
            out += "Page " + std::to_string(p.number) + "\n\f";
        }
    }
    return out;
}

} // namespace zolt::reports
