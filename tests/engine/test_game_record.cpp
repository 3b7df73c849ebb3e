// The game record: the moves of a moves log in standard notation, or the first line that is no single move.
#include <gtest/gtest.h>

#include <sstream>

#include "core/Move.h"
#include "session/PlayerMoves.h"
#include "session/Pointer.h"
#include "records/GameRecord.h"
#include "records/Otn.h"
#include "session/GameRecordExport.h"
#include "records/LayoutFile.h"
#include "session/LayoutCommands.h"
#include "records/PositionRecord.h"
#include "records/RulesRecord.h"
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
    const GameRecordResult r = MakeGameRecord(log, Rules::Classic());
    return r.Ok ? r.Lines : Lines{"line " + std::to_string(r.BadLine) + ": " + r.Reason};
}

}  // namespace

TEST(GameRecord, TheMovesOfALoggedGameAreWrittenInTurnWithTheirCapturesAndReadBackToTheSamePositions) {
    // A logged game is written move by move as the sides took turns, with its captures, escape and King taken,
    // and the record read back replays to every logged position.
    const struct { const char* layout; const char* moves; Lines record; } rows[] = {
        {Start.c_str(), "D2124 A6764 D4441 A6461 R",
         {"[rules:dim:7 esc:c surf:n atkf:n tfr:i ka:y ks:y cenh: cenhe: start:/7/6t/7/3K3/3t3/T6/7/]", "",
          "1. a6-d6xd5 g2-d2", "2. Kd4-a4- d2-a2"}},
        {"07070606HEEEEEHEEEEEEEEE1EEEEEE0EEEE10E01EEEEEEE0EHE1EEEH", "A7353 U6667 A5354 U6777",
         {"1. c1-c3xb3/d3/c4 Kf2-g2-", "2. c3-d3 Kg2-g1--"}},
        {"07070401HEEEEEHEEEEEEE1EEEEEE01EEEEEEEE1EEE0EEEEEEHEEEEEH", "A5451",
         {"[rules:dim:7 esc:c surf:n atkf:y tfr:i ka:y ks:y cenh: cenhe: start:/7/T6/3t3/Kt5/t6/7/7/]", "",
          "1. d3-a3++"}},
        {Start.c_str(), "D2124 A6764 A6461", {"line 4: the attackers move twice in a row, where a record has the sides take turns"}},
        {"07070606HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE0EHEEEE1H", "U6667 U6777",
         {"line 2: the defenders move twice in a row, where a record has the sides take turns"}},
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
        if (record.size() > 1 && record.front() == r.record.front()) {
            const OtnGameResult read = ReadOtnGame(JoinLines(record));
            EXPECT_TRUE(read.Ok) << read.Reason;
            EXPECT_EQ(read.Positions.back(), LayoutLine(t.g)) << r.moves;
        }
        if (record.size() > r.record.size()) record.erase(record.begin(), record.begin() + 2);   // the rules, a blank
        EXPECT_EQ(record, r.record) << r.moves;
    }
}

