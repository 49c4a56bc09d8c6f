#include "shell/forms/frmMain.h"

#include "core/forms/formkit.h"
#include "core/model/agentkeys.h"
#include "core/model/textrules.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "core/services/dialogs.h"
#include "core/services/msgbox.h"
#include "generation/forms/frmWholeCalendar.h"
#include "persistence/workspacefile.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <functional>
#include <initializer_list>
#include <utility>

namespace {

// The month stepper only ever looks at the difference between two of its values, so it
// starts in the middle of a range that no user will scroll to the end of.
constexpr int kDateStepperRange = 100000;

// The progress box is a thin bar; the shape inside it grows from the left.
constexpr int kProgressHeight = 18;

// A print box holds 0 (off), 1 (on) or 2 (greyed), as the files store it.
Qt::CheckState checkStateOf(int value) {
    switch (value) {
        case 1:
            return Qt::Checked;
        case 2:
            return Qt::PartiallyChecked;
        default:
            return Qt::Unchecked;
    }
}

int valueOf(int checkState) {
    switch (checkState) {
        case Qt::Checked:
            return 1;
        case Qt::PartiallyChecked:
            return 2;
        default:
            return 0;
    }
}

QString agentListCaption(int count) {
    if (count == 0) {
        return QStringLiteral("Agent list (no agents)");
    }
    if (count == 1) {
        return QStringLiteral("Agent list (1 agent)");
    }
    return QStringLiteral("Agent list (%1 agents)").arg(count);
}

// The boxes that answer or ask in the middle of a command. Coming back from one of them,
// or from another application, is no return from a form, and the controls must stay as
// the command left them.
bool isBoxOrForeign(const QWidget* window) {
    if (window == nullptr) {
        return true;
    }
    for (const char* box :
         {"QMessageBox", "QInputDialog", "QFileDialog", "QFontDialog", "QColorDialog",
          "QProgressDialog", "QErrorMessage", "QAbstractPrintDialog", "QPageSetupDialog"}) {
        if (window->inherits(box)) {
            return true;
        }
    }
    return false;
}

// A press of the left button on a frame's own area, outside its live controls, while the
// frame is enabled: the frame's click.
class FrameClickFilter final : public QObject {
public:
    FrameClickFilter(QGroupBox* frame, std::function<void()> onClick)
        : QObject(frame), frame_(frame), onClick_(std::move(onClick)) {
        frame->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == frame_ && event->type() == QEvent::MouseButtonPress &&
            static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton && frame_->isEnabled()) {
            onClick_();
        }
        return false;
    }

private:
    QGroupBox* frame_;
    std::function<void()> onClick_;
};

QPushButton* makeButton(const QString& caption, const char* name, QWidget* parent) {
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(QLatin1String(name));
    return button;
}

QGroupBox* makeFrame(const QString& caption, const char* name, QWidget* parent) {
    auto* frame = new QGroupBox(caption, parent);
    frame->setObjectName(QLatin1String(name));
    // The frames that share a place keep it while hidden, so the window never changes
    // its shape when one face gives way to another.
    QSizePolicy policy = frame->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    frame->setSizePolicy(policy);
    return frame;
}

QLabel* makeLabel(const QString& caption, const char* name, QWidget* parent) {
    auto* label = new QLabel(caption, parent);
    label->setObjectName(QLatin1String(name));
    return label;
}

QLineEdit* makeTextBox(const char* name, QWidget* parent) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(QLatin1String(name));
    return box;
}

QAction* makeItem(QMenu* menu, const QString& caption, const char* name) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QLatin1String(name));
    return item;
}

QMenu* makeMenu(QMenuBar* bar, const QString& caption, const char* name) {
    QMenu* menu = bar->addMenu(caption);
    menu->setObjectName(QLatin1String(name));
    return menu;
}

QMenu* makeSubmenu(QMenu* parent, const QString& caption, const char* name) {
    QMenu* menu = parent->addMenu(caption);
    menu->setObjectName(QLatin1String(name));
    menu->menuAction()->setObjectName(QLatin1String(name));
    return menu;
}

void makeSeparator(QMenu* menu, const char* name) {
    menu->addSeparator()->setObjectName(QLatin1String(name));
}

void setEnabledAll(std::initializer_list<QWidget*> controls, bool enabled) {
    for (QWidget* control : controls) {
        control->setEnabled(enabled);
    }
}

}  // namespace

