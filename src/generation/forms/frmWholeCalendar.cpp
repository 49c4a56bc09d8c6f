#include "generation/forms/frmWholeCalendar.h"

#include "core/forms/formkit.h"
#include "core/model/daycaption.h"
#include "core/model/monthdata.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/log.h"
#include "core/services/msgbox.h"
#include "generation/engines.h"
#include "generation/forms/frmIndividualDay.h"
#include "generation/generate.h"
#include "shell/forms/frmMain.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kColumns = 7;
constexpr int kRows = 6;
// A cell's note stands on its sixth line, under the shifts; a day of six shifts of one
// agent pushes it to the seventh, which the cell still shows.
constexpr int kCellLines = 7;
// The rows of the form's grid: the instruction, the day names, six weeks, the buttons.
constexpr int kInstructionRow = 0;
constexpr int kDayNameRow = 1;
constexpr int kFirstWeekRow = 2;
constexpr int kButtonRow = kFirstWeekRow + kRows;

QString indexedName(const char* name, int index) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

bool isSerial(int engine) {
    return engine == kEngineHorizontal || engine == kEngineMixed;
}

}  // namespace

frmWholeCalendar::frmWholeCalendar(Workspace& ws, Context& ctx, frmMain& main)
    : QWidget(nullptr), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmWholeCalendar"));
    setAttribute(Qt::WA_DeleteOnClose);
    buildControls();
    Form_Load();
}

// The day editor is a window of its own; it does not outlive the review it belongs to.
frmWholeCalendar::~frmWholeCalendar() {
    delete dayEditor_;
}

frmIndividualDay* frmWholeCalendar::dayEditor() const {
    return dayEditor_;
}

