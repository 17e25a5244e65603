#include "shell/simulate_window.h"

#include "analyzer/fix_place.h"
#include "compare/row_places.h"
#include "core/ports/clock.h"
#include "core/ports/ui.h"
#include "file/document_lifecycle.h"
#include "file/path_names.h"
#include "platform/report_painter.h"
#include "reports/coverage_report.h"
#include "reports/report_header.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <filesystem>
#include <memory>

namespace zolt::shell {
namespace {

using namespace analyzer;

constexpr int kLineRole = Qt::UserRole;
// A picker of every short between hundreds of conductors would not open; any
// fault beyond the list can still be typed.
constexpr int kListedFaults = 2000;
constexpr char kCaption[] = "Simulate";

QPushButton* Button(const QString& text, QWidget* parent) {
    auto* button = new QPushButton(text, parent);
    // Enter belongs to the lists: it activates their rows, never a button.
    button->setAutoDefault(false);
    return button;
}

QTreeWidget* List(const QStringList& captions, QWidget* parent) {
    auto* list = new QTreeWidget(parent);
    list->setHeaderLabels(captions);
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->header()->setStretchLastSection(true);
    return list;
}

std::vector<FaultClass> AllClasses() {
    return {std::begin(kFaultClasses), std::end(kFaultClasses)};
}

QString Text(const std::string& text) {
    return QString::fromStdString(text);
}

} // namespace

SimulateWindow::SimulateWindow(const Project& project, compile::ProgramImage image,
                               std::string programPath, Ui& ui, ShowPlace showPlace,
                               QWidget* parent)
    : QDialog(parent), project_(project), image_(std::move(image)),
      programPath_(std::move(programPath)), ui_(ui), showPlace_(std::move(showPlace)),
      names_({&image_}), harness_(DesignedHarness(image_)) {
    setWindowTitle(tr("Simulate - %1").arg(Text(file::FileNameOf(programPath_))));
    setAttribute(Qt::WA_DeleteOnClose);
    tabs_ = new QTabWidget(this);
    tabs_->addTab(makeRunTab(), tr("Sim&ulation"));
    tabs_->addTab(makeCoverageTab(), tr("Co&verage"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_);
    resize(600, 520);
    restart();
    transcript_->setFocus();
}

SimulateWindow::~SimulateWindow() {
    stopMeasure();
}

QWidget* SimulateWindow::makeRunTab() {
    auto* tab = new QWidget(this);
    class_ = new QComboBox(tab);
    class_->addItem(tr("every class"));
    for (const FaultClass c : kFaultClasses)
        class_->addItem(Text(std::string(FaultClassName(c))));
    fault_ = new QComboBox(tab);
    fault_->setEditable(true);
    fault_->setInsertPolicy(QComboBox::NoInsert);
    fault_->lineEdit()->setPlaceholderText(tr("open:J1-2, short:J1-2,J2-7, value:R3=1500 ..."));
    fault_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    auto* add = Button(tr("A&dd"), tab);
    builtIn_ = new QListWidget(tab);
    builtIn_->setMaximumHeight(4 * builtIn_->fontMetrics().height() + 8);
    auto* remove = Button(tr("Re&move"), tab);
    keys_ = new QLineEdit(tab);
    keys_->setPlaceholderText(
        tr("start, stop, key or a number, in order; START when they run out"));
    auto* step = Button(tr("Ste&p"), tab);
    auto* run = Button(tr("&Run to end"), tab);
    auto* reset = Button(tr("Start &over"), tab);
    status_ = new QLabel(tab);
    status_->setWordWrap(true);
    transcript_ = List({tr("Line"), tr("Operator display and errors")}, tab);
    transcript_->setRootIsDecorated(true);

    auto label = [tab](const QString& text, QWidget* buddy) {
        auto* made = new QLabel(text, tab);
        made->setBuddy(buddy);
        return made;
    };
    auto* grid = new QGridLayout;
    grid->addWidget(label(tr("C&lass:"), class_), 0, 0);
    auto* pick = new QHBoxLayout;
    pick->addWidget(class_);
    pick->addWidget(label(tr("F&ault:"), fault_));
    pick->addWidget(fault_, 1);
    pick->addWidget(add);
    grid->addLayout(pick, 0, 1);
    grid->addWidget(label(tr("&Built in:"), builtIn_), 1, 0, Qt::AlignTop);
    auto* built = new QHBoxLayout;
    built->addWidget(builtIn_, 1);
    built->addWidget(remove, 0, Qt::AlignTop);
    grid->addLayout(built, 1, 1);
    grid->addWidget(label(tr("&Keys:"), keys_), 2, 0);
    grid->addWidget(keys_, 2, 1);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {step, run, reset})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(tab);
    layout->addLayout(grid);
    layout->addLayout(buttons);
    layout->addWidget(status_);
    layout->addWidget(label(tr("Displa&y and errors:"), transcript_));
    layout->addWidget(transcript_, 1);

    listFaults();
    connect(class_, &QComboBox::currentIndexChanged, this, &SimulateWindow::listFaults);
    connect(add, &QPushButton::clicked, this, &SimulateWindow::AddFault);
    connect(fault_->lineEdit(), &QLineEdit::returnPressed, this, &SimulateWindow::AddFault);
    connect(remove, &QPushButton::clicked, this, &SimulateWindow::removeFault);
    connect(step, &QPushButton::clicked, this, &SimulateWindow::Step);
    connect(run, &QPushButton::clicked, this, &SimulateWindow::RunToEnd);
    connect(reset, &QPushButton::clicked, this, &SimulateWindow::Reset);
    connect(transcript_, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (const int line = item->data(0, kLineRole).toInt(); line > 0)
            showPlace_(compare::SequencePlace(line));
    });
    builtIn_->installEventFilter(this);
    return tab;
}