frmMain::frmMain(Workspace& ws, Context& ctx, const QString& programFile, QWidget* parent)
    : QMainWindow(parent), ws_(ws), ctx_(ctx), programFile_(programFile) {
    setObjectName(QStringLiteral("frmMain"));
    buildControls();
    buildMenus();
    connectAgentCommands();
    connectFileCommands();
    connectMonthChange();
    connectGenerate();
    connectViewEdit();
    // One size, the one the controls need: the window is a form, not a canvas.
    setFixedSize(sizeHint());
    Form_Load();
}

// The review form is a window of its own; it goes with this one.
frmMain::~frmMain() {
    delete wholeCalendar_;
}

void frmMain::buildControls() {
    auto* central = new QWidget(this);
    setCentralWidget(central);

    // The agents, with the commands that work on them.
    fraAgents = makeFrame(agentListCaption(0), "fraAgents", central);
    lstAgents = new QListWidget(fraAgents);
    lstAgents->setObjectName(QStringLiteral("lstAgents"));
    // No sorting of its own: the agent commands keep the agents in name order, case ignored,
    // and the list shows them in that order, so that agent i is always item i - 1.
    lstAgents->setMinimumSize(190, 250);
    cmdAdd = makeButton(QStringLiteral("&Add"), "cmdAdd", fraAgents);
    cmdChange = makeButton(QStringLiteral("&Change"), "cmdChange", fraAgents);
    cmdDelete = makeButton(QStringLiteral("&Delete"), "cmdDelete", fraAgents);
    cmdVacations = makeButton(QStringLiteral("&Vacations"), "cmdVacations", fraAgents);
    cmdRestrictions = makeButton(QStringLiteral("&Restrictions"), "cmdRestrictions", fraAgents);
    cmdHolidays = makeButton(QStringLiteral("Holida&ys"), "cmdHolidays", fraAgents);
    cmdNotes = makeButton(QStringLiteral("&Notes"), "cmdNotes", fraAgents);
    auto* agentButtons = new QVBoxLayout;
    for (QPushButton* button : {cmdAdd, cmdChange, cmdDelete}) {
        agentButtons->addWidget(button);
    }
    agentButtons->addSpacing(12);
    for (QPushButton* button : {cmdVacations, cmdRestrictions, cmdHolidays, cmdNotes}) {
        agentButtons->addWidget(button);
    }
    agentButtons->addStretch();
    auto* agentLayout = new QHBoxLayout(fraAgents);
    agentLayout->addWidget(lstAgents, 1);
    agentLayout->addLayout(agentButtons);

    // The month, and in its place during a long command, the command's status.
    fraDate = makeFrame(QStringLiteral("Month of schedule"), "fraDate", central);
    labDate = makeLabel(QString(), "labDate", fraDate);
    labDate->setAlignment(Qt::AlignCenter);
    QFont dateFont = labDate->font();
    dateFont.setBold(true);
    labDate->setFont(dateFont);
    labDate->setMinimumWidth(
        QFontMetrics(dateFont).horizontalAdvance(QStringLiteral("September 0000")) + 8);
    vscDate = new QScrollBar(Qt::Vertical, fraDate);
    vscDate->setObjectName(QStringLiteral("vscDate"));
    vscDate->setRange(-kDateStepperRange, kDateStepperRange);
    vscDate->setValue(0);
    vscDate->setFixedHeight(2 * vscDate->sizeHint().width() + 4);
    // The stepper stands beside the month it steps.
    auto* dateLayout = new QHBoxLayout(fraDate);
    dateLayout->addStretch();
    dateLayout->addWidget(labDate);
    dateLayout->addWidget(vscDate);
    dateLayout->addStretch();

    fraStatus = makeFrame(QStringLiteral("Status"), "fraStatus", central);
    labStatus = makeLabel(QString(), "labStatus", fraStatus);
    labStatusHigh = makeLabel(QString(), "labStatusHigh", fraStatus);
    for (QLabel* label : {labStatus, labStatusHigh}) {
        // A long status text is cut at the frame's edge; it never widens the window.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    picStatus = new QFrame(fraStatus);
    picStatus->setObjectName(QStringLiteral("picStatus"));
    picStatus->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    picStatus->setLineWidth(1);
    picStatus->setFixedHeight(kProgressHeight);
    shpStatus = new QFrame(picStatus);
    shpStatus->setObjectName(QStringLiteral("shpStatus"));
    shpStatus->setAutoFillBackground(true);
    QPalette progress = shpStatus->palette();
    progress.setColor(QPalette::Window, progress.color(QPalette::Highlight));
    shpStatus->setPalette(progress);
    shpStatus->setGeometry(1, 1, 0, kProgressHeight - 2);
    auto* statusLayout = new QVBoxLayout(fraStatus);
    statusLayout->addWidget(labStatus);
    statusLayout->addWidget(labStatusHigh);
    statusLayout->addWidget(picStatus);
    // The bar is shown only while an engine reports its progress.
    picStatus->hide();
    fraStatus->hide();

    // The commands on the month: view and edit, generate, print, export.
    auto* commands = new QWidget(central);
    fraViewEdit = makeFrame(QStringLiteral("View/edit current . . ."), "fraViewEdit", commands);
    cmbViewEdit = new QComboBox(fraViewEdit);
    cmbViewEdit->setObjectName(QStringLiteral("cmbViewEdit"));
    cmdViewEdit = makeButton(QStringLiteral("&View/edit"), "cmdViewEdit", fraViewEdit);
    auto* viewEditLayout = new QHBoxLayout(fraViewEdit);
    viewEditLayout->addWidget(cmbViewEdit, 1);
    viewEditLayout->addWidget(cmdViewEdit);

    fraGenerate = makeFrame(QStringLiteral("Generate schedule"), "fraGenerate", commands);
    cmbGenerate = new QComboBox(fraGenerate);
    cmbGenerate->setObjectName(QStringLiteral("cmbGenerate"));
    cmdGenerate = makeButton(QStringLiteral("Genera&te"), "cmdGenerate", fraGenerate);
    for (QComboBox* list : {cmbViewEdit, cmbGenerate}) {
        // Wide enough for the longest entry, which is filled in after the window has its size.
        list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        list->setMinimumContentsLength(
            static_cast<int>(QStringLiteral("Fonts & printer setup").size()));
    }
    auto* generateLayout = new QHBoxLayout(fraGenerate);
    generateLayout->addWidget(cmbGenerate, 1);
    generateLayout->addWidget(cmdGenerate);
    // Both drop-downs and their buttons line up.
    cmdGenerate->setMinimumWidth(cmdViewEdit->sizeHint().width());
    cmdViewEdit->setMinimumWidth(cmdGenerate->sizeHint().width());

    fraPrint = makeFrame(QStringLiteral("Print schedule"), "fraPrint", commands);
    fraExport = makeFrame(QStringLiteral("Export schedule"), "fraExport", commands);
    const char* const boxNames[] = {"chkPrint(0)", "chkPrint(1)", "chkPrint(2)",
                                    "chkPrint(3)", "chkPrint(4)", "chkPrint(5)"};
    const QString boxCaptions[] = {
        QStringLiteral("Full calendar"),    QStringLiteral("Office grid"),
        QStringLiteral("Tearsheet"),        QStringLiteral("E-mail"),
        QStringLiteral("Outlook calendar"), QStringLiteral("Calendar Creator")};
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        chkPrint[i] = new QCheckBox(boxCaptions[i], i < 3 ? fraPrint : fraExport);
        chkPrint[i]->setObjectName(QLatin1String(boxNames[i]));
    }
    cmdPrint = makeButton(QStringLiteral("&Print"), "cmdPrint", fraPrint);
    cmdExport = makeButton(QStringLiteral("E&xport"), "cmdExport", fraExport);
    auto* printLayout = new QVBoxLayout(fraPrint);
    auto* exportLayout = new QVBoxLayout(fraExport);
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        (i < 3 ? printLayout : exportLayout)->addWidget(chkPrint[i]);
    }
    printLayout->addStretch();
    printLayout->addWidget(cmdPrint);
    exportLayout->addStretch();
    exportLayout->addWidget(cmdExport);
    auto* outputLayout = new QHBoxLayout;
    outputLayout->addWidget(fraPrint, 1);
    outputLayout->addWidget(fraExport, 1);

    auto* commandsLayout = new QVBoxLayout(commands);
    commandsLayout->setContentsMargins(0, 0, 0, 0);
    commandsLayout->addWidget(fraViewEdit);
    commandsLayout->addWidget(fraGenerate);
    commandsLayout->addLayout(outputLayout, 1);

    // The agent editor, which takes the place of the month's commands while it is open.
    fraEditAgent = makeFrame(QStringLiteral("Add an agent"), "fraEditAgent", central);
    labFirstName = makeLabel(QStringLiteral("First name:"), "labFirstName", fraEditAgent);
    txtFirstName = makeTextBox("txtFirstName", fraEditAgent);
    labLastName = makeLabel(QStringLiteral("Last name:"), "labLastName", fraEditAgent);
    txtLastName = makeTextBox("txtLastName", fraEditAgent);
    labEmail = makeLabel(QStringLiteral("E-mail address (optional):"), "labEmail", fraEditAgent);
    txtEmail = makeTextBox("txtEmail", fraEditAgent);
    cmdResolveName = makeButton(QStringLiteral("..."), "cmdResolveName", fraEditAgent);
    cmdResolveName->setFixedWidth(
        cmdResolveName->fontMetrics().horizontalAdvance(QStringLiteral("....")) + 16);
    cmdOK = makeButton(QStringLiteral("OK"), "cmdOK", fraEditAgent);
    cmdCancel = makeButton(QStringLiteral("Cance&l"), "cmdCancel", fraEditAgent);
    auto* editLayout = new QGridLayout(fraEditAgent);
    editLayout->addWidget(labFirstName, 0, 0, 1, 2);
    editLayout->addWidget(txtFirstName, 1, 0, 1, 2);
    editLayout->addWidget(labLastName, 2, 0, 1, 2);
    editLayout->addWidget(txtLastName, 3, 0, 1, 2);
    editLayout->addWidget(labEmail, 4, 0, 1, 2);
    editLayout->addWidget(txtEmail, 5, 0);
    editLayout->addWidget(cmdResolveName, 5, 1);
    editLayout->setRowStretch(6, 1);
    auto* editButtons = new QHBoxLayout;
    editButtons->addStretch();
    editButtons->addWidget(cmdOK);
    editButtons->addWidget(cmdCancel);
    editLayout->addLayout(editButtons, 7, 0, 1, 2);
    fraEditAgent->hide();

    auto* layout = new QGridLayout(central);
    layout->addWidget(fraAgents, 0, 0, 2, 1);
    layout->addWidget(fraDate, 0, 1);
    layout->addWidget(fraStatus, 0, 1);
    layout->addWidget(commands, 1, 1);
    layout->addWidget(fraEditAgent, 1, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);

    connect(lstAgents, &QListWidget::currentRowChanged, this, [this] { lstAgents_Click(); });
    connect(lstAgents, &QListWidget::itemDoubleClicked, this, [this] { lstAgents_DblClick(); });
    new FrameClickFilter(fraPrint, [this] { fraPrint_Click(); });
}

