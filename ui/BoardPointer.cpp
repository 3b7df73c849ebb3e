// The board's pointer handling: pressing on a defender or the King picks it
// up and shows the squares it can reach, the marker carries it after the
// pointer, and releasing drops it through the game's pointer rules. While
// the layout editor is on, presses go to the editor instead.
#include <QMouseEvent>

#include "session/Pointer.h"
#include "ui/BoardPainter.h"
#include "ui/BoardPicture.h"
#include "ui/Surface.h"

namespace jv::ui {

Square BoardPicture::SquareUnder(QPoint position) const {
    return geometry_.SquareAt(position.x() * TwipsPerPixel, position.y() * TwipsPerPixel, g_.BoardWidth,
                              g_.BoardHeight);
}

void BoardPicture::ShowHint(Square square) {
    if (square.Col == hinted_.Col && square.Row == hinted_.Row) return;
    hinted_ = square;
    const QString hint = QString::fromStdString(PointerHint(Shown(), square.Col, square.Row));
    setToolTip(hint);
    emit HintChanged(hint);
}

void BoardPicture::RefreshHint(Square square) {
    hinted_ = Square{};
    ShowHint(square);
}

void BoardPicture::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || dragging_) return;
    const Square square = SquareUnder(event->position().toPoint());
    if (g_.EditorOn) return EditorPress(square);
    if (square.Col == -1 || !BeginDrag(g_, square.Col, square.Row)) return;
    dragging_ = true;
    carriedCode_ = DrawCode(g_, square.Col, square.Row);
    HighlightReach(square.Col, square.Row);
    lineTo_ = markerAt_ = event->position().toPoint();
    update();
}

void BoardPicture::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    const Square square = SquareUnder(at);
    g_.PointerSquare = square;
    ShowHint(square);
    if (g_.EditorOn && (event->buttons() & Qt::LeftButton)) return EditorSweep(square);
    if (!dragging_) return;
    lineTo_ = markerAt_ = at;
    hover_ = AcceptsDrop(g_, square.Col, square.Row) ? square : Square{};
    update();
}

void BoardPicture::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) sweeping_ = false;
    if (event->button() != Qt::LeftButton || !dragging_) return;
    dragging_ = false;
    carriedCode_ = -1;
    hover_ = Square{};
    const Square square = SquareUnder(event->position().toPoint());
    // The full repaint takes the reach highlight away before the move is drawn.
    DrawBoard();
    EndDrag(g_, square.Col, square.Row);
    RefreshHint(square);
    update();
}

void BoardPicture::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    g_.PointerSquare = Square{};
    ShowHint(Square{});
}

}  // namespace jv::ui
