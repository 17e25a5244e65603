#include "platform/qt_settings_store.h"

#include "core/app_info.h"

namespace zolt {

namespace {
std::unique_ptr<QSettings> userSettings() {
    return std::make_unique<QSettings>(QSettings::UserScope, QStringLiteral("Thessor"),
                                       QString::fromUtf8(kAppTitle));
}
} // namespace

QtSettingsStore::QtSettingsStore() : settings_(userSettings()) {}

QString QtSettingsStore::UserLocation() {
    return userSettings()->fileName();
}

QtSettingsStore::QtSettingsStore(const QString& iniFile)
    : settings_(std::make_unique<QSettings>(iniFile, QSettings::IniFormat)) {}

QString QtSettingsStore::pathOf(const std::string& section, const std::string& key) {
    const QString k = QString::fromStdString(key);
    return section.empty() ? k : QString::fromStdString(section) + QLatin1Char('/') + k;
}

std::optional<std::string> QtSettingsStore::Read(const std::string& section,
                                                 const std::string& key) {
    const QVariant value = settings_->value(pathOf(section, key));
    if (!value.isValid())
        return std::nullopt;
    // A list written by hand without quotes ("J,P,X") comes back as its items.
    if (value.metaType().id() == QMetaType::QStringList)
        return value.toStringList().join(QLatin1Char(',')).toStdString();
    return value.toString().toStdString();
}

void QtSettingsStore::Write(const std::string& section, const std::string& key,
                            const std::string& value) {
    settings_->setValue(pathOf(section, key), QString::fromStdString(value));
    settings_->sync();
}

} // namespace zolt
