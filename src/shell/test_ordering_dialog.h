#pragma once

#include "assembly/test_ordering.h"

#include <QDialog>
#include <QTreeWidget>

namespace zolt {
class ProgramState;
}

namespace zolt::shell {

// The tree of stations and their netlists; a drop goes to the dialog, which
// moves the model and draws the tree anew.
class AssemblyTree : public QTreeWidget {
    Q_OBJECT
public:
    using QTreeWidget::QTreeWidget;

signals:
    void dropped(QTreeWidgetItem* dragged, QTreeWidgetItem* target);

protected:
    void dropEvent(QDropEvent* event) override;
};

// dlgTestOrdering ("Assembly Order"): lays out the assembly line as stations,
// each with a pattern and its netlists in order. OK writes the netlist
// information and the assembly order.
class TestOrderingDialog : public QDialog {
    Q_OBJECT
public:
    TestOrderingDialog(ProgramState& state, QWidget* parent = nullptr);
    void accept() override;

    QTreeWidget& tree() const { return *tree_; }
    const TestOrdering& ordering() const { return ordering_; }

    // The menu commands, on the selected node.
    void EditDescription();
    void TogglePartOfMain();
    void NewStation();
    void RenameStation();
    void DeleteStation();
    void SetPattern(int pattern);
    // What a drop of `dragged` onto `target` does; false when refused.
    bool Drop(QTreeWidgetItem* dragged, QTreeWidgetItem* target);

private:
    void rebuild();
    // Every change marks the document changed, as the dialog always has.
    void changed();
    void select(std::size_t station, std::optional<std::size_t> netlist = std::nullopt);
    void labelEdited(QTreeWidgetItem* item);
    void showMenu(const QPoint& at);
    // The station of the selected node: itself, or the parent of a netlist.
    std::optional<std::size_t> selectedStation() const;
    std::string selectedNetlist() const;

    ProgramState& state_;
    TestOrdering ordering_;
    AssemblyTree* tree_;
    bool building_ = false;
};

} // namespace zolt::shell