void frmWholeCalendar::buildControls() {
    auto* grid = new QGridLayout(this);
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(4);

    labInstruction = new QLabel(QStringLiteral("Click a day to view or edit its contents."), this);
    labInstruction->setObjectName(QStringLiteral("labInstruction"));

    for (int w = 0; w < kColumns; ++w) {
        labDayName[w] = new QLabel(ws_.gDayNames[w], this);
        labDayName[w]->setObjectName(indexedName("labDayName", w));
        labDayName[w]->setAlignment(Qt::AlignCenter);
        grid->addWidget(labDayName[w], kDayNameRow, w);
        grid->setColumnStretch(w, 1);
    }

    // A cell is a box with the day's number in its corner and the day's text below it. Seven
    // lines must fit, and a line of two keys of some ten letters, a bracketed initial among them,
    // joined by a slash.
    const QFontMetrics metrics = fontMetrics();
    const int cellWidth = 22 * metrics.averageCharWidth() + 16;
    const int textHeight = kCellLines * metrics.lineSpacing();
    QFont numberFont = font();
    numberFont.setBold(true);
    for (int i = 0; i < kCells; ++i) {
        auto* cell = new QFrame(this);
        cell->setFrameStyle(QFrame::Box | QFrame::Plain);
        cell->setMinimumWidth(cellWidth);
        // Only the month's days have a box; the others leave their place in the grid empty,
        // and every part of a cell keeps its size while hidden.
        QSizePolicy cellPolicy = cell->sizePolicy();
        cellPolicy.setRetainSizeWhenHidden(true);
        cell->setSizePolicy(cellPolicy);
        cell->hide();
        auto* cellLayout = new QVBoxLayout(cell);
        cellLayout->setContentsMargins(4, 2, 4, 4);
        cellLayout->setSpacing(0);

        labNumber[i] = new QLabel(cell);
        labNumber[i]->setObjectName(indexedName("labNumber", i));
        labNumber[i]->setFont(numberFont);
        labNumber[i]->setAlignment(Qt::AlignRight | Qt::AlignTop);
        labDay[i] = new QLabel(cell);
        labDay[i]->setObjectName(indexedName("labDay", i));
        labDay[i]->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        labDay[i]->setWordWrap(true);
        labDay[i]->setMinimumHeight(textHeight);
        labDay[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
        for (QLabel* label : {labNumber[i], labDay[i]}) {
            QSizePolicy policy = label->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            label->setSizePolicy(policy);
            label->hide();
            label->installEventFilter(this);
        }
        cellLayout->addWidget(labNumber[i]);
        cellLayout->addWidget(labDay[i], 1);
        grid->addWidget(cell, kFirstWeekRow + i / kColumns, i % kColumns);
    }
    for (int row = 0; row < kRows; ++row) {
        grid->setRowStretch(kFirstWeekRow + row, 1);
    }

    cmbAgents = new QComboBox(this);
    cmbAgents->setObjectName(QStringLiteral("cmbAgents"));
    cmbAgents->hide();
    cmdReschedule = new QPushButton(QStringLiteral("&Reschedule"), this);
    cmdReschedule->setObjectName(QStringLiteral("cmdReschedule"));
    cmdReschedule->hide();
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdReschedule->setMinimumWidth(cmdOK->sizeHint().width());

    connect(cmdReschedule, &QPushButton::clicked, this, [this] { cmdReschedule_Click(); });
    // Setting the list's index from code counts as a click too; the click itself tells the
    // cases apart.
    connect(cmbAgents, &QComboBox::currentIndexChanged, this, [this] { cmbAgents_Click(); });
    connect(cmdOK, &QPushButton::clicked, this, [this] { cmdOK_Click(); });
}

// Where the instruction, the agent list and the buttons stand depends on what the engine
// offers: a serial engine's list sits beside the instruction that explains it, Reschedule
// beside OK, and OK alone stands in the middle, under the fourth column.
void frmWholeCalendar::placeEngineControls(int engine) {
    auto* grid = static_cast<QGridLayout*>(layout());
    if (isSerial(engine)) {
        grid->addWidget(labInstruction, kInstructionRow, 0, 1, 5);
        grid->addWidget(cmbAgents, kInstructionRow, 5, 1, 2);
    } else {
        labInstruction->setAlignment(Qt::AlignCenter);
        grid->addWidget(labInstruction, kInstructionRow, 0, 1, kColumns);
    }
    if (engine == kEngineShuffled) {
        grid->addWidget(cmdReschedule, kButtonRow, 5, Qt::AlignHCenter);
    }
    const bool alone = engine == kEngineSmartRandom || engine == -1;
    grid->addWidget(cmdOK, kButtonRow, alone ? 3 : 6, Qt::AlignHCenter);
}

void frmWholeCalendar::Form_Load() {
    const int engine = main_.cmbGenerate->currentIndex();
    // The form's full size is known once every control has its place.
    placeEngineControls(engine);

    modRemoveMinMaxFromSystemMenu(this);
    modStatus(ws_, ctx_, QStringLiteral("Viewing generated schedule"));

    // The review stands where the main window was, at least as large as its grid; being
    // larger, it moves as far as it must to stay whole on the screen.
    layout()->activate();
    QRect placed(main_.pos(), main_.size().expandedTo(minimumSizeHint()));
    if (const QScreen* screen = main_.screen()) {
        const QRect area = screen->availableGeometry();
        placed.moveRight(std::min(placed.right(), area.right()));
        placed.moveBottom(std::min(placed.bottom(), area.bottom()));
        placed.moveTopLeft(
            QPoint(std::max(placed.left(), area.left()), std::max(placed.top(), area.top())));
    }
    move(placed.topLeft());
    resize(placed.size());
    setWindowState(main_.windowState());
    setWindowTitle(main_.windowTitle());

    modFillDayEditorCombos(ws_);

    if (isSerial(engine)) {
        labInstruction->setText(
            QStringLiteral("Click on any day to view its contents.  Use the dropdown to change "
                           "the initial agent."));
        cmbAgents->show();
        const int agents = std::min(ws_.gAgentCount, static_cast<int>(ws_.gAgentKey.size()) - 1);
        for (int a = 1; a <= agents; ++a) {
            cmbAgents->addItem(ws_.gAgentKey[a]);
        }
        // A run that started from the last agent began with the first one. The main window
        // is still on the screen, so the click this raises rebuilds nothing.
        cmbAgents->setCurrentIndex(ws_.gBaseAgent == ws_.gAgentCount ? 0 : ws_.gBaseAgent);
    }
    if (engine == kEngineShuffled) {
        cmdReschedule->show();
    }

    ws_.gScheduleGenerated = 1;

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
        labNumber[i]->show();

        labDay[i]->setText(dayCaption(ws_, d));
        labDay[i]->show();
        labDay[i]->parentWidget()->show();
    }
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
        msgBox(ctx_.dialogs,
               ws_.currentMonthName() + QLatin1Char(' ') + QString::number(day) +
                   QStringLiteral(" is ") + ws_.gHolidayName[day] + QLatin1Char('.'),
               MsgIcon::Information, MsgButtons::OK);
        return;
    }
    showHourglass();
    show();
    doEvents();
    showNormalPointer();
    if (!dayEditor_) {
        dayEditor_ = new frmIndividualDay(ws_, ctx_, *this);
    }
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
    if (main_.isVisible()) {
        return;
    }
    if (cmbAgents->currentIndex() == ws_.gCalendarAgentIndex) {
        return;
    }
    showHourglass();
    for (QLabel* label : labDay) {
        if (!label->isHidden()) {
            label->clear();
        }
    }
    if (cmbAgents->currentIndex() == -1) {
        const QSignalBlocker quiet(cmbAgents);
        cmbAgents->setCurrentIndex(0);
    }
    // The engine places agent index + 1 first. It writes over every position of the month,
    // changes made by hand included.
    ws_.gInitialAgent = cmbAgents->currentIndex();
    switch (main_.cmbGenerate->currentIndex()) {
        // Shuffled takes the index as its draw count. Its face has no list, so this case
        // does not come from the form.
        case kEngineShuffled:
            modGenerateShuffled(ws_, ctx_, ws_.gInitialAgent);
            break;
        case kEngineHorizontal:
            modGenerateSerialHorizontal(ws_, ctx_, ws_.gInitialAgent);
            break;
        case kEngineMixed:
            modGenerateSerialMixed(ws_, ctx_, ws_.gInitialAgent);
            break;
        default:
            break;
    }
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
    close();
    main_.modLeaveBusyState();
    showNormalPointer();
}

void frmWholeCalendar::Form_Unload() {
    modStatus(ws_, ctx_, QStringLiteral("Closing generated schedule"));
    showHourglass();
    main_.show();
}

// Each time the form comes back on the screen, from the day editor or from the main
// window's commands, it shows the schedule as it now stands.
void frmWholeCalendar::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) {
        Form_Activate();
    }
}

void frmWholeCalendar::closeEvent(QCloseEvent* event) {
    Form_Unload();
    event->accept();
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
    return QWidget::eventFilter(watched, event);
}
