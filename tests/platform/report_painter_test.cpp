#include "platform/report_painter.h"
#include "support/shell_command.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>
#include <regex>
#include <string>

namespace zolt {
namespace {

using reports::Report;

std::string Output(const std::string& command) {
    return test::RunCommand(command).out;
}

int Count(const std::string& text, const std::string& what);
Report Table(std::vector<std::string> captions, int rows, const std::string& cell);

class ReportPainter : public ::testing::Test {
protected:
    void SetUp() override {
        if (Output("command -v pdftotext").empty())
            GTEST_SKIP() << "poppler-utils are not installed (scripts/setup.sh installs them)";
        ASSERT_TRUE(dir_.isValid());
    }
    // The PDF's text, page by page (pdftotext ends every page with a form feed).
    std::string write(const std::vector<Report>& reports, std::string* info = nullptr) {
        const QString path = dir_.filePath(QStringLiteral("out.pdf"));
        QString error;
        EXPECT_TRUE(WriteReportsPdf(reports, path, &error)) << error.toStdString();
        if (info)
            *info = Output("pdfinfo -f 1 -l 99 '" + path.toStdString() + "'");
        return Output("pdftotext -layout '" + path.toStdString() + "' -");
    }
    QTemporaryDir dir_;
};

Report Table(std::vector<std::string> captions, int rows, const std::string& cell) {
    Report r;
    r.header = {"Thessor ZOLT 6.0",          "(Build 6.0.0)",           "Pins", "door.zlf", "door",
                "Compiled: 1/2/26  3:04 PM", "Printed: 3/7/26  2:05 PM"};
    r.captions = std::move(captions);
    for (int i = 0; i < rows; ++i)
        r.rows.push_back(std::vector<std::string>(r.captions.size(), cell + std::to_string(i)));
    return r;
}

int Count(const std::string& text, const std::string& what) {
    int n = 0;
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + 1))
        ++n;
    return n;
}

// A long table repeats its header and captions on each of its pages; a wide one
// turns landscape and wraps its cells whole.
TEST_F(ReportPainter, EveryPageRepeatsItsHeaderAndTakesItsReportsShape) {
    std::string info;
    const std::string text = write({Table({"Connector", "Pin"}, 120, "X"),
                                    Table({"One", "Two", "Three"}, 2, std::string(150, 'W'))},
                                   &info);
    EXPECT_TRUE(std::regex_search(info, std::regex("Pages:\\s+4\\n"))) << info;
    EXPECT_TRUE(std::regex_search(info, std::regex("Page +1 size:\\s+612 x 792"))) << info;
    EXPECT_TRUE(std::regex_search(info, std::regex("Page +4 size:\\s+792 x 612"))) << info;
    EXPECT_EQ(Count(text, "Thessor ZOLT 6.0"), 4);
    EXPECT_EQ(Count(text, "Connector"), 3);
    EXPECT_EQ(Count(text, "Page 1"), 2);
    EXPECT_NE(text.find("X119"), std::string::npos);
    EXPECT_EQ(Count(text, "W"), 6 * 150) << text;
    EXPECT_EQ(text.find("\xE2\x80\xA6"), std::string::npos) << text;
}

// "Print to file" with two reports ticked: one PDF holds both, in order.
TEST_F(ReportPainter, PrintingSeveralReportsToAFileKeepsThemAll) {
    const QString path = dir_.filePath(QStringLiteral("printed.pdf"));
    QPrinter printer(QPrinter::HighResolution);
    printer.setFullPage(true);
    printer.setOutputFileName(path);
    ASSERT_TRUE(PrintReportsOn(
        printer, {Table({"Connector", "Pin"}, 120, "X"), Table({"Wire", "Gauge"}, 2, "SUMMARY")}));
    const std::string info = Output("pdfinfo '" + path.toStdString() + "'");
    EXPECT_TRUE(std::regex_search(info, std::regex("Pages:\\s+4\\n"))) << info;
    const std::string text = Output("pdftotext -layout '" + path.toStdString() + "' -");
    const auto pins = text.find("X119");
    const auto summary = text.find("Gauge");
    ASSERT_NE(pins, std::string::npos);
    ASSERT_NE(summary, std::string::npos);
    EXPECT_LT(pins, summary);
}

// Runs without poppler: each preview counts its own pages and shape.
TEST(ReportPreview, ShowsEachReportInItsOwnShape) {
    std::vector<std::pair<int, QPageLayout::Orientation>> shown;
    QTimer closer;
    QObject::connect(&closer, &QTimer::timeout, [&shown] {
        auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        auto* preview = dialog->findChild<QPrintPreviewWidget*>();
        shown.emplace_back(preview ? preview->pageCount() : -1,
                           dialog->printer()->pageLayout().orientation());
        // Fitted to the window, and a zoom click is a step one sees.
        EXPECT_EQ(preview->zoomMode(), QPrintPreviewWidget::FitToWidth);
        const qreal before = preview->zoomFactor();
        for (QAction* action : dialog->findChildren<QAction*>())
            if (action->text() == QPrintPreviewDialog::tr("Zoom in"))
                action->trigger();
        EXPECT_NEAR(preview->zoomFactor(), before * kZoomStep, 0.01);
        dialog->reject();
    });
    closer.start(10);
    // 120 rows take three portrait pages, the wide report one landscape page.
    PreviewReports({Table({"Connector", "Pin"}, 120, "X"),
                    Table({"One", "Two", "Three"}, 1, std::string(150, 'W'))},
                   nullptr);
    ASSERT_EQ(shown.size(), 2u);
    EXPECT_EQ(shown[0], std::make_pair(3, QPageLayout::Portrait));
    EXPECT_EQ(shown[1], std::make_pair(1, QPageLayout::Landscape));
}

} // namespace
} // namespace zolt
