#include "ai/Search.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "ai/Evaluation.h"
#include "core/RuleBoard.h"
#include "ai/TranspositionTable.h"

namespace jv {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Infinity = SearchWin + 1;
// Quiescence looks at captures and the King's threats this many plies past
// the search's depth.
constexpr int QuiescePlies = 4;

// Move ordering: the table's move, then captures and attacker moves beside
// the King, then the killer moves, then the rest by their history.
constexpr int TableMoveOrder = 1 << 30;
constexpr int CaptureOrder = 1 << 28;
constexpr int KillerOrder = 1 << 27;
constexpr int HistoryLimit = 1 << 26;


// A draw is a little worse than an even position for the side searching, so
// that it does not go round in circles while it can still play on.
constexpr int Contempt = 40;

// Where a position that comes round again loses for the defenders, a line
// that repeats one is nearly as good as a win for the attackers: repeated
// once, it can be repeated again.
constexpr int RepetitionLoss = 2000;

// Moves picked one by one before the rest of a node's moves is sorted.
constexpr int SortedPicks = 3;

// A best move whose score falls by more than this from one depth to the next
// is not yet clear.
constexpr int ClearFall = 30;

// Sorts moves by their order numbers, highest first.
void SortRest(BoardMove* moves, int* order, int n) {
    struct Scored {
        int Order;
        BoardMove Move;
    };
    Scored scored[MaxMoves];
    for (int i = 0; i < n; ++i) scored[i] = Scored{order[i], moves[i]};
    std::sort(scored, scored + n, [](const Scored& a, const Scored& b) { return a.Order > b.Order; });
    for (int i = 0; i < n; ++i) {
        order[i] = scored[i].Order;
        moves[i] = scored[i].Move;
    }
}


bool Beside(int a, int b) { return a >= 0 && (std::abs(a - b) == 1 || std::abs(a - b) == CellStride); }

// Won and lost scores are stored in the table as distances from the node,
// not from the root.
int ToTable(int score, int ply) { return IsWinScore(score) ? score + ply : IsWinScore(-score) ? score - ply : score; }
int FromTable(int score, int ply) { return IsWinScore(score) ? score - ply : IsWinScore(-score) ? score + ply : score; }

// What the threads of one search share: the table, the count of their nodes,
// and the word that ends the helpers once the first thread is done.
struct SharedSearch {
    explicit SharedSearch(std::size_t megabytes) : Table(megabytes) {}
    TranspositionTable Table;
    std::atomic<std::uint64_t> Nodes{0};
    std::atomic<bool> Done{false};
};

class Searcher {
public:
    // Thread 0 leads the search and reports; the others help it fill the
    // table, every odd one a depth ahead of it so that their work differs.
    Searcher(const Position& g, int side, const SearchLimits& limits, SharedSearch& shared, int thread)
        : board_(g, side), weights_(WeightsFor(board_.RuleSet())), table_(shared.Table), shared_(shared), limits_(limits), thread_(thread),
          history_(2 * CellCount * CellCount, 0), start_(Clock::now()),
          deadline_(start_ + std::chrono::milliseconds(limits.Millis)) {
        for (std::uint64_t key : limits.Played) played_[key % played_.size()] = true;
    }

    SearchResult Run(const std::function<void(const SearchProgress&)>& onProgress);

private:
    bool Clear(const SearchResult& result, const SearchResult& before, int moves, int& steadyDepths) const;
    int Negamax(int depth, int alpha, int beta, int ply, bool nullAllowed);
    int Quiesce(int alpha, int beta, int ply, int qply);
    int Evaluate() const {
        const int score = EvaluateForAttackers(board_, weights_);
        return board_.SideToMove() == AttackerCode ? score : -score;
    }
    bool Repeated(int ply) const;
    int DrawScore(int ply) const;   // of a position that came round again
    bool Stopped();
    double Seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }
    int ThreatAnswers(BoardMove* moves, const std::array<bool, CellCount>& lines) const;
    void Order(const BoardMove* moves, int n, int* order, BoardMove tableMove, int ply) const;
    void Prefer(BoardMove m, int depth, int ply);
    int& History(BoardMove m) { return history_[(board_.SideToMove() * CellCount + m.From) * CellCount + m.To]; }
    int HistoryOf(BoardMove m) const {
        return history_[(board_.SideToMove() * CellCount + m.From) * CellCount + m.To];
    }
    void Extend(int ply, BoardMove m);
    int KingHome(int ply);
    std::vector<Move> Pv() const;

