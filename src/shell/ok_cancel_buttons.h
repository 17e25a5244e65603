#pragma once

class QDialog;
class QDialogButtonBox;

namespace zolt::shell {

// A dialog's OK and Cancel buttons ("cmdOK", "cmdCancel"): OK accepts it,
// Cancel rejects it.
QDialogButtonBox* OkCancelButtons(QDialog& dialog);

} // namespace zolt::shell
