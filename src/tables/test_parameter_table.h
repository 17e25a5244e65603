#pragma once

#include "tables/data_table.h"

namespace zolt {

// The fixed rows of the test's electrical settings.
class CTestParameterTable final : public DataTable {
public:
    explicit CTestParameterTable(ProgramState& state);

    std::optional<std::string> Refusal(TableCommand command) const override;
    ConfirmTexts Confirmations() const override;
};

} // namespace zolt
