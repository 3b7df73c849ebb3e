// What the window's buttons, boxes, lists and menu entries do: each hands
// its command to the game.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QSplitter>
#include <QStandardItemModel>
#include <QTimer>

#include "ai/AttackerRank.h"
#include "ai/AttackerTactics.h"
#include "ai/DefenderRank.h"
#include "ai/KingRoutes.h"
#include "core/Board.h"
#include "core/Move.h"
#include "core/VbText.h"
#include "records/TextFile.h"
#include "session/ComputerMoves.h"
#include "session/GameRecordExport.h"
#include "session/LayoutCommands.h"
#include "session/LayoutEditor.h"
#include "session/NewGame.h"
#include "session/Recording.h"
#include "session/Session.h"
#include "session/StrongTurn.h"
#include "session/Undo.h"
#include "ui/BoardPicture.h"
#include "ui/EditorPalette.h"
#include "ui/MainWindow.h"
#include "ui/MoveListPanel.h"
#include "ui/NewGameDialog.h"
#include "ui/widgets/HelpViewer.h"

namespace jv::ui {

void MainWindow::ConnectCommands() {
    const auto onClick = [this](const char* name, auto command) {
        connect(findChild<QPushButton*>(name), &QPushButton::clicked, this, command);
    };
    const auto onMenu = [this](const char* name, auto command) {
        connect(findChild<QAction*>(name), &QAction::triggered, this, command);
    };
    onClick("cmdload", [this] { LoadCommand(game_); });
    onClick("cmdsave", [this] { SaveCommand(game_); });
    onClick("cmdreset", [this] { ResetGameCommand(game_); });
    onClick("cmdundo", [this] { UndoCommand(game_); });
    onClick("cmdloadlog", [this] { ReplayCommand(game_); });
    onClick("cmdedit", [this] { EditorCommand(game_); });
    onClick("cmdexit", [this] { ExitCommand(game_); });
    onClick("Command12", [this] { ToggleAutoGame(); });
    onMenu("mnunewgame", [this] { ChooseNewGame(); });
    onMenu("mnuloadgame", [this] { LoadCommand(game_); });
    onMenu("mnusavegame", [this] { SaveCommand(game_); });
    onMenu("mnuexportrecord", [this] { ExportGameRecord(); });
    onMenu("mnureviewgame", [this] { moves_->StartReview(); });
    connect(findChild<QAction*>("mnutaflcoords"), &QAction::toggled, this, &MainWindow::ChooseCoordinates);
    moves_->Settled = [this] { return !timer1_->isActive(); };
    onMenu("mnuresetgame", [this] { ResetGameCommand(game_); });
    onMenu("mnuundo", [this] { UndoCommand(game_); });
    onMenu("mnuhint", [this] { HintCommand(game_); });
    onMenu("mnustopautogame", [this] {
        if (game_.AutoGameRunning) AutoGame(game_);   // the stop
    });
    onMenu("mnuexit", [this] { ExitCommand(game_); });
    onMenu("mnuoptions", [this] { ShowOptions(); });
    onMenu("mnuhelp", [this] { ShowHelp(); });
    onMenu("mnuabout", [this] { ShowAbout(); });

    connect(check1_, &QCheckBox::toggled, this, [this](bool ticked) { game_.Check1 = ticked; });
    // The recording switch acts when the user lets go of the box; while the
    // layout editor is on it refuses, and the box shows what holds.
    connect(check2_, &QCheckBox::clicked, this, [this](bool ticked) {
        RecordingSwitch(game_, ticked);
        check2_->setChecked(game_.Check2);
    });
    connect(lists_.at(ListId::Undo), &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        Undo_MouseUp(game_, lists_.at(ListId::Undo)->row(item));
    });
    for (ListId id : {ListId::List1A, ListId::List1D, ListId::SearchLines})
        connect(lists_.at(id), &QListWidget::pressed, this, [this, id] { PreviewListMove(id); });
    onClick("cmdhint", [this] { HintCommand(game_); });
    const auto choosePlayers = [this] {
        // Under another rule set a classic choice shows as the strong player and is kept while unchanged.
        for (auto [name, kind] : {std::pair{"AttackerPlayer", &game_.Players.Attackers},
                                  {"DefenderPlayer", &game_.Players.Defenders}}) {
            const auto shown = static_cast<PlayerKind>(findChild<QComboBox*>(name)->currentIndex());
            if (PlaysClassicRules(game_) || shown != PlayerKind::Strong || *kind == PlayerKind::Engine) *kind = shown;
        }
        game_.Players.ThinkMillis = findChild<QComboBox*>("ThinkingTime")->currentData().toInt();
        game_.Players.StopWhenClear = findChild<QCheckBox*>("StopWhenClear")->isChecked();
        game_.Players.UserSide = findChild<QComboBox*>("UserSide")->currentIndex() == 1 ? AttackerCode : DefenderCode;
        game_.Players.EngineCommand = findChild<QLineEdit*>("EngineCommand")->text().toStdString();
        WritePlayers(game_);
    };
    for (const char* name : {"AttackerPlayer", "DefenderPlayer", "ThinkingTime", "UserSide"})
        connect(findChild<QComboBox*>(name), &QComboBox::activated, this, choosePlayers);
    connect(findChild<QLineEdit*>("EngineCommand"), &QLineEdit::editingFinished, this, choosePlayers);
    connect(findChild<QCheckBox*>("StopWhenClear"), &QCheckBox::clicked, this, choosePlayers);
    connect(picture_, &BoardPicture::EditorSquarePressed, this, &MainWindow::PlaceInEditor);
    ConnectDebugButtons();
}

