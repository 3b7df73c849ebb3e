#pragma once
#include <QColor>
#include <QListWidget>
#include <array>

namespace jv::ui {

// A scrolling list of text lines, each in its own colour, with its own
// scroll bar; it always shows the newest line. It carries the event log.
class LineList : public QListWidget {
    Q_OBJECT
public:
    explicit LineList(QWidget* parent = nullptr);

    // The colour of the lines printed with colour number n (0, 1 or 2).
    void SetLineColour(int n, const QColor& colour);
    QColor LineColour(int n) const;

    // Adds a line in the colour of its number; a background number other
    // than 0 tints the line with that number's colour.
    void PrintLine(const QString& text, int colour, int background);

    // At most this many lines are kept; the oldest go first.
    static constexpr int MaxLines = 5000;

private:
    static int Slot(int n) { return n < 0 ? 0 : (n > 2 ? 2 : n); }
    std::array<QColor, 3> colours_;
};

}  // namespace jv::ui
