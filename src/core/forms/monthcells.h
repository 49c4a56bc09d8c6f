#pragma once

#include <QObject>

#include <array>
#include <functional>

class QGridLayout;
class QWidget;

// A month's day cells, seven to a row in six rows, the day d standing in the cell
// d - 1 + the month's first weekday. The rows share the room of their grid, and a month of
// five weeks gives the sixth row's room to the other five; the grid counts six rows in the
// room it needs, so that any month fits the room it was given.
//
// From the keyboard the month's cells are one stop of the Tab key: the arrow keys go from day
// to day, Home and End to the month's first and last day, and Return, Enter or Space press
// the day as a click does. The cell that has the focus is marked with a frame in its text's
// colour.
class MonthCells : public QObject {
    Q_OBJECT

public:
    static constexpr int kCells = 37;
    static constexpr int kColumns = 7;
    static constexpr int kRows = 6;

    // Lays the cells into the grid, row by row from the given row down. press is what a
    // click on the cell of that index does.
    MonthCells(QGridLayout* grid, int firstRow, const std::array<QWidget*, kCells>& cells,
               std::function<void(int)> press);

    // Shows the cells of the month's days and hides the others.
    void showMonth(int firstCell, int days);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The cell that the Tab key comes to, and from which the arrow keys go on.
    void setCurrent(int index);
    int indexOf(const QObject* watched) const;
    bool isDay(int index) const;
    // The day the key leads to from the cell, or -1 for a key that is no step.
    int stepFrom(int index, int key) const;

    QGridLayout* grid_;
    int firstRow_;
    std::array<QWidget*, kCells> cells_;
    std::function<void(int)> press_;
    int current_ = 0;
};