TEST(GameRecord, AnOpenTaflRecordIsReadAndEachMoveTheRulesRefuseIsReported) {
    // Another program's record replays its main line (variations skipped) by these rules, or names the first refusal.
    // Written again, a move ends with "+" when the attackers could take the King with their next move, "-" when the
    // King could escape with his, and nothing when it threatens neither; the marked record reads back.
    const std::string brandubh = "[rules:dim:7 surf:n tfr:i ks:c start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/]\n\n";
    const std::string classic = "esc:c surf:n tfr:i ka:y ks:y cenh: cenhe: ";
    const std::string kingOnC1 = "dim:7 " + classic + "start:/1tK1t2/2t1T2/7/7/7/7/7/\n";
    const std::string threat = "[rules:dim:7 " + classic + "start:/1tK4/2t4/6t/7/7/7/7/]\n";
    const std::string escape = "[rules:dim:7 " + classic + "atkf:n start:/7/7/7/3K3/7/5t1/7/]\n";
    const struct { std::string record; const char* verdict; const char* written = nullptr; } rows[] = {
        {threat + "1. g3-d3", "1 moves", "1. g3-d3+"},
        {threat + "1. g3-g4", "1 moves", "1. g3-g4"},
        {escape + "1. Kd4-a4 f6-a6", "2 moves", "1. Kd4-a4- f6-a6"},
        {escape + "1. Kd4-d5", "1 moves", "1. Kd4-d5"},
        {brandubh + "1. d2-e2 c4-c5\n[a comment|\nover two lines]\n2. e2-e3 Kd4-c4-\n3. ---", "4 moves"},
        {"[rules:dim:7 " + classic + "starti:/7/7/7/7/7/2t1T2/1tK1t2/]\n1. e1-d1++", "1 moves"},
        {"[rules:dim:7 atkf:n " + classic + "start:/7/7/7/7/7/7/3K3/][position:/1tK1t2/2t1T2/7/7/7/7/7/]\n"
         "1. e2-e3 e1-d1++", "2 moves"},
        {"1. d2-e2", "no rules record with a start position"},
        {"[rules:dim:9 start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/]", "the rules record gives dim:9 for a board of 7 ranks"},
        {brandubh + "1. d2-h2", "move 1 (d2-h2): not a move on this board"},
        {brandubh + "1. d3-f3", "move 1 (d3-f3): d3 holds no piece of the attackers"},
        {brandubh + "1. d2-e2 Kd3-f3", "move 2 (Kd3-f3): the King does not stand on d3"},
        {brandubh + "1. d1-d3", "move 1 (d1-d3): d1-d3 passes over d2"},
        {brandubh + "1. d2-e3", "move 1 (d2-e3): d2-e3 runs along neither a rank nor a file"},
        {brandubh + "1. a4-a1", "move 1 (a4-a1): a4-a1: only the King may enter a corner"},
        {"[rules:dim:7 atkf:n start:/3K3/7/7/T6/7/7/7/]\n1. a4-d4", "move 1 (a4-d4): a4-d4: only the King may stop on the centre"},
        {brandubh + "1. d2-e2xe3", "move 1 (d2-e2xe3): d2-e2 takes nothing, not e3"},
        {brandubh + "1. d2-e2++", "move 1 (d2-e2++): d2-e2 does not take the King"},
        {brandubh + "1. d2-e2 c4-c2--", "move 2 (c4-c2--): c4-c2 does not bring the King home"},
        {kingOnC1 + "1. e1-d1 e2-e3", "move 2 (e2-e3): the game ended with move 1"},
        {brandubh + "1. d2-e2 c4-c5\n[|]\n\n1a.1.1a. d2-c2 c4-c6\n[a variation]\n1a.1.2a. Kd4-h9 ---\n"
                    "1b.1.1a. ..... d5-e5\n\n2. e2-e3 Kd4-c4-\n2b.1.1a.1.1a. ..... x9\n3. ---", "4 moves"},
        {brandubh + "1. d2-e2 c4-c5\n[a comment that never ends\n2. e2-e3 Kd4-c4-",
         "the bracket opened on line 4 is never closed"},
    };
    for (const auto& r : rows) {
        const OtnGameResult read = ReadOtnGame(r.record);
        EXPECT_EQ(read.Ok ? std::to_string(read.Positions.size() - 1) + " moves" : read.Reason, r.verdict) << r.record;
        if (!r.written) continue;
        const GameRecordResult written = MakeGameRecord(read.Positions, read.GameRules);
        ASSERT_TRUE(written.Ok) << written.Reason;
        EXPECT_EQ(written.Lines.back(), r.written) << r.record;
        EXPECT_TRUE(ReadOtnGame(JoinLines(written.Lines)).Ok) << r.written;
    }
}