QWidget* SimulateWindow::makeCoverageTab() {
    auto* tab = new QWidget(this);
    measure_ = Button(tr("Measure &coverage"), tab);
    print_ = Button(tr("Pr&int report..."), tab);
    pdf_ = Button(tr("E&xport PDF..."), tab);
    print_->setEnabled(false);
    pdf_->setEnabled(false);
    verdict_ = new QLabel(tr("Every single fault of the designed harness is run against the "
                             "program: those it would not see are listed with the reason."),
                          tab);
    verdict_->setWordWrap(true);
    classes_ =
        List({tr("Class"), tr("Faults"), tr("Detected"), tr("Undetected"), tr("Percent")}, tab);
    classes_->setMaximumHeight(8 * classes_->fontMetrics().height() + 16);
    undetected_ = List({tr("Class"), tr("Fault"), tr("Reason")}, tab);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {measure_, print_, pdf_})
        buttons->addWidget(button);
    buttons->addStretch(1);
    auto* layout = new QVBoxLayout(tab);
    layout->addLayout(buttons);
    layout->addWidget(verdict_);
    layout->addWidget(classes_);
    layout->addWidget(
        new QLabel(tr("Undetected faults (Enter shows the row that would fix one):"), tab));
    layout->addWidget(undetected_, 1);
    connect(measure_, &QPushButton::clicked, this, &SimulateWindow::MeasureCoverage);
    connect(print_, &QPushButton::clicked, this, &SimulateWindow::printCoverage);
    connect(pdf_, &QPushButton::clicked, this, &SimulateWindow::saveCoveragePdf);
    connect(undetected_, &QTreeWidget::itemActivated, this, &SimulateWindow::showFix);
    return tab;
}

void SimulateWindow::listFaults() {
    const int index = class_->currentIndex();
    const std::vector<FaultClass> classes =
        index <= 0 ? AllClasses() : std::vector{kFaultClasses[index - 1]};
    const auto faults = SingleFaults(image_, harness_, names_, classes);
    QStringList texts;
    for (const auto& f : faults) {
        if (texts.size() == kListedFaults)
            break;
        texts << Text(FaultText(f.fault, names_, harness_));
    }
    const QString typed = fault_->currentText();
    fault_->clear();
    fault_->addItems(texts);
    fault_->setEditText(typed);
    fault_->setToolTip(
        static_cast<qsizetype>(faults.size()) > texts.size()
            ? tr("The first %1 of %2 faults; type any other.").arg(texts.size()).arg(faults.size())
            : QString());
}

bool SimulateWindow::AddFault() {
    const std::string text = fault_->currentText().trimmed().toStdString();
    if (text.empty())
        return false;
    const FaultParse parse = ParseFault(text, names_, harness_);
    if (!parse.fault) {
        ui_.Show(MessageBox{kCaption, parse.error, Buttons::Ok, Icon::Warning, 1});
        activateWindow();
        fault_->setFocus();
        return false;
    }
    faults_.push_back(*parse.fault);
    builtIn_->addItem(Text(FaultText(*parse.fault, names_, harness_)));
    fault_->setEditText(QString());
    restart();
    return true;
}

void SimulateWindow::removeFault() {
    const int row = builtIn_->currentRow();
    if (row < 0)
        return;
    faults_.erase(faults_.begin() + row);
    delete builtIn_->takeItem(row);
    restart();
}

