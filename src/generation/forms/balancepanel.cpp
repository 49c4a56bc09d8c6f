#include "generation/forms/balancepanel.h"

#include "core/model/workspace.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The columns of the table are the balance's own but its last: the load stands as a sign
// before the agent's key.
constexpr int kAgentColumn = 0;
constexpr int kHoursColumn = 2;
constexpr int kLoadColumn = 8;
constexpr int kKeyFigureColumns = 3;
constexpr int kSortRole = Qt::UserRole + 1;
constexpr int kAgentRole = Qt::UserRole + 2;

const QString kOver = QStringLiteral("\u25B2 ");
const QString kUnder = QStringLiteral("\u25BC ");
const QString kAgentSample = QStringLiteral("Nakamura");

const char* const kColumnTips[] = {
    "The agent's key, with \u25B2 for more than one shift over the mean and \u25BC for "
    "more than one under it",
    "Shifts in the month",
    "Hours of the shifts whose time can be read",
    "Shifts on Saturdays and Sundays",
    "Shifts on noted days",
    "The longest run of days worked one after another",
    "Days with two shifts or more",
    "Days worked right after a day worked",
};

// "1 shift", "3 shifts".
QString counted(int number, const QString& noun) {
    return QString::number(number) + QLatin1Char(' ') + noun +
           (number == 1 ? QString() : QStringLiteral("s"));
}

QColor blend(const QColor& base, const QColor& tint, double share) {
    return QColor::fromRgbF(static_cast<float>(base.redF() * (1 - share) + tint.redF() * share),
                            static_cast<float>(base.greenF() * (1 - share) + tint.greenF() * share),
                            static_cast<float>(base.blueF() * (1 - share) + tint.blueF() * share));
}

// The spread and the mean under the table.
QString spreadText(const MonthBalance& balance) {
    const std::vector<QStringList> summary = balanceSummary(balance);
    return QStringLiteral("Spread: %1 shifts, %2 hours\nMean: %3 shifts, %4 hours")
        .arg(summary[0][1], summary[0][2], summary[1][1], summary[1][2]);
}

// What the marks mean, and what the table leaves out.
QString notesText(const MonthBalance& balance) {
    QStringList notes = {
        QStringLiteral("%1over, %2under: more than one shift from the mean").arg(kOver, kUnder)};
    if (balance.openPositions > 0) {
        notes.append(QStringLiteral("Open positions: %1").arg(balance.openPositions));
    }
    if (!balance.others.empty()) {
        QStringList names;
        for (const auto& [text, positions] : balance.others) {
            names.append(text);
        }
        notes.append(QStringLiteral("Held by no agent: %1 (%2)")
                         .arg(balanceSummary(balance)[3][1], names.join(QStringLiteral(", "))));
    }
    int untimed = 0;
    for (const AgentBalance& agent : balance.agents) {
        untimed += agent.untimed;
    }
    if (untimed > 0) {
        notes.append(QStringLiteral("Hours leave out ") +
                     counted(untimed, QStringLiteral("shift")) +
                     QStringLiteral(" whose time cannot be read"));
    }
    if (!balance.adjacentCounted) {
        notes.append(
            QStringLiteral("Adjacent days count only with twice the agents the busiest day needs"));
    }
    return notes.join(QLatin1Char('\n'));
}

}  // namespace

BalancePanel::BalancePanel(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("BalancePanel"));
    model_ = new QStandardItemModel(this);
    sorted_ = new QSortFilterProxyModel(this);
    sorted_->setSourceModel(model_);
    sorted_->setSortRole(kSortRole);

    tabBalance = new QTableView(this);
    tabBalance->setObjectName(QStringLiteral("tabBalance"));
    tabBalance->setAccessibleName(QStringLiteral("Balance of the month"));
    tabBalance->setModel(sorted_);
    tabBalance->setSortingEnabled(true);
    tabBalance->sortByColumn(kAgentColumn, Qt::AscendingOrder);
    tabBalance->setSelectionMode(QAbstractItemView::SingleSelection);
    tabBalance->setSelectionBehavior(QAbstractItemView::SelectRows);
    tabBalance->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabBalance->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    tabBalance->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    tabBalance->verticalHeader()->hide();
    tabBalance->setWordWrap(false);
    tabBalance->installEventFilter(this);
    tabBalance->viewport()->installEventFilter(this);

    labSpread = new QLabel(this);
    labSpread->setObjectName(QStringLiteral("labSpread"));
    labBalanceNotes = new QLabel(this);
    labBalanceNotes->setObjectName(QStringLiteral("labBalanceNotes"));
    labBalanceNotes->setWordWrap(true);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tabBalance, 1);
    layout->addWidget(labSpread);
    layout->addWidget(labBalanceNotes);

    connect(tabBalance->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { followSelection(); });

    const QStringList header = balanceHeader().mid(0, kLoadColumn);
    model_->setHorizontalHeaderLabels(header);
    for (int c = 0; c < header.size(); ++c) {
        model_->horizontalHeaderItem(c)->setToolTip(QString::fromUtf8(kColumnTips[c]));
    }
    fitColumns();
}