    RuleBoard board_;
    const EvaluationWeights& weights_;
    TranspositionTable& table_;
    SharedSearch& shared_;
    SearchLimits limits_;
    int thread_ = 0;
    std::array<std::uint64_t, SearchMaxPly + 1> keys_{};
    std::array<std::array<BoardMove, 2>, SearchMaxPly> killers_{};
    std::vector<int> history_;
    std::array<std::array<BoardMove, SearchMaxPly>, SearchMaxPly> pv_{};
    std::array<int, SearchMaxPly> pvLength_{};
    // A quick first test of the game's earlier positions, by key.
    std::array<bool, 4096> played_{};
    std::uint64_t nodes_ = 0;
    bool stopped_ = false;
    Clock::time_point start_, deadline_;
};

bool Searcher::Repeated(int ply) const {
    for (int p = ply - 2; p >= 0; p -= 2)
        if (keys_[p] == keys_[ply]) return true;
    if (!played_[keys_[ply] % played_.size()]) return false;
    return std::find(limits_.Played.begin(), limits_.Played.end(), keys_[ply]) != limits_.Played.end();
}

int Searcher::DrawScore(int ply) const {
    if (board_.RuleSet().RepetitionLosesForDefenders)
        return board_.SideToMove() == DefenderCode ? -RepetitionLoss : RepetitionLoss;
    return ply % 2 == 0 ? -Contempt : Contempt;
}

bool Searcher::Stopped() {
    if ((nodes_ & 1023) == 0 && !stopped_) {
        shared_.Nodes.fetch_add(1024, std::memory_order_relaxed);
        if (shared_.Done.load(std::memory_order_relaxed)) stopped_ = true;
        if (limits_.Stop && limits_.Stop->load(std::memory_order_relaxed)) stopped_ = true;
        if (limits_.Millis > 0 && Clock::now() >= deadline_) stopped_ = true;
    }
    return stopped_;
}

// The principal variation at ply: m, then the line below it.
void Searcher::Extend(int ply, BoardMove m) {
    pv_[ply][ply] = m;
    for (int p = ply + 1; p < pvLength_[ply + 1]; ++p) pv_[ply][p] = pv_[ply + 1][p];
    pvLength_[ply] = std::max(pvLength_[ply + 1], ply + 1);
}

// The defenders to move with a free line to a corner: the King goes home.
int Searcher::KingHome(int ply) {
    if (board_.KingMoveHome(pv_[ply][ply])) pvLength_[ply] = ply + 1;
    return SearchWin - (ply + 1);
}

void Searcher::Order(const BoardMove* moves, int n, int* order, BoardMove tableMove, int ply) const {
    const bool attacker = board_.SideToMove() == AttackerCode;
    for (int i = 0; i < n; ++i) {
        const BoardMove m = moves[i];
        if (m == tableMove) order[i] = TableMoveOrder;
        else if (board_.Captures(m) || (attacker && Beside(board_.King(), m.To))) order[i] = CaptureOrder;
        else if (m == killers_[ply][0]) order[i] = KillerOrder;
        else if (m == killers_[ply][1]) order[i] = KillerOrder - 1;
        else order[i] = HistoryOf(m);
    }
}

// A quiet move that refuted the position: a killer at its ply, and its history grows.
void Searcher::Prefer(BoardMove m, int depth, int ply) {
    if (!(killers_[ply][0] == m)) {
        killers_[ply][1] = killers_[ply][0];
        killers_[ply][0] = m;
    }
    int& h = History(m);
    h += depth * depth;
    if (h > HistoryLimit)
        for (int& v : history_) v /= 2;
}

int Searcher::Quiesce(int alpha, int beta, int ply, int qply) {
    pvLength_[ply] = ply;
    if (board_.SideToMove() == DefenderCode && board_.KingRoutes() > 0) return KingHome(ply);
    // Where a side that cannot move loses, the quiet look past the depth sees it too.
    if (board_.RuleSet().NoMoveLoses && !board_.HasMove()) return -(SearchWin - ply);
    if (ply >= SearchMaxPly - 1 || Stopped()) return Evaluate();

    const bool threatened = board_.SideToMove() == AttackerCode && board_.KingRoutes() > 0;
    BoardMove moves[MaxMoves];
    int n = 0;
    int best = -Infinity;
    if (threatened) {
        std::array<bool, CellCount> lines{};
        board_.KingRoutes(&lines);
        n = ThreatAnswers(moves, lines);
        best = -(SearchWin - (ply + 2));
    } else {
        best = Evaluate();
        if (best >= beta || qply >= QuiescePlies) return best;
        n = board_.GenerateTactical(moves);
    }
    alpha = std::max(alpha, best);
    const int king = board_.King();
    for (int i = 0; i < n; ++i) {
        const BoardMove m = moves[i];
        MoveUndo undo;
        board_.Make(m, undo);
        ++nodes_;
        int score;
        if (board_.State() != GameState::GoesOn) {
            score = SearchWin - (ply + 1);
        } else if (m.From == king && board_.KingRoutes() == 0 && undo.Count == 0) {
            // A King move that neither takes a piece nor opens a line to a corner is not a threat.
            board_.Unmake(m, undo);
            continue;
        } else {
            score = -Quiesce(-beta, -alpha, ply + 1, qply + 1);
        }
        board_.Unmake(m, undo);
        if (score > best) {
            best = score;
            if (score > alpha) {
                alpha = score;
                Extend(ply, m);
                if (score >= beta) break;
            }
        }
    }
    return best;
}

