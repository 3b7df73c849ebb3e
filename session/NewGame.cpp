#include "session/NewGame.h"

#include <algorithm>

#include "core/EventLog.h"
#include "records/RuleSettings.h"
#include "records/TextFile.h"
#include "session/ComputerMoves.h"
#include "session/GameEnding.h"
#include "session/LayoutCommands.h"
#include "session/StrongTurn.h"

namespace jv {

std::string RulesSummary(const Rules& rules) {
    std::string text = rules.AttackersFirst ? "The attackers move first. " : "The defenders move first. ";
    text += rules.KingEscape == Escape::Corners ? "The King wins on a corner" : "The King wins on the edge";
    switch (rules.KingTaken) {
        case KingCapture::FourOrThreeAgainstTheEdge: text += "; four attackers take him, three against the edge"; break;
        case KingCapture::Four: text += "; four attackers take him"; break;
        case KingCapture::FourNearTheThroneElseTwo: text += "; four take him on or beside the throne, two elsewhere"; break;
    }
    std::vector<std::string> also;
    if (rules.Shieldwall) also.emplace_back("shieldwalls");
    if (rules.ExitFort) also.emplace_back("exit forts");
    if (rules.Encirclement) also.emplace_back("encirclement");
    text += ".";
    for (std::size_t i = 0; i < also.size(); ++i)
        text += (i == 0 ? " Also played: " : i + 1 == also.size() ? " and " : ", ") + also[i];
    return also.empty() ? text : text + ".";
}

std::vector<std::string> OpeningsFor(const Game& g, const Rules& rules) {
    std::vector<std::string> openings{std::string(rules.Layout)};
    const auto add = [&](const std::string& name) {
        if (std::find(openings.begin(), openings.end(), name) == openings.end()) openings.push_back(name);
    };
    for (const Rules& other : RuleSets()) add(std::string(other.Layout));
    add(g.LayoutFile);
    return openings;
}

void NewGameCommand(Game& g, const GameChoice& choice) {
    const Rules* rules = FindRules(choice.Rules);
    if (g.EditorOn || rules == nullptr) return;
    g.GameRules = *rules;
    g.Players.UserSide = choice.UserSide;
    WritePlayers(g);
    LoadLayout(g, choice.Opening);
    WriteRules(g);
    LogFirstMover(g);
    ComputerOpens(g);
}

void LogFirstMover(Game& g) {
    const int first = FirstSide(g);
    PrintLog(g, "  Player" + std::to_string(first + 1) + " to move ...", first + 1, 0);
}

void ComputerOpens(Game& g) {
    const int first = FirstSide(g);
    if (!g.Check1 || g.GameOver || g.EditorOn || g.AutoGameRunning || !g.Undo.empty() || first == g.Players.UserSide)
        return;
    MakeAutoMove(g, first);
}

void ResetGameCommand(Game& g) {
    const int gameNumber = g.GameNumber;
    ResetCommand(g);
    if (g.GameNumber != gameNumber) ComputerOpens(g);
}

void ReadRules(Game& g) {
    std::string text;
    RuleChoice choice;
    if (!ReadWholeFile(InProgramFolder(g, RulesFile), text) || !ReadRulesText(choice, text).Ok()) return;
    g.GameRules = *FindRules(choice.Rules);
    if (!choice.Opening.empty()) g.LayoutFile = choice.Opening;
}

bool WriteRules(const Game& g) {
    const RuleChoice choice{std::string(g.GameRules.Name), g.LayoutFile};
    return WriteFileAtomically(InProgramFolder(g, RulesFile), RulesText(choice)).Ok();
}

}  // namespace jv
