#include "ui/MoveListPanel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "core/GameView.h"
#include "core/Move.h"
#include "ui/EvalGraph.h"

namespace jv::ui {

namespace {

// How long the board must stay still before the list is read again: a move
// draws several squares one after the other.
constexpr int SettleMillis = 30;
// How often a running review's progress is looked at.
constexpr int PollMillis = 50;
// A review thinks about each position this long unless told otherwise.
constexpr int ReviewMillis = 300;

QTableWidgetItem* Item(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

}  // namespace

MoveListPanel::MoveListPanel(Game& g, QWidget* parent) : QWidget(parent), g_(g) {
    setObjectName("MoveListPanel");
    ReviewLimits.Millis = ReviewMillis;
    ReviewLimits.Threads = MachineThreads();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);

    table_ = new QTableWidget(0, 2);
    table_->setObjectName("MoveList");
    table_->setToolTip("Every move of the game: click one, or step with the arrow keys, to show the position after it");
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->setMinimumHeight(40);   // two moves' rows, on a short window
    table_->installEventFilter(this);
    layout->addWidget(table_, 3);

    graph_ = new EvalGraph;
    graph_->setObjectName("EvalGraph");
    layout->addWidget(graph_, 1);   // taller as the window is
    verdict_ = new QLabel;
    verdict_->setObjectName("ReviewVerdict");
    verdict_->setWordWrap(true);
    layout->addWidget(verdict_);
    better_ = new QPushButton("Show the better move");
    better_->setObjectName("cmdbettermove");
    better_->setToolTip("The position before the move, with the strong player's choice as an arrow");
    better_->setEnabled(false);
    layout->addWidget(better_);
    auto* running = new QHBoxLayout;
    progress_ = new QProgressBar;
    progress_->setObjectName("ReviewProgress");
    stop_ = new QPushButton("Stop");
    stop_->setObjectName("cmdstopreview");
    stop_->setToolTip("Stop the review; the positions scored so far stay");
    running->addWidget(progress_, 1);
    running->addWidget(stop_);
    layout->addLayout(running);
    progress_->hide();
    stop_->hide();

    settle_ = new QTimer(this);
    settle_->setSingleShot(true);
    settle_->setInterval(SettleMillis);
    poll_ = new QTimer(this);
    poll_->setInterval(PollMillis);
    connect(settle_, &QTimer::timeout, this, &MoveListPanel::RefreshNow);
    connect(poll_, &QTimer::timeout, this, &MoveListPanel::PollReview);
    connect(stop_, &QPushButton::clicked, this, &MoveListPanel::StopReview);
    connect(better_, &QPushButton::clicked, this, &MoveListPanel::ShowBetterMove);
    connect(table_, &QTableWidget::cellClicked, this, [this](int row, int column) { ShowMove(MoveAt(row, column)); });
    connect(graph_, &EvalGraph::PositionClicked, this, [this](int position) { ShowMove(position - 1); });
}

MoveListPanel::~MoveListPanel() {
    // The worker reads nothing of the window, but its result must be waited for.
    StopReview();
}

void MoveListPanel::Refresh() {
    if (!Settled || Settled()) settle_->start();
    else settle_->start(SettleMillis * 10);
}

void MoveListPanel::RefreshNow() {
    if (Settled && !Settled()) {
        settle_->start();
        return;
    }
    listing_ = ListMoves(g_);
    graph_->SetColours(g_.ColourTable);
    FillTable();
}

bool MoveListPanel::HasReview() const {
    return !reviewed_.Scores.empty() && reviewedMoves_.size() == listing_.Moves.size() &&
           std::equal(listing_.Moves.begin(), listing_.Moves.end(), reviewedMoves_.begin(),
                      [](const PlayedMove& a, const PlayedMove& b) { return a.After == b.After; });
}

bool MoveListPanel::SaveGraph(const QString& path) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && graph_->grab().save(&file, "PNG") && file.commit();
}

int MoveListPanel::MoveAt(int row, int column) const {
    const int index = row * 2 + column;
    return index < static_cast<int>(listing_.Moves.size()) ? index : -2;
}

