#pragma once
#include <QWidget>
#include <atomic>
#include <functional>
#include <future>

#include "ai/Search.h"
#include "core/Game.h"
#include "session/MoveList.h"
#include "session/Review.h"

class QLabel;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTimer;

namespace jv::ui {

class EvalGraph;

// The panel of the move list: the move list (every move of the game, two to
// a row, its captures and the game's end), the review's graph under it and
// the reviewed move's verdict. A click on a move or on the graph, or an
// arrow key, shows that position on the board; "Review game..." scores every
// position on a worker thread, with a progress bar and a Stop button.
class MoveListPanel : public QWidget {
    Q_OBJECT
public:
    explicit MoveListPanel(Game& g, QWidget* parent = nullptr);
    ~MoveListPanel() override;

    // Reads the game's moves again soon, once the board has settled.
    void Refresh();
    // Reads them now.
    void RefreshNow();
    // Reviews the game the list shows; nothing while a review runs.
    void StartReview();
    // Stops a running review at once (its scored positions stay).
    void StopReview();
    bool Reviewing() const { return review_.valid(); }
    // The search of each position of a review.
    SearchLimits ReviewLimits;
    // When set, false while the board is between the steps of a move (a
    // capture's pause): the list is read once it has settled.
    std::function<bool()> Settled;

    // True when the review's scores are those of the moves the list shows.
    bool HasReview() const;
    // Writes the graph as a PNG picture (through a temporary file); false
    // when it cannot be written.
    bool SaveGraph(const QString& path);
    const MoveListing& Listing() const { return listing_; }
    const GameReview& Review() const { return reviewed_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void FillTable();
    void ShowMove(int index);
    void ShowVerdict(int index);
    // The position before the shown move, with the strong player's choice.
    void ShowBetterMove();
    // The review's verdict on a move of the list, when it has one.
    const ReviewedMove* VerdictOf(int index) const;
    void PollReview();
    void TakeReview(GameReview review);
    int MoveAt(int row, int column) const;

    Game& g_;
    MoveListing listing_;
    std::vector<PlayedMove> reviewedMoves_;   // the moves the review scored
    GameReview reviewed_;
    QTableWidget* table_ = nullptr;
    EvalGraph* graph_ = nullptr;
    QLabel* verdict_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* stop_ = nullptr;
    QPushButton* better_ = nullptr;
    QTimer* settle_ = nullptr;
    QTimer* poll_ = nullptr;
    std::atomic<bool> stopReview_{false};
    std::atomic<int> scored_{0};
    std::future<GameReview> review_;
};

}  // namespace jv::ui
