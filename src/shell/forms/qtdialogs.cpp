#include "shell/forms/qtdialogs.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace {

QMessageBox::Icon qtIcon(MsgIcon icon) {
    switch (icon) {
        case MsgIcon::Stop:
            return QMessageBox::Critical;
        case MsgIcon::Question:
            return QMessageBox::Question;
        case MsgIcon::Exclamation:
            return QMessageBox::Warning;
        case MsgIcon::Information:
            return QMessageBox::Information;
        case MsgIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

struct Button {
    QMessageBox::StandardButton qt;
    MsgAnswer answer;
};

std::vector<Button> buttonsOf(MsgButtons buttons) {
    switch (buttons) {
        case MsgButtons::OKCancel:
            return {{QMessageBox::Ok, MsgAnswer::OK}, {QMessageBox::Cancel, MsgAnswer::Cancel}};
        case MsgButtons::YesNo:
            return {{QMessageBox::Yes, MsgAnswer::Yes}, {QMessageBox::No, MsgAnswer::No}};
        case MsgButtons::YesNoCancel:
            return {{QMessageBox::Yes, MsgAnswer::Yes},
                    {QMessageBox::No, MsgAnswer::No},
                    {QMessageBox::Cancel, MsgAnswer::Cancel}};
        case MsgButtons::OK:
            break;
    }
    return {{QMessageBox::Ok, MsgAnswer::OK}};
}

// "Desko schedules (*.dko)|*.dko|All files (*.*)|*.*" becomes the name filters Qt shows,
// "Desko schedules (*.dko)" and "All files (*.*)". Qt reads the patterns from the brackets
// of each name, so a description that does not end with its own patterns gets them added.
QStringList nameFilters(const QString& filter) {
    const QStringList parts = filter.split(QLatin1Char('|'));
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' '));
        const QString suffix = QStringLiteral(" (") + patterns + QLatin1Char(')');
        result.append(parts[i].endsWith(suffix) ? parts[i] : parts[i] + suffix);
    }
    return result;
}

std::optional<QString> runFileDialog(const FileDialog& request, QFileDialog::AcceptMode mode,
                                     QWidget* parent) {
    QFileDialog dialog(parent, request.title, request.initialDir);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                       : QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.promptOverwrite);
    const QStringList filters = nameFilters(request.filter);
    if (!filters.isEmpty()) {
        dialog.setNameFilters(filters);
        dialog.selectNameFilter(filters.value(std::max(request.filterIndex, 1) - 1, filters[0]));
    }
    if (!request.fileName.isEmpty()) {
        dialog.selectFile(request.fileName);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().constFirst();
}

}  // namespace

MsgAnswer QtDialogs::messageBox(const QString& text, MsgIcon icon, MsgButtons buttons,
                                int defaultButton) {
    const std::vector<Button> choices = buttonsOf(buttons);
    QMessageBox box(qtIcon(icon), QString(), text, QMessageBox::NoButton, parent_);
    for (const Button& choice : choices) {
        box.addButton(choice.qt);
    }
    const auto chosenDefault = static_cast<std::size_t>(std::max(defaultButton, 1) - 1);
    box.setDefaultButton(choices[std::min(chosenDefault, choices.size() - 1)].qt);
    const auto clicked = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const Button& choice : choices) {
        if (choice.qt == clicked) {
            return choice.answer;
        }
    }
    // Closing the box by its frame or Escape answers as its last button does.
    return choices.back().answer;
}

double QtDialogs::textWidth(const QString& text) const {
    return QFontMetricsF(parent_ ? parent_->font() : QApplication::font()).horizontalAdvance(text);
}

std::optional<QString> QtDialogs::openFileDialog(const FileDialog& request) {
    return runFileDialog(request, QFileDialog::AcceptOpen, parent_);
}

std::optional<QString> QtDialogs::saveFileDialog(const FileDialog& request) {
    return runFileDialog(request, QFileDialog::AcceptSave, parent_);
}
