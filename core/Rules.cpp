#include "core/Rules.h"

#include <algorithm>
#include <cctype>

namespace jv {

namespace {

// The rules of the public tafl archive's games: the attackers move first,
// only the King stops on the throne (every piece may pass it empty) and the
// throne is hostile; the King fights, a move that takes him or brings him
// home takes what it sandwiches as any move does, attackers who close every
// defender in win, and a side that cannot move loses.
Rules ArchiveRules(std::string_view name, std::string_view layout, std::string_view openTafl) {
    Rules rules;
    rules.Name = name;
    rules.Layout = layout;
    rules.OpenTafl = openTafl;
    rules.AttackersFirst = true;
    rules.ThroneHostile = true;
    rules.KingCaptureIsWholeMove = false;
    rules.KingHomeIsWholeMove = false;
    rules.SandwichedKingEndsCaptures = false;
    rules.Encirclement = true;
    rules.NoMoveLoses = true;
    return rules;
}

std::vector<Rules> MakeRuleSets() {
    Rules copenhagen = ArchiveRules("Copenhagen", "copenhagen.txt",
                                    "name:Copenhagen esc:c surf:y atkf:y tfr:w ka:y ks:y cenh:tcnk cenhe:tcnkTCNK "
                                    "sw:s efe:y");
    copenhagen.KingTaken = KingCapture::Four;
    copenhagen.Shieldwall = true;
    copenhagen.ExitFort = true;
    copenhagen.RepetitionLosesForDefenders = true;

    // Fetlar's games go on after the defenders are closed in.
    Rules fetlar = ArchiveRules("Fetlar", "fetlar.txt",
                                "name:Fetlar esc:c surf:n atkf:y tfr:i ka:y ks:y cenh:tcnk cenhe:tcnkTCNK");
    fetlar.KingTaken = KingCapture::Four;
    fetlar.Encirclement = false;

    Rules brandubh = ArchiveRules("Brandubh", "brandubh.txt",
                                  "name:Brandubh esc:c surf:y atkf:y tfr:i ka:y ks:c cenh:tcnk cenhe:tcnkTCNK");
    brandubh.KingTaken = KingCapture::FourNearTheThroneElseTwo;

    Rules tablut = ArchiveRules("Tablut", "tablut.txt",
                                "name:Tablut esc:e surf:y atkf:y tfr:i ka:y ks:c cenh:tcnk cenhe:tcnkTCNK cor:");
    tablut.KingEscape = Escape::Edges;
    tablut.CornersHostile = false;
    tablut.KingTaken = KingCapture::FourNearTheThroneElseTwo;

    Rules tawlbwrdd = ArchiveRules("Tawlbwrdd", "tawlbwrdd.txt",
                                   "name:Tawlbwrdd esc:e surf:y atkf:y tfr:i ka:y ks:c cenh:tcnk cenhe:tcnkTCNK cor:");
    tawlbwrdd.KingEscape = Escape::Edges;
    tawlbwrdd.CornersHostile = false;
    tawlbwrdd.KingTaken = KingCapture::FourNearTheThroneElseTwo;

    return {Rules::Classic(), copenhagen, fetlar, brandubh, tablut, tawlbwrdd};
}

bool SameName(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
    });
}

}  // namespace

Rules Rules::Classic() {
    Rules rules;
    rules.Name = "Classic";
    rules.Layout = "patf.txt";
    rules.OpenTafl = "esc:c surf:n atkf:n tfr:i ka:y ks:y cenh: cenhe:";
    return rules;
}

const std::vector<Rules>& RuleSets() {
    static const std::vector<Rules> sets = MakeRuleSets();
    return sets;
}

const Rules* FindRules(std::string_view name) {
    for (const Rules& rules : RuleSets())
        if (SameName(rules.Name, name)) return &rules;
    return nullptr;
}

}  // namespace jv
