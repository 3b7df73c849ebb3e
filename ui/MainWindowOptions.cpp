// The options dialog from the main window: its Apply loads the chosen
// scheme and shows the new colours, style and pictures at once.
#include "records/ColourScheme.h"
#include "ui/EditorPalette.h"
#include "ui/Form2.h"
#include "ui/MainWindow.h"
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

}  // namespace jv::ui
