#include "shell/customize_toolbars_dialog.h"

#include "shell/command_table.h"
#include "shell/name_toolbar_dialog.h"
#include "shell/ok_cancel_buttons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

namespace zolt::shell {
namespace {

Qt::CheckState checkOf(bool on) {
    return on ? Qt::Checked : Qt::Unchecked;
}

QListWidgetItem* checkableItem(const QString& text, bool checked, QListWidget* list) {
    auto* item = new QListWidgetItem(text, list);
    item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsDropEnabled);
    item->setCheckState(checkOf(checked));
    return item;
}

} // namespace

CustomizeToolbarsDialog::CustomizeToolbarsDialog(ToolbarOptions options, Ui& ui, QWidget* parent)
    : QDialog(parent), options_(std::move(options)), ui_(ui) {
    setObjectName(QStringLiteral("dlgCustomizeToolbars"));
    setWindowTitle(tr("Configure Toolbars"));
    auto* grid = new QGridLayout(this);

    auto* toolbarsLabel = new QLabel(tr("&Toolbars:"), this);
    toolbars_ = new QListWidget(this);
    toolbars_->setObjectName(QStringLiteral("lstToolbars"));
    toolbarsLabel->setBuddy(toolbars_);
    auto* toolsLabel = new QLabel(tr("T&ools of the toolbar:"), this);
    tools_ = new QListWidget(this);
    tools_->setObjectName(QStringLiteral("lstTools"));
    tools_->setDragDropMode(QAbstractItemView::InternalMove);
    tools_->setDefaultDropAction(Qt::MoveAction);
    tools_->setMinimumSize(280, 300);
    toolsLabel->setBuddy(tools_);

    auto* newButton = new QPushButton(tr("&New Toolbar..."), this);
    delete_ = new QPushButton(tr("&Delete Toolbar"), this);
    up_ = new QPushButton(tr("Move &Up"), this);
    down_ = new QPushButton(tr("Move Do&wn"), this);
    auto* reset = new QPushButton(tr("&Reset"), this);
    reset->setToolTip(tr("The toolbars the program comes with"));
    large_ = new QCheckBox(tr("&Large images"), this);
    large_->setObjectName(QStringLiteral("chkLargeImages"));
    text_ = new QComboBox(this);
    text_->setObjectName(QStringLiteral("cboTextState"));
    text_->addItems({tr("No text"), tr("Text beside the images"), tr("Text under the images")});
    auto* textLabel = new QLabel(tr("Te&xt:"), this);
    textLabel->setBuddy(text_);

    auto* side = new QVBoxLayout;
    for (QPushButton* b : {newButton, delete_, up_, down_, reset})
        side->addWidget(b);
    side->addStretch();
    auto* look = new QHBoxLayout;
    look->addWidget(large_);
    look->addSpacing(16);
    look->addWidget(textLabel);
    look->addWidget(text_, 1);
    auto* buttons = OkCancelButtons(*this);

    grid->addWidget(toolbarsLabel, 0, 0);
    grid->addWidget(toolsLabel, 0, 1);
    grid->addWidget(toolbars_, 1, 0);
    grid->addWidget(tools_, 1, 1);
    grid->addLayout(side, 1, 2);
    grid->addLayout(look, 2, 0, 1, 3);
    grid->addWidget(buttons, 3, 0, 1, 3);

    connect(toolbars_, &QListWidget::currentRowChanged, this, [this](int row) {
        takeLists();
        showTools(row);
    });
    connect(tools_, &QListWidget::currentRowChanged, this, [this] { updateButtons(); });
    connect(newButton, &QPushButton::clicked, this, [this] { newToolbar(); });
    connect(delete_, &QPushButton::clicked, this, [this] { DeleteToolbar(); });
    connect(up_, &QPushButton::clicked, this, [this] { MoveTool(-1); });
    connect(down_, &QPushButton::clicked, this, [this] { MoveTool(1); });
    connect(reset, &QPushButton::clicked, this, [this] { Reset(); });
    // Keyboard moves without leaving the list.
    for (const auto& [key, by] :
         {std::pair{Qt::CTRL | Qt::Key_Up, -1}, {Qt::CTRL | Qt::Key_Down, 1}})
        connect(new QShortcut(QKeySequence(key), tools_), &QShortcut::activated, this,
                [this, by = by] { MoveTool(by); });
    showOptions();
}