bool SimulateWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == builtIn_ && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        removeFault();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

bool SimulateWindow::restart() {
    const std::string typed = keys_->text().trimmed().toStdString();
    KeysParse keys;
    if (!typed.empty()) {
        keys = ParseKeys(typed);
        if (!keys.error.empty()) {
            ui_.Show(MessageBox{kCaption, keys.error, Buttons::Ok, Icon::Warning, 1});
            activateWindow();
            keys_->setFocus();
            return false;
        }
    }
    Harness harness = harness_;
    for (const Fault& fault : faults_)
        harness = WithFault(std::move(harness), fault);
    RunOptions options;
    options.keys = std::move(keys.keys);
    simulation_.emplace(image_, std::move(harness), names_, std::move(options));
    keys_->setModified(false);
    showRun();
    return true;
}

void SimulateWindow::Step() {
    if (!keys_->isModified() || restart()) {
        simulation_->Step();
        showRun();
    }
}

void SimulateWindow::RunToEnd() {
    if (!keys_->isModified() || restart()) {
        simulation_->RunToEnd();
        showRun();
    }
}

void SimulateWindow::Reset() {
    restart();
}

void SimulateWindow::showRun() {
    const RunResult& run = simulation_->Result();
    transcript_->clear();
    auto* display =
        new QTreeWidgetItem(transcript_, {QString(), tr("Display: %1").arg(run.transcript.size())});
    for (const auto& line : run.transcript) {
        auto* item = new QTreeWidgetItem(display, {QString::number(line.line), Text(line.text)});
        item->setData(0, kLineRole, static_cast<int>(line.line));
    }
    auto* errors =
        new QTreeWidgetItem(transcript_, {QString(), tr("Errors: %1").arg(run.errors.size())});
    for (const auto& line : run.errors) {
        auto* item = new QTreeWidgetItem(errors, {QString::number(line.line), Text(line.text)});
        item->setData(0, kLineRole, static_cast<int>(line.line));
        item->setForeground(1, QBrush(Qt::darkRed));
    }
    transcript_->expandAll();
    transcript_->resizeColumnToContents(0);
    QTreeWidgetItem* last = run.errors.empty() ? display : errors;
    transcript_->setCurrentItem(last->childCount() ? last->child(last->childCount() - 1) : last);

    const std::size_t line = simulation_->CurrentLine();
    const auto& sequence = simulation_->Image().sequence;
    const QString command =
        line >= 1 && line <= sequence.size()
            ? Text(sequence[line - 1].command + " " + sequence[line - 1].parameter).trimmed()
            : QString();
    const Counters& c = run.counters;
    const QString counts = tr("Errors %1 (opens %2, shorts %3, components %4, switches %5).")
                               .arg(c.errors)
                               .arg(c.opens)
                               .arg(c.shorts)
                               .arg(c.components)
                               .arg(c.switches);
    if (!simulation_->Ended())
        status_->setText(tr("Line %1 runs next: %2. %3").arg(line).arg(command, counts));
    else
        status_->setText(
            tr("Ended on line %1: %2. %3 %4")
                .arg(line)
                .arg(Text(run.endText), counts, run.Passed() ? tr("PASSED") : tr("FAILED")));
    if (line >= 1 && line <= sequence.size())
        showPlace_(compare::SequencePlace(static_cast<int>(line)));
}

void SimulateWindow::MeasureCoverage() {
    if (measuring())
        return;
    tabs_->setCurrentIndex(1); // where the result will show
    cancelled_ = false;
    judged_ = 0;
    faultCount_ = 0;
    progress_ = new QProgressDialog(tr("Running every single fault..."), tr("Cancel"), 0, 0, this);
    progress_->setWindowTitle(tr("Measure Coverage"));
    progress_->setWindowModality(Qt::WindowModal);
    progress_->setMinimumDuration(400);
    progress_->setAutoClose(false);
    progress_->setAutoReset(false);
    connect(progress_, &QProgressDialog::canceled, this, [this] { cancelled_ = true; });
    auto* timer = new QTimer(progress_);
    connect(timer, &QTimer::timeout, this, [this, dialog = progress_] {
        dialog->setMaximum(faultCount_);
        dialog->setValue(judged_);
    });
    timer->start(100);
    measure_->setEnabled(false);
    worker_ = std::thread([this] {
        auto result = std::make_shared<Coverage>(analyzer::MeasureCoverage(
            image_, harness_, names_, AllClasses(), RunOptions{}, [this](int judged, int faults) {
                judged_ = judged;
                faultCount_ = faults;
                return !cancelled_;
            }));
        QMetaObject::invokeMethod(
            this, [this, result] { finishMeasure(std::move(*result)); }, Qt::QueuedConnection);
    });
}

