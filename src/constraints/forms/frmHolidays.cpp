#include "constraints/forms/frmHolidays.h"

#include "core/forms/formkit.h"
#include "core/forms/monthcells.h"
#include "core/model/daycaption.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "persistence/workspacefile.h"

#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kFirstCellRow = 1;

}  // namespace

frmHolidays::frmHolidays(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmHolidays"));
    fraMonth = makeFrame(this, "fraMonth", QString());
    labMonth = makeLabel(fraMonth, "labMonth", QString());
    QFont large = labMonth->font();
    large.setPointSizeF(large.pointSizeF() * 1.8);
    large.setBold(true);
    labMonth->setFont(large);
    labMonth->setAlignment(Qt::AlignCenter);

    auto* grid = new QGridLayout;
    grid->setSpacing(2);
    const char* heads[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    for (int c = 0; c < 7; ++c) {
        labDayTitle[c] = makeLabel(fraMonth, "", QLatin1String(heads[c]));
        labDayTitle[c]->setObjectName(indexedName("labDayTitle", c));
        labDayTitle[c]->setAlignment(Qt::AlignCenter);
        grid->addWidget(labDayTitle[c], 0, c);
        grid->setColumnStretch(c, 1);
    }
    // A cell holds its day's number on its second line, with room around it.
    const QFontMetrics metrics = fontMetrics();
    const QSize leastCell(4 * metrics.horizontalAdvance(QStringLiteral("00")),
                          3 * metrics.lineSpacing());
    std::array<QWidget*, kCells> boxes{};
    for (int i = 0; i < kCells; ++i) {
        labDay[i] = makeLabel(fraMonth, "", QString());
        labDay[i]->setObjectName(indexedName("labDay", i));
        labDay[i]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        labDay[i]->setMargin(4);
        labDay[i]->setMinimumSize(leastCell + QSize(8, 8));
        labDay[i]->setAutoFillBackground(true);
        labDay[i]->setFrameShape(QFrame::Panel);
        labDay[i]->setFrameShadow(QFrame::Raised);
        labDay[i]->installEventFilter(this);
        boxes[i] = labDay[i];
    }
    days_ = new MonthCells(grid, kFirstCellRow, boxes, [this](int i) { labDay_MouseDown(i); });
    auto* month = new QVBoxLayout(fraMonth);
    month->addWidget(labMonth);
    month->addLayout(grid, 1);

    cmbAgent = makeDropDown(this, QStringLiteral("cmbAgent"), QStringLiteral("Agent"));
    cmbAgent->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbAgent->setMinimumContentsLength(24);
    retainSizeWhenHidden(cmbAgent);
    cmbAgent->hide();
    cmdOK = makeButton(this, "cmdOK", QStringLiteral("&OK"));
    cmdCancel = makeButton(this, "cmdCancel", QStringLiteral("&Cancel"));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraMonth, 1);
    layout->addLayout(closingRow(this, cmbAgent, cmdOK, cmdCancel));

    connect(cmbAgent, &QComboBox::activated, this, [this] { cmbAgent_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
}

void frmHolidays::Form_Load() {
    modStatus(ws_, ctx_, dayPickerOpenLine(ws_));
    setWindowTitle(main_.windowTitle());
    setEnabledAll({cmdOK, cmdCancel}, true);
    labMonth->setText(ws_.currentMonthAndYear());
    fraMonth->setTitle(dayPickerCaption(ws_));
    const bool vacations = ws_.gDayPickerMode == kPickVacations;
    cmbAgent->clear();
    cmbAgent->setVisible(vacations);
    if (vacations) {
        for (int a = 1; a <= ws_.gAgentCount; ++a) {
            cmbAgent->addItem(ws_.gAgentKey[a]);
        }
        cmbAgent->setCurrentIndex(ws_.gDayPickerAgent - 1);
    }
    showDays();
    showNormalPointer();
    doEvents();
    show();
    main_.hide();
    cmdOK->setFocus();
}

void frmHolidays::Form_Activate() {
    setEnabledAll({cmdOK, cmdCancel}, true);
}

bool frmHolidays::Form_Unload() {
    showHourglass();
    main_.show();
    showNormalPointer();
    return true;
}

void frmHolidays::showDays() {
    const PickedDays picked = pickedDays(ws_);
    days_->showMonth(ws_.gFirstWeekday, ws_.currentMonthDays());
    for (int i = 0; i < kCells; ++i) {
        const int day = i + 1 - ws_.gFirstWeekday;
        if (day >= 1 && day <= ws_.currentMonthDays()) {
            labDay[i]->setText(QLatin1Char('\n') + QString::number(day));
            labDay[i]->setAccessibleName(spokenDate(ws_, day));
            paintCell(i, picked[day]);
        }
    }
}

// A picked day stands out in the palette's selection colours; the others look like buttons,
// which is what they are to the user.
void frmHolidays::paintCell(int index, bool selected) {
    selected_[index] = selected;
    QLabel* cell = labDay[index];
    cell->setBackgroundRole(selected ? QPalette::Highlight : QPalette::Button);
    cell->setForegroundRole(selected ? QPalette::HighlightedText : QPalette::ButtonText);
    cell->setAccessibleDescription(selected ? QStringLiteral("picked") : QString());
}

PickedDays frmHolidays::picks() const {
    PickedDays days{};
    for (int d = 1; d <= ws_.currentMonthDays(); ++d) {
        const int i = d - 1 + ws_.gFirstWeekday;
        days[d] = i >= 0 && i < kCells && selected_[i];
    }
    return days;
}

bool frmHolidays::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        for (int i = 0; i < kCells; ++i) {
            if (watched == labDay[i]) {
                labDay_MouseDown(i);
                return true;
            }
        }
    }
    return Form::eventFilter(watched, event);
}

void frmHolidays::labDay_MouseDown(int index) {
    const int day = index + 1 - ws_.gFirstWeekday;
    paintCell(index, clickPickerDay(ws_, ctx_, day, selected_[index]));
}

void frmHolidays::cmbAgent_Click() {
    if (switchVacationAgent(ws_, ctx_, cmbAgent->currentIndex(), picks())) {
        fraMonth->setTitle(dayPickerCaption(ws_));
        showDays();
    } else if (ws_.hasAgent(ws_.gDayPickerAgent)) {
        // A refused turn leaves the agent on show, with the picks as they are.
        cmbAgent->setCurrentIndex(ws_.gDayPickerAgent - 1);
    }
}

void frmHolidays::cmdOK_Click() {
    if (savePickedDays(ws_, ctx_, picks())) {
        unload();
    }
}

// The names given to days at their click are in the workspace already; reading the working
// file back drops them with every other change.
void frmHolidays::cmdCancel_Click() {
    modLoadWorkspace(ws_, ctx_, QString());
    unload();
}
