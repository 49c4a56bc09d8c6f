#pragma once

#include "core/forms/facewindow.h"
#include "core/model/session.h"
#include "fakes.h"
#include "shell/forms/frmMain.h"

// The controls the forms are made of, for the tests that drive them.
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

// The program's window with its main form over a workspace of its own, in a program
// directory of its own, in January 2027. open() puts it on the screen.
struct MainWindow {
    MainWindow() { openMonth(ws, 2027, 1, home.path()); }

    frmMain& open(const QString& programFile = QStringLiteral("desko40")) {
        window = std::make_unique<FaceWindow>();
        main = new frmMain(ws, s.ctx, *window, programFile);
        main->show();
        window->show();
        return *main;
    }

    template <typename T>
    T* control(const char* name) const {
        return window->findChild<T*>(QString::fromUtf8(name));
    }

    // Busy: the menus and the agent commands are dead.
    bool busy() const { return !main->cmdAdd->isEnabled(); }

    QTemporaryDir home;
    TestServices s;
    Workspace ws;
    std::unique_ptr<FaceWindow> window;
    frmMain* main = nullptr;
};

// The name a screen reader hears for the control.
inline QString spokenName(QObject* control) {
    return QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
}

// A press or a release of a mouse button on a widget, as the window system gives it.
inline void mouse(QWidget* widget, QEvent::Type type, QPoint at,
                  Qt::MouseButton button = Qt::LeftButton) {
    QMouseEvent event(type, QPointF(at), QPointF(widget->mapToGlobal(at)), button,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}