void frmMain::buildMenus() {
    QMenuBar* bar = menuBar();

    mnuFile = makeMenu(bar, QStringLiteral("&File"), "mnuFile");
    mnuFNew = makeItem(mnuFile, QStringLiteral("&New desko schedule"), "mnuFNew");
    mnuFOpen = makeItem(mnuFile, QStringLiteral("&Open desko schedule..."), "mnuFOpen");
    mnuFSaveAs = makeItem(mnuFile, QStringLiteral("&Save desko schedule as..."), "mnuFSaveAs");
    makeSeparator(mnuFile, "mnuSep0");
    mnuFPrint = makeSubmenu(mnuFile, QStringLiteral("&Print desko schedule"), "mnuFPrint");
    mnuFPCalendar = makeItem(mnuFPrint, QStringLiteral("&Full calendar"), "mnuFPCalendar");
    mnuFPGrid = makeItem(mnuFPrint, QStringLiteral("&Office grid"), "mnuFPGrid");
    mnuFPTearsheet = makeItem(mnuFPrint, QStringLiteral("&Tearsheet"), "mnuFPTearsheet");
    mnuFExport = makeSubmenu(mnuFile, QStringLiteral("E&xport desko schedule"), "mnuFExport");
    mnuFEEmail = makeItem(mnuFExport, QStringLiteral("E-&mail"), "mnuFEEmail");
    mnuFEOutlook = makeItem(mnuFExport, QStringLiteral("&Outlook calendar"), "mnuFEOutlook");
    mnuFECreator = makeItem(mnuFExport, QStringLiteral("Calendar C&reator"), "mnuFECreator");
    makeSeparator(mnuFile, "mnuSep1");
    mnuFExit = makeItem(mnuFile, QStringLiteral("E&xit"), "mnuFExit");

    mnuEdit = makeMenu(bar, QStringLiteral("&Edit"), "mnuEdit");
    mnuESchedule = makeItem(mnuEdit, QStringLiteral("&Schedule"), "mnuESchedule");
    mnuEShifts = makeItem(mnuEdit, QStringLiteral("&Daily shifts && times"), "mnuEShifts");
    mnuEConstraints = makeItem(mnuEdit, QStringLiteral("&All constraints"), "mnuEConstraints");
    mnuEFonts = makeItem(mnuEdit, QStringLiteral("&Fonts && printer setup"), "mnuEFonts");

    mnuGenerate = makeMenu(bar, QStringLiteral("&Generate"), "mnuGenerate");
    mnuGSmartRandom = makeItem(mnuGenerate, QStringLiteral("Smart&Random"), "mnuGSmartRandom");
    mnuGShuffled = makeItem(mnuGenerate, QStringLiteral("S&huffled"), "mnuGShuffled");
    mnuGMixed = makeItem(mnuGenerate, QStringLiteral("Serial (&mixed)"), "mnuGMixed");
    mnuGHorizontal =
        makeItem(mnuGenerate, QStringLiteral("Serial (&horizontal)"), "mnuGHorizontal");

    mnuHelp = makeMenu(bar, QStringLiteral("&Help"), "mnuHelp");
    mnuHHelp = makeItem(mnuHelp, QStringLiteral("Desko for Windows &Help..."), "mnuHHelp");
    mnuHDump =
        makeItem(mnuHelp, QStringLiteral("&Create a configuration dump file..."), "mnuHDump");
    mnuHOpenDump =
        makeItem(mnuHelp, QStringLiteral("&Open a configuration dump file..."), "mnuHOpenDump");
    // Offered only to those who know the key on the splash.
    mnuHOpenDump->setVisible(false);
    makeSeparator(mnuHelp, "mnuSep2");
    mnuHAbout = makeItem(mnuHelp, QStringLiteral("&About Desko for Windows..."), "mnuHAbout");

    connect(mnuFExit, &QAction::triggered, this, [this] { mnuFExit_Click(); });
    // The engine items choose the engine in the list and press the button, so they do
    // nothing while the button is disabled. The serial engines stand in the menu in the
    // reverse of their order in the list.
    connect(mnuGSmartRandom, &QAction::triggered, this, [this] { pressGenerate(0); });
    connect(mnuGShuffled, &QAction::triggered, this, [this] { pressGenerate(1); });
    connect(mnuGMixed, &QAction::triggered, this, [this] { pressGenerate(3); });
    connect(mnuGHorizontal, &QAction::triggered, this, [this] { pressGenerate(2); });
}

