#pragma once

#include "core/ports/settings_store.h"

#include <map>
#include <utility>

namespace zolt {

// A settings tree that lives only as long as the program: for tests and batch runs.
class MemorySettingsStore final : public SettingsStore {
public:
    std::optional<std::string> Read(const std::string& section, const std::string& key) override {
        const auto it = values_.find({section, key});
        if (it == values_.end())
            return std::nullopt;
        return it->second;
    }
    void Write(const std::string& section, const std::string& key,
               const std::string& value) override {
        values_[{section, key}] = value;
    }

private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

} // namespace zolt
