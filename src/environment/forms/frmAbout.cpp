#include "environment/forms/frmAbout.h"

#include "core/forms/formkit.h"
#include "core/model/workspace.h"
#include "core/services/context.h"
#include "environment/logo.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace {

constexpr int kIconSide = 64;
// The credits come in at the window's lower edge and leave at its upper edge; the window is
// as high as the credits, so they pass it whole.
constexpr int kRollFrom = 150;
constexpr int kRollTo = -150;
constexpr QSize kCreditsWindow(380, 150);

const QString kCredits = QStringLiteral(
    "Desko for Windows rev 4.0\n"
    "\n"
    "Written by the Desko developers for every office\n"
    "that ever drew up its duty roster by hand.\n"
    "Thanks to the agents who tried it first,\n"
    "to the people behind Qt, CMake and GoogleTest,\n"
    "and to you, for looking this far.");

// Where the credits will roll: an arrow and the way back.
class ArrowPicture final : public QWidget {
public:
    explicit ArrowPicture(QWidget* parent) : QWidget(parent) { setMinimumSize(kCreditsWindow); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // A hint, in the window's text colour half let through, so that it stands apart
        // from the text above it on a light window and a dark one alike. The palette's own
        // colour for hints is no help here: a dark desktop theme may leave it dark.
        QColor ink = palette().color(QPalette::WindowText);
        ink.setAlphaF(0.55F);
        const QPointF centre(width() / 2.0, height() / 2.0 - 12);
        QPainterPath arrow;
        arrow.moveTo(centre + QPointF(-36, 0));
        arrow.lineTo(centre + QPointF(-12, -20));
        arrow.lineTo(centre + QPointF(-12, -8));
        arrow.lineTo(centre + QPointF(36, -8));
        arrow.lineTo(centre + QPointF(36, 8));
        arrow.lineTo(centre + QPointF(-12, 8));
        arrow.lineTo(centre + QPointF(-12, 20));
        arrow.closeSubpath();
        painter.fillPath(arrow, ink);
        painter.setPen(ink);
        painter.drawText(QRectF(0, centre.y() + 28, width(), 24), Qt::AlignCenter,
                         QStringLiteral("Click or press a key to go back"));
    }
};

QLabel* aboutLine(QWidget* parent, const char* name, const QString& text, qreal scale = 1,
                  bool bold = false) {
    QLabel* label = makeLabel(parent, name, text);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

}  // namespace

frmAbout::frmAbout(Workspace& ws, Context& ctx, MainForm& main, FaceWindow& window)
    : Form(window), ws_(ws), ctx_(ctx), main_(main) {
    setObjectName(QStringLiteral("frmAbout"));
    setFocusPolicy(Qt::StrongFocus);
    fraMain = new QFrame(this);
    fraMain->setObjectName(QStringLiteral("fraMain"));
    fraMain->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);

    imgIcon = new QLabel(fraMain);
    imgIcon->setObjectName(QStringLiteral("imgIcon"));
    const qreal scale = devicePixelRatioF();
    QPixmap icon = QPixmap::fromImage(drawLogo(qRound(kIconSide * scale)));
    icon.setDevicePixelRatio(scale);
    imgIcon->setPixmap(icon);
    imgIcon->setAccessibleName(QStringLiteral("Desko"));
    labTitle = aboutLine(fraMain, "labTitle", QStringLiteral("Desko for Windows"), 1.8, true);
    labCompany = aboutLine(fraMain, "labCompany", QStringLiteral("Built by the Desko developers"));
    labVersion = aboutLine(fraMain, "labVersion", QString());
    labCopyright = aboutLine(fraMain, "labCopyright",
                             QStringLiteral("Copyright \u00a9 2026 the Desko developers"), 0.9);

    picArrow = new ArrowPicture(fraMain);
    picArrow->setObjectName(QStringLiteral("picArrow"));
    picCredits = new QFrame(fraMain);
    picCredits->setObjectName(QStringLiteral("picCredits"));
    picCredits->setFixedSize(kCreditsWindow);
    labCredits = makeLabel(picCredits, "labCredits", kCredits);
    labCredits->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    labCredits->setFixedSize(kCreditsWindow.width(), labCredits->sizeHint().height());

    auto* names = new QVBoxLayout;
    for (QLabel* label : {labTitle, labCompany, labVersion, labCopyright}) {
        names->addWidget(label);
    }
    auto* heading = new QHBoxLayout;
    heading->addStretch();
    heading->addWidget(imgIcon, 0, Qt::AlignTop);
    heading->addSpacing(16);
    heading->addLayout(names);
    heading->addStretch();
    auto* inside = new QVBoxLayout(fraMain);
    inside->addStretch();
    inside->addLayout(heading);
    inside->addSpacing(24);
    // The arrow and the credits take turns in one place.
    auto* place = new QGridLayout;
    place->addWidget(picArrow, 0, 0, Qt::AlignCenter);
    place->addWidget(picCredits, 0, 0, Qt::AlignCenter);
    inside->addLayout(place);
    inside->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(fraMain);

    const std::initializer_list<QWidget*> parts = {this,       fraMain,    imgIcon,      labTitle,
                                                   labCompany, labVersion, labCopyright, picArrow,
                                                   picCredits, labCredits};
    for (QWidget* part : parts) {
        part->installEventFilter(this);
    }
}

// Each opening starts with the arrow, as a box made anew would.
void frmAbout::Form_Load() {
    setWindowTitle(main_.windowTitle());
    labVersion->setText(QStringLiteral("rev ") + ws_.versionText());
    picCredits->hide();
    picArrow->show();
}

void frmAbout::Form_Activate() {
    main_.hide();
    setFocus();
}

// The main window comes back and, once on top, leaves its busy face.
bool frmAbout::Form_Unload() {
    main_.show();
    return true;
}

void frmAbout::Form_Click() {
    showNormalPointer();
    unload();
}

// A click is the left button's release over the box.
bool frmAbout::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (watched == this) {
            Form_Click();
        } else {
            unload();
        }
        return true;
    }
    return Form::eventFilter(watched, event);
}

// Only keys that type a character reach the box, as a key press does.
void frmAbout::keyPressEvent(QKeyEvent* event) {
    if (event->text().isEmpty()) {
        Form::keyPressEvent(event);
        return;
    }
    Form_KeyPress(event->text().at(0));
}

void frmAbout::Form_KeyPress(QChar key) {
    if (key.toUpper() == QLatin1Char('E')) {
        // Another "E" during the roll starts it over; the roll already under way goes on.
        if (rolling_) {
            labCredits->move(0, kRollFrom);
            return;
        }
        modEasterEgg();
    }
    if (isLoaded()) {
        unload();
    }
}

// The roll waits a tenth of a second a step and lets the events run meanwhile, so a click
// or a key can close the box; it ends when the box is closed.
void frmAbout::modEasterEgg() {
    picArrow->hide();
    picCredits->show();
    labCredits->setText(kCredits);
    rolling_ = true;
    while (isLoaded()) {
        labCredits->move(0, kRollFrom);
        labCredits->show();
        while (isLoaded() && labCredits->y() >= kRollTo) {
            modPause(ctx_.clock, 0.1);
            labCredits->move(0, labCredits->y() - 1);
        }
    }
    rolling_ = false;
}
