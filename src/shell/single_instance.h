#pragma once

#include <QLockFile>
#include <QString>
#include <memory>

namespace zolt::shell {

// One running program per machine: a lock file in the temporary directory,
// held for the program's life and taken over when its owner died.
class SingleInstance {
public:
    explicit SingleInstance(const QString& lockPath);
    bool IsFirst() const { return first_; }

private:
    std::unique_ptr<QLockFile> lock_;
    bool first_ = false;
};

QString DefaultInstanceLockPath();

} // namespace zolt::shell
