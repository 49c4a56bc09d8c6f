// The main window's controls and menus, and how its events reach the commands.

#include "shell/forms/frmMain.h"

#include "constraints/forms/frmBoth.h"
#include "constraints/forms/frmHolidays.h"
#include "constraints/forms/frmRestrictions.h"
#include "constraints/forms/frmViewDay.h"
#include "core/forms/facewindow.h"
#include "core/forms/formkit.h"
#include "core/services/context.h"
#include "environment/forms/frmAbout.h"
#include "generation/forms/frmWholeCalendar.h"
#include "printing/forms/frmPSetup.h"
#include "shell/forms/monthstepper.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>

namespace {

// The progress box is a thin bar; the shape inside it grows from the left.
constexpr int kProgressHeight = 18;

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

}  // namespace

frmMain::frmMain(Workspace& ws, Context& ctx, FaceWindow& window, const QString& programFile)
    : MainForm(window), ws_(ws), ctx_(ctx), programFile_(programFile) {
    setObjectName(QStringLiteral("frmMain"));
    buildControls();
    buildMenus();
    connectCommands();
    connectAgentCommands();
    // The long commands' yields run the window's events.
    ctx.events.run = [] { doEvents(); };
    review_ = new frmWholeCalendar(ws, ctx, *this, window);
    // Every face is made with the window, so that the window knows the room they all need.
    shifts_ = new frmViewDay(ws, ctx, *this, window);
    dayPicker_ = new frmHolidays(ws, ctx, *this, window);
    restrictions_ = new frmRestrictions(ws, ctx, *this, window);
    constraints_ = new frmBoth(ws, ctx, *this, window);
    about_ = new frmAbout(ws, ctx, *this, window);
    printerSetup_ = new frmPSetup(ws, ctx, *this, window);
    window.fitFaces();
    load();
}

void frmMain::buildControls() {
    // The agents, with the commands that work on them.
    fraAgents = makeFrame(this, "fraAgents", QStringLiteral("Agent list (no agents)"));
    // No sorting of its own: the agent commands keep the agents in name order, case ignored,
    // and the list shows them in that order, so that agent i is always item i - 1.
    lstAgents = makeList(fraAgents, "lstAgents", QStringLiteral("Agent list"));
    lstAgents->setMinimumSize(190, 250);
    cmdAdd = makeButton(fraAgents, "cmdAdd", QStringLiteral("&Add"));
    cmdChange = makeButton(fraAgents, "cmdChange", QStringLiteral("&Change"));
    cmdDelete = makeButton(fraAgents, "cmdDelete", QStringLiteral("&Delete"));
    cmdVacations = makeButton(fraAgents, "cmdVacations", QStringLiteral("&Vacations"));
    cmdRestrictions = makeButton(fraAgents, "cmdRestrictions", QStringLiteral("&Restrictions"));
    cmdHolidays = makeButton(fraAgents, "cmdHolidays", QStringLiteral("Holida&ys"));
    cmdNotes = makeButton(fraAgents, "cmdNotes", QStringLiteral("&Notes"));
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
    fraDate = makeFrame(this, "fraDate", QStringLiteral("Month of schedule"));
    labDate = makeLabel(fraDate, "labDate", QString());
    labDate->setAlignment(Qt::AlignCenter);
    QFont dateFont = labDate->font();
    dateFont.setBold(true);
    labDate->setFont(dateFont);
    labDate->setMinimumWidth(
        QFontMetrics(dateFont).horizontalAdvance(QStringLiteral("September 0000")) + 8);
    vscDate = new MonthStepper(fraDate);
    vscDate->setObjectName(QStringLiteral("vscDate"));
    vscDate->setAccessibleName(QStringLiteral("Month of schedule"));
    // The stepper stands beside the month it steps.
    auto* dateLayout = new QHBoxLayout(fraDate);
    dateLayout->addStretch();
    dateLayout->addWidget(labDate);
    dateLayout->addWidget(vscDate);
    dateLayout->addStretch();

    fraStatus = makeFrame(this, "fraStatus", QStringLiteral("Status"));
    labStatus = makeLabel(fraStatus, "labStatus", QString());
    labStatusHigh = makeLabel(fraStatus, "labStatusHigh", QString());
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

    QWidget* commands = buildCommandFrames();
    buildEditFrame();

    auto* layout = new QGridLayout(this);
    layout->addWidget(fraAgents, 0, 0, 2, 1);
    layout->addWidget(fraDate, 0, 1);
    layout->addWidget(fraStatus, 0, 1);
    layout->addWidget(commands, 1, 1);
    layout->addWidget(fraEditAgent, 1, 1);
    layout->setRowStretch(1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);

    new FrameClickFilter(fraPrint, [this] { fraPrint_Click(); });
}

