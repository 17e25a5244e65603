#pragma once

#include "shell/toolbar_layout.h"

#include <QDialog>

class QLineEdit;
class QListWidget;

namespace zolt {
class Ui;
}

namespace zolt::shell {

// dlgNameToolbar: a new user toolbar, named and made from any commands.
class NameToolbarDialog : public QDialog {
    Q_OBJECT
public:
    NameToolbarDialog(const ToolbarLayout& existing, Ui& ui, QWidget* parent = nullptr);

    QLineEdit& NameEdit() const { return *name_; }
    // One checkable row a command, in menu order.
    QListWidget& CommandList() const { return *commands_; }
    // The toolbar OK makes.
    ToolbarDef Toolbar() const;

    // Refuses an empty or taken name and a toolbar without commands, with a box.
    void accept() override;

private:
    const ToolbarLayout& existing_;
    Ui& ui_;
    QLineEdit* name_;
    QListWidget* commands_;
};

// A command's caption as a list shows it: without its keyboard accelerator.
QString PlainCaption(const char* caption);

} // namespace zolt::shell
