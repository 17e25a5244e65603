#pragma once

#include "analyzer/coverage.h"
#include "analyzer/simulation.h"
#include "core/edit_history.h"

#include <QDialog>
#include <atomic>
#include <functional>
#include <optional>
#include <thread>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QProgressDialog;
class QPushButton;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace zolt {
class Ui;
struct Project;
} // namespace zolt

namespace zolt::shell {

// The compiled program run on its designed harness with the faults the
// engineer builds in: a line at a time or to the end, the operator's display
// and error lines as the run makes them, the line about to run selected in the
// Sequence window. The Coverage tab judges every single fault and lists those
// the program would not see; Enter on one brings the row that would fix it to
// the front.
class SimulateWindow : public QDialog {
    Q_OBJECT
public:
    using ShowPlace = std::function<void(const EditPlace&)>;

    SimulateWindow(const Project& project, compile::ProgramImage image, std::string programPath,
                   Ui& ui, ShowPlace showPlace, QWidget* parent = nullptr);
    ~SimulateWindow() override;

    void Step();
    void RunToEnd();
    void Reset();
    // Judges every single fault on a thread of its own, under a progress box
    // with Cancel.
    void MeasureCoverage();
    // Builds in the fault the Fault box names; false after a box when it names none.
    bool AddFault();

    const analyzer::Simulation& simulation() const { return *simulation_; }
    const std::optional<analyzer::Coverage>& coverage() const { return coverage_; }
    bool measuring() const { return worker_.joinable(); }
    QComboBox& classBox() const { return *class_; }
    QComboBox& faultBox() const { return *fault_; }
    QListWidget& builtIn() const { return *builtIn_; }
    QLineEdit& keys() const { return *keys_; }
    QTreeWidget& transcript() const { return *transcript_; }
    QTreeWidget& classes() const { return *classes_; }
    QTreeWidget& undetected() const { return *undetected_; }
    QTabWidget& tabs() const { return *tabs_; }
    QLabel& status() const { return *status_; }
    QPushButton& pdfButton() const { return *pdf_; }

public slots:
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeRunTab();
    QWidget* makeCoverageTab();
    void listFaults();
    void removeFault();
    // A new run from the top with the faults and keys as they read now; false
    // after a box when the keys cannot be read.
    bool restart();
    void showRun();
    void showCoverage();
    void finishMeasure(analyzer::Coverage coverage);
    void stopMeasure();
    void showFix(QTreeWidgetItem* item);
    void printCoverage();
    void saveCoveragePdf();

    const Project& project_;
    const compile::ProgramImage image_;
    const std::string programPath_;
    Ui& ui_;
    ShowPlace showPlace_;
    const analyzer::PointNames names_;
    const analyzer::Harness harness_;
    std::vector<analyzer::Fault> faults_; // built in, in the order added
    std::optional<analyzer::Simulation> simulation_;
    std::optional<analyzer::Coverage> coverage_;

    QComboBox* class_;
    QComboBox* fault_;
    QListWidget* builtIn_;
    QLineEdit* keys_;
    QLabel* status_;
    QTabWidget* tabs_;
    QTreeWidget* transcript_;
    QLabel* verdict_;
    QTreeWidget* classes_;
    QTreeWidget* undetected_;
    QPushButton* measure_;
    QPushButton* print_;
    QPushButton* pdf_;
    QProgressDialog* progress_ = nullptr;

    std::atomic<int> judged_{0};
    std::atomic<int> faultCount_{0};
    std::atomic<bool> cancelled_{false};
    std::thread worker_;
};

} // namespace zolt::shell
