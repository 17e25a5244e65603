#pragma once

#include "reports/report_catalog.h"

#include <QDialog>
#include <vector>

class QCheckBox;

namespace zolt::shell {

// frmPrint and frmGRVPrint: a box per report, enabled only when the report
// has something to print; Preview and Print close it with the ticked ones.
class PrintDialog : public QDialog {
    Q_OBJECT
public:
    enum class Output { None, Preview, Print };

    // frmPrint over the tables and summaries of a netlist.
    static PrintDialog* ForNetlist(std::vector<reports::ReportChoice> choices, QWidget* parent);
    // frmGRVPrint over the family's lists.
    static PrintDialog* ForFamily(std::vector<reports::ReportChoice> choices, QWidget* parent);

    Output output() const { return output_; }
    // The ticked boxes, in their order.
    std::vector<reports::ReportChoice> Chosen() const;
    QCheckBox* Box(std::size_t index) const { return boxes_.at(index); }

private:
    PrintDialog(std::vector<reports::ReportChoice> choices, const QString& title,
                const QString& frame, QWidget* parent);
    void finish(Output output);

    std::vector<reports::ReportChoice> choices_;
    std::vector<QCheckBox*> boxes_;
    Output output_ = Output::None;
};

} // namespace zolt::shell
