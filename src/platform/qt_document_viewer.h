#pragma once

#include "core/ports/document_viewer.h"

#include <memory>

namespace zolt {

class HelpBrowser;

// Local HTML pages in the program's own help window; other documents and web
// addresses through the system's browser and file associations.
class QtDocumentViewer final : public DocumentViewer {
public:
    QtDocumentViewer();
    ~QtDocumentViewer() override;
    ViewFailure Open(const std::string& target) override;
    // The help window; nullptr until a page was shown.
    const HelpBrowser* Browser() const { return browser_.get(); }

private:
    std::unique_ptr<HelpBrowser> browser_;
};

} // namespace zolt
