#include "shell/qtdialogs.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QMessageBox>
#include <QWidget>

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