// The attackers facing a free line from the King to a corner: only their
// moves onto that line or beside him (which may take him) can save them;
// every move when he is closed in already, for any move then takes him.
int Searcher::ThreatAnswers(BoardMove* moves, const std::array<bool, CellCount>& lines) const {
    if (board_.KingSurrounded()) return board_.Generate(moves);
    std::uint8_t targets[CellCount];
    int count = 0;
    for (int cell = 0; cell < CellCount; ++cell)
        if (lines[cell]) targets[count++] = static_cast<std::uint8_t>(cell);
    for (int step : CellSteps)
        if (!lines[board_.King() + step]) targets[count++] = static_cast<std::uint8_t>(board_.King() + step);
    return board_.GenerateOnto(targets, count, moves);
}

int Searcher::Negamax(int depth, int alpha, int beta, int ply, bool nullAllowed) {
    pvLength_[ply] = ply;
    if (ply > 0 && Repeated(ply)) return DrawScore(ply);
    if (board_.SideToMove() == DefenderCode && board_.KingRoutes() > 0) return KingHome(ply);
    if (depth <= 0 || ply >= SearchMaxPly - QuiescePlies - 2) return Quiesce(alpha, beta, ply, 0);
    if (Stopped()) return 0;

    const bool pvNode = beta - alpha > 1;
    // The attackers facing a free line from the King to his escape answer it
    // a ply deeper, as a chess engine answers a check: such threats decide games.
    const bool threatened = board_.SideToMove() == AttackerCode && board_.KingRoutes() > 0;
    if (threatened) ++depth;
    TableEntry entry;
    const bool known = table_.Find(board_.Key(), entry);
    const BoardMove tableMove = known ? entry.Move : BoardMove{};
    if (known && !pvNode && entry.Depth >= depth) {
        const int score = FromTable(entry.Score, ply);
        if (entry.Kind == Bound::Exact || (entry.Kind == Bound::Lower && score >= beta) ||
            (entry.Kind == Bound::Upper && score <= alpha))
            return score;
    }

    // Null move: when passing still holds the position above beta, a move will too.
    if (!pvNode && nullAllowed && !threatened && depth >= 3 && Evaluate() >= beta) {
        board_.MakeNull();
        keys_[ply + 1] = board_.Key();
        const int score = -Negamax(depth - 3, -beta, -beta + 1, ply + 1, false);
        board_.UnmakeNull();
        if (stopped_) return 0;
        if (score >= beta && !IsWinScore(score)) return score;
    }

    BoardMove moves[MaxMoves];
    int n = board_.Generate(moves);
    if (n == 0) return -(SearchWin - ply);   // a side that cannot move has lost
    if (threatened) {
        std::array<bool, CellCount> lines{};
        board_.KingRoutes(&lines);
        n = ThreatAnswers(moves, lines);
        if (n == 0) return -(SearchWin - (ply + 2));
    }
    int order[MaxMoves];
    Order(moves, n, order, tableMove, ply);

    const int alphaBefore = alpha;
    int best = -Infinity;
    BoardMove bestMove = moves[0];
    for (int i = 0; i < n; ++i) {
        // The first moves are picked one at a time, as a cut-off often comes
        // early; past them the rest is sorted at once.
        if (i < SortedPicks) {
            const int pick = static_cast<int>(std::max_element(order + i, order + n) - order);
            std::swap(moves[i], moves[pick]);
            std::swap(order[i], order[pick]);
        } else if (i == SortedPicks) {
            SortRest(moves + i, order + i, n - i);
        }
        const BoardMove m = moves[i];
        const bool quiet = order[i] < KillerOrder - 1;

        MoveUndo undo;
        board_.Make(m, undo);
        ++nodes_;
        int score;
        if (board_.State() != GameState::GoesOn) {
            score = SearchWin - (ply + 1);
        } else {
            keys_[ply + 1] = board_.Key();
            if (i == 0) {
                score = -Negamax(depth - 1, -beta, -alpha, ply + 1, true);
            } else {
                // Late quiet moves are searched shallower first, and again in full when they surprise.
                const int reduction = depth >= 3 && i >= 3 && quiet ? (i >= 10 && depth >= 5 ? 2 : 1) : 0;
                score = -Negamax(depth - 1 - reduction, -alpha - 1, -alpha, ply + 1, true);
                if (score > alpha && reduction > 0) score = -Negamax(depth - 1, -alpha - 1, -alpha, ply + 1, true);
                if (score > alpha && score < beta) score = -Negamax(depth - 1, -beta, -alpha, ply + 1, true);
            }
        }
        board_.Unmake(m, undo);
        if (stopped_) return 0;
        if (score <= best) continue;
        best = score;
        bestMove = m;
        if (score <= alpha) continue;
        alpha = score;
        Extend(ply, m);
        if (score >= beta) {
            if (quiet) Prefer(m, depth, ply);
            break;
        }
    }

    const Bound kind = best >= beta ? Bound::Lower : best > alphaBefore ? Bound::Exact : Bound::Upper;
    table_.Store(TableEntry{board_.Key(), ToTable(best, ply), bestMove, static_cast<std::int8_t>(depth), kind});
    return best;
}

