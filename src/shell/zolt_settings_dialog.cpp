#include "shell/zolt_settings_dialog.h"

#include "core/program_state.h"
#include "shell/ok_cancel_buttons.h"
#include "shell/table_appearance.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFontDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSerialPortInfo>
#include <QTabWidget>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

using settings::ZoltSettingsValues;

const char* const kDirectoryCaptions[] = {
    "&Program Directory:", "&Template Directory:", "&Backup Directory:", "&Labels Directory:",
    "P&ID Directory:"};

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// A combo box of fixed choices with `current` chosen, added when it is none of them.
template <typename List>
QComboBox* choices(QWidget* parent, const char* name, const List& list, const QString& current) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(QString::fromLatin1(name));
    for (const auto& item : list) {
        if constexpr (std::is_same_v<std::decay_t<decltype(item)>, const char*>)
            combo->addItem(QString::fromLatin1(item));
        else
            combo->addItem(QString::number(item));
    }
    if (combo->findText(current) < 0 && !current.isEmpty())
        combo->addItem(current);
    combo->setCurrentIndex(combo->findText(current));
    return combo;
}

QPushButton* browseButton(QWidget* parent, const QString& name, const QString& tip) {
    auto* button = new QPushButton(QStringLiteral("..."), parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFixedWidth(32);
    return button;
}

} // namespace

QStringList SerialPortNames() {
    QStringList names;
    for (const QSerialPortInfo& port : QSerialPortInfo::availablePorts())
#ifdef Q_OS_WIN
        names << port.portName();
#else
        names << port.systemLocation();
#endif
    names.sort();
    return names;
}

ZoltSettingsDialog::ZoltSettingsDialog(
    ProgramState& state, std::function<void(const settings::TableAppearance&)> applied,
    QWidget* parent)
    : QDialog(parent), state_(state), applied_(std::move(applied)), pages_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmZoltSettings"));
    setWindowTitle(tr("ZOLT Settings"));
    const ZoltSettingsValues values = settings::LoadZoltSettings(state);
    appearance_ = values.appearance;
    pages_->setObjectName(QStringLiteral("tabSettings"));
    pages_->addTab(buildDirectoriesPage(values), tr("&Directories"));
    pages_->addTab(buildSerialPage(values), tr("&Serial Port"));
    pages_->addTab(buildAppearancePage(), tr("Table &Appearance"));
    pages_->addTab(buildDrawingsPage(values), tr("Dra&wings"));

    auto* buttons = OkCancelButtons(*this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
    showSamples();
    resize(std::max(sizeHint().width(), 560), sizeHint().height());
}

QWidget* ZoltSettingsDialog::buildDirectoriesPage(const ZoltSettingsValues& values) {
    auto* page = new QWidget;
    auto* folders = new QGroupBox(tr("Default Directories"), page);
    auto* grid = new QGridLayout(folders);
    for (int i = 0; i < 5; ++i) {
        auto* edit = new QLineEdit(qs(values.directories[i]), folders);
        edit->setObjectName(QStringLiteral("txtDirectory_%1").arg(i));
        auto* caption = new QLabel(tr(kDirectoryCaptions[i]), folders);
        caption->setBuddy(edit);
        auto* browse = browseButton(folders, QStringLiteral("cmdBrowse_%1").arg(i),
                                    tr("Browse for a new folder"));
        connect(browse, &QPushButton::clicked, this, [this, i] { browseDirectory(i); });
        grid->addWidget(caption, i, 0);
        grid->addWidget(edit, i, 1);
        grid->addWidget(browse, i, 2);
        directories_[i] = edit;
    }
    grid->setColumnStretch(1, 1);

    auto* labels = new QGroupBox(tr("Label Application"), page);
    auto* row = new QHBoxLayout(labels);
    label_ = new QLineEdit(qs(values.labelApplication), labels);
    label_->setObjectName(QStringLiteral("txtLabelApplication"));
    label_->setPlaceholderText(tr("Not installed"));
    auto* caption = new QLabel(tr("La&belark:"), labels);
    caption->setBuddy(label_);
    auto* browse = browseButton(labels, QStringLiteral("cmdBrowseLabel"),
                                tr("Browse for the label application"));
    connect(browse, &QPushButton::clicked, this, &ZoltSettingsDialog::browseLabelApplication);
    row->addWidget(caption);
    row->addWidget(label_, 1);
    row->addWidget(browse);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(folders);
    layout->addWidget(labels);
    layout->addStretch(1);
    return page;
}

