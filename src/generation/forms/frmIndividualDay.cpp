#include "generation/forms/frmIndividualDay.h"

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "generation/forms/frmWholeCalendar.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

const char* const kShiftWords[] = {"First shift: ",  "Second shift: ", "Third shift: ",
                                   "Fourth shift: ", "Fifth shift: ",  "Sixth shift: "};

// The frames stand three to a row.
constexpr int kFramesPerRow = 3;

// A long key is cut in the list's face rather than widening the form.
constexpr int kListCharacters = 18;

// Frames and lists keep their places while hidden, so a day of few shifts does not
// rearrange the form.
void retainSizeWhenHidden(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

}  // namespace

frmIndividualDay::frmIndividualDay(Workspace& ws, Context& ctx, frmWholeCalendar& calendar)
    : QWidget(nullptr), ws_(ws), ctx_(ctx), calendar_(calendar) {
    setObjectName(QStringLiteral("frmIndividualDay"));
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    Form_Load();
}

void frmIndividualDay::buildControls() {
    auto* frames = new QGridLayout;
    for (int n = 1; n <= kShifts; ++n) {
        auto* frame = new QGroupBox(this);
        frame->setObjectName(QStringLiteral("fraShift(%1)").arg(n - 1));
        retainSizeWhenHidden(frame);
        frame->hide();
        auto* lists = new QVBoxLayout(frame);
        for (int k = 0; k < kSlots; ++k) {
            auto* list = new QComboBox(frame);
            list->setObjectName(QStringLiteral("cmbShift%1(%2)").arg(n).arg(k));
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

    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdOK);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(frames);
    layout->addStretch();
    layout->addLayout(buttons);

    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
}

// The lists offer the agents' keys as they stand now, the review having just been opened
// after a schedule was generated or read.
void frmIndividualDay::Form_Load() {
    modRemoveMinMaxFromSystemMenu(this);
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
    move(calendar_.pos());
    resize(calendar_.size());
    setWindowTitle(calendar_.windowTitle());

    const int day = ws_.gSelectedDay;
    const int w = ws_.weekdayOf(ws_.gSelectedDay);
    // A list shows no agent unless its cell holds a key that the list offers; what an
    // earlier day chose is forgotten.
    for (auto& shift : cmbShift) {
        for (QComboBox* list : shift) {
            list->setCurrentIndex(-1);
        }
    }
    const int shifts = scheduleInRange(day, 0, 0) ? ws_.gShiftCount[w] : 0;
    for (int n = 1; n <= std::min(shifts, kShifts); ++n) {
        fraShift[n - 1]->setTitle(QLatin1String(kShiftWords[n - 1]) + ws_.gShiftText[w][n]);
        fraShift[n - 1]->show();
        const int last = std::min(ws_.gShiftAgents[w][n], kSlots - 1);
        for (int k = 0; k <= last; ++k) {
            QComboBox* list = cmbShift[n - 1][k];
            list->setCurrentIndex(list->findText(ws_.schedule(day, n, k)));
            list->show();
        }
    }
    showNormalPointer();
}

void frmIndividualDay::Form_Deactivate() {
    for (int n = 0; n < kShifts; ++n) {
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

    // Every shift is written, used or not: an unused shift's lists show nothing, so its cells
    // become empty. A slot beyond the four lists keeps what it holds.
    const int w = ws_.weekdayOf(ws_.gSelectedDay);
    if (scheduleInRange(day, 0, 0)) {
        for (int n = 1; n <= kShifts; ++n) {
            const int last = std::min(ws_.gShiftAgents[w][n], kSlots - 1);
            for (int k = 0; k <= last; ++k) {
                ws_.schedule(day, n, k) = cmbShift[n - 1][k]->currentText();
            }
        }
    }
    hide();
    calendar_.show();
}

// Closing by the close box keeps the day as it was.
void frmIndividualDay::Form_Unload() {
    calendar_.show();
}

void frmIndividualDay::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        Form_Activate();
    }
}

void frmIndividualDay::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) {
        Form_Deactivate();
    }
}

void frmIndividualDay::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
}
