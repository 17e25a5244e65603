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
    const QDir shipped(DataDirectory());
    if (QFileInfo(shipped.path()).isWritable())
        return shipped.filePath(name);
    const QDir own(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    const QString path = own.filePath(name);
    if (!QFileInfo::exists(path) && shipped.exists(name) && own.mkpath(QStringLiteral(".")) &&
        QFile::copy(shipped.filePath(name), path))
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                        QFile::ReadOther);
    return path;
}

} // namespace zolt
