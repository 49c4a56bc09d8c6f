#include "constraints/forms/frmViewDay.h"

#include "constraints/forms/frmDay.h"
#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "persistence/workspacefile.h"
#include "printing/printcommand.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

frmViewDay::frmViewDay(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmViewDay"));
    auto* days = new QGridLayout;
    for (int w = 0; w < kWeekdays; ++w) {
        fraDay[w] = makeFrame(this, "", weekdayShiftsCaption(w));
        fraDay[w]->setObjectName(indexedName("fraDay", w));
        auto* column = new QVBoxLayout(fraDay[w]);
        const QByteArray labels = QStringLiteral("labShift%1").arg(w).toLatin1();
        for (int i = 0; i < kEditorShifts; ++i) {
            labShift[w][i] = makeLabel(fraDay[w], "", QString());
            labShift[w][i]->setObjectName(indexedName(labels.constData(), i));
            labShift[w][i]->setWordWrap(true);
            retainSizeWhenHidden(labShift[w][i]);
            labShift[w][i]->hide();
            column->addWidget(labShift[w][i]);
        }
        column->addStretch();
        cmdChange[w] = makeButton(fraDay[w], "", QStringLiteral("Change..."));
        cmdChange[w]->setObjectName(indexedName("cmdChange", w));
        cmdChange[w]->setAccessibleName(QStringLiteral("Change ") + ws.gDayNames[w]);
        column->addWidget(cmdChange[w]);
        days->addWidget(fraDay[w], 0, w);
        days->setColumnStretch(w, 1);
        connect(cmdChange[w], &QPushButton::clicked, this, [this, w] { cmdChange_Click(w); });
    }
    cmdOK = makeButton(this, "cmdOK", QStringLiteral("OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));
    cmdPrint = makeButton(this, "cmdPrint", QStringLiteral("&Print"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(days, 1);
    layout->addLayout(closingRow(this, cmdPrint, cmdOK, cmdCancel));
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
    connect(cmdPrint, &QPushButton::clicked, this, [this] { cmdPrint_Click(); });
    day_ = new frmDay(ws_, ctx_, *this, window);
}

void frmViewDay::Form_Load() {
    modStatus(ws_, ctx_, QStringLiteral("Viewing daily shifts and times"));
    setWindowTitle(main_.windowTitle());
    snapshot_ = takeShiftSnapshot(ws_);
}

void frmViewDay::Form_Activate() {
    for (int w = 0; w < kWeekdays; ++w) {
        for (int i = 0; i < std::min(ws_.gShiftCount[w], kEditorShifts); ++i) {
            labShift[w][i]->setText(shiftLabel(ws_, w, i + 1));
            labShift[w][i]->show();
        }
    }
    showNormalPointer();
}

// The view is filled afresh each time it comes back on top.
void frmViewDay::Form_Deactivate() {
    for (auto& day : labShift) {
        for (QLabel* label : day) {
            label->hide();
        }
    }
}

void frmViewDay::cmdChange_Click(int weekday) {
    showHourglass();
    ws_.gEditDay = weekday;
    day_->show();
    hide();
}

void frmViewDay::cmdOK_Click() {
    modStatus(ws_, ctx_, QStringLiteral("Saving daily shifts and times"));
    showHourglass();
    modSaveWorkspace(ws_, ctx_, QString());
    unload();
}

// Each weekday saved in the editor has reached the working file already, so the table of
// the opening is written again.
void frmViewDay::cmdCancel_Click() {
    modStatus(ws_, ctx_, QStringLiteral("Exiting without saving daily shifts and times"));
    restoreShiftSnapshot(ws_, snapshot_);
    modSaveWorkspace(ws_, ctx_, QString());
    unload();
}

// The table on paper. While it prints the view's commands are dead, and the times in their
// dead frames grey, in the palette's colour for dead text.
void frmViewDay::cmdPrint_Click() {
    showHourglass();
    const auto setPrinting = [this](bool printing) {
        for (int w = 0; w < kWeekdays; ++w) {
            setEnabledAll({fraDay[w], cmdChange[w]}, !printing);
        }
        setEnabledAll({cmdCancel, cmdPrint}, !printing);
    };
    setPrinting(true);
    printShiftTable(ws_, ctx_);
    setPrinting(false);
    showNormalPointer();
}
