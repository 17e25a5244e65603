#pragma once

#include <optional>
#include <string>

namespace zolt {

// The per-user settings tree: named string values in sections under the
// application's node. An empty section name means the node itself.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::optional<std::string> Read(const std::string& section, const std::string& key) = 0;
    virtual void Write(const std::string& section, const std::string& key,
                       const std::string& value) = 0;

    std::string ReadOr(const std::string& section, const std::string& key,
                       const std::string& fallback) {
        return Read(section, key).value_or(fallback);
    }
};

} // namespace zolt
