#include "core/forms/elidedlabel.h"

#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace {

const QChar kEllipsis(0x2026);

}  // namespace

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

void ElidedLabel::setLines(const QString& text) {
    setText(text);
    updateToolTip();
}

void ElidedLabel::setFirstLineRoom(int pixels) {
    firstLineRoom_ = pixels;
    updateToolTip();
}

bool ElidedLabel::isCut() const {
    bool cut = false;
    fittedLines(&cut);
    return cut;
}

QStringList ElidedLabel::fittedLines(bool* cut) const {
    const QFontMetrics metrics = fontMetrics();
    const QRect area = contentsRect();
    const QStringList lines = text().split(QLatin1Char('\n'));
    const auto room = std::max<qsizetype>(1, area.height() / std::max(1, metrics.lineSpacing()));
    // Empty lines at the end are no loss when they do not fit.
    qsizetype used = lines.size();
    while (used > room && lines[used - 1].isEmpty()) {
        --used;
    }
    const bool linesLeftOut = used > room;
    used = std::min(used, room);
    QStringList fitted;
    *cut = linesLeftOut;
    for (qsizetype i = 0; i < used; ++i) {
        QString line = lines[i];
        if (linesLeftOut && i == used - 1) {
            line += kEllipsis;
        }
        const int width = area.width() - (i == 0 ? firstLineRoom_ : 0);
        const QString shown = metrics.elidedText(line, Qt::ElideRight, width);
        *cut = *cut || shown != lines[i];
        fitted.append(shown);
    }
    return fitted;
}

void ElidedLabel::updateToolTip() {
    setToolTip(isCut() ? text() : QString());
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
    const QFontMetrics metrics = fontMetrics();
    const QRect area = contentsRect();
    bool cut = false;
    const QStringList lines = fittedLines(&cut);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        painter.drawText(
            area.left(),
            area.top() + static_cast<int>(i) * metrics.lineSpacing() + metrics.ascent(), lines[i]);
    }
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    updateToolTip();
}