// The commands on the month: view and edit, generate, print, export.
QWidget* frmMain::buildCommandFrames() {
    auto* commands = new QWidget(this);
    fraViewEdit = makeFrame(commands, "fraViewEdit", QStringLiteral("View/edit current . . ."));
    // The two drop-downs are read aloud by their frames.
    cmbViewEdit = makeDropDown(fraViewEdit, QStringLiteral("cmbViewEdit"), fraViewEdit->title());
    cmdViewEdit = makeButton(fraViewEdit, "cmdViewEdit", QStringLiteral("&View/edit"));
    auto* viewEditLayout = new QHBoxLayout(fraViewEdit);
    viewEditLayout->addWidget(cmbViewEdit, 1);
    viewEditLayout->addWidget(cmdViewEdit);

    fraGenerate = makeFrame(commands, "fraGenerate", QStringLiteral("Generate schedule"));
    cmbGenerate = makeDropDown(fraGenerate, QStringLiteral("cmbGenerate"), fraGenerate->title());
    cmdGenerate = makeButton(fraGenerate, "cmdGenerate", QStringLiteral("Genera&te"));
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

    fraPrint = makeFrame(commands, "fraPrint", QStringLiteral("Print schedule"));
    fraExport = makeFrame(commands, "fraExport", QStringLiteral("Export schedule"));
    const QString boxCaptions[] = {
        QStringLiteral("Full calendar"),    QStringLiteral("Office grid"),
        QStringLiteral("Tearsheet"),        QStringLiteral("E-mail"),
        QStringLiteral("Outlook calendar"), QStringLiteral("Calendar Creator")};
    auto* printLayout = new QVBoxLayout(fraPrint);
    auto* exportLayout = new QVBoxLayout(fraExport);
    for (int i = 0; i < 6; ++i) {
        chkPrint[i] =
            makeCheckBox(i < 3 ? fraPrint : fraExport, indexedName("chkPrint", i), boxCaptions[i]);
        (i < 3 ? printLayout : exportLayout)->addWidget(chkPrint[i]);
    }
    cmdPrint = makeButton(fraPrint, "cmdPrint", QStringLiteral("&Print"));
    cmdExport = makeButton(fraExport, "cmdExport", QStringLiteral("E&xport"));
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
    return commands;
}

// The agent editor, which takes the place of the month's commands while it is open.
void frmMain::buildEditFrame() {
    fraEditAgent = makeFrame(this, "fraEditAgent", QStringLiteral("Add an agent"));
    labFirstName = makeLabel(fraEditAgent, "labFirstName", QStringLiteral("First name:"));
    txtFirstName = makeTextBox(fraEditAgent, "txtFirstName", QStringLiteral("First name"));
    labLastName = makeLabel(fraEditAgent, "labLastName", QStringLiteral("Last name:"));
    txtLastName = makeTextBox(fraEditAgent, "txtLastName", QStringLiteral("Last name"));
    labEmail = makeLabel(fraEditAgent, "labEmail", QStringLiteral("E-mail address (optional):"));
    txtEmail = makeTextBox(fraEditAgent, "txtEmail", QStringLiteral("E-mail address"));
    cmdResolveName = makeButton(fraEditAgent, "cmdResolveName", QStringLiteral("..."));
    cmdResolveName->setAccessibleName(QStringLiteral("Look up the e-mail address"));
    cmdResolveName->setFixedWidth(
        cmdResolveName->fontMetrics().horizontalAdvance(QStringLiteral("....")) + 16);
    cmdOK = makeButton(fraEditAgent, "cmdOK", QStringLiteral("OK"));
    cmdCancel = makeButton(fraEditAgent, "cmdCancel", QStringLiteral("Cance&l"));
    labFirstName->setBuddy(txtFirstName);
    labLastName->setBuddy(txtLastName);
    labEmail->setBuddy(txtEmail);
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
}

