#pragma once

#include "file/table_transfer.h"

#include <QDialog>
#include <optional>
#include <string>

class QListWidget;

namespace zolt::shell {

// The list of tabs a table is copied from ("Select Tab to Copy From",
// "Select Tab to Import"), under the caption that warns of the overwrite.
class TabPickDialog : public QDialog {
    Q_OBJECT
public:
    TabPickDialog(const file::TabOffer& offer, const QString& formName, QWidget* parent = nullptr);
    // The tab selected; nullopt when none is.
    std::optional<std::string> Picked() const;

private:
    QListWidget* tabs_;
};

// Shows the dialog modal: the tab picked with OK, nullopt for Cancel.
std::optional<std::string> PickTab(const file::TabOffer& offer, const QString& formName,
                                   QWidget* parent);

} // namespace zolt::shell