std::vector<Move> Searcher::Pv() const {
    std::vector<Move> line;
    for (int p = 0; p < pvLength_[0]; ++p) line.push_back(RuleBoard::ToMove(pv_[0][p]));
    return line;
}

// Whether the search may stop before its time: the only move, or the same
// best move for several depths without its score falling, seen after a part
// of the time that shrinks the steadier the move has been.
bool Searcher::Clear(const SearchResult& result, const SearchResult& before, int moves, int& steadyDepths) const {
    if (moves == 1) return true;
    const bool steady = before.Depth > 0 && result.Best == before.Best && result.Score >= before.Score - ClearFall;
    steadyDepths = steady ? steadyDepths + 1 : 0;
    const double share = steadyDepths >= 3 ? 0.15 : steadyDepths >= 1 ? 0.3 : 0.5;
    return Seconds() * 1000 > share * limits_.Millis;
}

SearchResult Searcher::Run(const std::function<void(const SearchProgress&)>& onProgress) {
    SearchResult result;
    BoardMove moves[MaxMoves];
    const int n = board_.State() == GameState::GoesOn ? board_.Generate(moves) : 0;
    if (n == 0) return result;
    result.HasMove = true;
    result.Best = RuleBoard::ToMove(moves[0]);   // should even the first depth be cut short
    keys_[0] = board_.Key();
    int steadyDepths = 0;
    for (int depth = 1 + thread_ % 2; depth <= std::min(limits_.MaxDepth, SearchMaxPly / 2); ++depth) {
        const int score = Negamax(depth, -Infinity, Infinity, 0, false);
        if (stopped_) {
            if (depth == 1 && pvLength_[0] > 0) result.Best = RuleBoard::ToMove(pv_[0][0]);
            break;
        }
        const SearchResult before = result;
        result.Score = score;
        result.Depth = depth;
        result.Pv = Pv();
        if (!result.Pv.empty()) result.Best = result.Pv.front();
        if (thread_ > 0) continue;
        const double seconds = Seconds();
        const std::uint64_t nodes = std::max(nodes_, shared_.Nodes.load(std::memory_order_relaxed));
        if (onProgress)
            onProgress(SearchProgress{depth, score, nodes, seconds > 0 ? nodes / seconds : 0, result.Pv});
        // A forced result is final; and a depth begun after half the time would rarely end.
        if (IsWinScore(std::abs(score))) break;
        if (limits_.Millis > 0 && seconds * 1000 > limits_.Millis / 2.0) break;
        if (limits_.StopWhenClear && limits_.Millis > 0 && Clear(result, before, n, steadyDepths)) break;
    }
    result.Nodes = nodes_;
    result.Millis = Seconds() * 1000;
    return result;
}

}  // namespace

int MachineThreads() { return std::max(1, static_cast<int>(std::thread::hardware_concurrency())); }

std::uint64_t PositionKey(const Position& g, int side) { return RuleBoard(g, side).Key(); }

// The helpers search until the first thread is done; its move stands unless a
// helper completed a deeper search, whose move is then the better informed.
SearchResult SearchBestMove(const Position& g, int side, const SearchLimits& limits,
                            const std::function<void(const SearchProgress&)>& onProgress) {
    SharedSearch shared(limits.TableMegabytes);
    const int helpers = std::max(1, limits.Threads) - 1;
    std::vector<SearchResult> helped(helpers);
    std::vector<std::thread> threads;
    for (int t = 1; t <= helpers; ++t)
        threads.emplace_back([&, t] { helped[t - 1] = Searcher(g, side, limits, shared, t).Run({}); });
    SearchResult result = Searcher(g, side, limits, shared, 0).Run(onProgress);
    shared.Done = true;
    for (std::thread& thread : threads) thread.join();
    for (const SearchResult& h : helped) {
        result.Nodes += h.Nodes;
        if (h.Depth > result.Depth && !h.Pv.empty()) {
            result.Best = h.Best;
            result.Score = h.Score;
            result.Depth = h.Depth;
            result.Pv = h.Pv;
        }
    }
    return result;
}

}  // namespace jv
