#include "shell/feature_code_dialogs.h"

#include "core/ports/ui.h"
#include "core/program_state.h"
#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <fstream>
#include <sstream>

namespace zolt::shell {
namespace {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

QTableWidget* makeGrid(QWidget* parent, const QStringList& headers) {
    auto* grid = new QTableWidget(0, headers.size(), parent);
    grid->setHorizontalHeaderLabels(headers);
    grid->verticalHeader()->hide();
    grid->horizontalHeader()->setStretchLastSection(true);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    return grid;
}

// A row of a check box and a name; the name itself is not edited.
void addTickRow(QTableWidget& grid, const std::string& name, bool ticked) {
    const int row = grid.rowCount();
    grid.insertRow(row);
    auto* tick = new QTableWidgetItem;
    tick->setFlags(Qt::ItemIsUserCheckable | Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    tick->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    grid.setItem(row, 0, tick);
    auto* label = new QTableWidgetItem(qs(name));
    label->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    grid.setItem(row, 1, label);
}

QPushButton* addButton(QBoxLayout& layout, const QString& text, const char* name) {
    auto* button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    layout.addWidget(button);
    return button;
}

} // namespace

EditFeatureCodesDialog::EditFeatureCodesDialog(ProgramState& state, QWidget* parent)
    : QDialog(parent), state_(state),
      codes_(FeatureCodes::FromLines(state.project().Assembly.FeatureCodeData)),
      candidates_(CandidateNetlists(state)), codesGrid_(makeGrid(this, {tr("Feature Code")})),
      netlistGrid_(makeGrid(this, {QString(), tr("Netlist")})) {
    setObjectName(QStringLiteral("dlgEditFeatureCodes"));
    setWindowTitle(tr("Feature Codes"));
    codesGrid_->setObjectName(QStringLiteral("TDBGrid1"));
    netlistGrid_->setObjectName(QStringLiteral("TDBGrid2"));
    codesGrid_->setEditTriggers(QAbstractItemView::DoubleClicked |
                                QAbstractItemView::EditKeyPressed);
    netlistGrid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    netlistGrid_->setColumnWidth(0, 28);

    auto* codeButtons = new QHBoxLayout;
    connect(addButton(*codeButtons, tr("&Add"), "mnuAddFeatureCode"), &QPushButton::clicked, this,
            &EditFeatureCodesDialog::AddFeatureCode);
    connect(addButton(*codeButtons, tr("&Rename"), "mnuRenameFeatureCode"), &QPushButton::clicked,
            this, &EditFeatureCodesDialog::RenameFeatureCode);
    connect(addButton(*codeButtons, tr("&Delete"), "mnuDeleteFeatureCode"), &QPushButton::clicked,
            this, &EditFeatureCodesDialog::DeleteFeatureCode);
    auto* tickButtons = new QHBoxLayout;
    connect(addButton(*tickButtons, tr("Check A&ll"), "btnCheckAll"), &QPushButton::clicked, this,
            [this] { CheckAll(true); });
    connect(addButton(*tickButtons, tr("&Uncheck All"), "btnUncheckAll"), &QPushButton::clicked,
            this, [this] { CheckAll(false); });

    codesGrid_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(codesGrid_, &QWidget::customContextMenuRequested, this, [this](const QPoint& at) {
        QMenu menu(this);
        menu.addAction(tr("&Add Feature Code"), this, &EditFeatureCodesDialog::AddFeatureCode);
        menu.addAction(tr("&Rename Feature Code"), this,
                       &EditFeatureCodesDialog::RenameFeatureCode);
        menu.addAction(tr("&Delete Feature Code"), this,
                       &EditFeatureCodesDialog::DeleteFeatureCode);
        menu.exec(codesGrid_->viewport()->mapToGlobal(at));
    });
    connect(codesGrid_, &QTableWidget::itemSelectionChanged, this,
            &EditFeatureCodesDialog::fillNetlists);
    connect(codesGrid_, &QTableWidget::itemChanged, this, &EditFeatureCodesDialog::codeEdited);
    connect(netlistGrid_, &QTableWidget::itemChanged, this, &EditFeatureCodesDialog::netlistTicked);

    auto* left = new QVBoxLayout;
    left->addWidget(codesGrid_);
    left->addLayout(codeButtons);
    auto* right = new QVBoxLayout;
    right->addWidget(netlistGrid_);
    right->addLayout(tickButtons);
    auto* grids = new QHBoxLayout;
    grids->addLayout(left);
    grids->addLayout(right);
    auto* box = OkCancelButtons(*this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grids);
    layout->addWidget(box);
    resize(560, 380);
    fillCodes(0);
}

void EditFeatureCodesDialog::fillCodes(int select) {
    filling_ = true;
    codesGrid_->setRowCount(0);
    for (const FeatureCode& code : codes_.All()) {
        const int row = codesGrid_->rowCount();
        codesGrid_->insertRow(row);
        codesGrid_->setItem(row, 0, new QTableWidgetItem(qs(code.Name)));
    }
    filling_ = false;
    if (codesGrid_->rowCount() > 0)
        codesGrid_->selectRow(std::min(select, codesGrid_->rowCount() - 1));
    fillNetlists();
}

std::string EditFeatureCodesDialog::selectedCode() const {
    const int row = codesGrid_->currentRow();
    const auto& all = codes_.All();
    return row >= 0 && row < static_cast<int>(all.size()) ? all[static_cast<std::size_t>(row)].Name
                                                          : std::string();
}

void EditFeatureCodesDialog::fillNetlists() {
    if (filling_)
        return;
    filling_ = true;
    netlistGrid_->setRowCount(0);
    const FeatureCode* code = codes_.Item(selectedCode());
    for (const std::string& name : candidates_) {
        const bool ticked = code && std::find(code->Netlists.begin(), code->Netlists.end(), name) !=
                                        code->Netlists.end();
        addTickRow(*netlistGrid_, name, ticked);
    }
    netlistGrid_->setEnabled(code != nullptr);
    filling_ = false;
}

void EditFeatureCodesDialog::AddFeatureCode() {
    codes_.Add(codes_.DefaultName());
    fillCodes(static_cast<int>(codes_.Count()) - 1);
    RenameFeatureCode();
}

void EditFeatureCodesDialog::RenameFeatureCode() {
    const int row = codesGrid_->currentRow();
    if (row >= 0)
        codesGrid_->editItem(codesGrid_->item(row, 0));
}

void EditFeatureCodesDialog::codeEdited(QTableWidgetItem* item) {
    if (filling_)
        return;
    const FeatureCode* code = codes_.Item(static_cast<std::size_t>(item->row()) + 1);
    if (!code)
        return;
    const std::string old = code->Name;
    const NameEdit edit = EditFeatureCodeName(codes_, old, item->text().toStdString(), state_.ui());
    // A renamed code moves to the end; anything else brings the old name back.
    fillCodes(edit == NameEdit::Renamed ? static_cast<int>(codes_.Count()) - 1 : item->row());
}

void EditFeatureCodesDialog::DeleteFeatureCode() {
    const int row = codesGrid_->currentRow();
    if (row < 0)
        return;
    codes_.Remove(selectedCode());
    fillCodes(row);
}

void EditFeatureCodesDialog::netlistTicked(QTableWidgetItem* item) {
    if (filling_ || item->column() != 0)
        return;
    codes_.SetNetlist(selectedCode(), candidates_[static_cast<std::size_t>(item->row())],
                      item->checkState() == Qt::Checked);
}

void EditFeatureCodesDialog::CheckAll(bool ticked) {
    for (int row = 0; row < netlistGrid_->rowCount(); ++row)
        netlistGrid_->item(row, 0)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void EditFeatureCodesDialog::accept() {
    state_.project().Assembly.FeatureCodeData = codes_.ToLines();
    state_.SetDirty(true);
    QDialog::accept();
}

SelectFeatureCodesDialog::SelectFeatureCodesDialog(ProgramState& state, QWidget* parent)
    : QDialog(parent), state_(state), grid_(makeGrid(this, {QString(), tr("Feature Code")})) {
    setObjectName(QStringLiteral("dlgSelectFeatureCodes"));
    setWindowTitle(QStringLiteral("Select Feature Codes"));
    grid_->setObjectName(QStringLiteral("TDBGrid1"));
    grid_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid_->setColumnWidth(0, 28);
    const auto& data = state.project().Assembly.FeatureCodeData;
    const std::vector<std::string> ticked =
        TickedFeatureCodes(data, state.project().SelectedFeatureCodes);
    for (const std::string& line : data) {
        const std::string name = FeatureCodeName(line);
        addTickRow(*grid_, name, std::find(ticked.begin(), ticked.end(), name) != ticked.end());
    }
    auto* buttons = new QHBoxLayout;
    connect(addButton(*buttons, tr("Check A&ll"), "btnCheckAll"), &QPushButton::clicked, this,
            [this] { CheckAll(true); });
    connect(addButton(*buttons, tr("&Uncheck All"), "btnUncheckAll"), &QPushButton::clicked, this,
            [this] { CheckAll(false); });
    connect(addButton(*buttons, tr("&Import..."), "btnImport"), &QPushButton::clicked, this,
            &SelectFeatureCodesDialog::ImportList);
    auto* box = OkCancelButtons(*this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(grid_);
    layout->addLayout(buttons);
    layout->addWidget(box);
    resize(360, 380);
}

void SelectFeatureCodesDialog::CheckAll(bool ticked) {
    for (int row = 0; row < grid_->rowCount(); ++row)
        grid_->item(row, 0)->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
}

void SelectFeatureCodesDialog::ImportList() {
    Ui& ui = state_.ui();
    if (ui.Show(MessageBox{"Warning", "This will clear all selected Feature Codes. Proceed?",
                           Buttons::YesNo, Icon::Warning, 1}) != Answer::Yes)
        return;
    const auto path =
        ui.ChooseFile(FileDialog{"Import Feature Codes", "Text (*.txt)|*.txt", {}, {}, false});
    if (!path)
        return;
    std::ifstream in(*path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    std::vector<std::string> names;
    for (int row = 0; row < grid_->rowCount(); ++row)
        names.push_back(grid_->item(row, 1)->text().toStdString());
    const std::vector<std::string> found = ImportFeatureCodeList(text.str(), names);
    for (int row = 0; row < grid_->rowCount(); ++row)
        grid_->item(row, 0)->setCheckState(
            std::find(found.begin(), found.end(), names[static_cast<std::size_t>(row)]) !=
                    found.end()
                ? Qt::Checked
                : Qt::Unchecked);
}

void SelectFeatureCodesDialog::accept() {
    std::vector<std::string> ticked;
    for (int row = 0; row < grid_->rowCount(); ++row)
        if (grid_->item(row, 0)->checkState() == Qt::Checked)
            ticked.push_back(grid_->item(row, 1)->text().toStdString());
    state_.project().SelectedFeatureCodes =
        SelectFeatureCodeLines(state_.project().Assembly.FeatureCodeData, ticked);
    QDialog::accept();
}

} // namespace zolt::shell