void frmMain::buildMenus() {
    auto* bar = new QMenuBar(this);
    layout()->setMenuBar(bar);

    mnuFile = makeMenu(bar, "mnuFile", QStringLiteral("&File"));
    mnuFNew = makeItem(mnuFile, "mnuFNew", QStringLiteral("&New desko schedule"));
    mnuFOpen = makeItem(mnuFile, "mnuFOpen", QStringLiteral("&Open desko schedule..."));
    mnuFSaveAs = makeItem(mnuFile, "mnuFSaveAs", QStringLiteral("&Save desko schedule as..."));
    makeSeparator(mnuFile, "mnuSep0");
    mnuFPrint = makeSubmenu(mnuFile, "mnuFPrint", QStringLiteral("&Print desko schedule"));
    mnuFPCalendar = makeItem(mnuFPrint, "mnuFPCalendar", QStringLiteral("&Full calendar"));
    mnuFPGrid = makeItem(mnuFPrint, "mnuFPGrid", QStringLiteral("&Office grid"));
    mnuFPTearsheet = makeItem(mnuFPrint, "mnuFPTearsheet", QStringLiteral("&Tearsheet"));
    mnuFExport = makeSubmenu(mnuFile, "mnuFExport", QStringLiteral("E&xport desko schedule"));
    mnuFEEmail = makeItem(mnuFExport, "mnuFEEmail", QStringLiteral("E-&mail"));
    mnuFEOutlook = makeItem(mnuFExport, "mnuFEOutlook", QStringLiteral("&Outlook calendar"));
    mnuFECreator = makeItem(mnuFExport, "mnuFECreator", QStringLiteral("Calendar C&reator"));
    mnuFSaveIcs =
        makeItem(mnuFile, "mnuFSaveIcs", QStringLiteral("Save calendars as &iCalendar files..."));
    makeSeparator(mnuFile, "mnuSep1");
    mnuFExit = makeItem(mnuFile, "mnuFExit", QStringLiteral("E&xit"));

    mnuEdit = makeMenu(bar, "mnuEdit", QStringLiteral("&Edit"));
    mnuESchedule = makeItem(mnuEdit, "mnuESchedule", QStringLiteral("&Schedule"));
    mnuEShifts = makeItem(mnuEdit, "mnuEShifts", QStringLiteral("&Daily shifts && times"));
    mnuEConstraints = makeItem(mnuEdit, "mnuEConstraints", QStringLiteral("&All constraints"));
    mnuEFonts = makeItem(mnuEdit, "mnuEFonts", QStringLiteral("&Fonts && printer setup"));

    mnuGenerate = makeMenu(bar, "mnuGenerate", QStringLiteral("&Generate"));
    mnuGSmartRandom = makeItem(mnuGenerate, "mnuGSmartRandom", QStringLiteral("Smart&Random"));
    mnuGShuffled = makeItem(mnuGenerate, "mnuGShuffled", QStringLiteral("S&huffled"));
    mnuGMixed = makeItem(mnuGenerate, "mnuGMixed", QStringLiteral("Serial (&mixed)"));
    mnuGHorizontal =
        makeItem(mnuGenerate, "mnuGHorizontal", QStringLiteral("Serial (&horizontal)"));

    mnuHelp = makeMenu(bar, "mnuHelp", QStringLiteral("&Help"));
    mnuHHelp = makeItem(mnuHelp, "mnuHHelp", QStringLiteral("Desko for Windows &Help..."));
    mnuHDump =
        makeItem(mnuHelp, "mnuHDump", QStringLiteral("&Create a configuration dump file..."));
    mnuHOpenDump =
        makeItem(mnuHelp, "mnuHOpenDump", QStringLiteral("&Open a configuration dump file..."));
    // Offered only to those who know the key on the splash.
    mnuHOpenDump->setVisible(false);
    makeSeparator(mnuHelp, "mnuSep2");
    mnuHAbout = makeItem(mnuHelp, "mnuHAbout", QStringLiteral("&About Desko for Windows..."));
}
