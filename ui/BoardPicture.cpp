#include "ui/BoardPicture.h"

#include <QPainter>
#include <QResizeEvent>

#include "core/Reach.h"
#include "session/Pointer.h"
#include "ui/BoardPainter.h"
#include "ui/ColourValue.h"
#include "ui/Surface.h"

namespace jv::ui {

BoardPicture::BoardPicture(Game& game, QWidget* parent) : QWidget(parent), g_(game) {
    setObjectName("Picture1");
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

bool BoardPicture::FitToWidget() {
    const int labels = g_.ShowLabels != 0 ? 1 : 0;
    if (width() == fittedWidth_ && height() == fittedHeight_ && labels == fittedLabels_ &&
        !pixmap_.isNull() && geometry_.SquareSize > 0 && boardWidth_ == g_.BoardWidth &&
        boardHeight_ == g_.BoardHeight)
        return false;
    fittedWidth_ = width();
    fittedHeight_ = height();
    fittedLabels_ = labels;
    boardWidth_ = g_.BoardWidth;
    boardHeight_ = g_.BoardHeight;
    geometry_ = BuildBoardGeometry(width(), height(), g_.BoardWidth, g_.BoardHeight, labels != 0);
    pixmap_ = QPixmap(std::max(1, width()), std::max(1, height()));
    return true;
}

void BoardPicture::DrawBoard() {
    // Until the picture is on screen, the start-up's loads, settings and
    // first layouts only ask for it: it is drawn once, at its first paint,
    // at the size it has then.
    if (!isVisible()) {
        drawPending_ = true;
        return;
    }
    Redraw();
    update();
}

void BoardPicture::Redraw() {
    drawPending_ = false;
    pictures_.Load(g_);
    FitToWidget();
    ui::DrawBoard({Shown(), geometry_, pictures_, pixmap_});
}

void BoardPicture::DrawSquare(int a, int b, const QColor& colour) {
    if (FitToWidget()) return DrawBoard();
    ui::DrawSquare({g_, geometry_, pictures_, pixmap_}, a, b, colour);
    update();
}

void BoardPicture::DrawPiece(int a, int b, int drawCode) {
    pictures_.Load(g_);
    if (FitToWidget()) return DrawBoard();
    ui::DrawPiece({g_, geometry_, pictures_, pixmap_}, a, b, drawCode);
    update();
}

void BoardPicture::DrawMoveMark(int fromA, int fromB, int toA, int toB) {
    markVisible_ = true;
    mark_[0] = fromA, mark_[1] = fromB, mark_[2] = toA, mark_[3] = toB;
    update();
}

void BoardPicture::HideMoveMark() {
    markVisible_ = false;
    update();
}

void BoardPicture::MarkVictim(int a, int b) {
    if (FitToWidget()) DrawBoard();
    DrawSmallMark({g_, geometry_, pictures_, pixmap_}, a, b, VictimMarkColour(g_));
    update();
}

QPoint BoardPicture::SquareCentre(int a, int b) const {
    const int half = geometry_.SquareSize / 2;
    return {ToPixels(geometry_.Left(a, b) + half), ToPixels(geometry_.Top(a, b) + half)};
}

void BoardPicture::ShowDragLine(int fromA, int fromB, int toA, int toB) {
    lineVisible_ = true;
    lineFrom_ = SquareCentre(fromA, fromB);
    lineTo_ = SquareCentre(toA, toB);
    markerAt_ = lineFrom_;
    update();
}

void BoardPicture::HideDragLine() {
    lineVisible_ = false;
    update();
}

void BoardPicture::HighlightReach(int a, int b) {
    const QColor reach = ToQColor(g_.ColourTable[11]);
    ForEachSquareItem(PieceTargets(g_, a, b), [&](int col, int row) { DrawSquare(col, row, reach); });
}

void BoardPicture::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    // The window's layout may resize the picture several times before it
    // shows: the board is drawn at the next paint, at the last size.
    if (g_.BoardWidth > 0 && FitToWidget()) {
        drawPending_ = true;
        update();
    }
}

void BoardPicture::paintEvent(QPaintEvent*) {
    if (drawPending_) Redraw();
    QPainter p(this);
    if (pixmap_.isNull() || pixmap_.size() != size()) p.fillRect(rect(), BoardBackColour(g_));
    if (markVisible_ && !g_.EditorOn && !pixmap_.isNull()) {
        QPixmap marked = pixmap_;
        ui::DrawMoveMark({g_, geometry_, pictures_, marked}, mark_[0], mark_[1], mark_[2], mark_[3]);
        p.drawPixmap(0, 0, marked);
    } else if (!pixmap_.isNull()) {
        p.drawPixmap(0, 0, pixmap_);
    }
    PaintOverlay(p);
}

void BoardPicture::PaintOverlay(QPainter& p) {
    const int side = ToPixels(geometry_.SquareSize);
    if (hover_.Col != -1) {
        // The square the carried piece would land on, in the lighter board colour.
        const QPoint centre = SquareCentre(hover_.Col, hover_.Row);
        QColor light = ToQColor(g_.ColourTable[3]);
        light.setAlpha(170);
        p.fillRect(QRect(centre.x() - side / 2 + 2, centre.y() - side / 2 + 2, side - 3, side - 3), light);
    }
    if (!lineVisible_) return;
    p.setRenderHint(QPainter::Antialiasing);
    const QColor dark = ToQColor(g_.ColourTable[5]);
    p.setPen(QPen(dark, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(lineFrom_, lineTo_);
    const int diameter = side * 4 / 5;
    const QRect marker(markerAt_.x() - diameter / 2, markerAt_.y() - diameter / 2, diameter, diameter);
    if (dragging_ && carriedCode_ != -1) {
        p.setOpacity(0.75);
        // The marker carries the piece as the board draws it: its picture, or its colour block.
        const int inset = diameter * 3 / 20;   // the block's corners inside the ring
        const QRect block = marker.adjusted(inset, inset, -inset, -inset);
        if (g_.ColourMode == 1) p.fillRect(block, SquareColours(g_, carriedCode_));
        else p.drawImage(marker, pictures_.Picture(carriedCode_, marker.size()));
        p.setOpacity(1.0);
    }
    p.setPen(QPen(dark, 2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(marker);
}

}  // namespace jv::ui
