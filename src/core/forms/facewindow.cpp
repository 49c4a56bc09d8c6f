#include "core/forms/facewindow.h"

#include "core/forms/form.h"
#include "core/forms/formkit.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

// Room for the window's frame and title bar; the window system tells the real frame only
// once the window is on the screen.
constexpr QMargins kFrameAllowance(8, 40, 8, 8);

}  // namespace

FaceWindow::FaceWindow() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("FaceWindow"));
    stage_ = new QWidget;
    faces_ = new QGridLayout(stage_);
    faces_->setContentsMargins(0, 0, 0, 0);
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    // A click on a face where no control takes the focus leaves the focus where it was; the
    // scrolling follows the focus among the face's controls.
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->setWidgetResizable(true);
    scroll_->setWidget(stage_);
    stage_->installEventFilter(this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_);
}

FaceWindow::~FaceWindow() {
    // A face that goes tells the window; no face is activated any more, and none of them
    // outlives the window it would tell.
    closing_ = true;
    active_ = nullptr;
    delete scroll_;
}

void FaceWindow::addFace(Form* face) {
    // Every face, shown or not, counts for the size the window needs.
    retainSizeWhenHidden(face);
    // A face covers the faces under it, also those that stay shown beneath it.
    face->setAutoFillBackground(true);
    face->hide();
    faces_->addWidget(face, 0, 0);
    connect(face, &QWidget::windowTitleChanged, this, [this] { showTopCaption(); });
}

void FaceWindow::fitFaces() {
    // A face's state that needs less room, a month of five weeks, leaves the least size as
    // it was, so that the window can never be made too small for a state yet to come.
    needed_ = needed_.expandedTo(stage_->minimumSizeHint());
    QSize least = needed_;
    QSize wanted = stage_->sizeHint().expandedTo(least);
    if (const QScreen* display = screen()) {
        const QSize room = (display->availableGeometry() - frameMargins()).size();
        least = least.boundedTo(room);
        wanted = wanted.boundedTo(room);
    }
    if (isVisible()) {
        growTo(least);
    }
    setMinimumSize(least);
    if (!isVisible() && !sized_) {
        resize(wanted);
        sized_ = true;
    }
}

void FaceWindow::growTo(const QSize& size) {
    const QScreen* display = screen();
    if (isMaximized() || isFullScreen() || display == nullptr) {
        return;
    }
    const QRect room = display->availableGeometry() - frameMargins();
    const QSize grown = this->size().expandedTo(size.boundedTo(room.size()));
    if (grown == this->size()) {
        return;
    }
    QRect place(geometry().topLeft(), grown);
    place.translate(std::min(0, room.right() - place.right()),
                    std::min(0, room.bottom() - place.bottom()));
    setGeometry(place);
}

QMargins FaceWindow::frameMargins() const {
    if (!isVisible()) {
        return kFrameAllowance;
    }
    const QRect frame = frameGeometry();
    const QRect inside = geometry();
    return {inside.left() - frame.left(), inside.top() - frame.top(),
            frame.right() - inside.right(), frame.bottom() - inside.bottom()};
}

// A face's controls changed the room they need: the window follows once the change is laid
// out.
bool FaceWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == stage_ && event->type() == QEvent::LayoutRequest) {
        fitFaces();
    }
    return QWidget::eventFilter(watched, event);
}

Form* FaceWindow::topFace() const {
    const QObjectList& children = stage_->children();
    for (auto it = children.crbegin(); it != children.crend(); ++it) {
        auto* face = qobject_cast<Form*>(*it);
        if (face != nullptr && !face->isHidden()) {
            return face;
        }
    }
    return nullptr;
}

void FaceWindow::closeEvent(QCloseEvent* event) {
    // The window itself never closes: a face decides, and the program ends by its own roads.
    event->ignore();
    if (Form* face = topFace()) {
        face->close();
    }
}

void FaceWindow::faceShown(Form* face) {
    face->raise();
    activateTopFace();
}

void FaceWindow::faceHidden() {
    activateTopFace();
}

// A form that is deactivated or activated may show or hide forms itself; each of those
// changes activates anew, so a face is activated only while it is still the one on top.
void FaceWindow::activateTopFace() {
    if (closing_) {
        return;
    }
    showTopCaption();
    Form* top = topFace();
    if (top == active_) {
        return;
    }
    Form* left = std::exchange(active_, top);
    if (left != nullptr) {
        left->Form_Deactivate();
    }
    if (top != nullptr && active_ == top) {
        top->Form_Activate();
    }
    if (top != nullptr && active_ == top) {
        top->takeFocus();
    }
}

void FaceWindow::showTopCaption() {
    if (const Form* face = topFace()) {
        setWindowTitle(face->windowTitle());
    }
}
