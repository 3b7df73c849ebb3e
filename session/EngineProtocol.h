#pragma once
#include <functional>
#include <string>
#include <vector>

#include "core/Game.h"
#include "core/SilentView.h"

namespace jv {

// The strong player as an engine of the OpenTafl Engine Protocol: the host's
// lines come in one at a time, and only protocol lines go out. The engine
// keeps the game's position from the host's rules, position and moves,
// plays a side when asked, within the time its clock leaves, and analyses
// a position on request.

class EngineProtocol {
public:
    using Send = std::function<void(const std::string&)>;

    explicit EngineProtocol(Send send);

    // Answers one line of the host; false once the host has said goodbye.
    bool Handle(const std::string& line);

    // The host sends its clock right after asking for a move: a move asked
    // for waits for the next line. True while one waits; PlayNow plays it
    // on the clock known so far, when no line comes.
    bool WaitingToPlay() const { return waitingSide_ >= 0; }
    void PlayNow();

    // The thinking time of one move from the clock the host gave last, in
    // milliseconds.
    int MoveMillis(int side) const;

private:
    void ReadRules(const std::string& record);
    bool SetPosition(const std::string& otn, std::string& reason);
    void OpponentMove(const std::vector<std::string>& words);
    void Play(int side);
    void Analyze(int lines, double seconds);
    bool MakeMove(const std::string& text, int side);
    std::string MoveText(const Move& m) const;
    std::string LineText(const std::vector<Move>& line) const;

    Send send_;
    SilentView view_;
    Game game_;
    bool ready_ = false;             // a rules line has set up the game
    int sideToMove_ = AttackerCode;
    int waitingSide_ = -1;           // the side a move is asked for, until it is played
    std::vector<std::uint64_t> played_;   // the keys of the game's positions so far
    // The clock: the seconds left for each side (-1 without one), the length
    // of an overtime period and the periods left for each side.
    double attackerSeconds_ = -1, defenderSeconds_ = -1, overtimeSeconds_ = 0;
    int attackerOvertimes_ = 0, defenderOvertimes_ = 0;
};

}  // namespace jv
