#include "shell/tutorial_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

// Often enough to feel immediate, rarely enough to cost nothing on tables this small.
constexpr int kWatchMs = 250;

} // namespace

TutorialWindow::TutorialWindow(ProgramState& state, QWidget* parent)
    : QWidget(parent, Qt::Tool), walk_(state), title_(new QLabel(this)),
      instruction_(new QLabel(this)), status_(new QLabel(this)), watch_(new QTimer(this)) {
    setObjectName(QStringLiteral("frmTutorial"));
    setWindowTitle(QString::fromUtf8(tutorial::kTutorialCaption));
    title_->setObjectName(QStringLiteral("lblTitle"));
    QFont bold = title_->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.2);
    title_->setFont(bold);
    instruction_->setObjectName(QStringLiteral("lblInstruction"));
    instruction_->setWordWrap(true);
    instruction_->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    // A long step scrolls rather than being cut off.
    auto* scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("scrInstruction"));
    scroll->setWidget(instruction_);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumHeight(100);
    status_->setObjectName(QStringLiteral("lblStatus"));
    status_->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(title_);
    layout->addWidget(scroll, 1);
    layout->addWidget(status_);
    auto* saveRow = new QHBoxLayout;
    saveRow->addStretch();
    layout->addLayout(saveRow);
    auto* buttons = new QHBoxLayout;
    layout->addLayout(buttons);

    QPushButton* save = addButton(tr("&Save Example..."), "cmdSave");
    saveRow->addWidget(save);
    buttons->addWidget(addButton(tr("&Back"), "cmdBack"));
    buttons->addWidget(addButton(tr("S&kip"), "cmdSkip"));
    buttons->addWidget(addButton(tr("&Next"), "cmdNext"));
    buttons->addStretch();
    buttons->addWidget(addButton(tr("&Quit"), "cmdQuit"));
    connect(save, &QPushButton::clicked, this, &TutorialWindow::SaveRequested);
    connect(button(QStringLiteral("cmdBack")), &QPushButton::clicked, this, &TutorialWindow::back);
    connect(button(QStringLiteral("cmdSkip")), &QPushButton::clicked, this, &TutorialWindow::skip);
    connect(button(QStringLiteral("cmdNext")), &QPushButton::clicked, this, &TutorialWindow::next);
    connect(button(QStringLiteral("cmdQuit")), &QPushButton::clicked, this, &TutorialWindow::quit);

    // The user types in the table windows: Next and Back reach the tutorial from there too.
    for (const auto& [keys, slot] :
         {std::pair{QKeySequence(Qt::ALT | Qt::Key_PageDown), &TutorialWindow::next},
          std::pair{QKeySequence(Qt::ALT | Qt::Key_PageUp), &TutorialWindow::back}}) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::ApplicationShortcut);
        connect(shortcut, &QShortcut::activated, this, slot);
    }

    connect(watch_, &QTimer::timeout, this, &TutorialWindow::Refresh);
    watch_->start(kWatchMs);
    resize(400, 270);
    showStep();
}

QPushButton* TutorialWindow::addButton(const QString& text, const char* name) {
    auto* b = new QPushButton(text, this);
    b->setObjectName(QString::fromUtf8(name));
    buttons_[b->objectName()] = b;
    return b;
}

QPushButton* TutorialWindow::button(const QString& name) const {
    const auto it = buttons_.find(name);
    return it == buttons_.end() ? nullptr : it->second;
}

QString TutorialWindow::statusText() const {
    return status_->text();
}

QString TutorialWindow::titleText() const {
    return title_->text();
}

void TutorialWindow::showStep() {
    const tutorial::TutorialStep& step = walk_.Step();
    title_->setText(tr("Step %1 of %2: %3")
                        .arg(walk_.Index() + 1)
                        .arg(walk_.Count())
                        .arg(QString::fromStdString(step.title)));
    instruction_->setText(QString::fromStdString(step.instruction));
    button(QStringLiteral("cmdBack"))->setEnabled(walk_.Index() > 0);
    button(QStringLiteral("cmdNext"))->setText(walk_.IsLast() ? tr("&Finish") : tr("&Next"));
    button(QStringLiteral("cmdSave"))->setVisible(step.kind == tutorial::StepKind::Save);
    Refresh();
    emit FocusRequested(walk_.Check().focus);
}

void TutorialWindow::Refresh() {
    if (walk_.Finished())
        return;
    const tutorial::StepState now = walk_.Check();
    if (walk_.Step().kind == tutorial::StepKind::Read)
        status_->setText(tr("Press Next (Alt+PgDn) to begin."));
    else if (now.done)
        status_->setText(walk_.IsLast() ? tr("Done. Press Finish to end the tutorial.")
                                        : tr("Done. Press Next (Alt+PgDn) to go on."));
    else
        status_->setText(tr("Waiting: ") + QString::fromStdString(now.hint));
    QPalette palette = status_->palette();
    palette.setColor(QPalette::WindowText, now.done ? QColor(0, 110, 0) : palette.text().color());
    status_->setPalette(palette);
}

void TutorialWindow::next() {
    if (ending_)
        return;
    const int at = walk_.Index();
    if (!walk_.Next()) {
        // The box said what is missing; the cell it is missing in comes forward.
        emit FocusRequested(walk_.Check().focus);
        return;
    }
    if (walk_.Finished())
        quit();
    else if (walk_.Index() != at)
        showStep();
}

void TutorialWindow::back() {
    if (ending_ || walk_.Index() == 0)
        return;
    walk_.Back();
    showStep();
}

void TutorialWindow::skip() {
    if (ending_)
        return;
    const bool went = walk_.Skip();
    emit TablesEdited();
    if (walk_.Finished())
        quit();
    else if (went)
        showStep();
}

void TutorialWindow::quit() {
    if (ending_)
        return;
    ending_ = true;
    watch_->stop();
    walk_.Quit();
    emit Ended();
    close();
}

void TutorialWindow::closeEvent(QCloseEvent* event) {
    quit();
    event->accept();
}

} // namespace zolt::shell
