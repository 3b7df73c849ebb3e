// The command-line tool: each command's output, its refusals and its exit codes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "core/Rules.h"
#include "support/Fixtures.h"
#include "support/RunCli.h"

using jv::test::RunCli;
using jv::test::TestGame;
using Lines = std::vector<std::string>;

namespace {
const std::string Small = "05050303HEEEHE1EEEEE0EEEEEEEHEEEH";
const std::string Moved = "05050303HEEEHEEE1EEE0EEEEEEEHEEEH";   // the attacker from B2 to B4
const std::string KingMoved = "05050403HEEEHEEE1EEEEEEEE0EEHEEEH";   // then the King from C3 to D3

}  // namespace

TEST(Cli, EachCommandPrintsItsResultOrRefusesWithItsExitCode) {
    // Each command prints its result and exits 0, 2 when it cannot read or play its input (saying why), 1 on misuse.
    TestGame t;
    t.CopyData();
    t.WriteFile("small.txt", Small + "\r\n");
    t.WriteFile("game.txt", Small + "\r\n" + Moved + "\r\n" + KingMoved + "\r\n");
    t.WriteFile("noking.log", "03030000HEHE0EHEH\r\n");
    const std::string brandubh = "[rules:dim:7 surf:n tfr:i ks:c start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/]\n\n1. d2-e2 ";
    t.WriteFile("game.otg", brandubh + "c4-c5\n");
    t.WriteFile("bad.otg", brandubh + "c4-h5\n");
    t.WriteFile("kingless.txt", "07070000HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH\r\n");
    t.WriteFile("kingonattacker.txt", "07070104HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH\r\n");
    t.WriteFile("two.txt", "02020101HHHH\r\n");
    const std::string soakLogs = "'" + t.Path("soak") + "'";
    t.WriteFile("bad.txt", Small + "\r\n" + Moved + "\r\n" + Small + "\r\n" + KingMoved + "\r\n");
    t.WriteFile("kinghome.txt", "07070104HEE0EEH" + std::string(35, 'E') + "HEEEEEH\r\n");
    t.WriteFile("taken.txt", "07070401HEEEEEHE1EEEEE10EEEEE0EEEEEE1EEEEEEE1EEEEEHEEEEEH\r\n");
    // The attackers could take the King on a3 with b1-b3; a2-c2 lets him home.
    t.WriteFile("blunder.txt", "05050301HEEEH1EEEE0EEEE1EEEEH1EEH\r\n05050301HEEEH1EEEE0EEEEEE1EEH1EEH\r\n"
                               "05050501HEEEH1EEEEEEEEEEE1EE01EEH\r\n");
    const struct { std::string args, input; int exit; Lines out; std::string err; } rows[] = {
        {"analyse small.txt", "", 0, {"size 5 5", "king 0303", "targets 0202 0102,0302,0402,0502,0201,0203,0204,0205,",
          "targets 0303 0203,0103,0403,0503,0302,0301,0304,0305,", "reach0 0103,0203,0301,0302,0304,0305,0403,0503,",
          "reach1 0102,0201,0203,0204,0205,0302,0402,0502,", "chances0 ", "chances1 ", "kingcapture ", "counters 0 1"}, ""},
        {"analyse -", "03030202HEHE0EHEH\n", 0, {"size 3 3", "counters 0 0"}, ""},
        {"analyse nothere.txt", "", 2, {}, "Error reading Layout File:\nnothere.txt\n"},
        {"layout patf.txt", "", 0, {"    1  2  3  4  5  6  7  8  9 10 11", "A   H  .  .  a  a  a  a  a  .  .  H",
          "F   a  a  .  d  d  K  d  d  .  a  a"}, ""},
        {"otn patf.txt", "", 0, {"/3ttttt3/5t5/11/t4T4t/t3TTT3t/tt1TTKTT1tt/t3TTT3t/t4T4t/11/5t5/3ttttt3/"}, ""},
        {"otn -", "07070404HEE1EEHEEE1EEEEEE0EEE1100011EEE0EEEEEE1EEEHEE1EEH\r\n", 0, {"/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/"}, ""},
        {"from-otn /3/1K1/3/ '" + t.Path("made.txt") + "'", "", 0, {"03030202HEHE0EHEH"}, ""},
        {"from-otn /3/1T1/3/ '" + t.Path("noking.txt") + "'", "", 2, {}, "Not an OpenTafl position JarlsVakt can play: the position has no King\n"},
        {"from-otn /1tK1t2/2t1T2/7/7/7/7/7/ '" + t.Path("king.txt") + "'", "", 0, {"07070703HEEEEEHEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE1E0EEH10E1EH"}, ""},
        {"otn '" + t.Path("king.txt") + "'", "", 0, {"/1tK1t2/2t1T2/7/7/7/7/7/"}, ""},
        {"otn -", "03050202HEEEH00EEEHEE1H\n", 2, {}, "An OpenTafl board is square: this layout is 3x5\n"},
        {"otn -", "03030000HEHE0EHEH\n", 2, {}, "No OpenTafl position can be written of this layout: the position has no King\n"},
        {"record noking.log", "", 2, {}, "Moves Log File:\nnoking.log\nline 1: the position has no King\n"},
        {"record game.txt", "", 0, {"[rules:dim:5 esc:c surf:n atkf:y tfr:i ka:y ks:y cenh: cenhe: start:/5/5/2K2/1t3/5/]", "",
          "1. b4-d4 Kc3-c2"}, ""},
        {"review blunder.txt --depth 2", "", 0, {"1. a2-c2  defenders win ?? (loses 20.00; best b1-b3)",
          "1... Ka3-a1--  defenders win", "Attackers: 1 moves, 0 mistake(s), 1 blunder(s), average loss 20.00"}, ""},
        {"tune nothere.tsv", "", 2, {}, "nothere.tsv: cannot be read\n"},
        {"tune small.txt", "", 2, {}, "small.txt: no archive of recorded games: its first line names no opening\n"},
        {"review bad.txt --depth 1", "", 2, {}, "bad.txt\nline 4: pieces arrived on d4/c2: more than one move\n"},
        {"record bad.txt", "", 2, {}, "Moves Log File:\nbad.txt\nline 3: the attackers move twice in a row, where a record has "
                                      "the sides take turns\n"},
        {"replay game.otg", "", 0, {"Step 1 of 3", "D   a  a  d  K  d  a  a", "Step 2 of 3", "F   .  .  .  .  a  .  .",
          "Step 3 of 3", "C   .  .  d  d  .  .  ."}, ""},
        {"replay bad.otg", "", 2, {"Step 1 of 2", "Step 2 of 2", "F   .  .  .  .  a  .  ."},
         "Error in game record bad.otg:\nmove 2 (c4-h5): not a move on this board\n"},
        {"replay game.txt", "", 0, {"Step 1 of 3", "    1  2  3  4  5", "B   .  a  .  .  .", "Step 3 of 3", "D   .  .  K  .  ."}, ""},
        {"play pattern1.txt 'user:0304>0302' 'user:0504>0502' 'user:0104>0105' 'user:0404>0304' 'user:0405>0404' "
         "'defender:0405>0404' 'attacker:0604>0504' undo 'defender:0403>0303'", "", 2,
         {"Loaded Layout: pattern1.txt", "  Player1 Move C4 > C2", "  Player1 Move E4 > E2", "  Player 1 captures D2",
          "REFUSED user:0104>0105: d7 holds no piece of the defenders", "  King Move D4 > C4",
          "REFUSED user:0405>0404: e4-d4: only the King may stop on the centre",
          "REFUSED defender:0405>0404: e4-d4: only the King may stop on the centre", "  Player2 Move F4 > E4",
          "  Player1 Move D3 > C3", "LAYOUT 07070304HEE1EEHEEE1EEEE000EEE1EEE011E0EEEEEEEE1EEEHEE1EEH"}, ""},
        {"play pattern1.txt user:d5-b5xb6 user:d5-b5 attacker:b2-b3 defender:a4-c4 attacker:g4-c4 user:Kd4-d5- "
         "attacker:d7-b7 user:h1-a1", "", 2,
         {"REFUSED user:d5-b5xb6: d5-b5 takes nothing, not b6", "  Player1 Move C4 > C2",
          "REFUSED attacker:b2-b3: b2 holds no piece of the attackers", "REFUSED defender:a4-c4: a4 holds no piece of the defenders",
          "REFUSED attacker:g4-c4: g4-c4 passes over f4", "  King Move D4 > C4", "  Player2 Move A4 > A2",
          "REFUSED user:h1-a1: h1-a1 names a square off the 7x7 board"}, ""},
        {"play kinghome.txt 'user:0104>0101' 'user:0101>0102'", "", 2,
         {"MESSAGE [vbhappy+vbok]: King at Home ! / Click Reset to start a new game",
          "REFUSED user:0101>0102: the game is over, the board takes no move"}, ""},
        {"play taken.txt 'attacker:0602>0402' 'user:0302>0303'", "", 2,
         {"MESSAGE [vbcritical+vbok]: King Captured ! / Click Reset to start a new game",
          "REFUSED user:0302>0303: the game is over, the board takes no move"}, ""},
        {"play pattern1.txt 'attacker:0009>0101' 'user:9999>0101'", "", 2,
         {"REFUSED attacker:0009>0101: the square 0009 is off the 7x7 board",
          "REFUSED user:9999>0101: the square 9999 is off the 7x7 board"}, ""},
        {"play pattern1.txt 'user:0304>0302' red", "", 0, {"  Player1 Move C4 > C2"}, ""},
        {"play pattern1.txt user:d5b5", "", 1, {}, "?"},
        {"play nothere.txt", "", 2, {"MESSAGE [vbcritical+vbok]: Error reading Layout File: / nothere.txt"}, "?"},
        {"match --attackers 'engine:100:exit 3' --defenders strong:50 --games 1 pattern1.txt", "", 0,
         {"the attackers' engine lost: the engine ended", "pattern1.txt: attackers win 0, defenders win 1, draws 0; "
          "0.0 moves a game; 0.0 ms a move for the attackers, 0.0 ms for the defenders"}, ""},
        {"perft pattern1.txt 1", "", 0, {"0304>0303: 1", "total: 24"}, ""},
        {"perft pattern1.txt 2 --side attackers", "", 0, {"total: 960"}, ""},
        {"rank defenders patf.txt --mode 2", "", 1, {}, "?"},
        {"rank attackers nothere.txt", "", 2, {}, "Error reading Layout File:\nnothere.txt\n"},
        {"selfplay kinghome.txt --games 2", "", 0, {"game 1: King with a free run home after 0 moves",
          "2 games: King captured 0, King at Home 0, King with a free run home 2, no move for the defenders 0, "
          "no move for the attackers 0, move limit 0"}, ""},
        {"selfplay kinghome.txt --games x", "", 1, {}, "?"},
        {"soak pattern1.txt kingless.txt --moves 10 --log " + soakLogs, "", 2, {},
         "Layout File:\nkingless.txt\ncannot be played: there is no King on the board\n"},
        {"soak kingonattacker.txt --log " + soakLogs, "", 2, {},
         "Layout File:\nkingonattacker.txt\ncannot be played: the King's square A4 holds an attacker\n"},
        {"soak two.txt --log " + soakLogs, "", 2, {},
         "Layout File:\ntwo.txt\ncannot be played: the King stands on the corner A1: the game is over before it starts\n"},
    };
    for (const auto& r : rows) {
        const auto result = RunCli(r.args, t.folder.string(), r.input);
        EXPECT_EQ(result.exitCode, r.exit) << r.args << "\n" << result.err;
        auto at = result.out.begin();   // the lines expected, in their order, among the lines printed
        for (const std::string& line : r.out) {
            at = std::find(at, result.out.end(), line);
            EXPECT_NE(at, result.out.end()) << r.args << "\nprints no " << line;
            at += at != result.out.end();
        }
        if (r.err != "?") EXPECT_EQ(result.err, r.err) << r.args;
    }
    EXPECT_EQ(t.ReadFile("made.txt"), "03030202HEHE0EHEH\r\n");
    EXPECT_EQ(t.ReadFile("noking.txt"), "");
}

