#include "environment/forms/frmCredit.h"

#include <QLabel>
#include <QVBoxLayout>

frmCredit::frmCredit(int lengthMs, QWidget* parent)
    : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint) {
    setObjectName(QStringLiteral("frmCredit"));
    auto* title = new QLabel(QStringLiteral("Desko for Windows rev 4.0"), this);
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 2);
    font.setBold(true);
    title->setFont(font);
    auto* subtitle = new QLabel(QStringLiteral("Duty schedules for the small office"), this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(48, 40, 48, 40);
    layout->addWidget(title, 0, Qt::AlignCenter);
    layout->addWidget(subtitle, 0, Qt::AlignCenter);

    timSplash.setSingleShot(true);
    timSplash.setInterval(lengthMs);
    connect(&timSplash, &QTimer::timeout, this, &QWidget::hide);
    timSplash.start();
}
