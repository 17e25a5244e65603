#pragma once

#include "core/ports/ui.h"

#include <QDialog>

class QButtonGroup;
class QLineEdit;

namespace zolt {

// A text with a choice of options under a title, in one dialog: Enter takes
// both, Escape cancels.
class OptionPromptDialog final : public QDialog {
public:
    OptionPromptDialog(const OptionPrompt& prompt, QWidget* parent);
    PromptAnswer Result() const;

private:
    QLineEdit* text_ = nullptr;
    QButtonGroup* options_ = nullptr;
};

} // namespace zolt