QWidget* ZoltSettingsDialog::buildSerialPage(const ZoltSettingsValues& values) {
    auto* page = new QWidget;
    port_ = new QComboBox(page);
    port_->setObjectName(QStringLiteral("cboCommPort"));
    // A device the system does not list (an adapter plugged in later) can be typed.
    port_->setEditable(true);
    port_->addItems(SerialPortNames());
    port_->setCurrentText(qs(values.port));
    baud_ = choices(page, "cboBaud", settings::kBaudRates, QString::number(values.baud));
    parity_ = choices(page, "cboParity", settings::kParities, qs(values.parity));
    dataBits_ = choices(page, "cboDataBits", settings::kDataBits, QString::number(values.dataBits));
    stopBits_ = choices(page, "cboStopBits", settings::kStopBits, QString::number(values.stopBits));
    auto* form = new QFormLayout;
    form->addRow(tr("&COM Port:"), port_);
    form->addRow(tr("&Baud Rate:"), baud_);
    form->addRow(tr("&Parity:"), parity_);
    form->addRow(tr("&Data Bits:"), dataBits_);
    form->addRow(tr("S&top Bits:"), stopBits_);
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(form);
    layout->addStretch(1);
    return page;
}

QWidget* ZoltSettingsDialog::buildAppearancePage() {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    const char* captions[] = {"Netlist Table Text", "Sequence and Message Text"};
    for (int i = 0; i < 2; ++i) {
        const bool sequenceText = i == 1;
        auto* group = new QGroupBox(tr(captions[i]), page);
        auto* font = new QPushButton(tr(sequenceText ? "F&ont..." : "&Font..."), group);
        auto* colour =
            new QPushButton(tr(sequenceText ? "T&ext Color..." : "&Text Color..."), group);
        auto* back = new QPushButton(tr(sequenceText ? "Bac&kground..." : "&Background..."), group);
        font->setObjectName(QStringLiteral("cmdFont_%1").arg(i));
        colour->setObjectName(QStringLiteral("cmdColor_%1").arg(i));
        back->setObjectName(QStringLiteral("cmdBackColor_%1").arg(i));
        connect(font, &QPushButton::clicked, this,
                [this, sequenceText] { chooseFont(sequenceText); });
        connect(colour, &QPushButton::clicked, this,
                [this, sequenceText] { chooseColor(sequenceText, false); });
        connect(back, &QPushButton::clicked, this,
                [this, sequenceText] { chooseColor(sequenceText, true); });
        samples_[i] = new QLabel(tr("Sample Text"), group);
        samples_[i]->setObjectName(QStringLiteral("lblSample_%1").arg(i));
        samples_[i]->setAutoFillBackground(true);
        samples_[i]->setFrameShape(QFrame::StyledPanel);
        samples_[i]->setMinimumHeight(40);
        samples_[i]->setAlignment(Qt::AlignCenter);
        auto* buttons = new QVBoxLayout;
        buttons->addWidget(font);
        buttons->addWidget(colour);
        buttons->addWidget(back);
        auto* row = new QHBoxLayout(group);
        row->addLayout(buttons);
        row->addWidget(samples_[i], 1);
        layout->addWidget(group);
    }
    auto* reset = new QPushButton(tr("&Reset"), page);
    reset->setObjectName(QStringLiteral("cmdReset"));
    connect(reset, &QPushButton::clicked, this, [this] { SetAppearance({}); });
    auto* resetRow = new QHBoxLayout;
    resetRow->addStretch(1);
    resetRow->addWidget(reset);
    layout->addLayout(resetRow);
    layout->addStretch(1);
    return page;
}

