#include "platform/data_locations.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zolt {
namespace {

QByteArray Read(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

void Write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

TEST(UserCopyOf, StartsFromTheFactoryFileNeverReplacesTheUsersOwnAndOnlyNamesWhatIsNotShipped) {
    const QTemporaryDir root;
    const QString shipped = root.filePath(QStringLiteral("share/zolt"));
    const QString user = root.filePath(QStringLiteral("home/.local/share/zolt"));
    ASSERT_TRUE(QDir().mkpath(shipped));
    Write(QDir(shipped).filePath(QStringLiteral("ZOLT.DEF")), "0,0,10,10\n");

    const QString copy = UserCopyOf(QStringLiteral("ZOLT.DEF"), shipped, user);
    EXPECT_EQ(copy, QDir(user).filePath(QStringLiteral("ZOLT.DEF")));
    EXPECT_EQ(Read(copy), "0,0,10,10\n");

    Write(copy, "5,5,20,20\n");
    EXPECT_EQ(Read(UserCopyOf(QStringLiteral("ZOLT.DEF"), shipped, user)), "5,5,20,20\n");

    // ZOLT.atb ships with no factory copy: the user's file appears on the first save.
    const QString toolbars = UserCopyOf(QStringLiteral("ZOLT.atb"), shipped, user);
    EXPECT_EQ(toolbars, QDir(user).filePath(QStringLiteral("ZOLT.atb")));
    EXPECT_FALSE(QFile::exists(toolbars));
}

} // namespace
} // namespace zolt
