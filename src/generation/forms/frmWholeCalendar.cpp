#include "generation/forms/frmWholeCalendar.h"

#include "core/forms/daycell.h"
#include "core/forms/elidedlabel.h"
#include "core/forms/formkit.h"
#include "core/forms/monthcells.h"
#include "core/model/daycaption.h"
#include "core/model/monthdata.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "generation/engines.h"
#include "generation/forms/balancepanel.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/generate.h"
#include "generation/review.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int kColumns = MonthCells::kColumns;
constexpr int kRows = MonthCells::kRows;
// A cell shows six lines, the sixth the place of a note, beside the day's number in its
// corner: what does not fit is cut with a mark, and shown whole as the cell's tooltip.
constexpr int kCellLines = 6;
// A cell is as wide as two keys of common length joined by a slash; seven of them fit a
// screen of 1024 pixels. Where the balance beside the calendar needs the room, a cell gives
// way down to one such key with its slash, so that the names still break whole.
const QString kCellSample = QStringLiteral("Nakamura/Svensson");
const QString kCellLeastSample = QStringLiteral("Nakamura/");
// The rows of the form's grid: the instruction, the day names, six weeks, the buttons.
constexpr int kInstructionRow = 0;
constexpr int kDayNameRow = 1;
constexpr int kFirstWeekRow = 2;
constexpr int kButtonRow = kFirstWeekRow + kRows;

const QString kClickText = QStringLiteral("Click a day to view or edit its contents.");
const QString kSerialText = QStringLiteral(
    "Click on any day to view its contents.  Use the dropdown to change the initial agent.");

bool isSerial(int engine) {
    return engine == kEngineHorizontal || engine == kEngineMixed;
}

}  // namespace

frmWholeCalendar::frmWholeCalendar(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmWholeCalendar"));
    buildControls();
    dayEditor_ = new frmIndividualDay(ws_, ctx_, *this, window);
}

