// The print commands: frmPrint, frmGRVPrint and the toolbar's print of the active window.
#include "platform/report_painter.h"
#include "reports/report_catalog.h"
#include "sequence/program_kind.h"
#include "shell/main_window.h"
#include "shell/print_dialog.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <memory>

namespace zolt::shell {
namespace {

struct WindowTable {
    CNetList* netlist = nullptr;
    TableId table = table::Groups;
};

WindowTable TableOfWindow(const ProgramState& state, const QMdiSubWindow* window) {
    const auto table =
        window ? TableIdOf(window->property("zoltTableIndex").toInt()) : std::nullopt;
    if (!table)
        return {};
    return {state.project().NetlistByIndex(window->property("zoltNetlistIndex").toInt()), *table};
}

} // namespace

void MainWindow::printActiveWindow() {
    const WindowTable shown = TableOfWindow(*state_, mdi_->activeSubWindow());
    if (!shown.netlist)
        return;
    const reports::ReportContext context{*state_, *shown.netlist, clock_.Now()};
    const reports::ReportChoice choice{reports::ReportKind::Table, shown.table,
                                       reports::TableCheckBox(shown.table), true};
    PrintReports({reports::MakeReport(context, choice)}, this, true);
}

bool MainWindow::activeWindowPrintable() const {
    return TableOfWindow(*state_, mdi_->activeSubWindow()).netlist != nullptr;
}

void MainWindow::runPrintDialog(bool family) {
    CNetList* netlist = state_->project().ActiveNetlist;
    if (!netlist)
        return;
    const std::unique_ptr<PrintDialog> dialog(
        family ? PrintDialog::ForFamily(reports::GrvPrintChoices(*state_), this)
               : PrintDialog::ForNetlist(reports::PrintChoices(*netlist), this));
    if (dialog->exec() != QDialog::Accepted)
        return;
    const reports::ReportContext context{*state_, *netlist, clock_.Now()};
    std::vector<reports::Report> made;
    for (const auto& choice : dialog->Chosen())
        made.push_back(reports::MakeReport(context, choice));
    if (dialog->output() == PrintDialog::Output::Preview)
        PreviewReports(made, this);
    else
        PrintReports(made, this, true);
}

} // namespace zolt::shell
