#pragma once

#include <QLabel>
#include <QStringList>

#include <vector>

// A label of lines broken by "\n" that shows as much of them as its room allows. A line too
// wide for the label goes on, indented, on the lines below, broken after a slash or at a
// blank, where the label has lines to spare: empty lines give their room up first. Only what
// still does not fit is cut: a line too wide ends in an ellipsis, and where lines do not fit
// below each other the last line shown ends in one. A text that is cut is the label's
// tooltip; text() is always the whole text.
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
    // A line as the label shows it, and how far it stands in from the left.
    struct ShownLine {
        QString text;
        int indent = 0;
    };

    // The lines as they fit, and whether anything was left out or shortened.
    std::vector<ShownLine> fittedLines(bool* cut) const;
    // The pieces of one line within the widths of its first and its further lines, and
    // whether the last piece had to be shortened.
    std::vector<ShownLine> wrapped(const QString& line, int firstWidth, int width, bool* cut) const;
    void updateToolTip();

    int firstLineRoom_ = 0;
};
