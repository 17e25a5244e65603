#include "platform/report_painter.h"

#include "reports/page_layout.h"

#include <QAction>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QScreen>

namespace zolt {
namespace {

using reports::PageLayout;
using reports::Report;
namespace page = reports::page;

QString Q(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Arial, or its metric twin where Arial is not installed.
QFont ReportFont(double pointSize, bool bold = false) {
    QFont font;
    font.setFamilies(
        {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("Arimo")});
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    return font;
}

QPageLayout PageLayoutOf(const PageLayout& layout) {
    return QPageLayout(QPageSize(QPageSize::Letter),
                       layout.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                       QMarginsF(0, 0, 0, 0), QPageLayout::Point);
}

// Paints one report's pages; positions are in points from the sheet's corner.
class PagePainter {
public:
    PagePainter(QPainter& painter, const QPaintDevice& device, const Report& report,
                const PageLayout& layout)
        : painter_(painter), device_(&device), report_(report), layout_(layout),
          unit_(device.logicalDpiY() / 72.0), detail_(ReportFont(page::kDetailPointSize)),
          captionFont_(ReportFont(page::kDetailPointSize, true)) {}

    void paint(const reports::ReportPage& p) {
        double y = page::kTopMargin;
        header(y);
        y += page::kHeaderHeight;
        if (!report_.spans.empty()) {
            spans(y);
            y += page::kSpanCaptionHeight;
        }
        row(y, page::kCaptionHeight, report_.captions, captionFont_);
        y += page::kCaptionHeight;
        rule(y - 3.0, 0.8);
        for (int r = p.firstRow; r < p.firstRow + p.rowCount; ++r) {
            const auto& cells = report_.rows[static_cast<std::size_t>(r)];
            const double height = reports::LinesOfRow(cells, layout_) * page::kRowHeight;
            row(y, height, cells, detail_);
            y += height;
        }
        painter_.setFont(detail_);
        text({0, layout_.pageHeight - page::kBottomMargin - 12.0, layout_.pageWidth, 12.0},
             QStringLiteral("Page %1").arg(p.number), Qt::AlignHCenter);
    }

private:
    QRectF rect(const QRectF& points) const {
        return {points.x() * unit_, points.y() * unit_, points.width() * unit_,
                points.height() * unit_};
    }
    void text(const QRectF& points, const QString& s, Qt::Alignment align) {
        painter_.drawText(rect(points), static_cast<int>(align | Qt::AlignVCenter), s);
    }
    void rule(double y, double weight) {
        painter_.setPen(QPen(Qt::black, weight * unit_));
        painter_.drawLine(QPointF(page::kLeftMargin * unit_, y * unit_),
                          QPointF((layout_.pageWidth - page::kRightMargin) * unit_, y * unit_));
    }

    void header(double top) {
        const ReportHeader& h = report_.header;
        const double left = page::kLeftMargin;
        const double width = layout_.printableWidth();
        painter_.setPen(Qt::black);
        painter_.setFont(ReportFont(12, true));
        text({left, top, width / 2, 16}, Q(h.product), Qt::AlignLeft);
        painter_.setFont(ReportFont(9));
        text({left, top + 16, width / 2, 12}, Q(h.build), Qt::AlignLeft);
        text({left + width / 2, top, width / 2, 14}, Q(h.compiled), Qt::AlignRight);
        text({left + width / 2, top + 14, width / 2, 14}, Q(h.printed), Qt::AlignRight);
        painter_.setFont(ReportFont(14, true));
        text({left, top + 32, width, 20}, Q(h.heading), Qt::AlignHCenter);
        painter_.setFont(ReportFont(9));
        text({left, top + 56, width, 12}, Q(h.fileName), Qt::AlignLeft);
        text({left, top + 70, width, 12}, Q(h.baseName), Qt::AlignLeft);
        rule(top + page::kHeaderHeight - 4, 1.2);
    }

    void spans(double y) {
        painter_.setFont(captionFont_);
        for (const auto& span : report_.spans) {
            double x = page::kLeftMargin;
            double w = 0;
            for (int c = 0; c < static_cast<int>(layout_.columnWidths.size()); ++c) {
                const double cw = layout_.columnWidths[static_cast<std::size_t>(c)];
                if (c < span.firstColumn)
                    x += cw;
                else if (c < span.firstColumn + span.columnCount)
                    w += cw;
            }
            text({x, y, w - page::kColumnPadding, page::kSpanCaptionHeight - 2}, Q(span.text),
                 Qt::AlignHCenter);
            painter_.setPen(QPen(Qt::black, 0.5 * unit_));
            const double lineY = (y + page::kSpanCaptionHeight - 2) * unit_;
            painter_.drawLine(QPointF(x * unit_, lineY),
                              QPointF((x + w - page::kColumnPadding) * unit_, lineY));
        }
    }

    void row(double y, double height, const std::vector<std::string>& cells, const QFont& font) {
        double x = page::kLeftMargin;
        for (std::size_t c = 0; c < layout_.columnWidths.size(); ++c) {
            const double w = layout_.columnWidths[c] - page::kColumnPadding;
            if (c < cells.size() && !cells[c].empty())
                cell({x, y, w, height}, Q(cells[c]), font);
            x += layout_.columnWidths[c];
        }
    }

    // The whole text, wrapped within the cell (at blanks, or anywhere in a word
    // longer than the cell); where the layout's estimate of its width fell
    // short, in a smaller font rather than cut.
    void cell(const QRectF& points, const QString& s, QFont font) {
        const QRectF box = rect(points);
        const auto fits = [&](int flags) {
            const QRectF needed = QFontMetricsF(font, device_).boundingRect(box, flags, s);
            return needed.width() <= box.width() + 0.5 && needed.height() <= box.height() + 0.5;
        };
        int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
        if (!fits(flags))
            flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWrapAnywhere;
        while (!fits(flags) && font.pointSizeF() > kSmallestPointSize)
            font.setPointSizeF(font.pointSizeF() - 0.5);
        painter_.setFont(font);
        painter_.drawText(box, flags, s);
    }

    using ReportHeader = reports::ReportHeader;
    static constexpr double kSmallestPointSize = 4.0;
    QPainter& painter_;
    const QPaintDevice* device_;
    const Report& report_;
    const PageLayout& layout_;
    double unit_; // device pixels per point
    QFont detail_;
    QFont captionFont_;
};

} // namespace

bool PaintReports(QPagedPaintDevice& device, const std::vector<Report>& reports) {
    if (reports.empty())
        return false;
    std::vector<PageLayout> layouts;
    for (const auto& report : reports)
        layouts.push_back(reports::LayOut(report));
    // The first page's shape must be set before painting starts; later ones before their
    // page. A preview paints again with its shape already set.
    if (!device.pageLayout().isEquivalentTo(PageLayoutOf(layouts.front())))
        device.setPageLayout(PageLayoutOf(layouts.front()));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    bool first = true;
    for (std::size_t i = 0; i < reports.size(); ++i) {
        PagePainter pages(painter, device, reports[i], layouts[i]);
        for (const auto& p : reports::Paginate(reports[i], layouts[i])) {
            if (!first) {
                if (!device.pageLayout().isEquivalentTo(PageLayoutOf(layouts[i])))
                    device.setPageLayout(PageLayoutOf(layouts[i]));
                device.newPage();
            }
            first = false;
            pages.paint(p);
        }
    }
    return painter.end();
}

bool WriteReportsPdf(const std::vector<Report>& reports, const QString& path, QString* error) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        if (error)
            *error = file.errorString();
        return false;
    }
    QPdfWriter writer(&file);
    writer.setResolution(600);
    writer.setCreator(QStringLiteral("Thessor ZOLT 6.0"));
    if (!reports.empty())
        writer.setTitle(Q(reports.front().header.heading));
    if (!PaintReports(writer, reports)) {
        if (error)
            *error = QStringLiteral("The reports could not be drawn.");
        return false;
    }
    return true;
}

