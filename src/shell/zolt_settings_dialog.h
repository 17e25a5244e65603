#pragma once

#include "settings/zolt_settings.h"

#include <QDialog>
#include <array>
#include <functional>

class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace zolt {
class ProgramState;
}

namespace zolt::shell {

// frmZoltSettings, "ZOLT Settings": the user's directories and label
// application, the serial port, the look of the tables and how drawings are
// read. OK refuses a directory that does not exist or a bad list of connector
// prefixes; the table look goes to the open windows at once.
class ZoltSettingsDialog : public QDialog {
    Q_OBJECT
public:
    enum Page { Directories = 0, SerialPort = 1, Appearance = 2, Drawings = 3 };
    // `applied` receives the table look after OK.
    ZoltSettingsDialog(ProgramState& state,
                       std::function<void(const settings::TableAppearance&)> applied,
                       QWidget* parent = nullptr);

    void accept() override;

    QTabWidget& pages() const { return *pages_; }
    QLineEdit* DirectoryEdit(int index) const { return directories_[index]; }
    QLineEdit& labelApplication() const { return *label_; }
    QComboBox& port() const { return *port_; }
    QComboBox& baud() const { return *baud_; }
    QComboBox& parity() const { return *parity_; }
    QComboBox& dataBits() const { return *dataBits_; }
    QComboBox& stopBits() const { return *stopBits_; }
    QLineEdit& connectorPrefixes() const { return *prefixes_; }
    const settings::TableAppearance& appearance() const { return appearance_; }
    void SetAppearance(const settings::TableAppearance& appearance);
    QLabel& sample(bool sequenceText) const { return *samples_[sequenceText ? 1 : 0]; }

private:
    QWidget* buildDirectoriesPage(const settings::ZoltSettingsValues& values);
    QWidget* buildSerialPage(const settings::ZoltSettingsValues& values);
    QWidget* buildAppearancePage();
    QWidget* buildDrawingsPage(const settings::ZoltSettingsValues& values);
    void browseDirectory(int index);
    void browseLabelApplication();
    void chooseFont(bool sequenceText);
    void chooseColor(bool sequenceText, bool background);
    settings::TextStyle& style(bool sequenceText);
    void showSamples();

    ProgramState& state_;
    std::function<void(const settings::TableAppearance&)> applied_;
    settings::TableAppearance appearance_;
    QTabWidget* pages_;
    std::array<QLineEdit*, 5> directories_{};
    QLineEdit* label_ = nullptr;
    QComboBox* port_ = nullptr;
    QComboBox* baud_ = nullptr;
    QComboBox* parity_ = nullptr;
    QComboBox* dataBits_ = nullptr;
    QComboBox* stopBits_ = nullptr;
    QLineEdit* prefixes_ = nullptr;
    std::array<QLabel*, 2> samples_{};
};

// The serial ports of this machine by their device names.
QStringList SerialPortNames();

} // namespace zolt::shell
