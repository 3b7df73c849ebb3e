// The arrangement of the main window: commands on the left, the board large
// in the middle (with room for the layout editor's palette beside it), on the
// right the move list (or the event log, in the tab beside it) above the
// computer players' lists, and the debug buttons in a panel below that the
// View menu shows or hides.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "records/PlayerSettings.h"
#include "ui/BoardPicture.h"
#include "ui/EditorPalette.h"
#include "ui/MainWindow.h"
#include "ui/MoveListPanel.h"
#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/LineList.h"
#include "ui/widgets/WrappingCheckBox.h"

namespace jv::ui {

namespace {

// A list with a caption above it, as one widget; the tool tip, on both,
// says what its lines mean.
QWidget* Captioned(const QString& caption, QWidget* content, const QString& toolTip = {}) {
    content->setToolTip(toolTip);
    auto* box = new QWidget;
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    auto* label = new QLabel(caption);
    label->setWordWrap(true);   // a narrow column wraps the caption rather than cut it
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    if (!toolTip.isEmpty()) label->setToolTip(toolTip);
    layout->addWidget(label);
    layout->addWidget(content, 1);
    return box;
}

// The inner margins of the command column's groups: narrow, to leave the board room.
const QMargins GroupMargins(6, 6, 6, 6);

QSplitter* Stack(std::initializer_list<QWidget*> parts) {
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setChildrenCollapsible(false);
    for (QWidget* part : parts) splitter->addWidget(part);
    return splitter;
}

}  // namespace

void MainWindow::BuildWindow() {
    setWindowTitle("JarlsVakt");
    timer1_ = new QTimer(this);
    timer1_->setObjectName("Timer1");
    timer1_->setSingleShot(true);   // its tick does nothing but stop it

    auto* centre = new QWidget;
    auto* columns = new QHBoxLayout;
    columns->setContentsMargins(0, 0, 0, 0);
    auto* outer = new QVBoxLayout(centre);
    outer->setContentsMargins(8, 8, 8, 4);
    outer->setSpacing(6);

    split_ = new QSplitter(Qt::Horizontal);
    split_->setObjectName("BoardAndLists");
    split_->setChildrenCollapsible(false);
    split_->addWidget(BuildBoardArea());
    split_->addWidget(BuildListsColumn());
    split_->installEventFilter(this);

    // On a short window the commands scroll rather than squeeze their controls.
    auto* commands = new QScrollArea;
    commands->setObjectName("CommandScroll");
    commands->setWidget(BuildCommandColumn());
    commands->setWidgetResizable(true);
    commands->setFrameShape(QFrame::NoFrame);
    commands->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // As narrow as its widest control allows, so that the board has the room.
    const int commandsWidth = commands->widget()->minimumSizeHint().width();
    commands->widget()->setFixedWidth(commandsWidth);
    commands->setFixedWidth(commandsWidth + style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 2);
    columns->addWidget(commands);
    columns->addWidget(split_, 1);
    outer->addLayout(columns, 1);
    outer->addWidget(BuildDebugPanel());
    setCentralWidget(centre);
    BuildMenus();
    statusBar()->setObjectName("StatusLine");
    rulesName_ = new QLabel;
    rulesName_->setObjectName("RulesName");
    statusBar()->addPermanentWidget(rulesName_);
    connect(picture_, &BoardPicture::HintChanged, this, [this](const QString& hint) {
        if (hint.isEmpty()) statusBar()->clearMessage();
        else statusBar()->showMessage(hint);
    });
}

void MainWindow::GiveBoardTheRoom() {
    // The board is square: it can use as much width as its area has height
    // (with the palette beside it while the editor is on); the lists take
    // what is left, within their bounds, and the board the rest.
    constexpr int MinListsWidth = 240, MaxListsWidth = 520;
    const int total = split_->width() - split_->handleWidth();
    int boardWish = split_->height() + LabelMarginLeft;
    if (picture2_->isVisible()) boardWish += picture2_->width() + 6;
    const int least = std::max(MinListsWidth, split_->widget(1)->minimumSizeHint().width());
    const int lists = std::clamp(total - boardWish, least, std::max(least, MaxListsWidth));
    split_->setSizes({total - lists, lists});
}

QPushButton* MainWindow::AddButton(const char* name, const QString& caption, const QString& toolTip) {
    auto* button = new QPushButton(caption);
    button->setObjectName(name);
    if (!toolTip.isEmpty()) button->setToolTip(toolTip);
    return button;
}

QWidget* MainWindow::BuildCommandColumn() {
    auto* column = new QWidget;
    column->setObjectName("CommandColumn");
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(5);

    auto* game = new QGroupBox("Game");
    auto* grid = new QGridLayout(game);
    grid->setContentsMargins(GroupMargins);
    grid->addWidget(AddButton("cmdload", "Load...", "Load a layout file"), 0, 0);
    grid->addWidget(AddButton("cmdsave", "Save...", "Save the position as a layout file"), 0, 1);
    grid->addWidget(AddButton("cmdreset", "Reset", "Start the current layout again"), 1, 0);
    grid->addWidget(AddButton("cmdundo", "Undo", "Take back the last move"), 1, 1);
    grid->addWidget(AddButton("cmdedit", "Edit Layout", "Switch the layout editor on or off"), 2, 0);
    grid->addWidget(AddButton("cmdloadlog", "Replay Log...", "Step through a recorded moves log"), 2, 1);
    layout->addWidget(game);

    auto* play = new QGroupBox("Play");
    auto* playLayout = new QVBoxLayout(play);
    playLayout->setContentsMargins(GroupMargins);
    // The longest caption of the column wraps, so that the column stays narrow.
    check1_ = new WrappingCheckBox("Computer Moves Auto after User Move");
    check1_->setObjectName("Check1");
    check1_->setChecked(true);
    check2_ = new QCheckBox("Record Moves to a Log");
    check2_->setObjectName("Check2");
    check2_->setToolTip("Append every position to a new moves log file");
    playLayout->addWidget(check1_);
    playLayout->addWidget(check2_);
    playLayout->addWidget(AddButton("Command12", "AutoGame", "The computer plays both sides in turn"));
    playLayout->addWidget(BuildPlayerChoice());
    layout->addWidget(play);

    auto* status = new QGroupBox("Position");
    auto* statusLayout = new QGridLayout(status);
    statusLayout->setContentsMargins(GroupMargins);
    layoutName_ = new ElidedLabel;
    layoutName_->setObjectName("LayoutName");
    // The name takes the whole row after its caption, not only the counters' column.
    auto* nameRow = new QHBoxLayout;
    nameRow->addWidget(new QLabel("Layout:"));
    nameRow->addWidget(layoutName_, 1);
    statusLayout->addLayout(nameRow, 0, 0, 1, 2);
    const char* counterNames[2] = {"ptot0", "ptot1"};
    const char* tips[2] = {"Player 1 remaining pieces", "Player 2 remaining pieces"};
    const char* captions[2] = {"Defenders (Player 1):", "Attackers (Player 2):"};
    const char* captionNames[2] = {"p0count", "p1count"};
    for (int i = 0; i < 2; ++i) {
        auto* caption = new QLabel(captions[i]);
        caption->setObjectName(captionNames[i]);
        caption->setToolTip(tips[i]);
        ptot_[i] = new QLabel("0");
        ptot_[i]->setObjectName(counterNames[i]);
        ptot_[i]->setToolTip(tips[i]);
        QFont bold = ptot_[i]->font();
        bold.setBold(true);
        ptot_[i]->setFont(bold);
        statusLayout->addWidget(caption, i + 1, 0);
        statusLayout->addWidget(ptot_[i], i + 1, 1);
    }
    turnLine_ = new QLabel;
    turnLine_->setObjectName("TurnLine");
    turnLine_->setWordWrap(true);
    turnLine_->setToolTip("The last move, or how the game ended");
    statusLayout->addWidget(turnLine_, 3, 0, 1, 2);
    statusLayout->setColumnStretch(1, 1);
    layout->addWidget(status);

    QListWidget* undo = AddList(ListId::Undo, "Undo");
    undo->setToolTip("Positions before each move, newest first: click one to show it");
    // It takes the height left, not its own wish: the column then scrolls only when it must.
    undo->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    layout->addWidget(Captioned("Undo history", undo, undo->toolTip()), 1);

    layout->addWidget(AddButton("cmdexit", "Exit", "Save the options and leave JarlsVakt"));
    return column;
}

QWidget* MainWindow::BuildPlayerChoice() {
    auto* choice = new QWidget;
    auto* grid = new QGridLayout(choice);
    grid->setContentsMargins(0, 0, 0, 0);
    const std::pair<const char*, const char*> sides[] = {{"AttackerPlayer", "Attackers:"},
                                                         {"DefenderPlayer", "Defenders:"}};
    for (int i = 0; i < 2; ++i) {
        auto* box = new QComboBox;
        box->setObjectName(sides[i].first);
        box->addItems({"Classic", "Strong", "Engine"});
        grid->addWidget(new QLabel(sides[i].second), i, 0);
        grid->addWidget(box, i, 1);
    }
    auto* time = new QComboBox;
    time->setObjectName("ThinkingTime");
    for (int millis : ThinkingTimes) time->addItem(QString::number(millis / 1000.0) + " s", millis);
    time->setToolTip("How long the strong player or the engine thinks about a move");
    grid->addWidget(new QLabel("Thinking:"), 2, 0);
    grid->addWidget(time, 2, 1);
    auto* early = new QCheckBox("Stop when clear");
    early->setObjectName("StopWhenClear");
    early->setToolTip("The thinking time is the most the strong player takes: it moves as soon as its move is clear");
    grid->addWidget(early, 3, 0, 1, 2);
    auto* engine = new QLineEdit;
    engine->setObjectName("EngineCommand");
    engine->setPlaceholderText("engine command line");
    engine->setToolTip("The command line that starts the Engine player, an OpenTafl engine, run by the shell");
    grid->addWidget(new QLabel("Engine:"), 4, 0);
    grid->addWidget(engine, 4, 1);
    auto* user = new QComboBox;
    user->setObjectName("UserSide");
    user->addItems({"Defenders", "Attackers"});
    user->setToolTip("The side you move on the board; the computer answers with the other");
    grid->addWidget(new QLabel("You play:"), 5, 0);
    grid->addWidget(user, 5, 1);
    grid->addWidget(AddButton("cmdhint", "Hint", "The strong player's move for you, shown on the board"), 6, 0, 1, 2);
    return choice;
}

QWidget* MainWindow::BuildBoardArea() {
    auto* area = new QWidget;
    auto* layout = new QHBoxLayout(area);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(6);
    picture_ = new BoardPicture(game_);
    layout->addWidget(picture_, 1);
    // The layout editor's palette stands beside the board at its height.
    picture2_ = new EditorPalette(game_);
    picture2_->hide();
    layout->addWidget(picture2_);
    return area;
}

QListWidget* MainWindow::AddList(ListId id, const char* name) {
    auto* list = new QListWidget;
    list->setObjectName(name);
    list->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Lines of unequal length: each line's own width, so a long one can be
    // scrolled to.
    list->setUniformItemSizes(false);
    list->setMinimumHeight(40);   // two lines and more: a short window still holds every list
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list->setTextElideMode(Qt::ElideNone);   // long lines scroll rather than lose their end
    lists_[id] = list;
    return list;
}

QWidget* MainWindow::BuildListsColumn() {
    eventLog_ = new LineList;
    eventLog_->setObjectName("EventLog");

    auto* tabs = new QTabWidget;
    tabs->setObjectName("ListTabs");
    tabs->addTab(
        Stack({Captioned("Ranked moves (score, defender score, from > to)", AddList(ListId::List1A, "List1A"),
                         "Every attacker move weighed, best first. The first number is its score: the lower, "
                         "the better for the attackers. The second is the defenders' best answer to it. "
                         "Press a line to see its move on the board."),
               Captioned("Plan (bonus, goal)", AddList(ListId::AttackerMovesRank, "AttackerMovesRank"),
                         "The goals of the attackers' plan, each with its bonus: a move onto a goal's squares "
                         "scores that much lower, that is better."),
               Captioned("Moves tried (to <from)", AddList(ListId::List2A, "List2A"),
                         "Every attacker move tried: the square it goes to, then the square it comes from."),
               Captioned("Best, tied (to from score)", AddList(ListId::List3, "List3"),
                         "The ranked moves sharing the best score; the computer plays one of them.")}),
        "Attackers");
    tabs->addTab(Stack({Captioned("Ranked moves (99999 - score, score, from > to)", AddList(ListId::List1D, "List1D"),
                                  "Every defender move weighed, best first. The first number is 99999 minus its "
                                  "score, so that the best comes first; the second is the score: the higher, the "
                                  "better for the defenders. Press a line to see its move on the board."),
                        Captioned("Rules fired (points, rule)", AddList(ListId::DefenderMovesRank, "DefenderMovesRank"),
                                  "The defenders' rules that scored squares: the points each adds to its squares."),
                        Captioned("Candidates (score, to <from)", AddList(ListId::List2D, "List2D"),
                                  "Every defender move to a scored square: the square's score, the square it goes "
                                  "to, then the square it comes from.")}),
                 "Defenders");
    tabs->addTab(Captioned("Random mover (draw from>to)", AddList(ListId::List1, "List1"),
                           "Every move of the side behind its random draw, smallest draw first: from > to."),
                 "Random");
    tabs->addTab(Captioned("Depth, score (for the side thinking, in pieces), million nodes a second, expected line",
                           AddList(ListId::SearchLines, "SearchLines"),
                           "The strong player's thinking, deepest first: press a line to see its first move"),
                 "Strong");
    // Every tab shows its whole caption: the column is never narrower than
    // its tabs, which keep a narrow padding to leave the board room.
    tabs->setStyleSheet("QTabBar::tab { padding: 4px 7px; }");
    tabs->tabBar()->setElideMode(Qt::ElideNone);
    tabs->setUsesScrollButtons(false);
    for (ListId id : {ListId::List1A, ListId::List1D, ListId::SearchLines})
        lists_[id]->viewport()->installEventFilter(this);

    // The game's record shares the column, above the reasoning, so that a
    // small screen still leaves the board the room.
    auto* record = new QTabWidget;
    record->setObjectName("RecordTabs");
    record->addTab(moves_ = new MoveListPanel(game_), "Moves");
    record->addTab(eventLog_, "Event log");
    QSplitter* column = Stack({record, tabs});
    column->setSizes({400, 600});
    return column;
}

QWidget* MainWindow::BuildDebugPanel() {
    debugPanel_ = new QGroupBox("Computer players: one step at a time");
    debugPanel_->setObjectName("DebugPanel");
    auto* grid = new QGridLayout(debugPanel_);
    const std::pair<const char*, const char*> buttons[] = {
        {"cmdGetAttackerRank", "GetAttackerRank"}, {"cmdMakeRedAutoMove", "MakeRedAutoMove"},
        {"Command4", "MakeGreenAutoMove"},         {"cmdGetDefenderRank", "GetDefenderRank"},
        {"cmdGreenRandom", "GreenRandom"},         {"cmdRedRandom", "RedRandom"},
        {"cmdRedGreenRandom", "Red/GreenRandom"},  {"cmdPathAroundKing", "PathAroundKing"},
        {"cmdCheckKingCapture", "CheckKingCapture"}, {"cmdRouteFromKing", "RouteFromKing"},
    };
    int i = 0;
    for (const auto& [name, caption] : buttons) {
        grid->addWidget(AddButton(name, caption, {}), i / 5, i % 5);
        ++i;
    }
    debugPanel_->hide();
    return debugPanel_;
}

void MainWindow::BuildMenus() {
    QMenu* file = menuBar()->addMenu("&Game");
    auto add = [this](QMenu* menu, const char* name, const QString& caption, QKeySequence keys = {}) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(name);
        if (!keys.isEmpty()) action->setShortcut(keys);
        return action;
    };
    add(file, "mnunewgame", "&New Game...", QKeySequence::New);
    add(file, "mnuundo", "&Undo", QKeySequence::Undo);
    add(file, "mnuhint", "&Hint", QKeySequence(Qt::Key_H));
    QAction* stop = add(file, "mnustopautogame", "S&top AutoGame");
    stop->setShortcuts({QKeySequence(Qt::Key_Space), QKeySequence(Qt::Key_Escape)});
    stop->setEnabled(false);   // while AutoGame plays
    file->addSeparator();
    add(file, "mnuloadgame", "&Load Game...", QKeySequence::Open);
    add(file, "mnusavegame", "&Save Game...", QKeySequence::Save);
    add(file, "mnuexportrecord", "&Export game record...");
    add(file, "mnureviewgame", "Re&view game...");
    add(file, "mnuresetgame", "&Reset Game");
    file->addSeparator();
    add(file, "mnuexit", "E&xit");

    QMenu* view = menuBar()->addMenu("&View");
    debugToggle_ = add(view, "mnudebug", "&Debug Buttons", QKeySequence("Ctrl+D"));
    debugToggle_->setCheckable(true);
    connect(debugToggle_, &QAction::toggled, debugPanel_, &QWidget::setVisible);
    QAction* reasoning = add(view, "mnureasoning", "&Reasoning Panes", QKeySequence("Ctrl+R"));
    reasoning->setCheckable(true);
    reasoning->setChecked(true);
    connect(reasoning, &QAction::toggled, findChild<QWidget*>("ListTabs"), &QWidget::setVisible);
    QAction* coordinates = add(view, "mnutaflcoords", "&Tafl coordinates");
    coordinates->setCheckable(true);

    QMenu* options = menuBar()->addMenu("&Options");
    add(options, "mnuoptions", "&Options...");

    QMenu* help = menuBar()->addMenu("&Help");
    add(help, "mnuhelp", "JarlsVakt &Help", QKeySequence::HelpContents);
    help->addSeparator();
    add(help, "mnuabout", "About");
}

}  // namespace jv::ui
