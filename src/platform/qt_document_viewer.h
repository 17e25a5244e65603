#pragma once

#include "core/ports/document_viewer.h"

namespace zolt {

// The system's browser and file associations through QDesktopServices.
class QtDocumentViewer final : public DocumentViewer {
public:
    ViewFailure Open(const std::string& target) override;
};

} // namespace zolt
