#include "shell/forms/qtdialogs.h"

#include "core/forms/formkit.h"
#include "fakes.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

// Acts on the dialog once it is up, as the user would, and records what it saw.
void whenUp(const std::function<void(QWidget*)>& act) {
    QTimer::singleShot(0, [act] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        act(dialog);
    });
}

}  // namespace

// Escape and the close box leave a box only where it has a button that means leaving it:
// Cancel, or OK when that is the only one. A Yes or No question waits for Yes or No. While a
// box asks, the pointer is the normal one, and the hourglass comes back after.
TEST(QtDialogs, EscapeAndTheCloseBoxNeverAnswerAQuestion) {
    const struct {
        MsgButtons buttons;
        MsgAnswer byEscape;  // No stands for no answer: the box stays until clicked
    } cases[] = {{MsgButtons::YesNo, MsgAnswer::No},
                 {MsgButtons::YesNoCancel, MsgAnswer::Cancel},
                 {MsgButtons::OKCancel, MsgAnswer::Cancel},
                 {MsgButtons::OK, MsgAnswer::OK}};
    QtDialogs dialogs;
    for (const auto& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.buttons));
        showHourglass();
        bool stayed = false;
        whenUp([&](QWidget* box) {
            EXPECT_EQ(QApplication::overrideCursor(), nullptr);
            QTest::keyClick(box, Qt::Key_Escape);
            box->close();
            stayed = box->isVisible();
            if (stayed) {
                static_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click();
            }
        });
        const MsgAnswer answer =
            dialogs.messageBox(QStringLiteral("Question?"), MsgIcon::Question, c.buttons, 1);
        EXPECT_EQ(stayed, c.byEscape == MsgAnswer::No);
        EXPECT_EQ(answer, stayed ? MsgAnswer::Yes : c.byEscape);
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        showNormalPointer();
    }
}

// The default button is the one asked for; the box shows the text and no title of its own. A
// text taller than the screen, such as a list of 200 agents, scrolls inside the box, which
// stays on the screen's available area with its buttons.
TEST(QtDialogs, TheBoxShowsTheTextWithTheDefaultButton) {
    QStringList agents(200, QStringLiteral("     Ann Agent"));
    for (const QString& shown : {QStringLiteral("Delete?"), agents.join(QStringLiteral("\r\n"))}) {
        QtDialogs dialogs;
        whenUp([&](QWidget* widget) {
            auto* box = static_cast<QMessageBox*>(widget);
            EXPECT_EQ(box->text(), shown);
            EXPECT_TRUE(box->windowTitle().isEmpty());
            EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
            const QRect area = box->screen()->availableGeometry();
            const QWidget* yes = box->button(QMessageBox::Yes);
            EXPECT_TRUE(area.contains(box->frameGeometry()) &&
                        area.contains(QRect(yes->mapToGlobal(QPoint()), yes->size())));
            const auto* scrolling = box->findChild<QScrollArea*>();
            EXPECT_EQ(scrolling != nullptr && scrolling->verticalScrollBar()->maximum() > 0,
                      shown.size() > 10);
            QTest::keyClick(box, Qt::Key_Return);
        });
        EXPECT_EQ(dialogs.messageBox(shown, MsgIcon::Question, MsgButtons::YesNo, 2),
                  MsgAnswer::No);
    }
}

// The open dialog lets a name that is not there through, to be refused by the reading; both
// dialogs start in the folder and on the name asked for, and Cancel gives nothing.
TEST(QtDialogs, TheFileDialogsTakeAnyNameTyped) {
    QTemporaryDir dir;
    QtDialogs dialogs;
    FileDialog request;
    request.title = QStringLiteral("Open desko schedule...");
    request.filter = QStringLiteral("Desko schedules (*.dko)|*.dko|All files (*.*)|*.*");
    request.initialDir = dir.path();
    request.fileName = QStringLiteral("*.dko");
    QStringList filters;
    whenUp([&](QWidget* widget) {
        auto* dialog = static_cast<QFileDialog*>(widget);
        filters = dialog->nameFilters();
        auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(name, nullptr);
        name->setText(QStringLiteral("absent.dko"));
        QTest::keyClick(name, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.openFileDialog(request), dir.filePath(QStringLiteral("absent.dko")));
    EXPECT_EQ(filters, texts({"Desko schedules (*.dko)", "All files (*.*)"}));

    whenUp([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.saveFileDialog(request), std::nullopt);
}