void frmMain::Form_Load() {
    modUpdateCmbViewEdit();
    cmbGenerate->clear();
    cmbGenerate->addItems({QStringLiteral("SmartRandom"), QStringLiteral("Shuffled"),
                           QStringLiteral("Serial (horizontal)"),
                           QStringLiteral("Serial (mixed)")});
    cmbViewEdit->setCurrentIndex(0);
    cmbGenerate->setCurrentIndex(0);
    ws_.gScrollValue = vscDate->value();
    if (const QScreen* display = screen()) {
        const QRect area = display->geometry();
        move(area.x() + (area.width() - width()) / 2, area.y() + (area.height() - height()) / 2);
    }
    mirrorPrintAndEngine();
}

// The print boxes and the engine list show what the loaded workspace holds, and a user's
// change goes back into the workspace, where saving reads it.
void frmMain::mirrorPrintAndEngine() {
    showPrintAndEngine();
    connect(cmbGenerate, &QComboBox::currentIndexChanged, this,
            [this](int index) { ws_.cmbGenerateListIndex = index; });
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        QCheckBox* box = chkPrint[i];
        connect(box, &QCheckBox::stateChanged, this, [this, box, i](int state) {
            ws_.chkPrint[i] = valueOf(state);
            // A greyed box comes only from a file; a user's click goes between on and off.
            if (state != Qt::PartiallyChecked) {
                box->setTristate(false);
            }
        });
    }
}

