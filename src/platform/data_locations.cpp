#include "platform/data_locations.h"

#include "file/data_directory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace zolt {

QString DataDirectory() {
    return QString::fromStdString(
        file::DataDirectoryOf(QCoreApplication::applicationDirPath().toStdString()));
}

QString WritableDataFile(const QString& name) {
    const QString shipped = DataDirectory();
    const bool besideExecutable =
        QFileInfo(shipped).canonicalFilePath() ==
        QFileInfo(QCoreApplication::applicationDirPath()).canonicalFilePath();
    if (besideExecutable && QFileInfo(shipped).isWritable())
        return QDir(shipped).filePath(name);
    return UserCopyOf(name, shipped,
                      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
}

QString UserCopyOf(const QString& name, const QString& shippedDirectory,
                   const QString& userDirectory) {
    const QDir own(userDirectory);
    const QString path = own.filePath(name);
    const QString factory = QDir(shippedDirectory).filePath(name);
    if (!QFileInfo::exists(path) && QFileInfo::exists(factory) && own.mkpath(QStringLiteral(".")) &&
        QFile::copy(factory, path))
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                        QFile::ReadOther);
    return path;
}

} // namespace zolt
