#include "shell/single_instance.h"

#include <QCoreApplication>
#include <QLockFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zolt::shell {
namespace {

QString TestServerName() {
    return QStringLiteral("zolt-test-%1").arg(QCoreApplication::applicationPid());
}

TEST(SingleInstance, ALaterStartHandsItsFileToTheRunningOne) {
    const QTemporaryDir dir;
    const QString lock = dir.filePath(QStringLiteral("zolt.lock"));
    SingleInstance first(lock, TestServerName());
    ASSERT_TRUE(first.IsFirst());
    const SingleInstance later(lock, TestServerName());
    ASSERT_FALSE(later.IsFirst());

    QSignalSpy handed(&first, &SingleInstance::FileHandedOver);
    const QString path = QStringLiteral("/home/ann/Door Loom ü.zlf");
    ASSERT_TRUE(later.HandOver(path));
    ASSERT_TRUE(handed.count() == 1 || handed.wait(3000));
    EXPECT_EQ(handed.at(0).at(0).toString(), path);
}

// Then the later start shows the "Already Open" box instead of ending silently.
TEST(SingleInstance, NobodyTakesTheFileWhenTheLockHolderDoesNotListen) {
    const QTemporaryDir dir;
    const QString lock = dir.filePath(QStringLiteral("zolt.lock"));
    QLockFile held(lock);
    ASSERT_TRUE(held.tryLock(0));
    const SingleInstance later(lock, TestServerName());
    ASSERT_FALSE(later.IsFirst());
    EXPECT_FALSE(later.HandOver(QStringLiteral("/tmp/a.zlf"), 500));
}

} // namespace
} // namespace zolt::shell
