#include "generation/forms/frmIndividualDay.h"

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The frames stand three to a row.
constexpr int kFramesPerRow = 3;

// A long key is cut in the list's face rather than widening the form.
constexpr int kListCharacters = 18;

}  // namespace

frmIndividualDay::frmIndividualDay(Workspace& ws, Context& ctx, Form& calendar, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), calendar_(calendar) {
    setObjectName(QStringLiteral("frmIndividualDay"));
    buildControls();
}

void frmIndividualDay::buildControls() {
    auto* frames = new QGridLayout;
    for (int n = 1; n <= kDayEditorShifts; ++n) {
        // Until a day is open a frame is named by its shift alone.
        QGroupBox* frame = makeFrame(this, "", shiftWord(n));
        frame->setObjectName(indexedName("fraShift", n - 1));
        frame->hide();
        auto* lists = new QVBoxLayout(frame);
        for (int k = 0; k < kDayEditorSlots; ++k) {
            const QString name = QStringLiteral("cmbShift%1").arg(n);
            QComboBox* list = makeDropDown(frame, indexedName(qPrintable(name), k),
                                           QStringLiteral("Shift %1, agent %2").arg(n).arg(k + 1));
            list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            list->setMinimumContentsLength(kListCharacters);
            retainSizeWhenHidden(list);
            list->hide();
            lists->addWidget(list);
            cmbShift[n - 1][k] = list;
        }
        lists->addStretch();
        frames->addWidget(frame, (n - 1) / kFramesPerRow, (n - 1) % kFramesPerRow);
        frames->setColumnStretch((n - 1) % kFramesPerRow, 1);
        fraShift[n - 1] = frame;
    }

    cmdOK = makeButton(this, "cmdOK", QStringLiteral("OK"));
    cmdOK->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(frames);
    layout->addStretch();
    layout->addLayout(buttons);

    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    // Escape leaves the day as it was, as the window's close box does.
    onEscape(this, [this] { close(); });
}

// The lists offer the agents' keys as they stand now, the review having just been opened
// after a schedule was generated or read.
void frmIndividualDay::Form_Load() {
    modStatus(ws_, ctx_,
              QStringLiteral("Viewing scheduled agents for ") + ws_.currentMonthName() +
                  QLatin1Char(' ') + QString::number(ws_.gSelectedDay));

    QStringList items;
    const int agents = std::min(ws_.gAgentCount, static_cast<int>(ws_.gAgentKey.size()) - 1);
    for (int a = 1; a <= agents; ++a) {
        items.append(ws_.gAgentKey[a]);
    }
    items.append(QStringLiteral("Leave empty"));
    for (auto& shift : cmbShift) {
        for (QComboBox* list : shift) {
            list->clear();
            list->addItems(items);
        }
    }
}

void frmIndividualDay::Form_Activate() {
    setWindowTitle(calendar_.windowTitle());

    const int day = ws_.gSelectedDay;
    const int w = ws_.weekdayOf(day);
    // A list shows no agent unless its cell holds a key that the list offers; what an
    // earlier day chose is forgotten.
    for (auto& shift : cmbShift) {
        for (QComboBox* list : shift) {
            list->setCurrentIndex(-1);
        }
    }
    const int shifts = scheduleInRange(day, 0, 0) ? ws_.gShiftCount[w] : 0;
    for (int n = 1; n <= std::min(shifts, kDayEditorShifts); ++n) {
        fraShift[n - 1]->setTitle(shiftFrameCaption(ws_, w, n));
        fraShift[n - 1]->show();
        const int last = std::min(ws_.gShiftAgents[w][n], kDayEditorSlots - 1);
        for (int k = 0; k <= last; ++k) {
            QComboBox* list = cmbShift[n - 1][k];
            list->setCurrentIndex(list->findText(ws_.schedule(day, n, k)));
            list->show();
        }
    }
    showNormalPointer();
}

void frmIndividualDay::Form_Deactivate() {
    for (int n = 0; n < kDayEditorShifts; ++n) {
        for (QComboBox* list : cmbShift[n]) {
            list->hide();
        }
        fraShift[n]->hide();
    }
}

void frmIndividualDay::cmdOK_Click() {
    const int day = ws_.gSelectedDay;
    modStatus(ws_, ctx_,
              QStringLiteral("Saving scheduled agents for ") + ws_.currentMonthName() +
                  QLatin1Char(' ') + QString::number(day));
    showHourglass();
    doEvents();
    ws_.gDirty = 1;
    DayLists lists;
    for (int n = 0; n < kDayEditorShifts; ++n) {
        for (int k = 0; k < kDayEditorSlots; ++k) {
            lists[n][k] = cmbShift[n][k]->currentText();
        }
    }
    storeDay(ws_, day, lists);
    hide();
    calendar_.show();
}

// Closing by the window's close box keeps the day as it was.
bool frmIndividualDay::Form_Unload() {
    calendar_.show();
    return true;
}