TEST(GameRecord, ARecordIsReplayedUnderTheRuleSetItsRulesRecordNames) {
    // Each rule set's rules record replays a move only its own rules allow, which another set's rules refuse.
    const struct { const char* set; const char* start; bool attackersFirst; const char* moves; const char* other;
                   const char* refused; } rows[] = {
        {"Classic", "/1tK1t2/2t1T2/7/7/7/7/7/", true, "e1-d1++", "Fetlar", "e1-d1 does not take the King"},
        {"Copenhagen", "/1TT4/1tt4/3t3/7/3K3/7/7/", true, "d3-d1xc1/b1", "Fetlar", "d3-d1 takes nothing, not c1/b1"},
        {"Fetlar", "/7/7/7/6K/3t3/7/3T3/", false, "d7-d6xd5", "Classic", "d7-d6 takes nothing, not d5"},
        {"Brandubh", "/7/tK5/7/2t4/7/7/7/", true, "c4-c2++", "Fetlar", "c4-c2 does not take the King"},
        {"Tablut", "/7/7/2K4/7/7/7/7/", false, "Kc3-c1--", "Classic", "Kc3-c1 does not bring the King home"},
        {"Tawlbwrdd", "/7/7/2K4/7/7/7/7/", false, "Kc3-c1--", "Brandubh", "Kc3-c1 does not bring the King home"},
    };
    const auto record = [](const char* set, const auto& r) {
        return "[rules:dim:7 " + RulesRecordKeys(*FindRules(set), r.attackersFirst) + " start:" + r.start + "]\n\n1. " +
               r.moves + "\n";
    };
    for (const auto& r : rows) {
        const OtnGameResult own = ReadOtnGame(record(r.set, r));
        EXPECT_TRUE(own.Ok) << r.set << ": " << own.Reason;
        EXPECT_EQ(own.GameRules, *FindRules(r.set));
        EXPECT_EQ(ReadOtnGame(record(r.other, r)).Reason, "move 1 (" + std::string(r.moves) + "): " + r.refused) << r.set;
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

TEST(GameRecordExport, TheUndoHistoryIsWrittenAsAGameRecordThatLoadsBackToTheSamePosition) {
    // "Export game record..." writes the undo history as an OpenTafl record, or reports the first move that is no
    // move; Load takes the record back and steps through it to the position the game reached.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("start.txt", Start + "\r\n");
    LoadLayout(g, "start.txt");
    t.view.FileChoices = {"game", "game.otg", "game.otg"};
    ExportGameRecordCommand(g);
    MakeDefenderMove(g, {{2, 1}, {2, 4}});
    MakeAttackerMove(g, {{6, 7}, {6, 4}});
    ExportGameRecordCommand(g);
    const std::string reached = LayoutLine(g);
    MakeDefenderMove(g, {{4, 4}, {4, 1}});
    ExportGameRecordCommand(g);   // not replaced: the question is not answered Yes
    EXPECT_EQ(t.ReadFile("game.otg"), "[rules:dim:7 esc:c surf:n atkf:n tfr:i ka:y ks:y cenh: cenhe: "
                                      "start:/7/6t/7/3K3/3t3/T6/7/]\r\n\r\n1. a6-d6xd5 g2-d2\r\n");
    Undo_MouseUp(g, 2);   // the first position picked in the Undo list and played on from
    MakeDefenderMove(g, {{2, 1}, {2, 4}});
    ExportGameRecordCommand(g);
    LoadCommand(g);
    EXPECT_EQ(LayoutLine(g), reached);
    EXPECT_EQ(t.view.Messages(), (Lines{"No move has been made in this game yet [vbinformation+vbok]",
                                        "Game record saved to file:\r\ngame.otg [vbinformation+vbok]",
                                        "game.otg\r\nOverWrite file? [vbYesNo+vbquestion]",
                                        "The moves cannot be written as a game record:\r\nmove 3: pieces arrived on "
                                        "a6/d5/g2: more than one move [vbcritical+vbok]",
                                        "Step 1 of 3\r\nStop ? [vbquestion+vbYesNoCancel]",
                                        "Step 2 of 3\r\nStop ? [vbquestion+vbYesNoCancel]",
                                        "Step 3 of 3\r\nStop ? [vbquestion+vbYesNoCancel]"}));
}

TEST(GameRecordExport, AGameUnderARuleSetIsWrittenWithItsRulesAndLoadsBackUnderThem) {
    // The exported record carries the game's rule set, and Load plays the record under it again.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("start.txt", Start + "\r\n");
    g.GameRules = *FindRules("Brandubh");
    LoadLayout(g, "start.txt");
    MakeAttackerMove(g, {{6, 7}, {6, 4}});
    const std::string reached = LayoutLine(g);
    t.view.FileChoices = {"brandubh.otg", "brandubh.otg"};
    ExportGameRecordCommand(g);
    EXPECT_EQ(t.ReadFile("brandubh.otg"), "[rules:dim:7 name:Brandubh esc:c surf:y atkf:y tfr:i ka:y ks:c cenh:tcnk "
                                          "cenhe:tcnkTCNK start:/7/6t/7/3K3/3t3/T6/7/]\r\n\r\n1. g2-d2\r\n");
    g.GameRules = Rules::Classic();
    LoadCommand(g);
    EXPECT_EQ(g.GameRules, *FindRules("Brandubh"));
    EXPECT_EQ(LayoutLine(g), reached);
}

TEST(GameRecordExport, AnOpenTaflGameTheRulesRefuseIsSteppedToItsLastAllowedMove) {
    // A loaded record stops, with its reason, at the first move the rules refuse; one that cannot start is refused.
    TestGame t;
    Game& g = t.g;
    t.WriteFile("puzzle.otg", "[rules:dim:7 start:/1tK1t2/2t1T2/7/7/7/7/7/]\n1. b1-b2 e2-e3\n2. e1-d1 c1-c2\n");
    t.WriteFile("noking.otg", "[rules:dim:3 start:/3/1T1/3/]\n");
    t.view.FileChoices = {"puzzle.otg", "noking.otg"};
    LoadCommand(g);
    const Lines messages = t.view.Messages();
    EXPECT_EQ(messages.back(), "OpenTafl Game File:\r\npuzzle.otg\r\nstops at a move JarlsVakt refuses: move 4 "
                               "(c1-c2): c1-c2 ends on c2, which is not empty [vbcritical+vbok]");
    EXPECT_EQ(OtnPosition(g), "/2Kt3/1tt4/4T2/7/7/7/7/");
    LoadCommand(g);
    EXPECT_EQ(t.view.Messages().back(), "OpenTafl Game File:\r\nnoking.otg\r\nholds no game JarlsVakt can play: "
                                        "the start position: the position has no King [vbcritical+vbok]");
}
