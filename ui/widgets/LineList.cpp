#include "ui/widgets/LineList.h"

namespace jv::ui {

LineList::LineList(QWidget* parent) : QListWidget(parent) {
    // The log's three voices: near black for the King and the program's own
    // lines, green for the defenders, red for the attackers.
    colours_ = {QColor(20, 20, 20), QColor(25, 125, 35), QColor(200, 20, 20)};
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setUniformItemSizes(true);
    setWordWrap(false);
    setTextElideMode(Qt::ElideNone);
}

void LineList::SetLineColour(int n, const QColor& colour) { colours_[Slot(n)] = colour; }

QColor LineList::LineColour(int n) const { return colours_[Slot(n)]; }

void LineList::PrintLine(const QString& text, int colour, int background) {
    auto* item = new QListWidgetItem(text);
    item->setForeground(LineColour(colour));
    if (background != 0) {
        QColor tint = LineColour(background);
        tint.setAlpha(40);
        item->setBackground(tint);
    }
    addItem(item);
    while (count() > MaxLines) delete takeItem(0);
    scrollToBottom();
}

}  // namespace jv::ui