QWidget* ZoltSettingsDialog::buildDrawingsPage(const ZoltSettingsValues& values) {
    auto* page = new QWidget;
    auto* kicad = new QGroupBox(tr("KiCad Netlists"), page);
    prefixes_ = new QLineEdit(qs(values.connectorPrefixes), kicad);
    prefixes_->setObjectName(QStringLiteral("txtConnectorPrefixes"));
    prefixes_->setPlaceholderText(QString::fromLatin1(interchange::kDefaultConnectorPrefixes));
    auto* caption = new QLabel(tr("Co&nnector Prefixes:"), kicad);
    caption->setBuddy(prefixes_);
    auto* hint = new QLabel(tr("A part whose reference is one of these prefixes and a number (J1, "
                               "P12) is read as a connector. Letters, separated by commas."),
                            kicad);
    hint->setWordWrap(true);
    auto* grid = new QGridLayout(kicad);
    grid->addWidget(caption, 0, 0);
    grid->addWidget(prefixes_, 0, 1);
    grid->addWidget(hint, 1, 1);
    grid->setColumnStretch(1, 1);
    auto* layout = new QVBoxLayout(page);
    layout->addWidget(kicad);
    layout->addStretch(1);
    return page;
}

settings::TextStyle& ZoltSettingsDialog::style(bool sequenceText) {
    return sequenceText ? appearance_.sequenceText : appearance_.netlistTables;
}

void ZoltSettingsDialog::SetAppearance(const settings::TableAppearance& appearance) {
    appearance_ = appearance;
    showSamples();
}

void ZoltSettingsDialog::showSamples() {
    for (int i = 0; i < 2; ++i) {
        const settings::TextStyle& s =
            i == 1 ? appearance_.sequenceText : appearance_.netlistTables;
        samples_[i]->setFont(StyleFont(s));
        QPalette palette = samples_[i]->palette();
        palette.setColor(QPalette::WindowText, s.foreground.empty()
                                                   ? QApplication::palette().color(QPalette::Text)
                                                   : QColor(qs(s.foreground)));
        palette.setColor(QPalette::Window, s.background.empty()
                                               ? QApplication::palette().color(QPalette::Base)
                                               : QColor(qs(s.background)));
        samples_[i]->setPalette(palette);
    }
}

void ZoltSettingsDialog::chooseFont(bool sequenceText) {
    settings::TextStyle& s = style(sequenceText);
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, StyleFont(s), this, tr("Font"));
    if (!ok)
        return;
    s.family = font.family().toStdString();
    s.pointSize = std::max(0, font.pointSize());
    s.bold = font.bold();
    s.italic = font.italic();
    showSamples();
}

void ZoltSettingsDialog::chooseColor(bool sequenceText, bool background) {
    settings::TextStyle& s = style(sequenceText);
    std::string& target = background ? s.background : s.foreground;
    const QColor initial =
        target.empty() ? QApplication::palette().color(background ? QPalette::Base : QPalette::Text)
                       : QColor(qs(target));
    const QColor colour =
        QColorDialog::getColor(initial, this, background ? tr("Background") : tr("Text Color"));
    if (!colour.isValid())
        return;
    target = colour.name().toStdString();
    showSamples();
}

void ZoltSettingsDialog::browseDirectory(int index) {
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Browse for a new folder"),
                                                             directories_[index]->text());
    if (!chosen.isEmpty())
        directories_[index]->setText(QDir::toNativeSeparators(chosen));
}

void ZoltSettingsDialog::browseLabelApplication() {
    const QString chosen =
        QFileDialog::getOpenFileName(this, tr("Label Application"), label_->text());
    if (!chosen.isEmpty())
        label_->setText(QDir::toNativeSeparators(chosen));
}

void ZoltSettingsDialog::accept() {
    ZoltSettingsValues values;
    for (int i = 0; i < 5; ++i)
        values.directories[i] = directories_[i]->text().toStdString();
    values.port = port_->currentText().trimmed().toStdString();
    values.baud = baud_->currentText().toInt();
    values.parity = parity_->currentText().toStdString();
    values.dataBits = dataBits_->currentText().toInt();
    values.stopBits = stopBits_->currentText().toInt();
    values.labelApplication = label_->text().toStdString();
    values.connectorPrefixes = prefixes_->text().toStdString();
    values.appearance = appearance_;
    if (const auto refusal = settings::ApplyZoltSettings(state_, values)) {
        using Where = settings::ZoltSettingsRefusal::Where;
        pages_->setCurrentIndex(refusal->where == Where::ConnectorPrefixes ? Drawings
                                                                           : Directories);
        QLineEdit* field = refusal->where == Where::Directory ? directories_[refusal->index]
                           : refusal->where == Where::ConnectorPrefixes ? prefixes_
                                                                        : label_;
        field->setFocus();
        field->selectAll();
        return;
    }
    if (applied_)
        applied_(appearance_);
    QDialog::accept();
}

} // namespace zolt::shell
