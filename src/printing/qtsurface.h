#pragma once

#include "printing/pagesurface.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>

#include <optional>

class QPagedPaintDevice;

// Where the documents of a printer go: the jobs of one of the machine's printers, or PDF
// files.
class PageTarget {
public:
    virtual ~PageTarget() = default;
    virtual QString deviceName() const = 0;
    // The paint device of a new document in that orientation, named after the title; null
    // when the device cannot begin one.
    virtual QPagedPaintDevice* startDocument(const QString& title,
                                             QPageLayout::Orientation orientation) = 0;
    // The document's painter has ended: the job goes to the printer, the file is complete.
    virtual void finishDocument() = 0;
};

// The printer drawn with QPainter. A document begins with the first thing drawn on it and
// ends with EndDoc. The user scale is laid on the page at one inch a unit, in the middle of
// the paper, or smaller where the device's printable area is smaller. A device that cannot
// begin a document passes over everything drawn until its end.
class QtSurface final : public PageSurface {
public:
    QtSurface(PageTarget& target, QStringList fonts);
    ~QtSurface() override;
    QtSurface(const QtSurface&) = delete;
    QtSurface& operator=(const QtSurface&) = delete;

    // The name of the documents that follow.
    void setDocumentTitle(const QString& title) { title_ = title; }

protected:
    void fontChanged() override;
    double lineWidth(const QString& line) override;
    double lineHeight() override;
    void drawText(double x, double y, const QString& line, bool onWhite) override;
    void drawLine(double x1, double y1, double x2, double y2) override;
    void drawBox(double x1, double y1, double x2, double y2, std::optional<int> fill) override;
    void endDocument() override;

private:
    const QFontMetricsF& metrics();
    // Begins the document if none is open; false when the device refused it.
    bool drawing();
    void layOutScale(const QPagedPaintDevice& device);

    PageTarget& target_;
    QString title_;
    QPainter painter_;
    bool open_ = false;
    bool refused_ = false;
    QFont qfont_;
    std::optional<QFontMetricsF> metrics_;
    bool painterFontStale_ = true;
};
