#pragma once
#include <string_view>

#include "core/Game.h"

namespace jv {

// A rule set, described as a value: its special squares and who may use
// them, which squares are hostile and to whom, how the King is taken and
// whether he fights, where he escapes, and who moves first. The rule board
// reads it; no other code decides a rule.

struct Rules {
    std::string_view Name;

    // The side that makes the first move of a game.
    int FirstSide = DefenderCode;

    // Only the King may enter a corner, and he wins there. An empty corner
    // closes a sandwich against any piece when the corners are hostile.
    bool CornersHostile = true;

    // Only the King may stop on the centre; every piece may pass it while
    // it is empty.
    bool CentreForKingOnly = true;

    // The King takes part in captures, as the moving piece and as the piece
    // on the far side.
    bool KingArmed = true;

    // The King is taken by attackers on all four sides, or on the three that
    // are not the board's edge; a hostile corner beside him counts as an
    // attacker.
    bool KingTakenAgainstEdge = true;
    // Taking the King is the whole move: nothing else is taken with him.
    bool KingCaptureIsWholeMove = true;
    // A moved piece that finds the King sandwiched looks no further: the
    // directions after his are not looked at.
    bool SandwichedKingEndsCaptures = true;

    // The program's own rules: the King is taken by four attackers, or by
    // three against the edge; only he may stop on the centre or enter a
    // corner, and he wins there; the corners are hostile to everyone; the
    // defenders move first.
    static Rules Classic();

    friend bool operator==(const Rules&, const Rules&) = default;
};

}  // namespace jv
