#include "core/forms/daycell.h"

#include "core/forms/elidedlabel.h"

#include <QLabel>

namespace {

constexpr QMargins kPadding(4, 2, 4, 2);

}  // namespace

DayCell::DayCell(const QString& widthSample, const QString& leastSample, int lines, QWidget* parent)
    : QFrame(parent) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    // A sheet of the calendar, in the palette's colours of text on its base.
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setAutoFillBackground(true);
    text = new ElidedLabel(this);
    number = new QLabel(this);
    for (QLabel* label : {static_cast<QLabel*>(text), number}) {
        label->setForegroundRole(QPalette::Text);
    }
    QFont bold = font();
    bold.setBold(true);
    number->setFont(bold);
    number->setAlignment(Qt::AlignRight | Qt::AlignTop);
    const QFontMetrics metrics = fontMetrics();
    const QSize edges(kPadding.left() + kPadding.right() + 2 * frameWidth(),
                      kPadding.top() + kPadding.bottom() + 2 * frameWidth());
    size_ = QSize(metrics.horizontalAdvance(widthSample), lines * metrics.lineSpacing()) + edges;
    least_ = QSize(metrics.horizontalAdvance(leastSample), size_.height() - edges.height()) + edges;
}

QSize DayCell::sizeHint() const {
    return size_;
}

QSize DayCell::minimumSizeHint() const {
    return least_;
}

void DayCell::setMarked(bool marked) {
    setBackgroundRole(marked ? QPalette::Highlight : QPalette::Base);
    for (QWidget* part : {static_cast<QWidget*>(this), static_cast<QWidget*>(text),
                          static_cast<QWidget*>(number)}) {
        part->setForegroundRole(marked ? QPalette::HighlightedText : QPalette::Text);
    }
}

void DayCell::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    const QRect inside = contentsRect() - kPadding;
    text->setGeometry(inside);
    const int numberWidth = number->fontMetrics().horizontalAdvance(QStringLiteral("00"));
    number->setGeometry(inside.right() - numberWidth + 1, inside.top(), numberWidth,
                        number->fontMetrics().height());
}
