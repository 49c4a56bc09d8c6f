#include "core/forms/formkit.h"

#include "core/services/clock.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

namespace {

class SelectAllOnFocus final : public QObject {
public:
    explicit SelectAllOnFocus(QLineEdit* box) : QObject(box), box_(box) {
        box->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == box_ && event->type() == QEvent::FocusIn) {
            modSelectAllText(box_);
        }
        return false;
    }

private:
    QLineEdit* box_;
};

// A caption as it is read aloud: "&Save desko schedule as..." is "Save desko schedule as...".
QString spokenCaption(const QString& caption) {
    QString spoken;
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption[i] == QLatin1Char('&') && i + 1 < caption.size()) {
            ++i;  // "&&" stands for one "&"; "&x" marks x as the access key
        }
        spoken += caption[i];
    }
    return spoken;
}

template <typename Control>
Control* named(Control* control, const QString& name, const QString& spokenAs) {
    control->setObjectName(name);
    control->setAccessibleName(spokenAs);
    return control;
}

}  // namespace

QString indexedName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

// A control with a caption is read aloud by the caption it shows, whatever it changes to.
QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption) {
    return named(new QPushButton(caption, parent), QLatin1String(name), QString());
}

QGroupBox* makeFrame(QWidget* parent, const char* name, const QString& caption) {
    QGroupBox* frame = named(new QGroupBox(caption, parent), QLatin1String(name), QString());
    retainSizeWhenHidden(frame);
    return frame;
}

QLabel* makeLabel(QWidget* parent, const char* name, const QString& caption) {
    return named(new QLabel(caption, parent), QLatin1String(name), QString());
}

QCheckBox* makeCheckBox(QWidget* parent, const QString& name, const QString& caption) {
    return named(new QCheckBox(caption, parent), name, QString());
}

QRadioButton* makeRadioButton(QWidget* parent, const QString& name, const QString& caption) {
    return named(new QRadioButton(caption, parent), name, QString());
}

QLineEdit* makeTextBox(QWidget* parent, const char* name, const QString& spokenAs) {
    return named(new QLineEdit(parent), QLatin1String(name), spokenCaption(spokenAs));
}

QComboBox* makeDropDown(QWidget* parent, const QString& name, const QString& spokenAs) {
    return named(new QComboBox(parent), name, spokenCaption(spokenAs));
}

QListWidget* makeList(QWidget* parent, const char* name, const QString& spokenAs) {
    return named(new QListWidget(parent), QLatin1String(name), spokenCaption(spokenAs));
}

QMenu* makeMenu(QMenuBar* bar, const char* name, const QString& caption) {
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QMenu* makeSubmenu(QMenu* parent, const char* name, const QString& caption) {
    QMenu* menu = parent->addMenu(caption);
    menu->setObjectName(QLatin1String(name));
    menu->menuAction()->setObjectName(QLatin1String(name));
    return menu;
}

QAction* makeItem(QMenu* menu, const char* name, const QString& caption) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QLatin1String(name));
    return item;
}

void makeSeparator(QMenu* menu, const char* name) {
    menu->addSeparator()->setObjectName(QLatin1String(name));
}

QHBoxLayout* closingRow(QWidget* form, QWidget* left, QPushButton* ok, QPushButton* cancel) {
    ok->setDefault(true);
    onEscape(form, [cancel] { cancel->click(); });
    auto* row = new QHBoxLayout;
    if (left != nullptr) {
        row->addWidget(left);
    }
    row->addStretch();
    row->addWidget(ok);
    row->addWidget(cancel);
    return row;
}

void onEscape(QWidget* scope, const std::function<void()>& action) {
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), scope);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(escape, &QShortcut::activated, scope, action);
}

void setEnabledAll(std::initializer_list<QWidget*> controls, bool enabled) {
    for (QWidget* control : controls) {
        control->setEnabled(enabled);
    }
}

void retainSizeWhenHidden(QWidget* control) {
    QSizePolicy policy = control->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control->setSizePolicy(policy);
}

void showHourglass() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

void showNormalPointer() {
    while (QApplication::overrideCursor() != nullptr) {
        QApplication::restoreOverrideCursor();
    }
}

void doEvents() {
    QCoreApplication::processEvents();
}

void modPause(Clock& clock, double seconds) {
    const int tenths = qRound(seconds * 10);
    for (int i = 0; i < tenths; ++i) {
        clock.sleep(100);
        doEvents();
    }
}

void modSelectAllText(QLineEdit* box) {
    box->setSelection(0, static_cast<int>(box->text().size()));
}

void selectAllOnFocus(QLineEdit* box) {
    new SelectAllOnFocus(box);
}
