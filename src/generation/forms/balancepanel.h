#pragma once

#include "generation/balance.h"

#include <QWidget>

class QLabel;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;
struct Workspace;

// The month's balance beside the review's calendar: a row per agent with shifts, hours,
// weekend and noted-day shifts, the longest run, days with two shifts and adjacent days,
// sorted by any column ("tabBalance"); the spread and the mean under it ("labSpread"), and
// what the table leaves out ("labBalanceNotes"). An agent more than one shift over or under
// the share is marked by a sign before the key, ▲ or ▼, and a row tinted from the palette.
//
// Choosing an agent's row, by a click or by the keyboard, chooses the agent; a click on the
// chosen row, or Space on it, gives the choice up.
class BalancePanel : public QWidget {
    Q_OBJECT

public:
    explicit BalancePanel(QWidget* parent);

    // Counts the month again and shows it; the agent chosen stays chosen.
    void showBalance(const Workspace& ws);
    const MonthBalance& balance() const { return balance_; }
    // The chosen agent, 0 for none.
    int chosenAgent() const { return chosen_; }
    void choose(int agent);

    // It asks for the room of the table's first columns, the others scrolling, and grows up
    // to the whole table.
    QSize sizeHint() const override;
    // The width of the whole table, all of its columns shown.
    int wholeWidth() const { return wholeWidth_; }
    // The panel grows no wider than the given width, nor than the whole table, but keeps
    // the room of its first columns.
    void limitWidth(int width);

    QTableView* tabBalance;
    QLabel* labSpread;
    QLabel* labBalanceNotes;

signals:
    // The agent chosen, 0 when the choice was given up.
    void agentChosen(int agent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void fill();
    void fitColumns();
    void followSelection();
    // The agent of a row of the view.
    int agentAt(int row) const;

    const Workspace* ws_ = nullptr;
    MonthBalance balance_;
    QStandardItemModel* model_;
    QSortFilterProxyModel* sorted_;
    int chosen_ = 0;
    int wholeWidth_ = 0;
};