void frmWholeCalendar::buildControls() {
    grid_ = new QGridLayout(this);
    grid_->setHorizontalSpacing(4);
    grid_->setVerticalSpacing(4);

    labInstruction = makeLabel(this, "labInstruction", kClickText);
    // Whichever text it shows, the instruction has the room of the longer one.
    labInstruction->setMinimumWidth(
        std::max(labInstruction->fontMetrics().horizontalAdvance(kClickText),
                 labInstruction->fontMetrics().horizontalAdvance(kSerialText)));
    for (int w = 0; w < kColumns; ++w) {
        labDayName[w] = new QLabel(ws_.gDayNames[w], this);
        labDayName[w]->setObjectName(indexedName("labDayName", w));
        labDayName[w]->setAlignment(Qt::AlignCenter);
        grid_->addWidget(labDayName[w], kDayNameRow, w);
        grid_->setColumnStretch(w, 1);
    }

    std::array<QWidget*, kCells> boxes{};
    for (int i = 0; i < kCells; ++i) {
        cells_[i] = new DayCell(kCellSample, kCellLeastSample, kCellLines, this);
        boxes[i] = cells_[i];
        labDay[i] = cells_[i]->text;
        labDay[i]->setObjectName(indexedName("labDay", i));
        labNumber[i] = cells_[i]->number;
        labNumber[i]->setObjectName(indexedName("labNumber", i));
        for (QLabel* label : {static_cast<QLabel*>(labDay[i]), labNumber[i]}) {
            label->installEventFilter(this);
        }
    }
    days_ = new MonthCells(grid_, kFirstWeekRow, boxes, [this](int i) { labDay_MouseDown(i); });

    cmbAgents = makeDropDown(this, QStringLiteral("cmbAgents"), QStringLiteral("Initial agent"));
    cmdReschedule = makeButton(this, "cmdReschedule", QStringLiteral("&Reschedule"));
    cmdOK = makeButton(this, "cmdOK", QStringLiteral("OK"));
    cmdOK->setDefault(true);
    cmdReschedule->setMinimumWidth(cmdOK->sizeHint().width());
    labInstruction->setBuddy(cmbAgents);
    // What one engine offers and another does not keeps its room, so the review needs the
    // same room whatever the engine.
    for (QWidget* offer :
         {static_cast<QWidget*>(cmbAgents), static_cast<QWidget*>(cmdReschedule)}) {
        retainSizeWhenHidden(offer);
    }
    placeEngineControls(kEngineShuffled);

    connect(cmdReschedule, &QPushButton::clicked, this, [this] { cmdReschedule_Click(); });
    // Choosing an entry, also the one already shown, is the list's click.
    connect(cmbAgents, &QComboBox::activated, this, [this] { cmbAgents_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
    // The review has no Cancel: Escape closes it as OK does.
    onEscape(this, [this] { cmdOK->click(); });
    addBalancePanel();
}

// The balance takes a column of its own right of the calendar, its toggle the left end of
// the button row.
void frmWholeCalendar::addBalancePanel() {
    calendarWidth_ = grid_->sizeHint().width();
    balancePanel = new BalancePanel(this);
    balancePanel->hide();
    grid_->addWidget(balancePanel, kDayNameRow, kColumns, kButtonRow - kDayNameRow, 1);
    cmdBalance = makeButton(this, "cmdBalance", QStringLiteral("&Balance"));
    cmdBalance->setCheckable(true);
    grid_->addWidget(cmdBalance, kButtonRow, 0, Qt::AlignLeft);
    connect(cmdBalance, &QPushButton::clicked, this, [this](bool shown) {
        balanceShown_ = shown;
        fitBalancePanel();
        if (shown) {
            askForRoom();
        }
    });
    connect(balancePanel, &BalancePanel::agentChosen, this,
            [this](int agent) { markAgentDays(agent); });
}

QSize frmWholeCalendar::sizeHint() const {
    return {calendarWidth_ + layout()->spacing() + balancePanel->wholeWidth(),
            Form::sizeHint().height()};
}

QSize frmWholeCalendar::minimumSizeHint() const {
    QSize least = Form::minimumSizeHint();
    least.setWidth(std::max(least.width(), calendarWidth_));
    return least;
}

void frmWholeCalendar::fitBalancePanel() {
    const int spare = width() - calendarWidth_ - layout()->spacing();
    const bool shown = balanceShown_.value_or(spare >= balancePanel->minimumSizeHint().width());
    // The balance that shows by itself takes only what the calendar leaves; the one the
    // user asked for may narrow the calendar's days.
    balancePanel->limitWidth(balanceShown_.value_or(false) ? balancePanel->wholeWidth() : spare);
    if (!shown) {
        balancePanel->choose(0);
    }
    balancePanel->setVisible(shown);
    // Room beyond what the calendar and a shown balance ask for goes to both alike, until the
    // balance shows its whole table; a hidden balance leaves all of it to the calendar.
    grid_->setColumnStretch(kColumns, shown ? kColumns : 0);
    cmdBalance->setChecked(shown);
}

void frmWholeCalendar::resizeEvent(QResizeEvent* event) {
    Form::resizeEvent(event);
    fitBalancePanel();
}

void frmWholeCalendar::markAgentDays(int agent) {
    const MonthBalance& balance = balancePanel->balance();
    for (int i = 0; i < kCells; ++i) {
        const int day = i + 1 - ws_.gFirstWeekday;
        const bool worked = agent >= 1 && agent <= static_cast<int>(balance.agents.size()) &&
                            day >= 1 && day < kMonthDaySlots &&
                            balance.agents[agent - 1].worked[day];
        cells_[i]->setMarked(worked);
    }
}

// Where the instruction, the agent list and the buttons stand depends on what the engine
// offers: a serial engine's list sits beside the instruction that explains it, Reschedule
// beside OK, and OK alone stands in the middle, under the fourth column.
void frmWholeCalendar::placeEngineControls(int engine) {
    for (QWidget* control :
         {static_cast<QWidget*>(labInstruction), static_cast<QWidget*>(cmbAgents),
          static_cast<QWidget*>(cmdReschedule), static_cast<QWidget*>(cmdOK)}) {
        grid_->removeWidget(control);
    }
    if (isSerial(engine)) {
        labInstruction->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        grid_->addWidget(labInstruction, kInstructionRow, 0, 1, 5);
    } else {
        labInstruction->setAlignment(Qt::AlignCenter);
        grid_->addWidget(labInstruction, kInstructionRow, 0, 1, kColumns);
    }
    grid_->addWidget(cmbAgents, kInstructionRow, 5, 1, 2);
    grid_->addWidget(cmdReschedule, kButtonRow, 5, Qt::AlignHCenter);
    const bool alone = engine == kEngineSmartRandom || engine == -1;
    grid_->addWidget(cmdOK, kButtonRow, alone ? 3 : 6, Qt::AlignHCenter);
}

// Each load starts from a clean face: the month and the engine may be others than the last
// time the review stood on the screen.
void frmWholeCalendar::Form_Load() {
    modStatus(ws_, ctx_, QStringLiteral("Viewing generated schedule"));
    setWindowTitle(main_.windowTitle());
    modFillDayEditorCombos(ws_);

    const int engine = ws_.cmbGenerateListIndex;
    placeEngineControls(engine);
    days_->showMonth(ws_.gFirstWeekday, ws_.currentMonthDays());
    labInstruction->setText(kClickText);
    cmbAgents->clear();
    cmbAgents->setVisible(isSerial(engine));
    cmdReschedule->setVisible(engine == kEngineShuffled);
    if (isSerial(engine)) {
        labInstruction->setText(kSerialText);
        const int agents = std::min(ws_.gAgentCount, static_cast<int>(ws_.gAgentKey.size()) - 1);
        for (int a = 1; a <= agents; ++a) {
            cmbAgents->addItem(ws_.gAgentKey[a]);
        }
        // A run that started from the last agent began with the first one. The main window
        // is still on the screen, so the click this makes rebuilds nothing.
        cmbAgents->setCurrentIndex(ws_.gBaseAgent == ws_.gAgentCount ? 0 : ws_.gBaseAgent);
        cmbAgents_Click();
    }

    ws_.gScheduleGenerated = 1;
    balancePanel->choose(0);
    fitBalancePanel();

    showNormalPointer();
    doEvents();
    show();
    main_.hide();
}

void frmWholeCalendar::Form_Activate() {
    const int days = ws_.currentMonthDays();
    for (int d = 1; d <= days; ++d) {
        const int i = d - 1 + ws_.gFirstWeekday;
        if (i < 0 || i >= kCells) {
            continue;
        }
        labNumber[i]->setText(QString::number(d));
        // The first line stops short of the number in the corner.
        labDay[i]->setFirstLineRoom(labNumber[i]->sizeHint().width() + 4);
        labDay[i]->setLines(dayCaption(ws_, d));
        cells_[i]->setAccessibleName(daySpokenText(ws_, d));
    }
    balancePanel->showBalance(ws_);
    fitBalancePanel();
    markAgentDays(balancePanel->chosenAgent());
    show();
    showNormalPointer();
}

void frmWholeCalendar::labDay_MouseDown(int index) {
    const int day = index + 1 - ws_.gFirstWeekday;
    // Only the month's own cells can be pressed.
    if (day < 1 || day > ws_.currentMonthDays()) {
        return;
    }
    ws_.gSelectedDay = day;
    if (ws_.gHoliday[day] == 1) {
        msgBox(ctx_.dialogs, holidayMessage(ws_, day), MsgIcon::Information, MsgButtons::OK);
        return;
    }
    showHourglass();
    show();
    doEvents();
    showNormalPointer();
    dayEditor_->show();
    hide();
}

void frmWholeCalendar::labNumber_MouseDown(int index) {
    labDay_MouseDown(index);
}

void frmWholeCalendar::cmdReschedule_Click() {
    showHourglass();
    int drawCounter = 0;
    modGenerateShuffled(ws_, ctx_, drawCounter);
    Form_Activate();
    showNormalPointer();
    show();
}

void frmWholeCalendar::cmbAgents_Click() {
    // While the form loads, the main window is still up, and the list's first index is no
    // choice of the user's.
    if (main_.isVisible() || cmbAgents->currentIndex() == ws_.gCalendarAgentIndex) {
        return;
    }
    showHourglass();
    for (QLabel* label : labDay) {
        if (!label->isHidden()) {
            label->clear();
        }
    }
    if (cmbAgents->currentIndex() == -1) {
        cmbAgents->setCurrentIndex(0);
    }
    rerunFromAgent(ws_, ctx_, ws_.cmbGenerateListIndex, cmbAgents->currentIndex());
    ws_.gCalendarAgentIndex = cmbAgents->currentIndex();
    Form_Activate();
    show();
    showNormalPointer();
}

void frmWholeCalendar::cmdOK_Click() {
    showHourglass();
    doEvents();
    show();
    main_.show();
    unload();
    main_.modLeaveBusyState();
    showNormalPointer();
}

bool frmWholeCalendar::Form_Unload() {
    modStatus(ws_, ctx_, QStringLiteral("Closing generated schedule"));
    showHourglass();
    if (dayEditor_->isLoaded()) {
        dayEditor_->unload();
    }
    main_.show();
    return true;
}

bool frmWholeCalendar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        for (int i = 0; i < kCells; ++i) {
            if (watched == labDay[i]) {
                labDay_MouseDown(i);
                return true;
            }
            if (watched == labNumber[i]) {
                labNumber_MouseDown(i);
                return true;
            }
        }
    }
    return Form::eventFilter(watched, event);
}
