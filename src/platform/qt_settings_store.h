#pragma once

#include "core/ports/settings_store.h"

#include <QSettings>
#include <QString>
#include <memory>

namespace zolt {

// The settings tree in the platform's per-user store, under the application title.
class QtSettingsStore final : public SettingsStore {
public:
    // The user's own settings of the program.
    QtSettingsStore();
    // Settings kept in an INI file instead (tests, portable installs).
    explicit QtSettingsStore(const QString& iniFile);
    // Where the user's own settings are kept.
    static QString UserLocation();

    std::optional<std::string> Read(const std::string& section, const std::string& key) override;
    void Write(const std::string& section, const std::string& key,
               const std::string& value) override;

private:
    static QString pathOf(const std::string& section, const std::string& key);
    std::unique_ptr<QSettings> settings_;
};

} // namespace zolt
