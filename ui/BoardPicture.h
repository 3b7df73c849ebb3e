#pragma once
#include <QPixmap>
#include <QPoint>
#include <QWidget>
#include <memory>

#include "core/Game.h"
#include "ui/BoardGeometry.h"
#include "ui/PiecePictures.h"

namespace jv::ui {

// The board picture, Picture1. The board is drawn into a retained pixmap
// that the widget paints; the last move's mark, the drag line and its marker
// lie over it and never touch the pixmap. Pressing on a defender or the King starts a drag through
// the game's pointer rules (see BoardPointer.cpp).
class BoardPicture : public QWidget {
    Q_OBJECT
public:
    explicit BoardPicture(Game& game, QWidget* parent = nullptr);

    QSize sizeHint() const override { return {600, 600}; }
    QSize minimumSizeHint() const override { return {260, 260}; }

    // The drawing operations, on the retained pixmap.
    void DrawBoard();
    void DrawSquare(int a, int b, const QColor& colour);
    void DrawPiece(int a, int b, int drawCode);
    void MarkVictim(int a, int b);

    // The mark of the last move, over the picture: the next one replaces it,
    // and it goes when the board is drawn whole for the game.
    void DrawMoveMark(int fromA, int fromB, int toA, int toB);
    void HideMoveMark();

    // The line from the centre of one square to the centre of another, with
    // the marker on its start.
    void ShowDragLine(int fromA, int fromB, int toA, int toB);
    void HideDragLine();
    bool DragLineShown() const { return lineVisible_; }

    const BoardGeometry& Geometry() const { return geometry_; }
    const QPixmap& Pixmap() const { return pixmap_; }
    // The centre of a square, in widget pixels.
    QPoint SquareCentre(int a, int b) const;

signals:
    // The hint for the square under the pointer ("" off the board).
    void HintChanged(const QString& hint);
    // While the layout editor is on: the pointer was pressed on a square, or
    // swept onto another with the button held.
    void EditorSquarePressed(int a, int b);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    // Rebuilds the geometry and the pixmap when the widget or the board
    // changed size; true when it did.
    bool FitToWidget();
    // Draws the whole board into the pixmap.
    void Redraw();
    Square SquareUnder(QPoint position) const;
    void ShowHint(Square square);
    // The hint again after the square's content changed under the pointer.
    void RefreshHint(Square square);
    void HighlightReach(int a, int b);
    void PaintOverlay(QPainter& p);

    // The layout editor (BoardEditing.cpp): while it is on, the picture shows
    // the editor's position, and the pointer places pieces instead of moving them.
    const Game& Shown();
    void EditorPress(Square square);
    void EditorSweep(Square square);

    Game& g_;
    QPixmap pixmap_;
    BoardGeometry geometry_;
    PiecePictures pictures_;
    int fittedWidth_ = -1, fittedHeight_ = -1, fittedLabels_ = -1;
    int boardWidth_ = -1, boardHeight_ = -1;
    bool drawPending_ = false;   // asked to draw while hidden

    // The last move's mark: from and to squares.
    bool markVisible_ = false;
    int mark_[4] = {};
    // The drag line and its marker, in widget pixels.
    bool lineVisible_ = false;
    QPoint lineFrom_, lineTo_, markerAt_;
    // A user drag in progress: the marker carries the piece and follows the pointer.
    bool dragging_ = false;
    int carriedCode_ = -1;
    Square hover_;
    Square hinted_;
    // The editor's position as drawn, and the last square the pointer placed on.
    std::unique_ptr<Game> editorShown_;
    Square placed_;
    bool sweeping_ = false;
};

}  // namespace jv::ui
