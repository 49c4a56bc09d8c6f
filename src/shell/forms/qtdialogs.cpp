#include "shell/forms/qtdialogs.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontMetricsF>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
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

// A box answers Escape and its close box only where it has a button that means "leave it":
// Cancel, or OK when that is its only button. A Yes or No question has no third answer, so
// there Escape and the close box do nothing; the user must say Yes or No.
class MessageBox final : public QMessageBox {
public:
    MessageBox(QMessageBox::Icon icon, const QString& text, QWidget* parent)
        : QMessageBox(icon, QString(), text, QMessageBox::NoButton, parent) {}

    void setLeaveButton(QAbstractButton* button) {
        leave_ = button;
        if (button != nullptr) {
            setEscapeButton(button);
        }
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape && leave_ == nullptr) {
            event->accept();
            return;
        }
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (leave_ == nullptr) {
            event->ignore();
            return;
        }
        QMessageBox::closeEvent(event);
    }

private:
    QAbstractButton* leave_ = nullptr;
};

// Room for a box's title bar and frame, which the window system shows only once it is up.
constexpr int kFrameAllowance = 48;

// A text too tall for the screen's available area stands in a scrolling area inside the box,
// as tall as the screen leaves room for beside the buttons, so that the whole box stays on
// the screen; the keys that scroll a page scroll it.
void fitTextToScreen(QMessageBox& box) {
    auto* label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
    const QScreen* screen = box.screen();
    if (label == nullptr || screen == nullptr) {
        return;
    }
    const int room = screen->availableGeometry().height() - kFrameAllowance;
    box.layout()->activate();
    const int whole = box.layout()->totalSizeHint().height();
    if (whole <= room) {
        return;
    }
    auto* text = new QScrollArea;
    text->setObjectName(QStringLiteral("scrText"));
    text->setFrameShape(QFrame::NoFrame);
    text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    text->setWidgetResizable(true);
    delete box.layout()->replaceWidget(label, text);
    text->setWidget(label);
    text->setFixedHeight(room - (whole - label->sizeHint().height()));
    text->setMinimumWidth(label->sizeHint().width() +
                          text->verticalScrollBar()->sizeHint().width());
}

// While a dialog asks, the pointer is the normal one, whatever hourglass the command shows;
// the hourglass comes back with the answer.
class NormalPointerWhileAsking {
public:
    NormalPointerWhileAsking() {
        while (QApplication::overrideCursor() != nullptr) {
            QApplication::restoreOverrideCursor();
            ++lifted_;
        }
    }
    ~NormalPointerWhileAsking() {
        for (int i = 0; i < lifted_; ++i) {
            QApplication::setOverrideCursor(Qt::WaitCursor);
        }
    }
    NormalPointerWhileAsking(const NormalPointerWhileAsking&) = delete;
    NormalPointerWhileAsking& operator=(const NormalPointerWhileAsking&) = delete;

private:
    int lifted_ = 0;
};

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

// Both dialogs take any name typed: the open dialog lets a name that is not there through to
// the reading of the file, which tells the user what it could not read.
std::optional<QString> runFileDialog(const FileDialog& request, QFileDialog::AcceptMode mode,
                                     QWidget* parent,
                                     QFileDialog::FileMode fileMode = QFileDialog::AnyFile) {
    const NormalPointerWhileAsking pointer;
    QFileDialog dialog(parent, request.title, request.initialDir);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(fileMode);
    dialog.setOption(QFileDialog::ShowDirsOnly, fileMode == QFileDialog::Directory);
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
    const NormalPointerWhileAsking pointer;
    const std::vector<Button> choices = buttonsOf(buttons);
    MessageBox box(qtIcon(icon), text, parent_);
    for (const Button& choice : choices) {
        QAbstractButton* button = box.addButton(choice.qt);
        if (choice.answer == MsgAnswer::Cancel || buttons == MsgButtons::OK) {
            box.setLeaveButton(button);
        }
    }
    const auto chosenDefault = static_cast<std::size_t>(std::max(defaultButton, 1) - 1);
    box.setDefaultButton(choices[std::min(chosenDefault, choices.size() - 1)].qt);
    fitTextToScreen(box);
    const auto clicked = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const Button& choice : choices) {
        if (choice.qt == clicked) {
            return choice.answer;
        }
    }
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

std::optional<QString> QtDialogs::folderDialog(const FileDialog& request) {
    return runFileDialog(request, QFileDialog::AcceptOpen, parent_, QFileDialog::Directory);
}

std::optional<QString> QtDialogs::inputBox(const QString& prompt, const QString& proposal) {
    const NormalPointerWhileAsking pointer;
    QInputDialog box(parent_);
    box.setLabelText(prompt);
    box.setTextValue(proposal);
    if (box.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return box.textValue();
}

// The list under its prompt, the first item chosen; a double click chooses and closes.
std::optional<int> QtDialogs::chooseItem(const QString& prompt, const QStringList& items) {
    const NormalPointerWhileAsking pointer;
    QDialog box(parent_);
    auto* label = new QLabel(prompt, &box);
    label->setWordWrap(true);
    auto* list = new QListWidget(&box);
    list->setObjectName(QStringLiteral("lstChoices"));
    list->setAccessibleName(prompt);
    list->addItems(items);
    list->setCurrentRow(0);
    // Wide enough for the longest item, so that no address is cut.
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth() +
                          list->verticalScrollBar()->sizeHint().width());
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &box, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemDoubleClicked, &box, &QDialog::accept);
    auto* layout = new QVBoxLayout(&box);
    layout->addWidget(label);
    layout->addWidget(list);
    layout->addWidget(buttons);
    if (box.exec() != QDialog::Accepted || list->currentRow() < 0) {
        return std::nullopt;
    }
    return list->currentRow();
}
