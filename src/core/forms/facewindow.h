#pragma once

#include <QMargins>
#include <QWidget>

#include <vector>

class Form;
class QGridLayout;
class QScrollArea;

// The program's one top-level window; every form is a face of it. The faces lie on top of
// each other, the one shown last on top, so that a form that is shown takes the place, the
// size and the screen of the form before it, and the window carries the caption of the face
// on top. The user sizes the window, maximises it and moves it; its least size is the room
// its largest face needs, whatever that face shows, but never more than the screen's
// available area: on a smaller screen the faces scroll, so that every control can be reached.
class FaceWindow : public QWidget {
    Q_OBJECT

public:
    FaceWindow();
    // The faces go first, while they can still reach this window.
    ~FaceWindow() override;

    // Makes the form a face of this window, hidden until it is shown.
    void addFace(Form* face);
    // Makes the room every face needs, the most it has needed in any state so far, the
    // window's least size, within the available area of its screen, and grows the window to
    // it where it is smaller. A window not yet shown
    // takes the size its faces ask for. A face that comes to need more room later, by a longer
    // caption, fits the window to itself again.
    void fitFaces();
    // Grows the window, unless it is maximised, toward the size for its faces, as far as the
    // available area of its screen allows; it moves back as far as it grew over the area's
    // edge. It never shrinks the window.
    void growTo(const QSize& size);
    // What the desktop's frame adds around the window: as it stands once the window is on
    // the screen, else room for a common frame and title bar.
    QMargins frameMargins() const;
    // A face came on the screen: it goes on top and becomes the active one.
    void faceShown(Form* face);
    // A face left the screen: the one under it, if any, becomes the active one.
    void faceHidden();

protected:
    // The window's close box closes the face on top.
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The visible face on top, or null.
    Form* topFace() const;
    // Deactivates the face that was on top and activates the one that is.
    void activateTopFace();
    void showTopCaption();

    QScrollArea* scroll_;
    QWidget* stage_;
    QGridLayout* faces_;
    Form* active_ = nullptr;
    bool closing_ = false;
    bool sized_ = false;
    // The most room the faces have needed together.
    QSize needed_{0, 0};
};
