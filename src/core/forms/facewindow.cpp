#include "core/forms/facewindow.h"

#include "core/forms/form.h"
#include "core/forms/formkit.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QScreen>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

// Room for the window's frame and title bar when its size is bounded by the screen; the
// window system tells the real frame only once the window is on the screen.
constexpr QSize kFrameAllowance(16, 48);

}  // namespace

FaceWindow::FaceWindow() : QWidget(nullptr, Qt::Window) {
    setObjectName(QStringLiteral("FaceWindow"));
    stage_ = new QWidget;
    faces_ = new QGridLayout(stage_);
    faces_->setContentsMargins(0, 0, 0, 0);
    scroll_ = new QScrollArea(this);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setWidgetResizable(true);
    scroll_->setWidget(stage_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(scroll_);
}

void FaceWindow::addFace(Form* face) {
    // Every face, shown or not, counts for the size the window needs.
    retainSizeWhenHidden(face);
    face->hide();
    faces_->addWidget(face, 0, 0);
    face->installEventFilter(this);
    connect(face, &QWidget::windowTitleChanged, this, [this] { showTopCaption(); });
}

void FaceWindow::fitFaces() {
    QSize wanted = stage_->sizeHint().expandedTo(stage_->minimumSizeHint());
    if (const QScreen* display = screen()) {
        const QSize frame = isVisible() ? frameGeometry().size() - size() : kFrameAllowance;
        wanted = wanted.boundedTo(display->availableGeometry().size() - frame);
    }
    setFixedSize(wanted);
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

bool FaceWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show) {
        static_cast<QWidget*>(watched)->raise();
        showTopCaption();
    } else if (event->type() == QEvent::Hide) {
        showTopCaption();
    }
    return QWidget::eventFilter(watched, event);
}

void FaceWindow::showTopCaption() {
    if (const Form* face = topFace()) {
        setWindowTitle(face->windowTitle());
    }
}
