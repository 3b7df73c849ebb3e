// The game record: the moves of a moves log in standard notation, or the first line that is no single move.
#include <gtest/gtest.h>

#include <sstream>

#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "records/GameRecord.h"
#include "session/GameRecordExport.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "records/TextFile.h"
#include "session/Undo.h"
#include "support/Fixtures.h"

using namespace jv;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {

// A 7x7 position: a defender on a6 (B1) that can take the attacker on d5 (C4) against the King on d4 (D4),
// and an attacker on g2 (F7).
const std::string Start = "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH";

// The record of a log, or "line N: reason" when it is refused.
Lines Verdict(const Lines& log) {
    const GameRecordResult r = MakeGameRecord(log);
    return r.Ok ? r.Lines : Lines{"line " + std::to_string(r.BadLine) + ": " + r.Reason};
}

}  // namespace

TEST(GameRecord, TheMovesOfALoggedGameAreWrittenDefendersFirstWithTheirCaptures) {
    // A logged game is written move by move, defenders first, with its captures, escape and King taken.
    const struct { const char* layout; const char* moves; Lines record; } rows[] = {
        {Start.c_str(), "D2124 A6764 D4441 A6461 A6151 R",
         {"1. a6-d6xd5 g2-d2", "2. d4-a4 d2-a2", "3. ... a2-a3"}},
        {"07070606HEEEEEHEEE1EEEEEE0EEEE10E01EEEEEEEEEEEEE0EHEE1EEH", "A7444 U6667 A4454 U6777",
         {"1. ... d1-d4xc4/e4/d5", "2. f2-g2 d4-d3", "3. g2-g1--"}},
        {"07070606HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEEEH", "U6667 U6777",
         {"line 2: the King reached g1 two moves after the line before, and more than one pair of moves leads there"}},
        {"07070606HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEE1H", "U6667 U6777", {"1. f2-g2", "2. g2-g1--"}},
        {"07070401HEEEEEHEEEEEEE1EEEEEE01EEEEEEEE1EEE0EEEEEEHEEEEEH", "A5451", {"1. ... d3-a3#"}},
    };
    for (const auto& r : rows) {
        TestGame t;
        ASSERT_TRUE(ApplyLayoutLine(t.g, r.layout).Ok());
        t.g.Check1 = false;
        t.g.MovesLogFile = "log.txt";
        std::istringstream moves(r.moves);
        for (std::string m; moves >> m;) {
            const int fc = m[1] - '0', fr = m[2] - '0', tc = m[3] - '0', tr = m[4] - '0';
            if (m[0] == 'D') MakeDefenderMove(t.g, {{fc, fr}, {tc, tr}});
            if (m[0] == 'A') MakeAttackerMove(t.g, {{fc, fr}, {tc, tr}});
            if (m[0] == 'U') EXPECT_TRUE(BeginDrag(t.g, fc, fr) && EndDrag(t.g, tc, tr)) << m;
            if (m[0] == 'R') RecordMove(t.g);
        }
        RecordMove(t.g);   // the recording switched off: the position as it stands
        Lines log;
        ASSERT_TRUE(ReadLines(t.Path("log.txt"), log));
        Lines record = Verdict(log);
        if (record.size() > 3) record.erase(record.begin(), record.begin() + 3);   // the layout, the size, a blank
        EXPECT_EQ(record, r.record) << r.moves;
    }
}

