#include "constraints/forms/frmDay.h"

#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "core/services/log.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

const QString kShiftCaptions[] = {QStringLiteral("First shift"), QStringLiteral("Second shift"),
                                  QStringLiteral("Third shift"), QStringLiteral("Fourth shift"),
                                  QStringLiteral("Fifth shift"), QStringLiteral("Sixth shift")};

// A time text long enough for any shift, short of what a row of the file can hold.
constexpr int kLongestTime = 200;

}  // namespace

frmDay::frmDay(Workspace& ws, Context& ctx, Form& view, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), view_(view) {
    setObjectName(QStringLiteral("frmDay"));
    fraShiftsPerDay = makeFrame(this, "fraShiftsPerDay", QString());
    auto* counts = new QHBoxLayout(fraShiftsPerDay);
    auto* countGroup = new QButtonGroup(this);
    for (int i = 0; i <= kEditorShifts; ++i) {
        optShifts[i] = makeRadioButton(
            fraShiftsPerDay, indexedName("optShifts", i),
            i == 0 ? QStringLiteral("&None") : QLatin1Char('&') + QString::number(i));
        countGroup->addButton(optShifts[i], i);
        counts->addWidget(optShifts[i]);
        connect(optShifts[i], &QRadioButton::clicked, this, [this, i] { optShifts_Click(i); });
    }
    counts->addStretch();

    auto* shifts = new QGridLayout;
    for (int n = 1; n <= kEditorShifts; ++n) {
        QGroupBox* frame = makeFrame(this, "", kShiftCaptions[n - 1]);
        frame->setObjectName(indexedName("fraShift", n - 1));
        fraShift[n - 1] = frame;
        txtShift[n - 1] = makeTextBox(frame, "", kShiftCaptions[n - 1] + QStringLiteral(" time"));
        txtShift[n - 1]->setObjectName(indexedName("txtShift", n - 1));
        txtShift[n - 1]->setMaxLength(kLongestTime);
        selectAllOnFocus(txtShift[n - 1]);
        auto* agents = new QHBoxLayout;
        agentGroups_[n - 1] = new QButtonGroup(this);
        const QByteArray name = QStringLiteral("optAgents%1").arg(n).toLatin1();
        for (int k = 0; k < 4; ++k) {
            const QString caption =
                k == 0 ? QStringLiteral("1 agent") : QStringLiteral("%1 agents").arg(k + 1);
            optAgents[n - 1][k] = makeRadioButton(frame, indexedName(name.constData(), k), caption);
            agentGroups_[n - 1]->addButton(optAgents[n - 1][k], k);
            agents->addWidget(optAgents[n - 1][k]);
        }
        auto* column = new QVBoxLayout(frame);
        column->addWidget(txtShift[n - 1]);
        column->addLayout(agents);
        frame->hide();
        shifts->addWidget(frame, (n - 1) / 2, (n - 1) % 2);
    }

    cmdOK = makeButton(this, "cmdOK", QStringLiteral("OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraShiftsPerDay);
    layout->addLayout(shifts);
    layout->addStretch();
    layout->addLayout(closingRow(this, nullptr, cmdOK, cmdCancel));
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

// The editor shows every shift the table holds, also those above the day's number, so that
// raising the number brings back what they held.
void frmDay::Form_Load() {
    const int w = ws_.gEditDay;
    modStatus(ws_, ctx_, QStringLiteral("Viewing shifts and times for ") + ws_.gDayNames[w]);
    setWindowTitle(view_.windowTitle());
    for (int n = 1; n <= kEditorShifts; ++n) {
        fraShift[n - 1]->setVisible(n <= ws_.gShiftCount[w]);
        txtShift[n - 1]->setText(ws_.gShiftText[w][n]);
    }
    fraShiftsPerDay->setTitle(QStringLiteral("Number of shifts on ") + ws_.gDayNames[w]);
}

void frmDay::Form_Activate() {
    const int w = ws_.gEditDay;
    const int count = std::clamp(ws_.gShiftCount[w], 0, kEditorShifts);
    optShifts[count]->setChecked(true);
    for (int n = 1; n <= kEditorShifts; ++n) {
        optAgents[n - 1][std::clamp(ws_.gShiftAgents[w][n], 0, 3)]->setChecked(true);
    }
    if (count > 0) {
        txtShift[0]->setFocus();
        modSelectAllText(txtShift[0]);
    }
}

// Leaving, the editor gives the screen back to the weekly view, which fills itself afresh.
void frmDay::Form_Deactivate() {
    view_.show();
}

void frmDay::optShifts_Click(int index) {
    for (int n = 1; n <= kEditorShifts; ++n) {
        fraShift[n - 1]->setVisible(n <= index);
        if (n <= index && agentGroups_[n - 1]->checkedId() == -1) {
            optAgents[n - 1][0]->setChecked(true);
        }
    }
}

int frmDay::chosenShifts() const {
    for (int i = 0; i <= kEditorShifts; ++i) {
        if (optShifts[i]->isChecked()) {
            return i;
        }
    }
    return 0;
}

void frmDay::cmdOK_Click() {
    DayShifts day;
    day.count = chosenShifts();
    for (int n = 0; n < kEditorShifts; ++n) {
        day.texts[n] = txtShift[n]->text();
        day.highestSlots[n] = std::max(agentGroups_[n]->checkedId(), 0);
    }
    const DaySaveResult result = saveDayShifts(ws_, ctx_, ws_.gEditDay, day);
    if (result.end == DaySaveResult::End::FixShift) {
        QLineEdit* box = txtShift[result.shift - 1];
        box->setFocus();
        if (result.selectText) {
            modSelectAllText(box);
        }
    } else if (result.end == DaySaveResult::End::Saved) {
        view_.show();
        showNormalPointer();
        unload();
    }
}

void frmDay::cmdCancel_Click() {
    showNormalPointer();
    view_.show();
    unload();
}
