#include "sequence/parse_fields.h"

#include "core/value.h"

namespace zolt {

int ParseFields(const std::string& line, FieldArray& fields, bool commaSeparated) {
    fields.fill(std::string());
    const char separator = commaSeparated ? ',' : ' ';
    std::string rest = vb::Trim(line);
    int count = 0;
    while (count < kMaxFields) {
        const auto at = rest.find(separator);
        std::string field;
        std::string remainder;
        if (at == std::string::npos) {
            field = vb::Trim(rest);
        } else {
            field = vb::Trim(rest.substr(0, at));
            remainder = vb::Trim(rest.substr(at + 1));
        }
        if (field.empty() && remainder.empty())
            break;
        fields[static_cast<std::size_t>(count++)] = std::move(field);
        if (at == std::string::npos)
            break;
        rest = std::move(remainder);
    }
    return count;
}

} // namespace zolt
