#include "constraints/forms/frmBoth.h"

#include "constraints/allconstraints.h"
#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "printing/printcommand.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmBoth::frmBoth(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmBoth"));
    fraVacationDays = makeFrame(this, "fraVacationDays", QStringLiteral("Vacation days"));
    fraShiftRestrictions =
        makeFrame(this, "fraShiftRestrictions", QStringLiteral("Shift restrictions"));
    fraHolidays = makeFrame(this, "fraHolidays", QStringLiteral("Holidays"));
    fraNotedDays = makeFrame(this, "fraNotedDays", QStringLiteral("Noted days"));
    const std::array<QGroupBox*, 4> frames = {fraVacationDays, fraShiftRestrictions, fraHolidays,
                                              fraNotedDays};
    auto* kinds = new QGridLayout;
    for (int k = 0; k < 4; ++k) {
        QGroupBox* frame = frames[k];
        lstDays[k] = makeList(frame, "", frame->title());
        lstDays[k]->setObjectName(indexedName("lstDays", k));
        cmdClear[k] = makeButton(frame, "", QStringLiteral("Clear All"));
        cmdClear[k]->setObjectName(indexedName("cmdClear", k));
        cmdClear[k]->setAccessibleName(QStringLiteral("Clear all ") + frame->title().toLower());
        auto* column = new QVBoxLayout(frame);
        column->addWidget(lstDays[k], 1);
        column->addWidget(cmdClear[k], 0, Qt::AlignRight);
        kinds->addWidget(frame, k / 2, k % 2);
        connect(cmdClear[k], &QPushButton::clicked, this, [this, k] { cmdClear_Click(k); });
    }
    cmdOK = makeButton(this, "cmdOK", QStringLiteral("&OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));
    cmdPrint = makeButton(this, "cmdPrint", QStringLiteral("&Print"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(kinds, 1);
    layout->addLayout(closingRow(this, cmdPrint, cmdOK, cmdCancel));
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(cmdPrint, &QPushButton::clicked, this, [this] { cmdPrint_Click(); });
}

// Each opening starts from empty lists and live controls, as a form made anew would.
void frmBoth::Form_Load() {
    modStatus(ws_, ctx_, QStringLiteral("Viewing all constraints"));
    setWindowTitle(main_.windowTitle());
    for (QListWidget* list : lstDays) {
        list->clear();
    }
    setLive(true);
}

// The lists are filled once an opening: the main window stays hidden behind this form, so
// nothing else comes on top of it until it closes.
void frmBoth::Form_Activate() {
    main_.hide();
    showNormalPointer();
    lstDays[kVacationDays]->addItems(vacationLines(ws_));
    lstDays[kShiftRestrictions]->addItems(restrictionLines(ws_));
    lstDays[kHolidays]->addItems(holidayLines(ws_));
    lstDays[kNotedDays]->addItems(notedDayLines(ws_));
    cmdOK->setFocus();
}

bool frmBoth::Form_Unload() {
    showHourglass();
    main_.show();
    showNormalPointer();
    return true;
}

// The restrictions alone are no report: Print goes when the other three lists are empty.
void frmBoth::cmdClear_Click(int index) {
    if (!clearAllAsked(ws_, ctx_, static_cast<ConstraintKind>(index))) {
        return;
    }
    lstDays[index]->clear();
    if (lstDays[kVacationDays]->count() == 0 && lstDays[kHolidays]->count() == 0 &&
        lstDays[kNotedDays]->count() == 0) {
        cmdPrint->setEnabled(false);
    }
}

void frmBoth::cmdOK_Click() {
    std::array<bool, 4> emptied{};
    for (int k = 0; k < 4; ++k) {
        emptied[k] = lstDays[k]->count() == 0;
    }
    eraseEmptiedKinds(ws_, ctx_, emptied);
    unload();
}

void frmBoth::cmdCancel_Click() {
    unload();
}

void frmBoth::setLive(bool live) {
    setEnabledAll({cmdOK, cmdCancel, cmdPrint, fraVacationDays, fraShiftRestrictions, fraHolidays,
                   fraNotedDays},
                  live);
    for (int k = 0; k < 4; ++k) {
        setEnabledAll({lstDays[k], cmdClear[k]}, live);
    }
}

// The lists as they stand, on paper. The form is dead while it prints; when every list is
// empty nothing is printed and it stays so, under the hourglass, until it is closed.
void frmBoth::cmdPrint_Click() {
    showHourglass();
    setLive(false);
    ConstraintLists lists;
    for (int k = 0; k < 4; ++k) {
        for (int i = 0; i < lstDays[k]->count(); ++i) {
            lists[k].append(lstDays[k]->item(i)->text());
        }
    }
    if (printConstraintLists(ws_, ctx_, lists)) {
        setLive(true);
        showNormalPointer();
    }
}
