#include "shell/file_settings_dialog.h"

#include "core/program_state.h"
#include "shell/ok_cancel_buttons.h"
#include "shell/privilege_dialog.h"

#include <QAction>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFocusEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

using settings::Field;

struct CheckBoxDef {
    ParamKey key;
    const char* name;
    const char* allowName;
    const char* caption;
};

constexpr CheckBoxDef kChecks[] = {
    {param::UpperCase, "chkCase", "chkAllowCase", "Use UPPER CASE Only"},
    {param::SeqBuild, "chkSequential", "chkAllowSequential", "Compile Using Sequential Build"},
    {param::CompWarnings, "chkCompiler", "chkAllowCompiler", "Show Compiler Warnings"},
    {param::ManualNet, "chkManualNet", "chkAllowManualNet", "Allow Manual Netlist Tab"},
    {param::LampPin, "chkLamp", "chkAllowLamp", "Allow Lamp Pin Definition"},
    {param::GridLocation, "chkGrid", "chkAllowGrid", "Allow Grid Location Definition"},
    {param::Switches, "chkSwitches", "chkAllowSwitches", "Allow Switch Programming"},
};

struct FieldDef {
    Field field;
    const char* name;
    const char* caption;
};

// In the order OK checks them.
constexpr FieldDef kFields[] = {
    {Field::DwellTime, "txtDwellTime", "Short Scan &Dwell Time (s):"},
    {Field::StartTestPoint, "txtStartLocationTestPoint", "Start &Location Test Point:"},
    {Field::TestVoltage, "txtTestVoltage", "Test &Voltage (V):"},
    {Field::TestCurrent, "txtTestCurrent", "Test C&urrent (mA):"},
    {Field::Threshold, "txtThreshold", "T&hreshold (V):"},
    {Field::TestResistance, "txtTestResistance", "Test &Resistance (Ohms):"},
    {Field::CompLogMask, "txtCompilerOpt", "Compiler &Options:"},
};

} // namespace

FileSettingsDialog::FileSettingsDialog(ProgramState& state, QWidget* parent)
    : QDialog(parent), model_(state), pages_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmSettings"));
    setWindowTitle(tr("File Settings"));
    pages_->setObjectName(QStringLiteral("tabSettings"));
    pages_->addTab(buildOptionsPage(), tr("&Options"));
    pages_->addTab(buildValuesPage(), tr("&Test Values"));

    auto* buttons = OkCancelButtons(*this);
    // A click on OK or Cancel leaves the focus in the field: OK checks every field
    // itself, Cancel checks none.
    for (QAbstractButton* b : buttons->buttons())
        b->setFocusPolicy(Qt::TabFocus);

    auto* hotkey = new QAction(this);
    hotkey->setObjectName(QStringLiteral("cmdHotkey"));
    hotkey->setShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+P")));
    connect(hotkey, &QAction::triggered, this, &FileSettingsDialog::askPrivilege);
    addAction(hotkey);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
    showTexts();
    showPrivilege();
}

FileSettingsDialog::~FileSettingsDialog() {
    model_.Close();
}

QWidget* FileSettingsDialog::buildOptionsPage() {
    auto* page = new QWidget;
    auto* method = new QGroupBox(tr("Netlist Method"), page);
    optGroup_ = new QRadioButton(tr("&Group Method"), method);
    optWires_ = new QRadioButton(tr("&Wires Method"), method);
    optGroup_->setObjectName(QStringLiteral("optGroup"));
    optWires_->setObjectName(QStringLiteral("optWires"));
    (model_.GroupMethod() ? optGroup_ : optWires_)->setChecked(true);
    connect(optGroup_, &QRadioButton::toggled, this,
            [this](bool on) { model_.SetGroupMethod(on); });
    auto* methodLayout = new QHBoxLayout(method);
    methodLayout->addWidget(optGroup_);
    methodLayout->addWidget(optWires_);

    auto* options = new QGroupBox(tr("Options"), page);
    auto* grid = new QGridLayout(options);
    int row = 0;
    for (const CheckBoxDef& def : kChecks) {
        auto* check = new QCheckBox(tr(def.caption), options);
        check->setObjectName(QString::fromLatin1(def.name));
        check->setChecked(model_.Checked(def.key));
        const ParamKey key = def.key;
        connect(check, &QCheckBox::clicked, this,
                [this, key](bool checked) { checkClicked(key, checked); });
        auto* allow = new QCheckBox(tr("Allowed"), options);
        allow->setObjectName(QString::fromLatin1(def.allowName));
        allow->setChecked(model_.Allowed(def.key));
        connect(allow, &QCheckBox::clicked, this, [this, key, allow](bool on) {
            if (!model_.SetAllowed(key, on))
                allow->setChecked(model_.Allowed(key));
        });
        grid->addWidget(check, row, 0);
        grid->addWidget(allow, row, 1);
        checks_[def.key] = check;
        allowed_[def.key] = allow;
        ++row;
    }
    grid->setColumnStretch(0, 1);

    auto* switchType = new QGroupBox(tr("Switch Type"), page);
    switchType->setObjectName(QStringLiteral("optSwitchType"));
    auto* switchLayout = new QVBoxLayout(switchType);
    const char* switchCaptions[] = {"One Common per Connector", "One Common for all Switches",
                                    "One Common per Switch"};
    for (int type = 1; type <= 3; ++type) {
        auto* option = new QRadioButton(tr(switchCaptions[type - 1]), switchType);
        option->setObjectName(QStringLiteral("optSwitchType_%1").arg(type));
        option->setChecked(model_.SwitchType() == type);
        connect(option, &QRadioButton::clicked, this, [this, type] { switchTypeChosen(type); });
        switchLayout->addWidget(option);
        switchTypes_[type] = option;
    }

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(method);
    layout->addWidget(options);
    layout->addWidget(switchType);
    layout->addStretch(1);
    return page;
}