void SimulateWindow::finishMeasure(Coverage coverage) {
    if (worker_.joinable())
        worker_.join();
    // The result may arrive while the progress box paints itself: it goes once that is done.
    progress_->hide();
    progress_->deleteLater();
    progress_ = nullptr;
    measure_->setEnabled(true);
    if (coverage.cancelled) {
        verdict_->setText(tr("Cancelled after %1 of %2 faults: nothing was measured.")
                              .arg(judged_.load())
                              .arg(faultCount_.load()));
        return;
    }
    coverage_ = std::move(coverage);
    showCoverage();
}

void SimulateWindow::stopMeasure() {
    cancelled_ = true;
    if (worker_.joinable())
        worker_.join();
}

void SimulateWindow::reject() {
    stopMeasure();
    QDialog::reject();
}

void SimulateWindow::showCoverage() {
    const Coverage& coverage = *coverage_;
    verdict_->setText(
        tr("%1 of %2 faults detected (%3). %4")
            .arg(coverage.detected)
            .arg(coverage.faults)
            .arg(Text(reports::CoveragePercent(coverage.detected, coverage.faults) + "%"),
                 coverage.good.Passed()
                     ? tr("The program passes its designed harness.")
                     : tr("The program does not pass its designed harness (%1): each fault was "
                          "compared with that run.")
                           .arg(Text(coverage.good.endText))));
    // The lists are the printed report's rows: what is printed is what was seen.
    const auto made = reports::CoverageReports(coverage, names_, harness_, programPath_, {});
    const auto fill = [](QTreeWidget* list, const reports::Report* report) {
        list->clear();
        if (!report)
            return;
        for (const auto& cells : report->rows) {
            QStringList texts;
            for (const auto& cell : cells)
                texts << Text(cell);
            new QTreeWidgetItem(list, texts);
        }
    };
    fill(classes_, &made.front());
    fill(undetected_, made.size() > 1 ? &made[1] : nullptr);
    for (QTreeWidget* list : {classes_, undetected_})
        for (int c = 0; c + 1 < list->columnCount(); ++c)
            list->resizeColumnToContents(c);
    print_->setEnabled(true);
    pdf_->setEnabled(true);
    QTreeWidget* focus = undetected_->topLevelItemCount() ? undetected_ : classes_;
    focus->setCurrentItem(focus->topLevelItem(0));
    focus->setFocus();
}

void SimulateWindow::showFix(QTreeWidgetItem* item) {
    const int index = undetected_->indexOfTopLevelItem(item);
    if (!coverage_ || index < 0)
        return;
    const auto& undetected = coverage_->undetected[static_cast<std::size_t>(index)];
    if (const auto place = FixPlace(project_, undetected, names_, harness_))
        showPlace_(*place);
    else
        verdict_->setText(tr("No row of this program holds %1.")
                              .arg(Text(FaultText(undetected.fault.fault, names_, harness_))));
}

void SimulateWindow::printCoverage() {
    if (!coverage_)
        return;
    const std::string printed = reports::FormatReportTime(SystemClock().Now());
    PrintReports(reports::CoverageReports(*coverage_, names_, harness_, programPath_, printed),
                 this, true);
}

void SimulateWindow::saveCoveragePdf() {
    if (!coverage_)
        return;
    const std::filesystem::path program(programPath_);
    const auto path = ui_.ChooseFile(FileDialog{"Export Coverage Report", "PDF Files (*.pdf)|*.pdf",
                                                program.parent_path().string(),
                                                program.stem().string() + " coverage.pdf", true});
    // The file dialog and the boxes belong to the main window: the keyboard comes back here.
    activateWindow();
    if (!path || !file::ConfirmOverwrite(ui_, *path))
        return;
    const std::string printed = reports::FormatReportTime(SystemClock().Now());
    QString error;
    if (!WriteReportsPdf(
            reports::CoverageReports(*coverage_, names_, harness_, programPath_, printed),
            Text(*path), &error)) {
        ui_.Show(
            MessageBox{"Export Coverage Report",
                       "The report could not be written to " + *path + ": " + error.toStdString(),
                       Buttons::Ok, Icon::Stop, 1});
        activateWindow();
        return;
    }
    verdict_->setText(tr("The report is in %1.").arg(Text(*path)));
}

} // namespace zolt::shell
