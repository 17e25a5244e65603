#include "shell/properties_dialog.h"

#include "core/program_state.h"
#include "settings/file_properties.h"
#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

// Captions of the first page's fields, in the order of their keys.
const char* const kGeneralCaptions[] = {
    "&Part Number:", "&Revision:",          "&Author:",
    "&Manager:",     "C&ompany:",           "Company &Location:",
    "C&ustomer:",    "Customer Locat&ion:", "&Notes:"};
constexpr std::size_t kGeneralFields = 9;
constexpr int kCustomPairs = 8;

QString textOf(const QWidget* field) {
    if (const auto* line = qobject_cast<const QLineEdit*>(field))
        return line->text();
    return static_cast<const QPlainTextEdit*>(field)->toPlainText();
}

} // namespace

PropertiesDialog::PropertiesDialog(ProgramState& state, QWidget* parent)
    : QDialog(parent), state_(state), pages_(new QTabWidget(this)) {
    setObjectName(QStringLiteral("frmProperties"));
    setWindowTitle(tr("File Properties"));
    const std::vector<std::string> texts = settings::LoadProperties(state);
    fields_.resize(texts.size());
    pages_->setObjectName(QStringLiteral("tabSetup"));
    pages_->addTab(buildGeneralPage(texts), tr("&General"));
    pages_->addTab(buildCustomPage(texts), tr("&Custom"));

    auto* buttons = OkCancelButtons(*this);
    ok_ = buttons->button(QDialogButtonBox::Ok);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    layout->addWidget(buttons);
    resize(std::max(sizeHint().width(), 520), sizeHint().height());
    // Typing starts in the first field, so that Enter moves on rather than closing.
    fields_.front()->setFocus();
}

QWidget* PropertiesDialog::addField(QWidget* parent, std::size_t index, const std::string& text) {
    const ParamKey key = settings::PropertyKeys()[index];
    QWidget* field = nullptr;
    if (key == param::Notes) {
        auto* notes = new QPlainTextEdit(QString::fromStdString(text), parent);
        notes->setTabChangesFocus(true);
        notes->setMinimumHeight(70);
        field = notes;
    } else {
        field = new QLineEdit(QString::fromStdString(text), parent);
    }
    field->setObjectName(QStringLiteral("txt") + QString::fromUtf8(key.Name()));
    field->installEventFilter(this);
    fields_[index] = field;
    return field;
}

QWidget* PropertiesDialog::buildGeneralPage(const std::vector<std::string>& texts) {
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    for (std::size_t i = 0; i < kGeneralFields; ++i)
        form->addRow(tr(kGeneralCaptions[i]), addField(page, i, texts[i]));
    return page;
}

QWidget* PropertiesDialog::buildCustomPage(const std::vector<std::string>& texts) {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->addWidget(new QLabel(tr("Title"), page), 0, 1);
    grid->addWidget(new QLabel(tr("Comment"), page), 0, 2);
    for (int pair = 0; pair < kCustomPairs; ++pair) {
        const std::size_t title = kGeneralFields + 2 * static_cast<std::size_t>(pair);
        grid->addWidget(new QLabel(QString::number(pair + 1), page), pair + 1, 0);
        grid->addWidget(addField(page, title, texts[title]), pair + 1, 1);
        grid->addWidget(addField(page, title + 1, texts[title + 1]), pair + 1, 2);
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(kCustomPairs + 1, 1);
    return page;
}

void PropertiesDialog::moveOn(QWidget* from) {
    const auto it = std::find(fields_.begin(), fields_.end(), from);
    if (it == fields_.end() || it + 1 == fields_.end()) {
        ok_->setFocus();
        return;
    }
    QWidget* next = *(it + 1);
    if (!next->isVisible())
        pages_->setCurrentIndex(1);
    next->setFocus(Qt::TabFocusReason);
    if (auto* line = qobject_cast<QLineEdit*>(next))
        line->selectAll();
}

bool PropertiesDialog::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        // Enter is a Tab here; Shift+Enter still breaks a line of the notes.
        if (enter && !(key->modifiers() & Qt::ShiftModifier)) {
            moveOn(static_cast<QWidget*>(object));
            return true;
        }
    }
    return QDialog::eventFilter(object, event);
}

void PropertiesDialog::accept() {
    std::vector<std::string> texts;
    for (const QWidget* field : fields_)
        texts.push_back(textOf(field).toStdString());
    settings::WriteProperties(state_, texts);
    QDialog::accept();
}

} // namespace zolt::shell