ToolbarOptions CustomizeToolbarsDialog::Options() {
    takeLists();
    options_.largeImages = large_->isChecked();
    options_.textState = text_->currentIndex() + 1;
    return options_;
}

void CustomizeToolbarsDialog::MoveTool(int by) {
    const int row = tools_->currentRow();
    const int to = row + by;
    if (row < 0 || to < 0 || to >= tools_->count())
        return;
    QListWidgetItem* item = tools_->takeItem(row);
    tools_->insertItem(to, item);
    tools_->setCurrentRow(to);
}

void CustomizeToolbarsDialog::AddToolbar(const ToolbarDef& toolbar) {
    takeLists();
    options_.layout.toolbars.push_back(toolbar);
    const int row = static_cast<int>(options_.layout.toolbars.size()) - 1;
    checkableItem(QString::fromStdString(toolbar.name), toolbar.visible, toolbars_);
    shownToolbar_ = -1;
    toolbars_->setCurrentRow(row);
}

void CustomizeToolbarsDialog::DeleteToolbar() {
    const int row = toolbars_->currentRow();
    if (row < 0 || options_.layout.toolbars[row].kind != ToolbarKind::User)
        return;
    takeLists();
    options_.layout.toolbars.erase(options_.layout.toolbars.begin() + row);
    shownToolbar_ = -1;
    showOptions();
    toolbars_->setCurrentRow(std::min(row, toolbars_->count() - 1));
}

void CustomizeToolbarsDialog::Reset() {
    options_ = ToolbarOptions{FactoryToolbarLayout(), false, 2};
    shownToolbar_ = -1;
    showOptions();
}

void CustomizeToolbarsDialog::newToolbar() {
    takeLists();
    NameToolbarDialog dialog(options_.layout, ui_, this);
    if (dialog.exec() == QDialog::Accepted)
        AddToolbar(dialog.Toolbar());
}

void CustomizeToolbarsDialog::showOptions() {
    const QSignalBlocker block(toolbars_);
    toolbars_->clear();
    for (const ToolbarDef& t : options_.layout.toolbars)
        checkableItem(QString::fromStdString(t.name), t.visible, toolbars_);
    large_->setChecked(options_.largeImages);
    text_->setCurrentIndex(std::clamp(options_.textState, 1, 3) - 1);
    toolbars_->setCurrentRow(0);
    showTools(0);
}

void CustomizeToolbarsDialog::showTools(int toolbar) {
    shownToolbar_ = toolbar;
    tools_->clear();
    if (toolbar >= 0 && toolbar < static_cast<int>(options_.layout.toolbars.size()))
        for (const ToolbarTool& tool : options_.layout.toolbars[toolbar].tools) {
            const auto c = CommandNamed(tool.command);
            QListWidgetItem* item = checkableItem(c ? PlainCaption(Definition(*c).caption)
                                                    : QString::fromStdString(tool.command),
                                                  tool.shown, tools_);
            item->setData(Qt::UserRole, QString::fromStdString(tool.command));
        }
    tools_->setCurrentRow(tools_->count() > 0 ? 0 : -1);
    updateButtons();
}

void CustomizeToolbarsDialog::takeLists() {
    auto& toolbars = options_.layout.toolbars;
    for (int row = 0; row < toolbars_->count() && row < static_cast<int>(toolbars.size()); ++row)
        toolbars[row].visible = toolbars_->item(row)->checkState() == Qt::Checked;
    if (shownToolbar_ < 0 || shownToolbar_ >= static_cast<int>(toolbars.size()))
        return;
    std::vector<ToolbarTool> tools;
    for (int row = 0; row < tools_->count(); ++row) {
        const QListWidgetItem* item = tools_->item(row);
        tools.push_back(
            {item->data(Qt::UserRole).toString().toStdString(), item->checkState() == Qt::Checked});
    }
    toolbars[shownToolbar_].tools = std::move(tools);
}

void CustomizeToolbarsDialog::updateButtons() {
    const int toolbar = toolbars_->currentRow();
    delete_->setEnabled(toolbar >= 0 &&
                        toolbar < static_cast<int>(options_.layout.toolbars.size()) &&
                        options_.layout.toolbars[toolbar].kind == ToolbarKind::User);
    const int row = tools_->currentRow();
    up_->setEnabled(row > 0);
    down_->setEnabled(row >= 0 && row + 1 < tools_->count());
}

} // namespace zolt::shell