void MoveListPanel::FillTable() {
    const auto& moves = listing_.Moves;
    const bool reviewed = HasReview();
    const std::string note = !listing_.Problem.empty() ? listing_.Problem : listing_.Ending;
    const int rows = static_cast<int>((moves.size() + 1) / 2) + (note.empty() ? 0 : 1);
    table_->clearSpans();
    table_->setRowCount(rows);
    const bool attackersFirst = !moves.empty() ? !moves.front().Defenders : g_.GameRules.AttackersFirst;
    table_->setHorizontalHeaderLabels(attackersFirst ? QStringList{"Attackers", "Defenders"}
                                                     : QStringList{"Defenders", "Attackers"});
    QStringList numbers;
    for (std::size_t i = 0; i < moves.size(); ++i) {
        std::string text = ListedMoveText(g_, moves[i].Written);
        if (reviewed && i < reviewed_.Moves.size()) text += " " + reviewed_.Moves[i].Mark;
        QTableWidgetItem* item = Item(QString::fromStdString(text));
        if (reviewed) item->setToolTip(QString::fromStdString(ReviewLine(g_, moves, reviewed_, i)));
        table_->setItem(static_cast<int>(i / 2), static_cast<int>(i % 2), item);
        if (i % 2 == 0) numbers << QString::number(i / 2 + 1);
    }
    if (moves.size() % 2 == 1) table_->setItem(rows - (note.empty() ? 1 : 2), 1, Item({}));
    if (!note.empty()) {
        table_->setSpan(rows - 1, 0, 1, 2);
        table_->setItem(rows - 1, 0, Item(QString::fromStdString(note)));
        numbers << "";
    }
    table_->setVerticalHeaderLabels(numbers);
    if (listing_.Shown >= 0) table_->setCurrentCell(listing_.Shown / 2, listing_.Shown % 2);
    else table_->clearSelection();
    if (!reviewed) graph_->SetChances({}, {});
    graph_->SetShown(listing_.Shown + 1);
    ShowVerdict(listing_.Shown);
}

void MoveListPanel::ShowMove(int index) {
    if (index < -1 || index >= static_cast<int>(listing_.Moves.size())) return;
    ShowListedMove(g_, listing_, index);
    RefreshNow();
}

const ReviewedMove* MoveListPanel::VerdictOf(int index) const {
    const bool known = index >= 0 && static_cast<std::size_t>(index) < reviewed_.Moves.size() && HasReview();
    return known ? &reviewed_.Moves[static_cast<std::size_t>(index)] : nullptr;
}

void MoveListPanel::ShowBetterMove() {
    const int index = listing_.Shown;
    const ReviewedMove* verdict = VerdictOf(index);
    if (!verdict || !verdict->BestDiffers || verdict->BestLine.empty()) return;
    ShowMove(index - 1);
    ShowDragLine(g_, verdict->BestLine.front());
}

void MoveListPanel::ShowVerdict(int index) {
    const ReviewedMove* verdict = VerdictOf(index);
    verdict_->setText(verdict ? QString::fromStdString(ReviewLine(g_, listing_.Moves, reviewed_, static_cast<std::size_t>(index)))
                              : QString());
    better_->setEnabled(verdict && verdict->BestDiffers && !verdict->BestLine.empty());
}

bool MoveListPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == table_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int step = key == Qt::Key_Left || key == Qt::Key_Up ? -1 : key == Qt::Key_Right || key == Qt::Key_Down ? 1 : 0;
        if (step != 0) {
            const int last = static_cast<int>(listing_.Moves.size()) - 1;
            ShowMove(std::clamp(listing_.Shown + step, -1, last));
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void MoveListPanel::StartReview() {
    if (Reviewing()) return;
    RefreshNow();
    if (listing_.Positions.empty()) return;
    reviewedMoves_ = listing_.Moves;
    stopReview_ = false;
    scored_ = 0;
    SearchLimits limits = ReviewLimits;
    limits.Stop = &stopReview_;
    progress_->setRange(0, static_cast<int>(reviewedMoves_.size()) + 1);
    progress_->setValue(0);
    progress_->show();
    stop_->show();
    review_ = std::async(std::launch::async, [this, start = listing_.Positions.front(), moves = reviewedMoves_,
                                              rules = g_.GameRules, limits] {
        return ReviewGame(start, moves, rules, limits, [this](int scored, int) { scored_ = scored; });
    });
    poll_->start();
}

void MoveListPanel::StopReview() {
    if (!Reviewing()) return;
    stopReview_ = true;
    TakeReview(review_.get());
}

void MoveListPanel::PollReview() {
    if (!Reviewing()) return;
    progress_->setValue(scored_);
    if (review_.wait_for(std::chrono::seconds(0)) == std::future_status::ready) TakeReview(review_.get());
}

void MoveListPanel::TakeReview(GameReview review) {
    poll_->stop();
    progress_->hide();
    stop_->hide();
    reviewed_ = std::move(review);
    std::vector<double> chances;
    for (int score : reviewed_.Scores) chances.push_back(DefenderChance(score));
    std::vector<bool> marked;
    for (const ReviewedMove& m : reviewed_.Moves) marked.push_back(!m.Mark.empty());
    RefreshNow();
    graph_->SetChances(std::move(chances), std::move(marked));
}

}  // namespace jv::ui
