#include "platform/qt_ui.h"

#include "core/app_info.h"
#include "platform/option_prompt_dialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QStringList>

namespace zolt {

QMessageBox::StandardButtons QtButtonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return QMessageBox::Ok;
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::AbortRetryIgnore:
        return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::RetryCancel:
        return QMessageBox::Retry | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

QMessageBox::Icon QtIconOf(Icon icon) {
    switch (icon) {
    case Icon::None:
        return QMessageBox::NoIcon;
    case Icon::Stop:
        return QMessageBox::Critical;
    case Icon::Question:
        return QMessageBox::Question;
    case Icon::Warning:
        return QMessageBox::Warning;
    case Icon::Information:
        return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

Answer AnswerOf(QMessageBox::StandardButton button) {
    switch (button) {
    case QMessageBox::Ok:
        return Answer::Ok;
    case QMessageBox::Abort:
        return Answer::Abort;
    case QMessageBox::Retry:
        return Answer::Retry;
    case QMessageBox::Ignore:
        return Answer::Ignore;
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

QMessageBox::StandardButton QtDefaultButtonOf(const MessageBox& box) {
    switch (DefaultAnswer(box)) {
    case Answer::Ok:
        return QMessageBox::Ok;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    case Answer::Abort:
        return QMessageBox::Abort;
    case Answer::Retry:
        return QMessageBox::Retry;
    case Answer::Ignore:
        return QMessageBox::Ignore;
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    }
    return QMessageBox::Ok;
}

Answer QtUi::Show(const MessageBox& box) {
    QMessageBox dialog(QtIconOf(box.icon),
                       QString::fromStdString(box.caption.empty() ? kAppTitle : box.caption),
                       QString::fromStdString(box.text), QtButtonsOf(box.buttons), parent_);
    dialog.setDefaultButton(QtDefaultButtonOf(box));
    // The box sizes to its text only; a long title would be cut off.
    if (auto* grid = qobject_cast<QGridLayout*>(dialog.layout())) {
        const int title = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + 120;
        grid->addItem(new QSpacerItem(title, 0, QSizePolicy::Minimum, QSizePolicy::Minimum),
                      grid->rowCount(), 0, 1, grid->columnCount());
    }
    const auto buttons = dialog.buttons();
    for (std::size_t i = 0;
         i < box.buttonTexts.size() && i < static_cast<std::size_t>(buttons.size()); ++i)
        buttons[static_cast<qsizetype>(i)]->setText(QString::fromStdString(box.buttonTexts[i]));
    dialog.exec();
    const auto* clicked = dialog.clickedButton();
    // Closing the box with Escape or the title bar counts as Cancel where there is one.
    if (!clicked)
        return DefaultAnswer(box);
    return AnswerOf(dialog.standardButton(dialog.clickedButton()));
}

std::optional<std::string> QtUi::Ask(const Prompt& prompt) {
    bool ok = false;
    const QString text = QInputDialog::getText(
        parent_, QString::fromStdString(prompt.caption), QString::fromStdString(prompt.text),
        QLineEdit::Normal, QString::fromStdString(prompt.defaultText), &ok);
    if (!ok)
        return std::nullopt;
    return text.toStdString();
}

std::optional<PromptAnswer> QtUi::AskWithOptions(const OptionPrompt& prompt) {
    OptionPromptDialog dialog(prompt, parent_);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.Result();
}

std::optional<int> QtUi::Choose(const Choice& choice) {
    QStringList items;
    for (const auto& option : choice.options)
        items << QString::fromStdString(option);
    bool ok = false;
    const QString picked = QInputDialog::getItem(parent_, QString::fromStdString(choice.caption),
                                                 QString::fromStdString(choice.text), items,
                                                 choice.initial, false, &ok);
    if (!ok)
        return std::nullopt;
    const auto index = items.indexOf(picked);
    return index < 0 ? std::nullopt : std::optional<int>(static_cast<int>(index));
}

QStringList QtNameFilters(const std::string& filter) {
    // Descriptions and patterns alternate; the description already names the patterns.
    const QStringList parts = QString::fromStdString(filter).split(QLatin1Char('|'));
    QStringList names;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        names << parts[i].section(QLatin1Char('('), 0, 0).trimmed() + QStringLiteral(" (") +
                     patterns.replace(QLatin1Char(';'), QLatin1Char(' ')) + QLatin1Char(')');
    }
    return names;
}

std::optional<std::string> QtUi::ChooseFile(const FileDialog& request) {
    QFileDialog dialog(parent_, QString::fromStdString(request.title),
                       QString::fromStdString(request.directory));
    const QStringList filters = QtNameFilters(request.filter);
    dialog.setNameFilters(filters);
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (request.save && !filters.isEmpty()) {
        // A name typed without extension takes the one of the filter chosen.
        const auto suffixOf = [](const QString& filter) {
            const QRegularExpressionMatch m =
                QRegularExpression(QStringLiteral("\\*\\.(\\w+)")).match(filter);
            return m.hasMatch() ? m.captured(1) : QString();
        };
        dialog.setDefaultSuffix(suffixOf(filters.front()));
        QObject::connect(
            &dialog, &QFileDialog::filterSelected, &dialog,
            [&dialog, suffixOf](const QString& f) { dialog.setDefaultSuffix(suffixOf(f)); });
    }
    dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    // The program asks about overwriting itself.
    dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
    dialog.selectFile(QString::fromStdString(request.fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().front().toStdString();
}

void QtUi::SetPanelText(int panel, const std::string& text) {
    if (panelSink_)
        panelSink_(panel, text);
}

void QtUi::SetBusy(bool busy) {
    if (busy) {
        if (busyDepth_++ == 0)
            QApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (busyDepth_ > 0 && --busyDepth_ == 0) {
        QApplication::restoreOverrideCursor();
    }
}

void QtUi::Beep() {
    QApplication::beep();
}

void QtUi::DebugLog(const std::string& line) {
    if (debugSink_)
        debugSink_(line);
}

} // namespace zolt
