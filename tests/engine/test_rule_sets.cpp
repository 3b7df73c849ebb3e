// The rule sets beside the classic one: recorded games replay under them move by move, and their move counts are pinned.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "core/RuleBoard.h"
#include "records/ArchiveGames.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "records/TextFile.h"
#include "support/Fixtures.h"
#include "support/LayoutText.h"

using namespace jv;
using jv::test::TestGame;

namespace {

GameArchive ReadArchive(const std::string& path) {
    std::string text;
    EXPECT_TRUE(ReadWholeFile(path, text)) << path;
    return ReadGameArchive(text);
}

// The side that has won when the game ends on the board after a move of `mover`; "" while it goes on.
std::string WinnerOnBoard(const RuleBoard& board, int mover) {
    const GameState state = board.State();
    if (state == GameState::KingHome || state == GameState::KingInFort) return "defenders";
    if (state == GameState::KingTaken || state == GameState::DefendersEncircled) return "attackers";
    if (board.RuleSet().NoMoveLoses && !board.HasMove()) return mover == AttackerCode ? "attackers" : "defenders";
    return "";
}

std::string Names(const Game& g, const std::set<int>& cells) {
    std::string names;
    for (int cell : cells) names += " " + StandardSquare(g, ColOf(cell), RowOf(cell));
    return names.empty() ? " nothing" : names;
}

// Why the game does not replay on the rule board from the opening g: a move the rules refuse, captures other
// than those marked, an ending on the board before the record's last move or with another winner, or a last
// move that ends nothing where the record names a winner and no word. "" when it replays fully.
std::string ReplayFault(const Game& g, const ArchiveGame& game) {
    const std::string first = g.GameRules.AttackersFirst ? "attackers" : "defenders";
    if (game.First != first) return "the " + game.First + " move first, not the " + first;
    RuleBoard board(g, g.GameRules.AttackersFirst ? AttackerCode : DefenderCode);
    // Some records mark no capture at all, and a move written without its hyphen never marks one.
    const bool marked = std::any_of(game.Moves.begin(), game.Moves.end(),
                                    [](const std::string& m) { return m.find('x') != std::string::npos; });
    for (std::size_t i = 0; i < game.Moves.size(); ++i) {
        const std::string where = "move " + std::to_string(i + 1) + " " + game.Moves[i] + ": ";
        WrittenMove w;
        if (!ReadStandardMove(g, WrittenArchiveMove(game.Moves[i]), w)) return where + "no move";
        const int mover = board.SideToMove();
        if (!board.Allows(w.Squares)) {
            Game now = g;
            board.WriteTo(now);
            return where + RefuseWrittenMove(now, w, mover == AttackerCode ? 'a' : 'd');
        }
        MoveUndo undo;
        board.Make(RuleBoard::ToBoardMove(w.Squares), undo);
        std::set<int> taken(undo.Taken, undo.Taken + undo.Count), written;
        for (const Square& s : w.Captures) written.insert(CellOf(s));
        const bool hyphen = game.Moves[i].find('-') != std::string::npos;
        if (marked && hyphen && taken != written) return where + "takes" + Names(g, taken) + ", marked" + Names(g, written);
        const std::string winner = WinnerOnBoard(board, mover);
        const bool last = i + 1 == game.Moves.size();
        if (!winner.empty() && !last) return where + "ends the game, won by the " + winner;
        if (!winner.empty() && winner != game.Winner) return where + "won by the " + winner + ", not the " + game.Winner;
        if (last && winner.empty() && game.Ending.empty() && game.Winner != "draw")
            return where + "the game goes on, where the " + game.Winner + " won";
    }
    return "";
}

const struct RuleSetGames {
    const char* rules;
    const char* file;
    // The games that do not replay, each with the start of its fault.
    std::map<std::string, std::string> faults;
} Archives[] = {
    // A capture marked beside no square of the move.
    {"Copenhagen", "copenhagen.tsv", {{"game-16-82-29081", "move 23 h9-b9xg10: takes nothing, marked g10"}}},
    {"Fetlar",
     "fetlar.tsv",
     {
         // Two moves written again later: the piece has gone.
         {"game-4-13-30202", "move 58 a6-a9: a6 holds no piece"},
         {"game-4-48-20294", "move 5 a5-c5: a5 holds no piece"},
         // Won by the attackers after a move that ends nothing on the board: the defenders gave up.
         {"game-4-2-2747", "move 25 e11e9: the game goes on"},
         {"game-4-58-19723", "move 67 b9-b7: the game goes on"},
         {"game-4-137-15240", "move 147 g1-g2: the game goes on"},
         {"game-4-148-18021", "move 133 k4-h4xh5: the game goes on"},
     }},
    // Captures marked beside no square of the move; the first game takes g5 again at move 13.
    {"Brandubh",
     "brandubh.tsv",
     {
         {"game-51-363-30145", "move 9 d6-f6xg5: takes nothing, marked g5"},
         {"game-51-62-17183", "move 20 c2-f2xd3: takes nothing, marked d3"},
         {"game-51-3-24832", "move 24 e7-f7xd6xf6: takes f6, marked d6 f6"},
     }},
    {"Tablut", "tablut.tsv", {}},
    {"Tawlbwrdd", "tawlbwrdd.tsv", {{"game-76-149-22959", "move 13 b8-e8xe9xc7xe9: takes e9, marked c7 e9"}}},
};

// Small positions, each one move from an ending: the ranks from the top, each from file a.
const auto ShieldwallAgainstACorner =
    jv::test::LayoutText({"H.....H", ".......", "...K...", ".......", "...a...", ".aa....", "Hdd...H"});
const auto FortClosedOnD3 =
    jv::test::LayoutText({"H.....H", ".......", "..a....", ".......", "..d...d", "..d.d..", "H.dKd.H"});
const auto RingClosedOnF5 =
    jv::test::LayoutText({"H.....H", "...aa..", "..ad..a", "..aKa..", "...a...", ".......", "H.....H"});
const auto KingHomeBesideAnAttacker =
    jv::test::LayoutText({"H.....H", ".......", "....a..", ".......", "K......", ".......", "Had...H"});

// A game under the named rules on a layout line, or on their shipped opening when there is none.
void PlayOn(TestGame& t, const char* rules, const std::string& layout = "") {
    const Rules& set = *FindRules(rules);
    ASSERT_TRUE((layout.empty() ? ReadLayoutFile(t.g, jv::test::DataPath(std::string(set.Layout))) : ApplyLayoutLine(t.g, layout)).Ok())
        << rules << " " << layout;
    t.g.GameRules = set;
}

}  // namespace

