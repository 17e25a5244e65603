#pragma once

#include "shell/toolbar_layout.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QListWidget;
class QPushButton;

namespace zolt {
class Ui;
}

namespace zolt::shell {

// What the toolbar dialog edits: the toolbars and how their buttons look.
struct ToolbarOptions {
    ToolbarLayout layout;
    bool largeImages = false;
    int textState = 2; // 1 no text, 2 beside, 3 under the images
};

// dlgCustomizeToolbars: every toolbar, shown or not; per toolbar its tools,
// shown or not, in their order (buttons or drag); image size and text; new
// user toolbars and back to the factory set. Nothing changes before OK.
class CustomizeToolbarsDialog : public QDialog {
    Q_OBJECT
public:
    CustomizeToolbarsDialog(ToolbarOptions options, Ui& ui, QWidget* parent = nullptr);

    // The options as the dialog holds them now.
    ToolbarOptions Options();

    QListWidget& ToolbarList() const { return *toolbars_; }
    QListWidget& ToolList() const { return *tools_; }
    QCheckBox& LargeImages() const { return *large_; }
    QComboBox& TextState() const { return *text_; }

    // The selected tool one place up (-1) or down (+1).
    void MoveTool(int by);
    void AddToolbar(const ToolbarDef& toolbar);
    void DeleteToolbar();
    void Reset();

private:
    void newToolbar();
    void showOptions();
    void showTools(int toolbar);
    // Reads the lists back into the layout: checks and drags change them directly.
    void takeLists();
    void updateButtons();

    ToolbarOptions options_;
    Ui& ui_;
    int shownToolbar_ = -1;
    QListWidget* toolbars_;
    QListWidget* tools_;
    QCheckBox* large_;
    QComboBox* text_;
    QPushButton* up_;
    QPushButton* down_;
    QPushButton* delete_;
};

} // namespace zolt::shell
