#pragma once

#include <QDialog>
#include <QString>
#include <utility>
#include <vector>

namespace zolt::shell {

// A folder the program reads or writes, as About ZOLT lists it.
struct DataFolder {
    QString use;
    QString path;
};

// frmAbout: the version and build, the libraries the program is made with and
// their licences, and the folders in use.
class AboutDialog : public QDialog {
    Q_OBJECT
public:
    AboutDialog(const std::vector<DataFolder>& folders, QWidget* parent = nullptr);

    // The body of the box as rich text.
    static QString Body(const std::vector<DataFolder>& folders);
};

} // namespace zolt::shell
