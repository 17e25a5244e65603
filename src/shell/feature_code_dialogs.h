#pragma once

#include "assembly/feature_codes.h"

#include <QDialog>
#include <string>
#include <vector>

class QTableWidget;
class QTableWidgetItem;

namespace zolt {
class ProgramState;
}

namespace zolt::shell {

// dlgEditFeatureCodes: the feature codes on the left, the netlists of the
// selected one, ticked, on the right. OK writes the codes back to the document.
class EditFeatureCodesDialog : public QDialog {
    Q_OBJECT
public:
    EditFeatureCodesDialog(ProgramState& state, QWidget* parent = nullptr);
    void accept() override;

    // The buttons, for the keyboard and for tests.
    void AddFeatureCode();
    void RenameFeatureCode();
    void DeleteFeatureCode();
    void CheckAll(bool ticked);
    QTableWidget& codesGrid() const { return *codesGrid_; }
    QTableWidget& netlistGrid() const { return *netlistGrid_; }

private:
    void fillCodes(int select);
    void fillNetlists();
    void codeEdited(QTableWidgetItem* item);
    void netlistTicked(QTableWidgetItem* item);
    std::string selectedCode() const;

    ProgramState& state_;
    FeatureCodes codes_;
    std::vector<std::string> candidates_;
    QTableWidget* codesGrid_;
    QTableWidget* netlistGrid_;
    bool filling_ = false;
};

// dlgSelectFeatureCodes: ticks the feature codes of the harness at hand.
class SelectFeatureCodesDialog : public QDialog {
    Q_OBJECT
public:
    SelectFeatureCodesDialog(ProgramState& state, QWidget* parent = nullptr);
    void accept() override;
    void CheckAll(bool ticked);
    // Ticks the codes a comma-separated text file names, after asking.
    void ImportList();
    QTableWidget& grid() const { return *grid_; }

private:
    ProgramState& state_;
    QTableWidget* grid_;
};

} // namespace zolt::shell
