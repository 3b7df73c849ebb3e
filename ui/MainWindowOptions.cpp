// The options dialog from the main window: its Apply loads the chosen
// scheme and shows the new colours, style and pictures at once; and the
// view's choice of coordinates.
#include "records/ColourScheme.h"
#include "session/SquareNames.h"
#include "ui/EditorPalette.h"
#include "ui/Form2.h"
#include "ui/MainWindow.h"
#include "ui/MoveListPanel.h"
#include "ui/widgets/RedrawGuard.h"

namespace jv::ui {

void MainWindow::ShowOptions() {
    Form2 form(game_, this);
    form.Applied = [this] { ApplyOptions(); };
    form.exec();
}

void MainWindow::ApplyOptions() {
    // A scheme missing from "all.col" is reported here and the colours stay.
    LoadColourScheme(game_, game_.SchemeFile);
    RedrawGuard hold(this);
    ApplyWindowColours();
    picture2_->Paint();
    DrawBoard();
}

void MainWindow::ChooseCoordinates(bool tafl) {
    if (game_.TaflCoordinates == tafl) return;
    game_.TaflCoordinates = tafl;
    WriteViewSettings(game_);
    DrawBoard();
    moves_->RefreshNow();
}

}  // namespace jv::ui
