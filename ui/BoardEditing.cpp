// The board picture while the layout editor is on: it shows the position
// the editor holds, and a press on a square (or a sweep over several with
// the button held) asks for the chosen kind to be placed there.
#include "session/LayoutEditor.h"
#include "ui/BoardPicture.h"

namespace jv::ui {

const Game& BoardPicture::Shown() {
    if (!g_.EditorOn) {
        editorShown_.reset();
        return g_;
    }
    if (!editorShown_) editorShown_ = std::make_unique<Game>();
    EditorPosition(g_, *editorShown_);
    return *editorShown_;
}

void BoardPicture::EditorPress(Square square) {
    sweeping_ = true;
    placed_ = square;
    if (square.Col != -1) emit EditorSquarePressed(square.Col, square.Row);
    RefreshHint(square);
}

void BoardPicture::EditorSweep(Square square) {
    if (!sweeping_ || square.Col == -1 || (square.Col == placed_.Col && square.Row == placed_.Row)) return;
    placed_ = square;
    emit EditorSquarePressed(square.Col, square.Row);
    RefreshHint(square);
}

}  // namespace jv::ui