// Sets the print boxes and the engine list from the workspace, again after a file was read.
void frmMain::showPrintAndEngine() {
    if (ws_.cmbGenerateListIndex >= 0 && ws_.cmbGenerateListIndex < cmbGenerate->count()) {
        cmbGenerate->setCurrentIndex(ws_.cmbGenerateListIndex);
    }
    for (std::size_t i = 0; i < chkPrint.size(); ++i) {
        if (ws_.chkPrint[i] >= 0 && ws_.chkPrint[i] <= 2) {
            chkPrint[i]->setCheckState(checkStateOf(ws_.chkPrint[i]));
        }
    }
}

void frmMain::showStatus(const QString& text) {
    fraDate->hide();
    fraStatus->show();
    labStatus->setText(text);
}

void frmMain::beginLongCommand(const QString& text) {
    showStatus(text);
    modEnterBusyState();
    showHourglass();
    doEvents();
}

void frmMain::modEnterBusyState() {
    setEnabledAll({lstAgents, cmdAdd, cmdChange, cmdDelete, cmdVacations, cmdRestrictions,
                   cmdHolidays, cmdNotes, labDate, cmbViewEdit, cmdViewEdit, cmbGenerate,
                   cmdGenerate, mnuFPrint, mnuFExport},
                  false);
    for (QCheckBox* box : chkPrint) {
        box->setEnabled(false);
    }
    setEnabledAll({fraPrint, fraExport, cmdPrint, cmdExport, vscDate, mnuFile, mnuEdit, mnuGenerate,
                   mnuHelp, fraAgents, fraDate, fraViewEdit, fraGenerate, fraPrint, fraExport},
                  false);
    doEvents();
    showToFront();
}

