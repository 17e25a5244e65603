#include "file/csv.h"

#include <iterator>

namespace zolt::file {

void WriteCsvRow(std::ostream& out, const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (i > 0)
            out << ',';
        const std::string& cell = cells[i];
        if (cell.find_first_of(",\"\r\n") == std::string::npos) {
            out << cell;
            continue;
        }
        out << '"';
        for (const char c : cell)
            out << (c == '"' ? "\"\"" : std::string(1, c));
        out << '"';
    }
    out << "\r\n";
}

bool ReadCsv(std::istream& in, std::vector<std::vector<std::string>>& rows) {
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::vector<std::string> row;
    std::string cell;
    bool quoted = false;
    bool any = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (quoted) {
            if (c == '"' && i + 1 < text.size() && text[i + 1] == '"') {
                cell += '"';
                ++i;
            } else if (c == '"') {
                quoted = false;
            } else {
                cell += c;
            }
            continue;
        }
        if (c == '"') {
            quoted = true;
            any = true;
        } else if (c == ',') {
            row.push_back(std::move(cell));
            cell.clear();
            any = true;
        } else if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
                ++i;
            if (any || !cell.empty()) {
                row.push_back(std::move(cell));
                rows.push_back(std::move(row));
            }
            row.clear();
            cell.clear();
            any = false;
        } else {
            cell += c;
            any = true;
        }
    }
    if (quoted)
        return false;
    if (any || !cell.empty()) {
        row.push_back(std::move(cell));
        rows.push_back(std::move(row));
    }
    return true;
}

} // namespace zolt::file
