#pragma once

#include "settings/table_appearance.h"

#include <QFont>

class QMdiArea;
class QWidget;

namespace zolt::shell {

// The font a style stands for, on top of the desktop's own.
QFont StyleFont(const settings::TextStyle& style);
// Gives a grid or list the style's font, colours and a row height to fit.
void ApplyTextStyle(QWidget& view, const settings::TextStyle& style);
// Every table window of the workspace in the appearance of its kind: the
// sequence (with its instruction list) and the messages in the one, all
// other tables in the other.
void ApplyTableAppearance(QMdiArea& workspace, const settings::TableAppearance& appearance);
void ApplyTableAppearance(QWidget& tableContent, const settings::TableAppearance& appearance);

} // namespace zolt::shell
