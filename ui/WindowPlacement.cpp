#include "ui/WindowPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

#include "records/TextFile.h"
#include "records/WindowPlace.h"

namespace jv::ui {

namespace {

// The window's size on a screen that has room for it.
constexpr QSize DefaultSize(1280, 820);
// Room left for the window's frame and title bar, which the window system
// adds round the size set here.
constexpr QSize FrameAllowance(16, 40);

// The rectangle moved and shrunk to lie within the area, its frame included.
QRect FitInto(QRect rect, const QRect& area) {
    const QSize room = area.size() - FrameAllowance;
    rect.setSize(rect.size().boundedTo(room));
    rect.moveLeft(std::clamp(rect.left(), area.left(), area.left() + room.width() - rect.width()));
    rect.moveTop(std::clamp(rect.top(), area.top(), area.top() + room.height() - rect.height()));
    return rect;
}

const QScreen* ScreenHolding(const QRect& rect) {
    for (const QScreen* screen : QGuiApplication::screens())
        if (screen->availableGeometry().contains(rect.center())) return screen;
    return nullptr;
}

}  // namespace

void PlaceWindow(QWidget& window, const std::string& programFolder) {
    std::string text;
    std::optional<WindowPlace> kept;
    if (ReadWholeFile(programFolder + WindowFile, text)) kept = ReadWindowPlaceText(text);
    const QRect keptRect = kept ? QRect(kept->X, kept->Y, kept->Width, kept->Height) : QRect();
    if (const QScreen* screen = kept ? ScreenHolding(keptRect) : nullptr) {
        window.setGeometry(FitInto(keptRect, screen->availableGeometry()));
        if (kept->Maximised) window.setWindowState(Qt::WindowMaximized);
        return;
    }
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (primary == nullptr) {
        window.resize(DefaultSize);
        return;
    }
    const QRect area = primary->availableGeometry();
    QRect rect(QPoint(), DefaultSize.boundedTo(area.size() - FrameAllowance));
    rect.moveCenter(area.center());
    window.setGeometry(FitInto(rect, area));
}

bool KeepWindowPlace(const QWidget& window, const std::string& programFolder) {
    const QRect rect = window.isMaximized() ? window.normalGeometry() : window.geometry();
    const WindowPlace place{rect.x(), rect.y(), rect.width(), rect.height(), window.isMaximized()};
    return WriteFileAtomically(programFolder + WindowFile, WindowPlaceText(place)).Ok();
}

}  // namespace jv::ui
