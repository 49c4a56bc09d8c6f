#pragma once

#include <QLabel>
#include <QStringList>

// A label of lines broken by "\n" that shows what fits of them: a line too wide ends in an
// ellipsis, and where lines do not fit below each other the last line shown ends in one.
// A text that is cut is the label's tooltip; text() is always the whole text.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    // Sets the text, and the tooltip that shows it whole where it does not fit.
    void setLines(const QString& text);
    // Whether the label shows less than its text.
    bool isCut() const;
    // Width kept free at the right end of the first line, for a mark that stands there.
    void setFirstLineRoom(int pixels);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The lines as they fit, and whether anything was left out or shortened.
    QStringList fittedLines(bool* cut) const;
    void updateToolTip();

    int firstLineRoom_ = 0;
};
