#pragma once

#include "tutorial/groups_tutorial.h"

#include <QWidget>
#include <map>

class QLabel;
class QPushButton;
class QTimer;

namespace zolt::shell {

// frmTutorial: the steps of the groups tutorial beside the table windows,
// non-modal. It watches the tables and says when a step is done; the user
// types in the real windows.
class TutorialWindow : public QWidget {
    Q_OBJECT
public:
    TutorialWindow(ProgramState& state, QWidget* parent);

    tutorial::GroupsTutorial& walk() { return walk_; }
    QPushButton* button(const QString& name) const;
    QString statusText() const;
    QString titleText() const;
    // Re-checks the step against the tables and shows what it found.
    void Refresh();

signals:
    // The window and cell to bring before the user.
    void FocusRequested(zolt::tutorial::StepFocus focus);
    void SaveRequested();
    // A skip typed into the tables.
    void TablesEdited();
    void Ended();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QPushButton* addButton(const QString& text, const char* name);
    void showStep();
    void next();
    void back();
    void skip();
    void quit();

    tutorial::GroupsTutorial walk_;
    QLabel* title_;
    QLabel* instruction_;
    QLabel* status_;
    QTimer* watch_;
    std::map<QString, QPushButton*> buttons_;
    bool ending_ = false;
};

} // namespace zolt::shell
