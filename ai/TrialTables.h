#pragma once
#include <array>
#include <cstdint>
#include <string>

#include "core/Game.h"

namespace jv {

// One side's reach (ReachMap) in two halves: the squares its pieces reach
// by sliding along a line of fixed Row ("U", "D") and along a line of fixed
// Col ("L", "R"). A move changes only the lines through its two squares, so
// the reach of a position one move away is the start position's with those
// four lines swept again.
class SideReach {
public:
    // Sweeps every line of the position on the board for the side's pieces.
    void Start(const Game& g, int side);
    // The side's reach with the move m made on the board, as it now stands.
    void AfterMove(const Game& g, const Move& m, Grid<std::int8_t>& reach) const;

private:
    int side_ = DefenderCode;
    Grid<std::int8_t> alongCol_, alongRow_, whole_;
};

// The analysis tables during the attackers' trials. In the program's order
// of steps a trial analyses its own position in full, and a scored trial
// analyses the start position again once its move is put back: after a
// rejected trial the tables are those of its position, after a scored one
// those of the start position. But a trial reads only two tables of its own
// position, the defenders' reach and the King's targets, and between trials
// the scan reads only the attackers' reach. So a trial writes just its two
// tables; a rejected one also writes the attackers' reach of its position
// and owes the rest of its analysis, made at the end of the scan when no
// later trial has replaced it; a scored one puts back the three tables of
// the start position, kept from its one full analysis.
class TrialTables {
public:
    // Before the first trial, on the start position.
    void StartScan(const Game& g);
    // The move has been made on the board.
    void Begin(Game& g, const Move& m);
    // The move is rejected; it is still on the board.
    void Reject(Game& g, const Move& m);
    // The scored move has been put back.
    void End(Game& g);
    // The scan is over: a rejected last trial leaves the full analysis of
    // its position behind.
    void Finish(Game& g);

private:
    std::array<SideReach, 2> reach_;
    // The three tables of the start position, once it has been analysed.
    bool kept_ = false;
    std::array<Grid<std::int8_t>, 2> keptReach_;
    std::string keptKingTargets_;
    // The rejected trial whose analysis the tables still owe.
    bool owing_ = false;
    Move owed_;
};

}  // namespace jv
