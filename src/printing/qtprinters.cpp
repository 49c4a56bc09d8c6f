#include "printing/qtprinters.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <algorithm>

QtPrinters::QtPrinters(std::vector<std::unique_ptr<PageTarget>> targets, int current,
                       QStringList fonts)
    : targets_(std::move(targets)), fonts_(std::move(fonts)) {
    surface_ = std::make_unique<QtSurface>(*targets_.at(static_cast<std::size_t>(current)), fonts_);
}

QtPrinters::~QtPrinters() = default;

QStringList QtPrinters::deviceNames() const {
    QStringList names;
    for (const auto& target : targets_) {
        names.append(target->deviceName());
    }
    return names;
}

void QtPrinters::setPrinter(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= targets_.size()) {
        return;
    }
    surface_.reset();
    surface_ = std::make_unique<QtSurface>(*targets_[static_cast<std::size_t>(index)], fonts_);
    surface_->setDocumentTitle(title_);
}

void QtPrinters::setDocumentTitle(const QString& title) {
    title_ = title;
    surface_->setDocumentTitle(title);
}

QStringList printerFonts() {
    QStringList fonts = QFontDatabase::families();
    // The families that measure as the fonts of office documents do.
    const QStringList sameMeasures = {QStringLiteral("Liberation Serif"),
                                      QStringLiteral("Liberation Sans"),
                                      QStringLiteral("Liberation Mono"),
                                      QStringLiteral("Tinos"),
                                      QStringLiteral("Arimo"),
                                      QStringLiteral("Cousine")};
    for (const QString& name : {QStringLiteral("Times New Roman"), QStringLiteral("Arial"),
                                QStringLiteral("Courier New")}) {
        if (!fonts.contains(name, Qt::CaseInsensitive) &&
            sameMeasures.contains(QFontInfo(QFont(name)).family(), Qt::CaseInsensitive)) {
            fonts.append(name);
        }
    }
    std::sort(fonts.begin(), fonts.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    return fonts;
}
