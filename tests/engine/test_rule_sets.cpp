// The rule sets beside the classic one: recorded games replay under them move by move, and their move counts are pinned.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/RuleBoard.h"
#include "records/GameRecord.h"
#include "records/LayoutFile.h"
#include "records/Notation.h"
#include "records/Otn.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;

namespace {

// One recorded game: its id, the side that moved first, the winner and its moves as written, the word that
// ends a game without a move ("resigned", "timeout") among them.
struct Record {
    std::string Id, First, Winner;
    std::vector<std::string> Moves;
};

// A file of recorded games: the opening as an OpenTafl position, then the games.
struct Archive {
    std::string Opening;
    std::vector<Record> Games;
};

Archive ReadArchive(const std::string& path) {
    Archive archive;
    std::ifstream in(path);
    std::string line;
    std::getline(in, line);
    archive.Opening = line.substr(line.find("): ") + 3);
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        Record game;
        std::getline(fields, game.Id, '\t');
        std::getline(fields, game.First, '\t');
        std::getline(fields, game.Winner, '\t');
        for (std::string move; fields >> move;) game.Moves.push_back(move);
        archive.Games.push_back(game);
    }
    return archive;
}

// A move as the archive writes it ("d5-d6xc6xe6", "d11d9") in the program's written form ("d5-d6xc6/e6").
std::string WrittenForm(std::string text) {
    if (text.find('-') == std::string::npos) {
        const auto second = std::find_if(text.begin() + 1, text.end(), [](char c) { return c >= 'a' && c <= 'z'; });
        text.insert(second, '-');
    }
    for (std::size_t x = text.find('x'); (x = text.find('x', x + 1)) != std::string::npos;) text[x] = '/';
    return text;
}

// The side that has won when the game ends on the board after a move of `mover`; "" while it goes on.
std::string WinnerOnBoard(const RuleBoard& board, int mover) {
    switch (board.State()) {
        case GameState::KingHome:
        case GameState::KingInFort: return "defenders";
        case GameState::KingTaken:
        case GameState::DefendersEncircled: return "attackers";
        case GameState::GoesOn: break;
    }
    if (board.RuleSet().NoMoveLoses && !board.HasMove()) return mover == AttackerCode ? "attackers" : "defenders";
    return "";
}

std::string Names(const Game& g, const std::set<int>& cells) {
    std::string names;
    for (int cell : cells) names += " " + StandardSquare(g, ColOf(cell), RowOf(cell));
    return names.empty() ? " nothing" : names;
}

// Why the game does not replay on the rule board from the opening g: a move the rules refuse, captures other
// than those marked, or an ending on the board that is not the record's. "" when it replays fully.
std::string ReplayFault(const Game& g, const Record& game) {
    const std::string first = g.GameRules.AttackersFirst ? "attackers" : "defenders";
    if (game.First != first) return "the " + game.First + " move first, not the " + first;
    RuleBoard board(g, g.GameRules.AttackersFirst ? AttackerCode : DefenderCode);
    // The oldest records mark no capture at all.
    const bool marked = std::any_of(game.Moves.begin(), game.Moves.end(),
                                    [](const std::string& m) { return m.find('x') != std::string::npos; });
    for (std::size_t i = 0; i < game.Moves.size(); ++i) {
        const std::string where = "move " + std::to_string(i + 1) + " " + game.Moves[i] + ": ";
        WrittenMove w;
        if (!ReadStandardMove(g, WrittenForm(game.Moves[i]), w)) {
            if (i + 1 == game.Moves.size()) break;   // the word that ends the game
            return where + "no move";
        }
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
        if (marked && taken != written) return where + "takes" + Names(g, taken) + ", marked" + Names(g, written);
        const std::string winner = WinnerOnBoard(board, mover);
        const bool last = i + 1 == game.Moves.size();
        if (!winner.empty() && !last) return where + "ends the game, won by the " + winner;
        if (!winner.empty() && winner != game.Winner) return where + "won by the " + winner + ", not the " + game.Winner;
        if (last && winner.empty() && game.Winner != "draw") return where + "the game goes on, where the " + game.Winner + " won";
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

}  // namespace

TEST(RuleSets, RecordedGamesReplayUnderTheirRules) {
    // Every recorded game of a rule set is allowed move by move, takes exactly the pieces it marks and ends
    // on the board where and as the record ends, save the games listed with their fault.
    for (const auto& set : Archives) {
        const Rules* rules = FindRules(set.rules);
        ASSERT_NE(rules, nullptr) << set.rules;
        const Archive archive = ReadArchive(jv::test::TestDataPath(std::string("games/") + set.file));
        ASSERT_EQ(archive.Games.size(), 150u) << set.file;
        TestGame t;
        ASSERT_TRUE(ReadLayoutFile(t.g, jv::test::DataPath(std::string(rules->Layout))).Ok());
        std::string opening, reason;
        ASSERT_TRUE(OtnToLayoutLine(archive.Opening, opening, reason)) << reason;
        TestGame fromOtn;
        ASSERT_TRUE(ApplyLayoutLine(fromOtn.g, opening).Ok());
        EXPECT_EQ(OtnPosition(t.g), OtnPosition(fromOtn.g)) << set.rules << ": the shipped opening is the games' one";
        t.g.GameRules = *rules;
        int replayed = 0;
        for (const Record& game : archive.Games) {
            const std::string fault = ReplayFault(t.g, game);
            replayed += fault.empty();
            const auto known = set.faults.find(game.Id);
            if (known == set.faults.end()) EXPECT_EQ(fault, "") << set.rules << " " << game.Id;
            else EXPECT_EQ(fault.substr(0, known->second.size()), known->second) << set.rules << " " << game.Id;
        }
        EXPECT_EQ(replayed, 150 - static_cast<int>(set.faults.size())) << set.rules;
    }
}