TEST(RuleSets, RecordedGamesReplayUnderTheirRules) {
    // Every recorded game of a rule set is allowed move by move, takes exactly the pieces it marks and ends
    // on the board where and as the record ends, save the games listed with their fault.
    for (const auto& set : Archives) {
        ASSERT_NE(FindRules(set.rules), nullptr) << set.rules;
        const GameArchive archive = ReadArchive(jv::test::TestDataPath(std::string("games/") + set.file));
        ASSERT_EQ(archive.Games.size(), 150u) << set.file;
        TestGame t, fromOtn;
        PlayOn(t, set.rules);
        std::string opening, reason;
        ASSERT_TRUE(OtnToLayoutLine(archive.Opening, opening, reason)) << reason;
        ASSERT_TRUE(ApplyLayoutLine(fromOtn.g, opening).Ok());
        EXPECT_EQ(OtnPosition(t.g), OtnPosition(fromOtn.g)) << set.rules << ": the shipped opening is the games' one";
        for (const ArchiveGame& game : archive.Games) {
            const std::string fault = ReplayFault(t.g, game);
            const auto known = set.faults.find(game.Id);
            if (known == set.faults.end()) EXPECT_EQ(fault, "") << set.rules << " " << game.Id;
            else EXPECT_EQ(fault.substr(0, known->second.size()), known->second) << set.rules << " " << game.Id;
        }
    }
}