void frmMain::modLeaveBusyState() {
    setWindowTitle(windowCaption());
    setEnabledAll({fraAgents, fraDate, fraViewEdit, fraGenerate, lstAgents, cmdAdd, cmdChange,
                   cmdDelete, cmdVacations, cmdRestrictions, cmdHolidays, cmdNotes, labDate,
                   cmbViewEdit, cmdViewEdit, cmbGenerate, cmdGenerate},
                  true);
    modUpdateCmbViewEdit();

    // Printing and exporting need a generated schedule.
    const bool generated = ws_.gScheduleGenerated == 1;
    for (QCheckBox* box : chkPrint) {
        box->setEnabled(generated);
    }
    setEnabledAll({fraPrint, fraExport, cmdPrint, cmdExport, mnuFPrint, mnuFExport}, generated);

    setEnabledAll({vscDate, mnuFile, mnuEdit, mnuGenerate, mnuHelp}, true);
    fraStatus->hide();
    fraDate->show();
    labStatus->clear();
    labStatusHigh->clear();
    setAgentFrameCaption();

    // Without agents only Add is left: holidays and notes hang on the agent list too.
    if (ws_.gAgentCount == 0) {
        setEnabledAll({cmdChange, cmdDelete, cmdVacations, cmdRestrictions, cmdHolidays,
                       cmdGenerate, cmbGenerate, cmdNotes},
                      false);
    }
    // Add asks for this so that a run of adds keeps the cursor on the button.
    if (ws_.gFocusAddButton == 1) {
        cmdAdd->setFocus();
        ws_.gFocusAddButton = 0;
    }
    showNormalPointer();
    doEvents();
    showToFront();
}

void frmMain::modFillAgentList() {
    {
        // Refilling is no choice of the user's: the selection is set once the list stands.
        const QSignalBlocker quiet(lstAgents);
        lstAgents->clear();
        for (int i = 1; i <= ws_.gAgentCount; ++i) {
            lstAgents->addItem(ws_.gAgentLast[i] + QStringLiteral(", ") + ws_.gAgentFirst[i]);
        }
    }
    if (lstAgents->count() >= 1) {
        lstAgents->setCurrentRow(ws_.gSelectedAgent.value_or(0));
    }
    if (lstAgents->count() > 0 && lstAgents->currentRow() == -1) {
        lstAgents->setCurrentRow(0);
    }
}

void frmMain::modUpdateAgentList() {
    setAgentFrameCaption();
    modSaveWorkspace(ws_, ctx_, QString());
    modBuildAgentKeys(ws_);
}