TEST(Cli, TuneFitsWeightsThatJudgeTheRecordedGamesBetter) {
    // Fitted to recorded games, the weights judge how the games ended better than before, one line a term.
    TestGame t;
    const auto r = RunCli("tune '" + jv::test::TestDataPath("games/brandubh.tsv") + "' --rules Brandubh", t.folder.string());
    ASSERT_EQ(r.exitCode, 0) << r.err;
    double before = 0, after = 1;
    const auto loss = std::find_if(r.out.begin(), r.out.end(), [](const std::string& l) { return l.rfind("loss", 0) == 0; });
    ASSERT_NE(loss, r.out.end());
    ASSERT_EQ(std::sscanf(loss->c_str(), "loss before %lf, after %lf", &before, &after), 2) << *loss;
    EXPECT_LT(after, before);
    EXPECT_EQ(std::count_if(r.out.begin(), r.out.end(), [](const std::string& l) { return l.find(" -> ") != std::string::npos; }),
              13);
}

TEST(Cli, RulesAreListedAndEachCommandPlaysUnderTheRuleSetItIsGiven) {
    // "rules" lists every rule set; --rules NAME (any case) plays a command under it, refuses an unknown name, and
    // refuses what would have the classic computer players play other rules.
    TestGame t;
    t.CopyData();
    t.WriteFile("game.txt", Small + "\r\n" + Moved + "\r\n" + KingMoved + "\r\n");
    t.WriteFile("edge.txt", "07070503HEEEEEHEEEEEEEEEEEEEEEEEEEEEEE0EEEEEEEEEEEHEEEEEH\r\n");   // the King alone on c3
    const std::string fetlar(jv::FindRules("Fetlar")->OpenTafl), brandubh(jv::FindRules("Brandubh")->OpenTafl);
    const std::string classicOnly = ": the classic computer players are made for the classic rules alone, not for ";
    const std::string strong = "; the strong player plays every rule set (match --attackers strong --defenders strong)\n";
    const struct { std::string args; int exit; Lines out; std::string err; } rows[] = {
        {"perft copenhagen.txt 3", 0, {"total: 440056"}, ""},
        {"perft copenhagen.txt 3 --rules COPENHAGEN", 0, {"total: 806344"}, ""},
        {"perft copenhagen.txt 1 --rules Hnefatafl", 1, {},
         "jarlsvakt-cli: no rule set is named Hnefatafl; the rule sets: Classic Copenhagen Fetlar Brandubh Tablut "
         "Tawlbwrdd\nusage: jarlsvakt-cli perft FILE|- DEPTH [--side attackers|defenders] [--rules NAME]\n"},
        {"play edge.txt user:Kc3-c1--", 2, {"REFUSED user:Kc3-c1--: Kc3-c1 does not bring the King home"}, ""},
        {"play edge.txt --rules tablut user:Kc3-c1--", 0,
         {"MESSAGE [vbhappy+vbok]: The King has reached the edge: the defenders win / Click Reset to start a new game"}, ""},
        {"record game.txt --rules fetlar", 0,
         {"[rules:dim:5 " + fetlar + " start:/5/5/2K2/1t3/5/]", "", "1. b4-d4 Kc3-c2"}, ""},
        {"otn brandubh.txt --rules brandubh", 0, {"dim:7 " + brandubh + " start:/3t3/3t3/3T3/ttTKTtt/3T3/3t3/3t3/"}, ""},
        {"selfplay edge.txt --games 1 --rules classic", 0, {"1 games: King captured 0, King at Home 0, "
          "King with a free run home 0, no move for the defenders 0, no move for the attackers 1, move limit 0"}, ""},
        {"play edge.txt --auto-reply --rules tablut user:Kc3-c2 red", 1, {},
         "jarlsvakt-cli play --auto-reply, red" + classicOnly + "Tablut" + strong},
        {"selfplay edge.txt --games 1 --rules fetlar", 1, {}, "jarlsvakt-cli selfplay" + classicOnly + "Fetlar" + strong},
        {"soak edge.txt --rules brandubh", 1, {}, "jarlsvakt-cli soak" + classicOnly + "Brandubh" + strong},
        {"match --attackers strong --defenders classic --games 1 --rules fetlar edge.txt", 1, {},
         "jarlsvakt-cli match --defenders classic" + classicOnly + "Fetlar" + strong},
    };
    for (const auto& r : rows) {
        const auto result = RunCli(r.args, t.folder.string());
        EXPECT_EQ(result.exitCode, r.exit) << r.args << "\n" << result.err;
        for (const std::string& line : r.out)
            EXPECT_EQ(std::count(result.out.begin(), result.out.end(), line), 1) << r.args << "\nprints no " << line;
        EXPECT_EQ(result.err, r.err) << r.args;
    }
    // Each rule set's line: its name, the board of its opening, the opening's file and its OpenTafl keys.
    const auto listed = RunCli("rules", t.folder.string());
    const char* const boards[] = {"11x11", "11x11", "11x11", "7x7", "9x9", "11x11"};
    ASSERT_EQ(listed.out.size(), jv::RuleSets().size());
    for (std::size_t i = 0; i < listed.out.size(); ++i) {
        const jv::Rules& set = jv::RuleSets()[i];
        std::istringstream fields(listed.out[i]);
        std::string name, board, layout, keys;
        fields >> name >> board >> layout >> std::ws;
        std::getline(fields, keys);
        EXPECT_EQ(Lines({name, board, layout, keys}),
                  Lines({std::string(set.Name), boards[i], std::string(set.Layout), std::string(set.OpenTafl)}));
    }
}
