#pragma once

#include <string>

namespace zolt {

// Why the system could not show a document or a web page. The program words
// each one for the user; the platform reports what it can tell apart.
enum class ViewFailure {
    None,
    DdeTimeout,
    DdeFailed,
    DdeBusy,
    DllNotFound,
    Unknown,
    NoAssociation,
    InvalidAssociation,
    FileNotFound,
    PathNotFound,
    AccessDenied,
    OutOfMemory,
    BadExecutable,
    SharingViolation,
};

// Shows a document (a local path) or a web address (http, https) in the
// program the system keeps for it.
class DocumentViewer {
public:
    virtual ~DocumentViewer() = default;
    virtual ViewFailure Open(const std::string& target) = 0;
};

} // namespace zolt
