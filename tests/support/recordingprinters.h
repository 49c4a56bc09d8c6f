#pragma once

#include "core/services/printers.h"
#include "printing/pagesurface.h"
#include "printing/tracingsurface.h"

#include <QPointF>
#include <QRegularExpression>

// A printer whose fonts measure by rule: a character is half an em wide, a bold one 0.55,
// and a line 1.15 em high. It counts the documents that had something on them.
class RuledSurface final : public PageSurface {
public:
    explicit RuledSurface(QStringList fonts = {QStringLiteral("Arial"),
                                               QStringLiteral("Times New Roman")})
        : PageSurface(QStringLiteral("Test printer"), std::move(fonts)) {}
    int documents = 0;

protected:
    double lineWidth(const QString& line) override {
        return static_cast<double>(line.size()) * font().size * (font().bold ? 0.55 : 0.5) / 72;
    }
    double lineHeight() override { return font().size * 1.15 / 72; }
    void drawText(double, double, const QString&, bool) override { drawn_ = true; }
    void drawLine(double, double, double, double) override { drawn_ = true; }
    void drawBox(double, double, double, double, std::optional<int>) override { drawn_ = true; }
    void endDocument() override {
        documents += drawn_ ? 1 : 0;
        drawn_ = false;
    }

private:
    bool drawn_ = false;
};

// The printers of a test: the ruled printer, whose every call is kept as the trace writes it,
// and a second one by name only.
class RecordingPrinters final : public Printers {
public:
    RecordingPrinters() = default;
    explicit RecordingPrinters(QStringList fonts) : device(std::move(fonts)) {}

    RuledSurface device;
    QStringList calls;
    QStringList titles;
    TracingSurface traced{device, [this](const QString& line) { calls.append(line); }};

    QStringList deviceNames() const override {
        return {QStringLiteral("Test printer"), QStringLiteral("Other printer")};
    }
    Surface& printer() override { return traced; }
    void setPrinter(int index) override {
        calls.append(QStringLiteral("setPrinter ") + QString::number(index));
    }
    void setDocumentTitle(const QString& title) override { titles.append(title); }

    // The calls that begin so.
    QStringList starting(const QString& start) const {
        QStringList found;
        for (const QString& call : calls) {
            if (call.startsWith(start)) {
                found.append(call);
            }
        }
        return found;
    }
    // Where the first print of the text stood; (-1, -1) when it was not printed.
    QPointF printedAt(const QString& text) const {
        static const QRegularExpression at(QStringLiteral("' at \\((.*), (.*)\\)$"));
        const QStringList found = starting(QStringLiteral("Print \"") + text + QLatin1Char('"'));
        const QRegularExpressionMatch match = at.match(found.value(0));
        return match.hasMatch()
                   ? QPointF(match.captured(1).toDouble(), match.captured(2).toDouble())
                   : QPointF(-1, -1);
    }
};