void MainWindow::ExportGameRecord() {
    const std::string name = ExportGameRecordCommand(game_);
    if (name.empty() || !moves_->HasReview()) return;
    const std::string picture = name.substr(0, name.find_last_of('.')) + ".png";
    if (Show(picture + "\r\nSave the review's graph beside the game record?", "vbYesNo+vbquestion") != ButtonYes) return;
    if (!moves_->SaveGraph(QString::fromStdString(InProgramFolder(game_, picture))))
        Show("Picture File:\r\n" + picture + "\r\ncould not be written", "vbcritical+vbok");
}

void MainWindow::ConnectDebugButtons() {
    const auto onClick = [this](const char* name, auto command) {
        connect(findChild<QPushButton*>(name), &QPushButton::clicked, this, command);
    };
    onClick("cmdGetAttackerRank", [this] { GetAttackerRank(game_); });
    onClick("cmdMakeRedAutoMove", [this] { MakeRedAutoMove(game_); });
    onClick("Command4", [this] { MakeGreenAutoMove(game_); });
    onClick("cmdGetDefenderRank", [this] { GetDefenderRank(game_, 0); });
    // The random movers' captions name the sides the other way round.
    onClick("cmdGreenRandom", [this] { RandomMover(game_, AttackerCode); });
    onClick("cmdRedRandom", [this] { RandomMover(game_, DefenderCode); });
    onClick("cmdRedGreenRandom", [this] { RedGreenRandom(game_); });
    onClick("cmdPathAroundKing", [this] { PathAroundKing(game_, DefenderCode, game_.KingCol, game_.KingRow); });
    onClick("cmdRouteFromKing", [this] {
        std::string route;
        RouteFromKing(game_, route);
    });
    onClick("cmdCheckKingCapture", [this] { Show(KingCaptureDiagnostic(game_), "vbokonly"); });
}

std::string KingCaptureDiagnostic(Game& g) {
    // Compx: the capture rule's answer now (99 taken); UserX: the King at
    // Home (99); then the attackers, defenders and empty squares beside him.
    const KingNeighbours around = KingNeighbourCounts(g);
    const auto yes99 = [](bool yes) { return Str(yes ? 99 : 0); };
    return "Compx=" + yes99(jv::CheckKingCapture(g)) + "\r\nUserX=" + yes99(KingAtHome(g)) + "\r\n" +
           Str(around.Attackers) + Str(around.Defenders) + Str(around.Empties);
}

void MainWindow::PreviewListMove(ListId id) {
    previewing_ = true;
    if (id == ListId::SearchLines) {
        PreviewSearchLine(game_, lists_.at(id)->currentRow());
        return;
    }
    const std::vector<std::string>& lines = id == ListId::List1A ? game_.List1A : game_.List1D;
    jv::PreviewListMove(game_, lines, lists_.at(id)->currentRow());
}