void frmMain::modUpdateCmbViewEdit() {
    cmbViewEdit->clear();
    const bool generated = ws_.gScheduleGenerated == 1;
    if (generated) {
        cmbViewEdit->addItem(QStringLiteral("Schedule"));
    }
    mnuESchedule->setEnabled(generated);
    cmbViewEdit->addItem(QStringLiteral("Daily shifts & times"));
    const bool constrained = ws_.gHasVacations != 0 || ws_.gHasHolidays != 0 ||
                             ws_.gHasNotedDays != 0 || ws_.gHasRestrictions != 0;
    if (constrained) {
        cmbViewEdit->addItem(QStringLiteral("All constraints"));
    }
    mnuEConstraints->setEnabled(constrained);
    cmbViewEdit->addItem(QStringLiteral("Fonts & printer setup"));
    cmbViewEdit->setCurrentIndex(0);
}

void frmMain::Form_Activate() {
    modLeaveBusyState();
    modFillAgentList();
    labDate->setText(ws_.currentMonthName() + QLatin1Char(' ') + QString::number(ws_.gCurrentYear));
    if (ws_.gFocusAddButton == 1) {
        makeDefaultButton(cmdAdd);
    }
}

void frmMain::Form_GotFocus() {
    showNormalPointer();
    if (!ws_.gSelectedAgent) {
        ws_.gSelectedAgent = -1;
    }
    if (ws_.gAgentCount > 0) {
        lstAgents->setCurrentRow(*ws_.gSelectedAgent);
    }
    if (cmdAdd->isEnabled() && ws_.gFocusAddButton == 1) {
        cmdAdd->setFocus();
        ws_.gFocusAddButton = 0;
    }
}

void frmMain::lstAgents_Click() {
    ws_.gSelectedAgent = lstAgents->currentRow();
}

void frmMain::lstAgents_DblClick() {
    lstAgents_Click();
    cmdChange->click();
}

void frmMain::fraPrint_Click() {
    if (ws_.gScheduleGenerated == 0) {
        msgBox(ctx_.dialogs, QStringLiteral("You must generate a schedule before printing."),
               MsgIcon::Exclamation, MsgButtons::OK);
    }
}

void frmMain::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::ActivationChange) {
        return;
    }
    if (isActiveWindow()) {
        if (activationLostToForm_) {
            activationLostToForm_ = false;
            Form_Activate();
        }
    } else {
        activationLostToForm_ = !isBoxOrForeign(QApplication::activeWindow());
    }
}

// Showing the window makes it the active one at once, as far as the program is concerned:
// whoever shows it finds the controls rebuilt when show returns.
void frmMain::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!event->spontaneous()) {
        activationLostToForm_ = false;
        Form_Activate();
    }
}

void frmMain::closeEvent(QCloseEvent* event) {
    if (Form_Unload()) {
        event->accept();
    } else {
        event->ignore();
    }
}

void frmMain::focusInEvent(QFocusEvent* event) {
    QMainWindow::focusInEvent(event);
    Form_GotFocus();
}

// Enter presses the button that has the focus, else the window's default button.
void frmMain::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        auto* target = qobject_cast<QPushButton*>(focusWidget());
        if (target == nullptr) {
            for (QPushButton* button : findChildren<QPushButton*>()) {
                if (button->isDefault() && button->isVisible() && button->isEnabled()) {
                    target = button;
                    break;
                }
            }
        }
        if (target != nullptr && target->isEnabled()) {
            target->click();
            return;
        }
    }
    QMainWindow::keyPressEvent(event);
}

// The workspace's tag shows only under the program's own name.
QString frmMain::windowCaption() const {
    QString name = programFile_.toUpper();
    if (name.endsWith(QLatin1String(".EXE"))) {
        name.chop(4);
    }
    QString caption = QStringLiteral("Desko for Windows rev 4.0 ");
    if (name == QLatin1String("DESKO40")) {
        caption += ws_.gScheduleTag;
    }
    return caption;
}

void frmMain::setAgentFrameCaption() {
    fraAgents->setTitle(agentListCaption(ws_.gAgentCount));
}

void frmMain::makeDefaultButton(QPushButton* button) {
    for (QPushButton* other : findChildren<QPushButton*>()) {
        other->setDefault(other == button);
    }
}

void frmMain::pressGenerate(int listIndex) {
    cmbGenerate->setCurrentIndex(listIndex);
    cmdGenerate->click();
}

void frmMain::showToFront() {
    show();
    if (!isActiveWindow()) {
        raise();
        activateWindow();
    }
}
