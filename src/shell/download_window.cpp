#include "shell/download_window.h"

#include "compile/compile_commands.h"
#include "core/program_state.h"
#include "download/download_request.h"
#include "platform/qt_serial_port.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <climits>
#include <exception>

namespace zolt::shell {
namespace {

// The window shows first; the transfer starts from the first tick after it.
constexpr int kStartDelayMs = 100;

int barValue(std::size_t value) {
    return static_cast<int>(std::min<std::size_t>(value, INT_MAX));
}

} // namespace

// What the transfer's thread tells the window, carried over to the window's
// thread. Progress is folded: only the latest count waits to be shown.
class DownloadWindow::View final : public download::DownloadView {
public:
    explicit View(DownloadWindow& window) : window_(window) {}

    void SetStatus(const std::string& text) override {
        post([w = &window_, text = QString::fromStdString(text)] { w->status_->setText(text); });
    }
    void SetProgressMaximum(std::size_t maximum) override {
        post([w = &window_, maximum] { w->progress_->setMaximum(barValue(maximum)); });
    }
    void SetProgress(std::size_t value) override {
        latest_ = value;
        if (!pending_.exchange(true))
            post([this] {
                pending_ = false;
                window_.progress_->setValue(barValue(latest_));
            });
    }
    void SetBusy(bool busy) override {
        post([w = &window_, busy] { w->setBusy(busy); });
    }
    void PortFailureReason(const std::string& reason) override {
        post([w = &window_, text = QString::fromStdString(reason)] { w->detail_->setText(text); });
    }

private:
    template <typename Call> void post(Call call) {
        QMetaObject::invokeMethod(&window_, std::move(call), Qt::QueuedConnection);
    }

    DownloadWindow& window_;
    std::atomic<std::size_t> latest_{0};
    std::atomic<bool> pending_{false};
};

DownloadWindow::DownloadWindow(download::DownloadRequest request, PortMaker makePort,
                               const Clock& clock, QWidget* parent)
    : QDialog(parent), request_(std::move(request)), makePort_(std::move(makePort)), clock_(clock),
      status_(new QLabel(QString::fromUtf8(download::kDownloadInProcess), this)),
      detail_(new QLabel(this)), progress_(new QProgressBar(this)),
      ok_(new QPushButton(QStringLiteral("OK"), this)),
      cancel_(new QPushButton(QStringLiteral("Cancel"), this)),
      view_(std::make_unique<View>(*this)) {
    setObjectName(QStringLiteral("frmDownload"));
    setWindowTitle(QStringLiteral("Download results..."));
    status_->setObjectName(QStringLiteral("lblStatus"));
    detail_->setObjectName(QStringLiteral("lblDetail"));
    // Which port at which line, until a failure says why instead.
    detail_->setText(QStringLiteral("Port %1 at %2")
                         .arg(QString::fromStdString(request_.device),
                              QString::fromStdString(download::SettingsText(request_.line))));
    detail_->setWordWrap(true);
    progress_->setObjectName(QStringLiteral("ProgressBar1"));
    progress_->setMinimum(1);
    ok_->setObjectName(QStringLiteral("cmdOK"));
    cancel_->setObjectName(QStringLiteral("cmdCancel"));
    // Enter must not end a transfer by accident; Escape is Cancel.
    ok_->setAutoDefault(false);
    cancel_->setAutoDefault(false);
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel_, &QPushButton::clicked, this, &DownloadWindow::reject);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(status_);
    layout->addWidget(detail_);
    layout->addWidget(progress_);
    layout->addLayout(buttons);
    setMinimumWidth(420);
}

DownloadWindow::~DownloadWindow() {
    closing_ = true;
    stop();
}

void DownloadWindow::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (started_)
        return;
    started_ = true;
    QTimer::singleShot(kStartDelayMs, this, &DownloadWindow::start);
}

void DownloadWindow::start() {
    if (closing_ || worker_.joinable())
        return;
    ok_->setEnabled(false);
    cancel_->setFocus();
    worker_ = std::thread([this] {
        download::DownloadOutcome outcome = download::DownloadOutcome::PortFailure;
        try {
            const std::unique_ptr<download::SerialPort> port = makePort_();
            outcome = download::RunDownload(request_, *port, *view_, clock_, cancelled_);
        } catch (const std::exception& e) {
            view_->PortFailureReason(e.what());
            view_->SetStatus(download::kPortFailure);
        }
        QMetaObject::invokeMethod(
            this, [this, outcome] { finish(outcome); }, Qt::QueuedConnection);
    });
}

void DownloadWindow::finish(download::DownloadOutcome outcome) {
    if (worker_.joinable())
        worker_.join();
    outcome_ = outcome;
    setBusy(false);
    switch (outcome) {
    case download::DownloadOutcome::Complete:
        ok_->setEnabled(false);
        cancel_->setEnabled(false);
        if (!closing_)
            accept();
        break;
    case download::DownloadOutcome::NotCompiled:
        ok_->setEnabled(true);
        ok_->setFocus();
        break;
    default:
        // Time-out and port failure: the user reads why and leaves by Cancel.
        cancel_->setFocus();
        break;
    }
}

void DownloadWindow::reject() {
    closing_ = true;
    stop();
    if (!outcome_)
        outcome_ = download::DownloadOutcome::Cancelled;
    QDialog::reject();
}

void DownloadWindow::stop() {
    cancelled_ = true;
    if (worker_.joinable())
        worker_.join();
    QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    setBusy(false);
}

void DownloadWindow::setBusy(bool busy) {
    if (busy == busy_)
        return;
    busy_ = busy;
    if (busy)
        QApplication::setOverrideCursor(Qt::BusyCursor);
    else
        QApplication::restoreOverrideCursor();
}

void RunDownloadCommand(ProgramState& state, const Clock& clock, QWidget* parent) {
    if (!compile::MayDownload(state))
        return;
    DownloadWindow window(
        download::RequestFor(state), [] { return std::make_unique<QtSerialPort>(); }, clock,
        parent);
    window.exec();
    if (window.outcome() == download::DownloadOutcome::Complete)
        state.SetStatusText(download::kDownloadComplete);
}

} // namespace zolt::shell