QWidget* FileSettingsDialog::buildValuesPage() {
    auto* page = new QWidget;
    auto makeEdit = [this](const FieldDef& def, QWidget* parent) {
        auto* edit = new QLineEdit(parent);
        edit->setObjectName(QString::fromLatin1(def.name));
        edit->setMaxLength(16);
        edit->installEventFilter(this);
        edits_[def.field] = edit;
        return edit;
    };
    auto* scan = new QFormLayout;
    scan->addRow(tr(kFields[0].caption), makeEdit(kFields[0], page));

    auto* fixture = new QGroupBox(tr("Auto Generate Fixture"), page);
    auto* fixtureForm = new QFormLayout(fixture);
    fixtureForm->addRow(tr(kFields[1].caption), makeEdit(kFields[1], fixture));

    auto* test = new QGroupBox(tr("Default Test Parameters"), page);
    auto* testForm = new QFormLayout(test);
    for (int i = 2; i <= 5; ++i)
        testForm->addRow(tr(kFields[i].caption), makeEdit(kFields[i], test));

    compilerOptions_ = new QGroupBox(tr("Compiler"), page);
    auto* compilerForm = new QFormLayout(compilerOptions_);
    compilerForm->addRow(tr(kFields[6].caption), makeEdit(kFields[6], compilerOptions_));

    auto* layout = new QVBoxLayout(page);
    layout->addLayout(scan);
    layout->addWidget(fixture);
    layout->addWidget(test);
    layout->addWidget(compilerOptions_);
    layout->addStretch(1);
    return page;
}

void FileSettingsDialog::showTexts() {
    // Only what the model changed: another field may hold a text still to be corrected.
    for (const auto& [field, edit] : edits_)
        if (const std::string& text = model_.Text(field); shown_[field] != text || !shownOnce_) {
            edit->setText(QString::fromStdString(text));
            shown_[field] = text;
        }
    shownOnce_ = true;
}

void FileSettingsDialog::showPrivilege() {
    const bool privileged = model_.Privileged();
    for (const auto& [key, check] : checks_) {
        check->setEnabled(model_.CheckEnabled(key));
        allowed_.at(key)->setVisible(privileged);
    }
    compilerOptions_->setVisible(privileged);
}

void FileSettingsDialog::checkClicked(ParamKey key, bool checked) {
    if (!model_.SetChecked(key, checked))
        checks_.at(key)->setChecked(model_.Checked(key));
}

void FileSettingsDialog::switchTypeChosen(int type) {
    if (!model_.SetSwitchType(type))
        switchTypes_.at(model_.SwitchType())->setChecked(true);
}

bool FileSettingsDialog::leave(Field field, Leaving how) {
    QLineEdit* edit = edits_.at(field);
    const std::pair<Field, QString> text{field, edit->text()};
    const bool refusedAgain = how == Leaving::ByFocus && refused_ == text;
    checking_ = true;
    const bool ok = !refusedAgain && model_.Leave(field, text.second.toStdString());
    checking_ = false;
    if (ok) {
        if (refused_ && refused_->first == field)
            refused_.reset();
        showTexts();
        return true;
    }
    refused_ = text;
    pages_->setCurrentWidget(pages_->widget(1));
    edit->setFocus();
    edit->selectAll();
    return false;
}

bool FileSettingsDialog::eventFilter(QObject* object, QEvent* event) {
    // Only a move to another control of the dialog leaves a field; another window
    // or a menu taking the focus does not.
    const auto* focus =
        event->type() == QEvent::FocusOut ? static_cast<QFocusEvent*>(event) : nullptr;
    if (focus && focus->reason() != Qt::ActiveWindowFocusReason &&
        focus->reason() != Qt::PopupFocusReason && !checking_ && !closed_)
        for (const auto& [field, edit] : edits_)
            if (edit == object) {
                const Field left = field;
                // The box comes once the focus has settled where the user sent it.
                QTimer::singleShot(0, this, [this, left] {
                    if (!checking_ && !closed_)
                        leave(left, Leaving::ByFocus);
                });
                break;
            }
    return QDialog::eventFilter(object, event);
}

void FileSettingsDialog::accept() {
    for (const FieldDef& def : kFields)
        if (!leave(def.field, Leaving::ByOk))
            return;
    closed_ = true;
    model_.Ok();
    model_.Close();
    QDialog::accept();
}

void FileSettingsDialog::reject() {
    closed_ = true;
    model_.Close();
    QDialog::reject();
}

void FileSettingsDialog::Unlock(const QString& user, const QString& password) {
    model_.Unlock(user.toStdString(), password.toStdString());
    showPrivilege();
}

void FileSettingsDialog::askPrivilege() {
    PrivilegeDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        Unlock(dialog.User(), dialog.Password());
}

} // namespace zolt::shell