TEST(GameRecord, PositionsThatAreNotOneMoveApartAreReportedAtTheFirstBadLine) {
    // A log line that one legal move cannot reach is reported at that line with the reason, never guessed.
    const std::string taken = "07070404HEEEEEHEEE0EEEEEEEEEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH";
    const std::string blocked = "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEEEEEEEE0E1HEEEEEH";
    const struct { Lines lines; const char* verdict; } rows[] = {
        {{Start, Start, taken}, "accepted"},
        {{Start, taken, "07070404HEEEEEHEEE0EEEEEE1EEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH"}, "line 3: no piece left a square for d5"},
        {{Start, "07070404HEEEEEHEEE0EEEEEE1EEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH"}, "line 2: a6-d6 takes d5, but nothing is gone"},
        {{Start, "07070404HEEEEEHEEEEEEEEEE1EEEEEE0EEEEEEEEEEEEE1EEEHEEEEEH"}, "line 2: g2-d2 takes nothing, but a6 is gone"},
        {{Start, "07070404HEEEEEHEEE0EEEEEEEEEEEEE0EEEEEEEEEEEEE1EEEHEEEEEH"}, "line 2: pieces arrived on d6/d2: more than one move"},
        {{Start, "07070000HEEEEEH0EEEEEEEEE1EEEEEEEEEEEEEEEEEEEE1EEEHEEEEEH"},
         "line 2: the King is gone from d4: he is never taken off the board"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEE1EEEEEEEEHEEEEEH"}, "line 2: g2-f3 runs along neither a rank nor a file"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE0EEEEEE0EEEEEEEEEEEEEEEE1HEEEEEH"}, "line 2: the piece on d5 changed sides"},
        {{blocked, "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEEEEEEE10EEHEEEEEH"}, "line 2: g2-d2 passes over e2"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEEEEEEEEEEEHEEEEE1"}, "line 2: g2-g1: only the King may enter a corner"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE1EEEEEEEEEEEEEEEEEEEEEEE1HEEEEEH"}, "line 2: no piece moved"},
        {{Start, "05050303HEEEHEEEEEEE0EEEEEEEHEEEH"}, "line 2: not a layout line of the 7x7 board"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEEHEEEEEEEE1HEEEEEH"}, "line 2: a Home square off the corners, on e3"},
        {{Start, "07070404HEEEEEH0EEEEEEEEE1EEEEEE0EEEEEEExEEEEEEEE1HEEEEEH"}, "line 2: the square e3 holds no piece letter"},
        {{Start, "07079999" + Start.substr(8)}, "line 2: the King's square 9999 lies outside every board"},
        {{"15150808" + std::string(225, 'E')}, "line 1: not a layout line"},
        {{}, "line 1: no positions"},
    };
    for (const auto& r : rows) {
        const Lines verdict = Verdict(r.lines);
        EXPECT_EQ(verdict.size() == 1 ? verdict.front() : "accepted", r.verdict) << r.lines.size() << " lines";
    }
}

TEST(GameRecord, ANonSquareBoardNamesItsRanksByItsFirstIndex) {
    // On a board of 3 Cols and 5 Rows the files run a..e along the Row and rank 1 is Col 3.
    const std::string start = "03050202HEEEH00EEEHEE1H";
    const std::string attacked = "03050202HEE1H00EEEHEEEH";   // the attacker from C4 to A4
    const std::string kingMoved = "03050205HEE1H0EEE0HEEEH";   // the King from B2 to B5
    EXPECT_EQ(Verdict({start, attacked, kingMoved}), (Lines{"[layout \"" + start + "\"]", "[size \"3x5\"]", "", "1. ... d1-d3", "2. b2-e2"}));
}

TEST(GameRecordExport, TheUndoHistoryIsWrittenAsAGameRecord) {
    // "Export game record..." writes the undo history as a record, or reports the first move that is no move.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("start.txt", Start + "\r\n");
    LoadLayout(g, "start.txt");
    t.view.FileChoices = {"game", "game.txt", "other.txt"};
    ExportGameRecordCommand(g);
    MakeDefenderMove(g, {{2, 1}, {2, 4}});
    MakeAttackerMove(g, {{6, 7}, {6, 4}});
    ExportGameRecordCommand(g);
    MakeDefenderMove(g, {{4, 4}, {4, 1}});
    ExportGameRecordCommand(g);   // not replaced: the question is not answered Yes
    EXPECT_EQ(t.ReadFile("game.txt"), "[layout \"" + Start + "\"]\r\n[size \"7x7\"]\r\n\r\n1. a6-d6xd5 g2-d2\r\n");
    Undo_MouseUp(g, 2);   // the first position picked in the Undo list and played on from
    MakeDefenderMove(g, {{2, 1}, {2, 4}});
    ExportGameRecordCommand(g);
    EXPECT_EQ(t.view.Messages(), (Lines{"No move has been made in this game yet [vbinformation+vbok]",
                                        "Game record saved to file:\r\ngame.txt [vbinformation+vbok]",
                                        "game.txt\r\nOverWrite file? [vbYesNo+vbquestion]",
                                        "The moves cannot be written as a game record:\r\nmove 3: pieces arrived on "
                                        "a6/d5/g2: more than one move [vbcritical+vbok]"}));
    EXPECT_EQ(t.ReadFile("other.txt"), "");
}