TEST(RuleSets, MoveCountsArePinned) {
    // The move counts from each opening with its side to move first, and from small positions where a line
    // ends one move in; from the 11x11 opening with the attackers first they are those other tafl programs count.
    const struct { const char* rules; std::string layout; int side; std::vector<std::uint64_t> counts; } rows[] = {
        {"Copenhagen", "", AttackerCode, {116, 6788, 806344, 50456804}},
        {"Fetlar", "", AttackerCode, {116, 6788, 806344}},
        {"Brandubh", "", AttackerCode, {40, 960, 39512}},
        {"Tablut", "", AttackerCode, {80, 4400, 353200}},
        {"Tawlbwrdd", "", AttackerCode, {136, 7620, 1042016}},
        {"Copenhagen", ShieldwallAgainstACorner, AttackerCode, {23, 349, 8808}},
        {"Copenhagen", FortClosedOnD3, DefenderCode, {32, 275, 10155}},
        // Three moves close the ring; in Fetlar the game goes on, and the defenders have one move after each.
        {"Copenhagen", RingClosedOnF5, AttackerCode, {37, 135, 5222}},
        {"Fetlar", RingClosedOnF5, AttackerCode, {37, 138, 5328}},
        {"Fetlar", KingHomeBesideAnAttacker, DefenderCode, {21, 359, 7202}},
    };
    for (const auto& r : rows) {
        TestGame t;
        PlayOn(t, r.rules, r.layout);
        for (std::size_t depth = 1; depth <= r.counts.size(); ++depth)
            EXPECT_EQ(RuleBoard(t.g, r.side).Perft(static_cast<int>(depth)), r.counts[depth - 1])
                << r.rules << " " << r.layout << " depth " << depth;
    }
}

TEST(RuleSets, ShieldwallsFortsRingsAndTheKingsArrivalEndAsTheirRulesSay) {
    // A move's captures and the state it leaves: a shieldwall taken whole but the King, a fort the attackers
    // cannot break, a ring round every defender, and the King's arrival home taking what it sandwiches.
    using jv::test::LayoutText;
    using enum GameState;
    const int a = AttackerCode, d = DefenderCode;
    const auto &wall = ShieldwallAgainstACorner, &fort = FortClosedOnD3, &ring = RingClosedOnF5;
    const auto& home = KingHomeBesideAnAttacker;
    const struct { const char* what; const char* rules; std::string layout; int side; const char* move; GameState state;
                   const char* taken; } rows[] = {
        {"a shieldwall closed against a corner", "Copenhagen", wall, a, "d3-d1", GoesOn, " b1 c1"},
        {"the King in a shieldwall stands", "Copenhagen",
         LayoutText({"H.....H", ".......", "...a...", ".......", "...a...", ".aa....", "HKd...H"}), a, "d3-d1", GoesOn, " c1"},
        {"a shieldwall not faced whole", "Copenhagen",
         LayoutText({"H.....H", ".......", "...K...", ".......", "...a...", "..a....", "Hdd...H"}), a, "d3-d1", GoesOn,
         " nothing"},
        {"no shieldwalls in Fetlar", "Fetlar", wall, a, "d3-d1", GoesOn, " nothing"},
        {"a fort closed", "Copenhagen", fort, d, "g3-d3", KingInFort, " nothing"},
        {"a fort whose wall on d3 two attackers could take", "Copenhagen",
         LayoutText({"H.....H", ".......", "..a....", ".......", "......d", "..d.d..", "H.dKd.H"}), d, "g3-d3", GoesOn,
         " nothing"},
        {"no forts in Fetlar", "Fetlar", fort, d, "g3-d3", GoesOn, " nothing"},
        {"a ring closed", "Copenhagen", ring, a, "g5-f5", DefendersEncircled, " nothing"},
        {"a ring closed in Tablut", "Tablut", ring, a, "g5-f5", DefendersEncircled, " nothing"},
        {"no rings in Fetlar", "Fetlar", ring, a, "g5-f5", GoesOn, " nothing"},
        {"the King home takes", "Fetlar", home, d, "a3-a1", KingHome, " b1"},
        {"the King home is the whole move", "Classic", home, d, "a3-a1", KingHome, " nothing"},
    };
    for (const auto& r : rows) {
        TestGame t;
        PlayOn(t, r.rules, r.layout);
        WrittenMove w;
        RuleBoard board(t.g, r.side);
        ASSERT_TRUE(ReadStandardMove(t.g, r.move, w) && board.Allows(w.Squares)) << r.what;
        MoveUndo undo;
        board.Make(RuleBoard::ToBoardMove(w.Squares), undo);
        EXPECT_EQ(static_cast<int>(board.State()), static_cast<int>(r.state)) << r.what;
        EXPECT_EQ(Names(t.g, std::set<int>(undo.Taken, undo.Taken + undo.Count)), r.taken) << r.what;
    }
}