void FitPreview(QPrintPreviewDialog& dialog) {
    if (const QScreen* screen = dialog.screen()) {
        const QRect room = screen->availableGeometry();
        dialog.resize(room.width() * 4 / 5, room.height() * 9 / 10);
    }
    auto* preview = dialog.findChild<QPrintPreviewWidget*>();
    if (!preview)
        return;
    preview->setZoomMode(QPrintPreviewWidget::FitToWidth);
    // The dialog's own zoom buttons step by a few percent; a quarter is a step one sees.
    const std::pair<QString, qreal> steps[] = {
        {QPrintPreviewDialog::tr("Zoom in"), kZoomStep},
        {QPrintPreviewDialog::tr("Zoom out"), 1 / kZoomStep}};
    for (QAction* action : dialog.findChildren<QAction*>())
        for (const auto& [text, factor] : steps)
            if (action->text() == text) {
                QObject::disconnect(action, &QAction::triggered, nullptr, nullptr);
                QObject::connect(action, &QAction::triggered, preview,
                                 [preview, f = factor] { preview->zoomIn(f); });
            }
}

// A printer takes its page shape only between jobs, so each report is a job,
// and a preview of its own, as each report of the print dialog was.
void PreviewReports(const std::vector<Report>& reports, QWidget* parent) {
    for (const auto& report : reports) {
        QPrinter printer(QPrinter::HighResolution);
        printer.setFullPage(true);
        printer.setDocName(Q(report.header.heading));
        QPrintPreviewDialog preview(&printer, parent);
        preview.setWindowTitle(Q(report.header.heading));
        FitPreview(preview);
        QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                         [&report](QPrinter* p) { PaintReports(*p, {report}); });
        preview.exec();
    }
}

bool PrintReports(const std::vector<Report>& reports, QWidget* parent, bool showDialog) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setFullPage(true);
    if (showDialog) {
        QPrintDialog dialog(&printer, parent);
        if (dialog.exec() != QDialog::Accepted)
            return false;
    }
    return PrintReportsOn(printer, reports);
}

bool PrintReportsOn(QPrinter& printer, const std::vector<Report>& reports) {
    if (reports.empty())
        return false;
    // Printed to a file, each job would overwrite the one before: every report
    // goes into the one document, each from a new page.
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        printer.setDocName(Q(reports.front().header.heading));
        return PaintReports(printer, reports);
    }
    bool printed = true;
    for (const auto& report : reports) {
        printer.setDocName(Q(report.header.heading));
        printed = PaintReports(printer, {report}) && printed;
    }
    return printed;
}

} // namespace zolt
