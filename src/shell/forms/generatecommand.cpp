// The generate command of the main window: the questions and the engine run in the logic,
// and the window shows the status frame, follows SmartRandom's progress with the bar and
// the agent list, and hands the result to the review form.

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "generation/generate.h"
#include "shell/forms/frmMain.h"

#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>

void frmMain::cmdGenerate_Click() {
    runLongCommand([this] { generate(); });
}

void frmMain::generate() {
    if (!prepareGenerate(ws_, ctx_, cmbGenerate->currentIndex())) {
        return;
    }
    showHourglass();
    showStatus(QStringLiteral("Generating a schedule . . ."));
    // Once would do; the command has always entered the busy state three times.
    modEnterBusyState();
    modEnterBusyState();
    modEnterBusyState();
    showHourglass();
    doEvents();

    SmartRandomProgress progress;
    const bool smartRandom = ws_.gEngine == kEngineSmartRandom;
    if (smartRandom) {
        labStatus->clear();
        labStatusHigh->setText(QStringLiteral("Generating a schedule . . ."));
        picStatus->show();
        showProgress(0.0);
        doEvents();
        progress.placed = [this](int agent, double done) {
            lstAgents->setCurrentRow(agent - 1);
            showProgress(done);
        };
        progress.repairing = [this] {
            labStatusHigh->setText(QStringLiteral("Fixing the schedule . . ."));
            show();
        };
        progress.exchanged = [this](int agent) { lstAgents->setCurrentRow(agent - 1); };
    }
    runEngine(ws_, ctx_, progress);
    if (smartRandom) {
        doEvents();
    }
    // A run that the program's end cut short shows nothing of it.
    if (ctx_.events.ending()) {
        picStatus->hide();
        modLeaveBusyState();
        return;
    }
    showReview();
    if (smartRandom) {
        picStatus->hide();
    }
}

// The bar fills the sunken box from the left by the share of positions done.
void frmMain::showProgress(double done) {
    const int full = picStatus->width() - 2;
    shpStatus->setGeometry(1, 1, static_cast<int>(full * std::clamp(done, 0.0, 1.0)),
                           picStatus->height() - 2);
}
