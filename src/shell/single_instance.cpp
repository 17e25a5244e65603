#include "shell/single_instance.h"

#include <QDir>

namespace zolt::shell {

SingleInstance::SingleInstance(const QString& lockPath)
    : lock_(std::make_unique<QLockFile>(lockPath)) {
    lock_->setStaleLockTime(0);
    first_ = lock_->tryLock(0);
}

QString DefaultInstanceLockPath() {
    return QDir::temp().filePath(QStringLiteral("zolt-6.0.lock"));
}

} // namespace zolt::shell
