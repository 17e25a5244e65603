#pragma once

#include "download/download.h"

#include <QDialog>
#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

class QLabel;
class QProgressBar;
class QPushButton;

namespace zolt {
class Clock;
class ProgramState;
} // namespace zolt

namespace zolt::shell {

// "Download results...": sends the program's `.bin` once the window is on the
// screen. The transfer runs on a thread of its own with the watchdog's deadline
// and a cancel flag, so the window stays responsive; Cancel, Escape and the
// close box stop it, and the window only goes once that thread has ended and
// the port is closed.
class DownloadWindow : public QDialog {
    Q_OBJECT
public:
    // Makes the port on the transfer's thread, which alone uses it.
    using PortMaker = std::function<std::unique_ptr<download::SerialPort>()>;

    DownloadWindow(download::DownloadRequest request, PortMaker makePort, const Clock& clock,
                   QWidget* parent = nullptr);
    ~DownloadWindow() override;

    QLabel& status() const { return *status_; }
    // Why the port failed, under the status.
    QLabel& detail() const { return *detail_; }
    QProgressBar& progress() const { return *progress_; }
    QPushButton& okButton() const { return *ok_; }
    QPushButton& cancelButton() const { return *cancel_; }
    std::optional<download::DownloadOutcome> outcome() const { return outcome_; }
    bool transferring() const { return worker_.joinable(); }

public slots:
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    class View;
    void start();
    void finish(download::DownloadOutcome outcome);
    void setBusy(bool busy);
    // Cancels a running transfer and waits for its thread; what it told the
    // window on its way out is shown before this returns.
    void stop();

    download::DownloadRequest request_;
    PortMaker makePort_;
    const Clock& clock_;
    QLabel* status_;
    QLabel* detail_;
    QProgressBar* progress_;
    QPushButton* ok_;
    QPushButton* cancel_;
    std::unique_ptr<View> view_;
    std::atomic<bool> cancelled_{false};
    std::thread worker_;
    bool started_ = false;
    bool closing_ = false;
    bool busy_ = false;
    std::optional<download::DownloadOutcome> outcome_;
};

// ID_Download: the warning when the data changed since the compile, then the
// window with the stored Comm settings. "DOWNLOAD COMPLETE" stays on the status
// bar once the window has gone.
void RunDownloadCommand(ProgramState& state, const Clock& clock, QWidget* parent);

} // namespace zolt::shell
