#include "environment/forms/frmCredit.h"

#include "environment/logo.h"
#include "environment/splash.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>
#include <QScreen>

namespace {

// The splash is a fixed picture, laid out in pixels.
constexpr QSize kSize(480, 300);
constexpr QRect kPlate(24, 24, 432, 184);
constexpr int kLogoSide = 128;
constexpr int kLogoLeft = (kSize.width() - kLogoSide) / 2;
constexpr int kLogoTop = 41;
// The embossed logo comes a little low and rises into the place of the logo in colour.
constexpr int kEmbossedFirstTop = 61;

const QColor kPlateColour(0xec, 0xe7, 0xdc);
const QColor kBackdropTop(0x1f, 0x4e, 0x5a);
const QColor kBackdropBottom(0x12, 0x30, 0x39);

// The plate the logo stands on.
class Plate final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(kPlateColour.darker(115), 1));
        painter.setBrush(kPlateColour);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 14, 14);
    }
};

QLabel* logoPicture(QWidget* parent, const char* name, const QImage& image, qreal scale) {
    auto* picture = new QLabel(parent);
    picture->setObjectName(QString::fromLatin1(name));
    QPixmap pixmap = QPixmap::fromImage(image);
    pixmap.setDevicePixelRatio(scale);
    picture->setPixmap(pixmap);
    picture->resize(kLogoSide, kLogoSide);
    return picture;
}

QLabel* line(QWidget* parent, const QString& text, qreal pointScale, bool bold, int top,
             const QColor& colour) {
    auto* label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * pointScale);
    font.setBold(bold);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, colour);
    label->setPalette(palette);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label->setGeometry(0, top, kSize.width(), label->sizeHint().height());
    return label;
}

// The keys held once this key is down, as the key's own press counts it: a modifier key
// counts itself, whichever way the window system reported the state around its press.
Qt::KeyboardModifiers heldWith(const QKeyEvent& event) {
    Qt::KeyboardModifiers held = event.modifiers();
    switch (event.key()) {
        case Qt::Key_Shift:
            held |= Qt::ShiftModifier;
            break;
        case Qt::Key_Control:
            held |= Qt::ControlModifier;
            break;
        case Qt::Key_Alt:
            held |= Qt::AltModifier;
            break;
        case Qt::Key_Meta:
            held |= Qt::MetaModifier;
            break;
        default:
            break;
    }
    return held & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

}  // namespace

frmCredit::frmCredit(int lengthMs, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmCredit"));
    setFixedSize(kSize);
    setFocusPolicy(Qt::StrongFocus);

    picBlank = new Plate(this);
    picBlank->setObjectName(QStringLiteral("picBlank"));
    picBlank->setGeometry(kPlate);
    const qreal scale = devicePixelRatioF();
    const int side = qRound(kLogoSide * scale);
    picLogoNormal = logoPicture(this, "picLogoNormal", drawLogo(side), scale);
    picLogoNormal->move(kLogoLeft, kLogoTop);
    picLogoEmbossed =
        logoPicture(this, "picLogoEmbossed", drawEmbossedLogo(side, kPlateColour), scale);
    picLogoEmbossed->move(kLogoLeft, kEmbossedFirstTop);

    line(this, QStringLiteral("Desko for Windows rev 4.0"), 1.6, true, 222, Qt::white);
    line(this, QStringLiteral("Duty schedules for the small office"), 1.0, false, 254,
         kPlateColour);
    line(this, QStringLiteral("\u00a9 2026 the Desko developers"), 0.85, false, 274,
         kPlateColour.darker(130));
    showScene();

    if (const QScreen* display = QGuiApplication::primaryScreen()) {
        move(display->availableGeometry().center() - rect().center());
    }
    timSplash.setInterval(splashTickInterval(lengthMs));
    connect(&timSplash, &QTimer::timeout, this, &frmCredit::timSplash_Timer);
    timSplash.start();
}

void frmCredit::timSplash_Timer() {
    ++ticks_;
    showScene();
}

void frmCredit::showScene() {
    const SplashScene scene = splashSceneAt(ticks_);
    if (scene.over) {
        timSplash.stop();
        hide();
        return;
    }
    picBlank->setVisible(scene.plate);
    picLogoNormal->setVisible(scene.normalLogo);
    picLogoEmbossed->move(kLogoLeft, scene.embossedRisen ? kLogoTop : kEmbossedFirstTop);
    picLogoEmbossed->setVisible(scene.embossedLogo);
    update();
}

void frmCredit::keyPressEvent(QKeyEvent* event) {
    if (heldWith(*event) != Qt::ShiftModifier) {
        return;
    }
    openDumpOffered_ = true;
    ticks_ = kSplashTicks;
    showScene();
}

// The splash takes the keyboard, so that its key reaches it.
void frmCredit::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    activateWindow();
    setFocus();
}

void frmCredit::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QLinearGradient backdrop(0, 0, 0, height());
    backdrop.setColorAt(0, kBackdropTop);
    backdrop.setColorAt(1, kBackdropBottom);
    painter.fillRect(rect(), backdrop);
    painter.setPen(kBackdropTop.lighter(150));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