void MainWindow::ShowPlayers() {
    const bool classic = PlaysClassicRules(game_);
    const QString rules = QString::fromUtf8(game_.GameRules.Name.data(), game_.GameRules.Name.size());
    const QString tip = "Classic: the ranked lists. Strong: a search of the moves ahead. Engine: the OpenTafl "
                        "engine started by the command line below";
    const QString onlyClassic = "; under the " + rules + " rules the strong player stands in for Classic, which knows "
                                "the Classic rules only";
    for (const auto& [name, side] : {std::pair{"AttackerPlayer", AttackerCode}, {"DefenderPlayer", DefenderCode}}) {
        auto* box = findChild<QComboBox*>(name);
        box->setCurrentIndex(static_cast<int>(PlayerOf(game_, side)));
        // The classic player is offered under the classic rules only.
        if (auto* model = qobject_cast<QStandardItemModel*>(box->model())) model->item(0)->setEnabled(classic);
        box->setToolTip(classic ? tip : tip + onlyClassic);
    }
    findChild<QLineEdit*>("EngineCommand")->setText(QString::fromStdString(game_.Players.EngineCommand));
    auto* time = findChild<QComboBox*>("ThinkingTime");
    time->setCurrentIndex(std::max(0, time->findData(game_.Players.ThinkMillis)));
    findChild<QCheckBox*>("StopWhenClear")->setChecked(game_.Players.StopWhenClear);
    findChild<QComboBox*>("UserSide")->setCurrentIndex(game_.Players.UserSide == AttackerCode);
    // The classic players' one-step tools read the board by the classic rules.
    for (const char* name : {"cmdGetAttackerRank", "cmdGetDefenderRank", "cmdGreenRandom", "cmdRedRandom",
                             "cmdRedGreenRandom", "cmdPathAroundKing", "cmdRouteFromKing", "cmdCheckKingCapture"}) {
        auto* button = findChild<QPushButton*>(name);
        button->setEnabled(classic);
        button->setToolTip(classic ? QString() : "A step of the classic players: for the Classic rules only");
    }
    rulesName_->setText("Rules: " + rules);
    rulesName_->setToolTip(QString::fromStdString(RulesSummary(game_.GameRules)));
}

void MainWindow::ChooseNewGame() {
    NewGameDialog dialog(game_, this);
    if (dialog.exec() != QDialog::Accepted) return;
    NewGameCommand(game_, dialog.Choice());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == split_ && event->type() == QEvent::Resize) GiveBoardTheRoom();
    if (previewing_ && event->type() == QEvent::MouseButtonRelease) {
        previewing_ = false;
        EndListMovePreview(game_);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::PlaceInEditor(int col, int row) {
    if (jv::PlaceInEditor(game_, col, row, picture2_->Kind())) picture_->DrawBoard();
}

void MainWindow::ToggleAutoGame() {
    if (game_.AutoGameRunning) {
        AutoGame(game_);   // the stop
        return;
    }
    QPointer<QPushButton> button = findChild<QPushButton*>("Command12");
    QPointer<QAction> stop = findChild<QAction*>("mnustopautogame");
    button->setText("Stop AutoGame");
    stop->setEnabled(true);
    AutoGame(game_);
    if (button) button->setText("AutoGame");
    if (stop) stop->setEnabled(false);
}

void MainWindow::ShowHelp() {
    const std::string path = game_.ProgramFolder + "jarlsvakt.htm";
    auto* viewer = findChild<HelpViewer*>();
    if (viewer == nullptr) viewer = new HelpViewer(this);
    if (!viewer->Open(QString::fromStdString(path))) {
        Show("Help file not found:\r\n" + path, "vbcritical+vbok");
        return;
    }
    viewer->show();
    viewer->raise();
}

void MainWindow::ShowAbout() {
    Show("JarlsVakt\r\n\r\nHnefatafl against the computer. You lead the defenders: bring the King to a "
         "corner before the attackers surround him.",
         "vbcustom+vbok");
}

}  // namespace jv::ui
