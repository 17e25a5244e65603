#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QString>
#include <memory>

namespace zolt::shell {

// One running program per machine: a lock file in the temporary directory,
// held for the program's life and taken over when its owner died. The first
// instance also listens for the files a later start is asked to open (a
// double-click in the file manager), so that they open in the running window.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    SingleInstance(const QString& lockPath, const QString& serverName);
    bool IsFirst() const { return first_; }

    // From a later start: hands `path` to the first instance. False when no
    // instance took it within `timeoutMs`.
    bool HandOver(const QString& path, int timeoutMs = 3000) const;

signals:
    // In the first instance: a later start was asked to open `path`.
    void FileHandedOver(const QString& path);

private:
    void receive();

    std::unique_ptr<QLockFile> lock_;
    QString serverName_;
    QLocalServer server_;
    bool first_ = false;
};

QString DefaultInstanceLockPath();
// The handover channel is per user (named after the home folder; the socket admits
// its owner only): another user's instance is never handed files.
QString DefaultInstanceServerName();

} // namespace zolt::shell