// The table needs no more room than its columns, and needs room at least for the agent, the
// shifts and the hours, the others scrolling. The agents' column is at least as wide as a
// common key with its sign, so that the panel knows its width before it shows a month.
void BalancePanel::fitColumns() {
    tabBalance->resizeColumnsToContents();
    tabBalance->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    const int agentWidth = fontMetrics().horizontalAdvance(kOver + kAgentSample) + 8;
    if (tabBalance->columnWidth(kAgentColumn) < agentWidth) {
        tabBalance->setColumnWidth(kAgentColumn, agentWidth);
    }
    const int edges =
        tabBalance->verticalScrollBar()->sizeHint().width() + 2 * tabBalance->frameWidth();
    int keyFigures = edges;
    for (int c = 0; c < kKeyFigureColumns; ++c) {
        keyFigures += tabBalance->columnWidth(c);
    }
    tabBalance->setMinimumWidth(keyFigures);
    wholeWidth_ = tabBalance->horizontalHeader()->length() + edges;
    setMaximumWidth(wholeWidth_);
    updateGeometry();
}

void BalancePanel::limitWidth(int width) {
    setMaximumWidth(std::max(minimumSizeHint().width(), std::min(width, wholeWidth_)));
}

QSize BalancePanel::sizeHint() const {
    return {minimumSizeHint().width(), QWidget::sizeHint().height()};
}

void BalancePanel::showBalance(const Workspace& ws) {
    ws_ = &ws;
    balance_ = monthBalance(ws);
    fill();
}

void BalancePanel::fill() {
    const int keep = chosen_;
    chosen_ = -1;  // the rows go and come back: no choice is given up meanwhile
    model_->setRowCount(0);
    const QPalette colours = palette();
    for (const AgentBalance& agent : balance_.agents) {
        const QStringList texts = balanceRow(*ws_, balance_, agent);
        const Load load = loadOf(balance_, agent);
        QList<QStandardItem*> row;
        for (int c = 0; c < kLoadColumn; ++c) {
            auto* item = new QStandardItem(texts[c]);
            bool number = false;
            const double value = texts[c].toDouble(&number);
            item->setData(c == kAgentColumn ? agent.agent : number ? value : -1.0, kSortRole);
            item->setData(agent.agent, kAgentRole);
            item->setTextAlignment(c == kAgentColumn ? Qt::AlignLeft | Qt::AlignVCenter
                                                     : Qt::AlignRight | Qt::AlignVCenter);
            if (load != Load::Even) {
                item->setBackground(load == Load::Over
                                        ? blend(colours.color(QPalette::Base),
                                                colours.color(QPalette::LinkVisited), 0.3)
                                        : blend(colours.color(QPalette::Base),
                                                colours.color(QPalette::Text), 0.12));
                QFont font = tabBalance->font();
                font.setBold(load == Load::Over);
                font.setItalic(load == Load::Under);
                item->setFont(font);
            }
            row.append(item);
        }
        row[kAgentColumn]->setText((load == Load::Over    ? kOver
                                    : load == Load::Under ? kUnder
                                                          : QString()) +
                                   texts[kAgentColumn]);
        row[kAgentColumn]->setToolTip(ws_->agentName(agent.agent).trimmed());
        row[kHoursColumn]->setToolTip(agent.untimed > 0
                                          ? counted(agent.untimed, QStringLiteral("shift")) +
                                                QStringLiteral(" without a time that can be read")
                                          : QString());
        model_->appendRow(row);
    }
    fitColumns();
    labSpread->setText(spreadText(balance_));
    labBalanceNotes->setText(notesText(balance_));
    chosen_ = 0;
    choose(keep);
}

void BalancePanel::choose(int agent) {
    for (int row = 0; row < sorted_->rowCount(); ++row) {
        if (agentAt(row) == agent) {
            tabBalance->selectRow(row);
            return;
        }
    }
    tabBalance->clearSelection();
}

int BalancePanel::agentAt(int row) const {
    return sorted_->index(row, kAgentColumn).data(kAgentRole).toInt();
}

void BalancePanel::followSelection() {
    if (chosen_ < 0) {
        return;
    }
    const QModelIndexList rows = tabBalance->selectionModel()->selectedRows();
    const int agent = rows.isEmpty() ? 0 : agentAt(rows.first().row());
    if (agent != chosen_) {
        chosen_ = agent;
        emit agentChosen(agent);
    }
}

bool BalancePanel::eventFilter(QObject* watched, QEvent* event) {
    // A click on the chosen row, or Space on it, gives the choice up; Space on another row
    // chooses that one.
    if (watched == tabBalance->viewport() && event->type() == QEvent::MouseButtonPress) {
        const QModelIndex at =
            tabBalance->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        if (at.isValid() && tabBalance->selectionModel()->isRowSelected(at.row())) {
            tabBalance->clearSelection();
            return true;
        }
    }
    if (watched == tabBalance && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
        const int row = tabBalance->currentIndex().row();
        if (row >= 0 && tabBalance->selectionModel()->isRowSelected(row)) {
            tabBalance->clearSelection();
        } else if (row >= 0) {
            tabBalance->selectRow(row);
        }
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void BalancePanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    // The tints come from the palette. The month is counted afresh, as the agents may have
    // changed since it was shown.
    if (event->type() == QEvent::PaletteChange && ws_ != nullptr) {
        showBalance(*ws_);
    }
}
