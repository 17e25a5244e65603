#include "shell/print_dialog.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

// Object names as the forms had them: the table boxes by table number, the summaries from 0.
QString BoxName(const reports::ReportChoice& choice, std::size_t index) {
    switch (choice.kind) {
    case reports::ReportKind::Table:
        return QStringLiteral("chkTable_%1").arg(choice.table ? ToInt(*choice.table) : 0);
    case reports::ReportKind::SummaryByWire:
        return QStringLiteral("chkSummary_0");
    case reports::ReportKind::SummaryByGroup:
        return QStringLiteral("chkSummary_1");
    default:
        return QStringLiteral("chkData_%1").arg(index);
    }
}

} // namespace

PrintDialog* PrintDialog::ForNetlist(std::vector<reports::ReportChoice> choices, QWidget* parent) {
    auto* dialog = new PrintDialog(std::move(choices), QStringLiteral("Print Reports"),
                                   QStringLiteral("Select Information To Print..."), parent);
    dialog->setObjectName(QStringLiteral("frmPrint"));
    return dialog;
}

PrintDialog* PrintDialog::ForFamily(std::vector<reports::ReportChoice> choices, QWidget* parent) {
    auto* dialog = new PrintDialog(std::move(choices), QStringLiteral("Print GRV Data"),
                                   QStringLiteral("Select Data To Print..."), parent);
    dialog->setObjectName(QStringLiteral("frmGRVPrint"));
    return dialog;
}

PrintDialog::PrintDialog(std::vector<reports::ReportChoice> choices, const QString& title,
                         const QString& frame, QWidget* parent)
    : QDialog(parent), choices_(std::move(choices)) {
    setWindowTitle(title);
    auto* group = new QGroupBox(frame, this);
    auto* grid = new QGridLayout(group);
    // Two columns once the list grows long, filled top to bottom.
    const int perColumn = choices_.size() > 6 ? static_cast<int>((choices_.size() + 1) / 2)
                                              : static_cast<int>(choices_.size());
    for (std::size_t i = 0; i < choices_.size(); ++i) {
        auto* box = new QCheckBox(QString::fromStdString(choices_[i].checkBox), group);
        box->setObjectName(BoxName(choices_[i], i));
        box->setEnabled(choices_[i].enabled);
        grid->addWidget(box, static_cast<int>(i) % perColumn, static_cast<int>(i) / perColumn);
        boxes_.push_back(box);
    }
    auto* preview = new QPushButton(QStringLiteral("P&review"), this);
    preview->setObjectName(QStringLiteral("cmdPreview"));
    auto* print = new QPushButton(QStringLiteral("&Print"), this);
    print->setObjectName(QStringLiteral("cmdPrint"));
    auto* cancel = new QPushButton(QStringLiteral("&Cancel"), this);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    preview->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (auto* b : {preview, print, cancel})
        buttons->addWidget(b);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(group);
    layout->addLayout(buttons);

    // Nothing ticked, nothing to run.
    auto follow = [this, preview, print] {
        const bool any = !Chosen().empty();
        preview->setEnabled(any);
        print->setEnabled(any);
    };
    for (auto* box : boxes_)
        connect(box, &QCheckBox::toggled, this, follow);
    follow();
    connect(preview, &QPushButton::clicked, this, [this] { finish(Output::Preview); });
    connect(print, &QPushButton::clicked, this, [this] { finish(Output::Print); });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

std::vector<reports::ReportChoice> PrintDialog::Chosen() const {
    std::vector<reports::ReportChoice> chosen;
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        if (boxes_[i]->isEnabled() && boxes_[i]->isChecked())
            chosen.push_back(choices_[i]);
    return chosen;
}

void PrintDialog::finish(Output output) {
    output_ = output;
    accept();
}

} // namespace zolt::shell
