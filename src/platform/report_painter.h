#pragma once

#include "reports/report.h"

#include <QString>
#include <vector>

class QPagedPaintDevice;
class QPrinter;
class QPrintPreviewDialog;
class QWidget;

namespace zolt {

// Draws reports page by page: each report starts on a new page, in the
// orientation its columns need, and numbers its own pages. Every page repeats
// the page header and the column captions; a cell too wide for its column is
// shortened with an ellipsis. False when the device could not be painted on.
bool PaintReports(QPagedPaintDevice& device, const std::vector<reports::Report>& reports);

// Writes reports to a PDF file; false, with the reason in `error`, when it cannot.
bool WriteReportsPdf(const std::vector<reports::Report>& reports, const QString& path,
                     QString* error = nullptr);

// Shows each report in a print preview of its own, modally, one after the other.
void PreviewReports(const std::vector<reports::Report>& reports, QWidget* parent);
// A preview opens large, the page fitted to its width, and zooms by a quarter a click.
inline constexpr double kZoomStep = 1.25;
void FitPreview(QPrintPreviewDialog& dialog);
// Prints the reports, one job each, after the printer dialog when `showDialog`;
// false when the user cancelled the dialog or the printer failed.
bool PrintReports(const std::vector<reports::Report>& reports, QWidget* parent, bool showDialog);
// The same on a printer already set up; printing to a file, all reports make
// one document.
bool PrintReportsOn(QPrinter& printer, const std::vector<reports::Report>& reports);

} // namespace zolt
