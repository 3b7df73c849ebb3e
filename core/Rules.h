#pragma once
#include <cstdint>
#include <string_view>
#include <vector>

namespace jv {

// A rule set, described as a value: its special squares and who may use
// them, which squares are hostile and to whom, how the King is taken and
// whether he fights, where he escapes, the ways a game ends and who moves
// first. The rule board reads it; no other code decides a rule, and a new
// rule set is one more entry of RuleSets().

// Where the King escapes: onto a corner, or onto any square of the edge.
enum class Escape : std::uint8_t { Corners, Edges };

// How the King is taken.
enum class KingCapture : std::uint8_t {
    // By attackers on all four sides, or on the three that are not the
    // edge, after any attacker move; a hostile corner counts as one.
    FourOrThreeAgainstTheEdge,
    // By the attacker move that closes his four sides; a hostile square
    // beside him (the empty throne) closes a side, the edge never does.
    Four,
    // On the throne or beside it as Four; elsewhere sandwiched by two like
    // any piece.
    FourNearTheThroneElseTwo,
};

struct Rules {
    std::string_view Name;       // as the menus and the tool name it
    std::string_view Layout;     // the opening, a layout file shipped in the program's folder
    std::string_view OpenTafl;   // the rules record of an OpenTafl game, without its start position

    bool AttackersFirst = false;
    Escape KingEscape = Escape::Corners;
    KingCapture KingTaken = KingCapture::FourOrThreeAgainstTheEdge;

    // Only the King may stop on the centre (the throne); every piece may
    // pass it while it is empty.
    bool CentreForKingOnly = true;
    // Empty corners close a sandwich against any piece.
    bool CornersHostile = true;
    // The throne closes a sandwich against an attacker always, and against
    // a defender while it is empty.
    bool ThroneHostile = false;
    // The King takes part in captures, as the moving piece and as the piece
    // on the far side.
    bool KingArmed = true;

    // Taking the King is the whole move: nothing else is taken with him.
    bool KingCaptureIsWholeMove = true;
    // The King's move home is the whole move: he takes nothing as he arrives.
    bool KingHomeIsWholeMove = true;
    // A moved piece that finds the King sandwiched looks no further: the
    // directions after his are not looked at.
    bool SandwichedKingEndsCaptures = true;

    // A row of two or more pieces along the edge, bracketed at both ends by
    // the move and each faced by an enemy, is taken whole (the King never).
    bool Shieldwall = false;
    // The King on the edge, free to move, in a fort of defenders that the
    // attackers cannot break, wins for the defenders.
    bool ExitFort = false;
    // Attackers who close every defender off from the edge win.
    bool Encirclement = false;
    // A side that cannot move loses.
    bool NoMoveLoses = false;
    // A position that comes round a third time loses for the defenders.
    bool RepetitionLosesForDefenders = false;

    // The program's own rules: the King is taken by four attackers, or by
    // three against the edge; only he may stop on the centre or enter a
    // corner, and he wins there; the corners are hostile to everyone; the
    // defenders move first.
    static Rules Classic();

    friend bool operator==(const Rules&, const Rules&) = default;
};

// Every rule set the program plays, the classic rules first.
const std::vector<Rules>& RuleSets();

// The rule set of a name, in any case; nullptr when there is none.
const Rules* FindRules(std::string_view name);

}  // namespace jv
