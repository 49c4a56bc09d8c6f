#include "constraints/forms/frmRestrictions.h"

#include "constraints/shifttable.h"
#include "core/forms/elidedlabel.h"
#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "core/services/log.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

frmRestrictions::frmRestrictions(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmRestrictions"));
    cmbAgents = makeDropDown(this, QStringLiteral("cmbAgents"), QStringLiteral("Agent"));
    cmbAgents->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbAgents->setMinimumContentsLength(24);
    labInstructions =
        makeLabel(this, "labInstructions",
                  QStringLiteral(
                      "The selected agent will not receive desko time during the checked shifts."));
    labInstructions->setWordWrap(true);
    auto* top = new QHBoxLayout;
    top->addWidget(cmbAgents);
    top->addWidget(labInstructions, 1);

    auto* days = new QGridLayout;
    for (int w = 0; w < kWeekdays; ++w) {
        fraDay[w] = makeFrame(this, "", weekdayShiftsCaption(w));
        fraDay[w]->setObjectName(indexedName("fraDay", w));
        auto* rows = new QGridLayout(fraDay[w]);
        const QByteArray boxName = QStringLiteral("chkShift%1").arg(w).toLatin1();
        const QByteArray labelName = QStringLiteral("labShift%1").arg(w).toLatin1();
        for (int i = 0; i < 6; ++i) {
            chkShift[w][i] =
                makeCheckBox(fraDay[w], indexedName(boxName.constData(), i), QString());
            // Read aloud by its shift's time once it shows one.
            chkShift[w][i]->setAccessibleName(ws.gDayNames[w] + QStringLiteral(", shift ") +
                                              QString::number(i + 1));
            labShift[w][i] = new ElidedLabel(fraDay[w]);
            labShift[w][i]->setObjectName(indexedName(labelName.constData(), i));
            labShift[w][i]->setBuddy(chkShift[w][i]);
            for (QWidget* control :
                 {static_cast<QWidget*>(chkShift[w][i]), static_cast<QWidget*>(labShift[w][i])}) {
                retainSizeWhenHidden(control);
                control->hide();
            }
            rows->addWidget(chkShift[w][i], i, 0);
            rows->addWidget(labShift[w][i], i, 1);
        }
        rows->setColumnStretch(1, 1);
        rows->setRowStretch(6, 1);
        days->addWidget(fraDay[w], w / 4, w % 4);
        days->setColumnStretch(w % 4, 1);
    }

    cmdOK = makeButton(this, "cmdOK", QStringLiteral("&OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(days, 1);
    layout->addLayout(closingRow(this, nullptr, cmdOK, cmdCancel));

    connect(cmbAgents, &QComboBox::activated, this, [this] { cmbAgents_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmRestrictions::Form_Load() {
    modStatus(ws_, ctx_, restrictionsLine(ws_));
    setWindowTitle(main_.windowTitle());
    cmbAgents->clear();
    for (int a = 1; a <= ws_.gAgentCount; ++a) {
        cmbAgents->addItem(ws_.gAgentKey[a]);
    }
    if (ws_.gRestrictionAgent > 0) {
        cmbAgents->setCurrentIndex(ws_.gRestrictionAgent - 1);
    }
    showBoxes();
}

void frmRestrictions::Form_Activate() {
    main_.hide();
    showNormalPointer();
}

bool frmRestrictions::Form_Unload() {
    showHourglass();
    main_.show();
    showNormalPointer();
    return true;
}

// A label shows the shift's time text as typed; the box is read aloud by it.
void frmRestrictions::showBoxes() {
    const RestrictionBoxes ticked = restrictionBoxes(ws_);
    for (int w = 0; w < kWeekdays; ++w) {
        const int shifts = std::clamp(ws_.gShiftCount[w], 0, 6);
        for (int i = 0; i < 6; ++i) {
            const bool used = i < shifts;
            chkShift[w][i]->setVisible(used);
            labShift[w][i]->setVisible(used);
            if (used) {
                const QString& time = ws_.gShiftText[w][i + 1];
                labShift[w][i]->setLines(time);
                chkShift[w][i]->setAccessibleName(ws_.gDayNames[w] + QStringLiteral(", ") + time);
                chkShift[w][i]->setChecked(ticked[w][i]);
            }
        }
    }
}

RestrictionBoxes frmRestrictions::boxes() const {
    RestrictionBoxes ticked{};
    for (int w = 0; w < kWeekdays; ++w) {
        for (int i = 0; i < 6; ++i) {
            ticked[w][i] = chkShift[w][i]->isChecked();
        }
    }
    return ticked;
}

void frmRestrictions::cmbAgents_Click() {
    if (switchRestrictionAgent(ws_, ctx_, cmbAgents->currentIndex(), boxes())) {
        showBoxes();
    }
}

void frmRestrictions::cmdOK_Click() {
    saveRestrictions(ws_, ctx_, boxes());
    unload();
}

void frmRestrictions::cmdCancel_Click() {
    // The line has always named no agent.
    modStatus(ws_, ctx_, QStringLiteral("Exiting without saving shift restrictions for  "));
    unload();
}
