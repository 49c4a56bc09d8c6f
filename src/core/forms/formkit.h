#pragma once

class QLineEdit;
class QWidget;

// The hourglass of a long command, and the normal pointer at its end. The normal pointer
// takes back every hourglass set before it.
void showHourglass();
void showNormalPointer();

// Lets pending events run, so the screen stays alive during a long step.
void doEvents();

// Puts the selection over the whole text of a text box.
void modSelectAllText(QLineEdit* box);

// A dialog window without minimise and maximise buttons.
void modRemoveMinMaxFromSystemMenu(QWidget* form);
