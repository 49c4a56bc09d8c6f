#pragma once

#include <QString>

#include <functional>
#include <initializer_list>

class Clock;
class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;
class QPushButton;
class QRadioButton;
class QWidget;

// Controls as the forms make them. Each carries its given name as its objectName, so that
// commands and tests find it by name, and a name that a screen reader reads: its caption
// without the access-key mark, which follows the caption as it changes, or, for a control
// without a caption, the words of the label or frame that stands for it.

// The name of an element of a control array: "labDay(3)".
QString indexedName(const char* name, int index);

QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption);
QGroupBox* makeFrame(QWidget* parent, const char* name, const QString& caption);
QLabel* makeLabel(QWidget* parent, const char* name, const QString& caption);
QCheckBox* makeCheckBox(QWidget* parent, const QString& name, const QString& caption);
QRadioButton* makeRadioButton(QWidget* parent, const QString& name, const QString& caption);
QLineEdit* makeTextBox(QWidget* parent, const char* name, const QString& spokenAs);
QComboBox* makeDropDown(QWidget* parent, const QString& name, const QString& spokenAs);
QListWidget* makeList(QWidget* parent, const char* name, const QString& spokenAs);

QMenu* makeMenu(QMenuBar* bar, const char* name, const QString& caption);
QMenu* makeSubmenu(QMenu* parent, const char* name, const QString& caption);
QAction* makeItem(QMenu* menu, const char* name, const QString& caption);
void makeSeparator(QMenu* menu, const char* name);

// The row of a form's closing buttons: what stands at its left end, if anything, then OK,
// the default button, and Cancel, which Escape in the form presses, at its right end.
QHBoxLayout* closingRow(QWidget* form, QWidget* left, QPushButton* ok, QPushButton* cancel);

// Escape, while the focus is in the scope, does what is given.
void onEscape(QWidget* scope, const std::function<void()>& action);

void setEnabledAll(std::initializer_list<QWidget*> controls, bool enabled);

// A control that keeps its place in its layout while hidden, so that a face never changes
// its shape when one part of it gives way to another.
void retainSizeWhenHidden(QWidget* control);

// The hourglass of a long command, and the normal pointer at its end. The normal pointer
// takes back every hourglass set before it.
void showHourglass();
void showNormalPointer();

// Lets pending events run, so the screen stays alive during a long step.
void doEvents();

// Waits the given seconds in steps of a tenth, letting pending events run after each step,
// so that the screen lives while it waits.
void modPause(Clock& clock, double seconds);

// Puts the selection over the whole text of a text box.
void modSelectAllText(QLineEdit* box);

// A text box that gets the focus offers its whole text for overtyping.
void selectAllOnFocus(QLineEdit* box);
