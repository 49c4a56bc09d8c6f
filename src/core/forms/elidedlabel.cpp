#include "core/forms/elidedlabel.h"

#include <QPainter>
#include <QResizeEvent>

#include <algorithm>

namespace {

const QChar kEllipsis(0x2026);

// The text as it fits the width: whole where its advance does, else cut with an ellipsis.
QString fitted(const QFontMetrics& metrics, const QString& text, int width) {
    return metrics.horizontalAdvance(text) <= width
               ? text
               : metrics.elidedText(text, Qt::ElideRight, width);
}

// The longest head of the line that fits the width when the line is broken at one of the
// marks, and where the rest begins: a slash stays with the head, a blank goes. The rest
// begins at -1 when no such head fits.
qsizetype breakAt(const QFontMetrics& metrics, const QString& line, QChar mark, int width,
                  QString* head) {
    for (qsizetype at = line.size() - 1; at > 0; --at) {
        if (line[at] != mark) {
            continue;
        }
        const bool kept = mark == QLatin1Char('/');
        *head = line.left(kept ? at + 1 : at);
        if (metrics.horizontalAdvance(*head) <= width) {
            return at + 1;
        }
    }
    return -1;
}

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

std::vector<ElidedLabel::ShownLine> ElidedLabel::wrapped(const QString& line, int firstWidth,
                                                         int width, bool* cut) const {
    const QFontMetrics metrics = fontMetrics();
    const int indent = 2 * metrics.horizontalAdvance(QLatin1Char(' '));
    std::vector<ShownLine> pieces;
    QString rest = line;
    int room = firstWidth;
    while (metrics.horizontalAdvance(rest) > room) {
        // Names keep together where they can: a break after a slash comes before one at a
        // blank.
        QString head;
        qsizetype next = breakAt(metrics, rest, QLatin1Char('/'), room, &head);
        if (next == -1) {
            next = breakAt(metrics, rest, QLatin1Char(' '), room, &head);
        }
        if (next == -1) {
            break;
        }
        pieces.push_back({head, pieces.empty() ? 0 : indent});
        rest = rest.mid(next);
        room = width - indent;
    }
    const QString shown = fitted(metrics, rest, room);
    *cut = shown != rest;
    pieces.push_back({shown, pieces.empty() ? 0 : indent});
    return pieces;
}

std::vector<ElidedLabel::ShownLine> ElidedLabel::fittedLines(bool* cut) const {
    const QFontMetrics metrics = fontMetrics();
    const QRect area = contentsRect();
    const auto room = std::max<qsizetype>(1, area.height() / std::max(1, metrics.lineSpacing()));
    const int firstWidth = area.width() - firstLineRoom_;
    QStringList lines = text().split(QLatin1Char('\n'));
    // Empty lines at the end are no loss.
    while (!lines.isEmpty() && lines.back().isEmpty()) {
        lines.removeLast();
    }
    // A line may take more room below it as far as the room left, with the empty lines
    // given up, allows.
    const auto blanks = lines.count(QString());
    qsizetype spare = room - lines.size() + blanks;
    *cut = false;
    std::vector<ShownLine> shown;
    for (const QString& line : lines) {
        if (line.isEmpty()) {
            shown.push_back({});
            continue;
        }
        const int first = shown.empty() ? firstWidth : area.width();
        bool shortened = false;
        std::vector<ShownLine> pieces = wrapped(line, first, area.width(), &shortened);
        const auto more = static_cast<qsizetype>(pieces.size()) - 1;
        if (more > 0 && more <= spare) {
            spare -= more;
        } else {
            const QString elided = fitted(metrics, line, first);
            shortened = elided != line;
            pieces = {{elided, 0}};
        }
        *cut = *cut || shortened;
        shown.insert(shown.end(), pieces.begin(), pieces.end());
    }
    // Empty lines give their room up, the last first, as long as lines do not fit.
    for (auto it = shown.end(); std::ssize(shown) > room && it != shown.begin();) {
        --it;
        if (it->text.isEmpty()) {
            it = shown.erase(it);
        }
    }
    if (std::ssize(shown) > room) {
        shown.resize(static_cast<std::size_t>(room));
        ShownLine& last = shown.back();
        const int width = (room == 1 ? firstWidth : area.width()) - last.indent;
        last.text = fitted(metrics, last.text + kEllipsis, width);
        *cut = true;
    }
    // A line that moved up to the first line stops short of the mark there.
    if (!shown.empty() && metrics.horizontalAdvance(shown.front().text) > firstWidth) {
        shown.front().text = fitted(metrics, shown.front().text, firstWidth);
        *cut = true;
    }
    return shown;
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
    const std::vector<ShownLine> lines = fittedLines(&cut);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        painter.drawText(
            area.left() + lines[i].indent,
            area.top() + static_cast<int>(i) * metrics.lineSpacing() + metrics.ascent(),
            lines[i].text);
    }
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    updateToolTip();
}
