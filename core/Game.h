#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/Chance.h"
#include "core/Grid.h"
#include "core/Rules.h"
#include "core/Square.h"

namespace jv {

class GameView;

// The square codes, as the board, the layout files and the logs keep them.
// The rules compare against these names, never against the literal values.
enum SquareCode : std::int32_t {
    AttackerCode = 1,
    DefenderCode = 0,
    EmptyCode = -1,
    HomeCode = -99,
};

// The largest board the per-square tables take.
constexpr int MaxBoardSide = 14;

// A clock reading for the moves-log file name.
struct ClockReading {
    int Month = 1, Day = 1, Hour = 0, Minute = 0;
};

// The position: the board, its size, the King's and the centre's squares,
// the numbering of the squares and the rule set. Fixed arrays only, so a copy touches no
// heap and can be searched on another thread.
struct Position {
    Grid<std::int32_t> Board;
    int BoardWidth = 0;
    int BoardHeight = 0;
    int KingCol = 0;
    int KingRow = 0;
    int CentreCol = 0;
    int CentreRow = 0;

    // Square numbering: SquareNumber(col, row) is 1..W*H column by column;
    // SquareCol and SquareRow give a number's square back.
    Grid<int> SquareNumber;
    std::array<int, MaxBoardSide * MaxBoardSide + 1> SquareCol{};
    std::array<int, MaxBoardSide * MaxBoardSide + 1> SquareRow{};

    // The rule set the game is played under.
    Rules GameRules = Rules::Classic();
};

// The analysis of the position, rebuilt by AnalysePosition.
struct PositionAnalysis {
    Grid<std::string> MoveTargets;
    std::array<Grid<std::int8_t>, 2> ReachMap;   // indexed by side code 0 / 1
    std::array<std::string, 2> CaptureChances;
    std::string KingCaptureSquares;
    int DefenderCount = 0;   // defenders without the King
    int AttackerCount = 0;
};

// The computer players' tables.
struct PlayerTables {
    Grid<std::int32_t> SquareWeight;
    Grid<std::int32_t> PlanBonus;
    Grid<std::int32_t> DefenderScore;
    Grid<std::int32_t> DefenderBonus;
};

// The lists the user reads: the players' reasoning, the undo history and
// the event log.
struct UserLists {
    std::vector<std::string> List1A, List2A, List3, List1;
    std::vector<std::string> List1D, List2D;
    std::vector<std::string> AttackerMovesRank, DefenderMovesRank;
    std::vector<std::string> Undo;
    std::vector<std::string> EventLog;
    std::vector<std::string> SearchLines;   // the strong player's thinking: depth, score, speed, line
};

// Which computer player plays a side: the classic ranked lists, the
// strong player's search, or an outside engine of the OpenTafl Engine
// Protocol started from its command line.
enum class PlayerKind { Classic, Strong, Engine };

// The players' settings, kept in a settings file of their own beside the
// configuration file.
struct PlayerChoice {
    PlayerKind Attackers = PlayerKind::Classic;
    PlayerKind Defenders = PlayerKind::Classic;
    int ThinkMillis = 1000;   // the strong player's thinking time for one move
    int UserSide = DefenderCode;   // the side the user's pointer plays; the computer answers with the other
    std::string EngineCommand;     // the outside engine's command line, run by the shell
    bool StopWhenClear = false;    // the thinking time is the most the strong player takes: it moves once its move is clear
    friend bool operator==(const PlayerChoice&, const PlayerChoice&) = default;
};

// The settings kept in the configuration file, the colour table of the
// scheme, and the letters that name the columns.
struct Settings {
    std::string SchemeFile = "xp.col";
    std::array<std::string, 4> PictureFiles{"player00.ico", "player10.ico", "home0.ico", "king0.ico"};
    std::array<std::int32_t, 4> PieceColours{32768, 128, 8421504, 0};
    int BoardStyle = 0;
    int SquareGap = 1;
    int ShowLabels = 1;
    int ColourMode = 0;
    std::array<std::int32_t, 14> ColourTable{};   // 0..12 from the scheme, 13 from the cfg
    std::array<std::string, 17> ColumnLetters;    // index 1..16: "A".."P"
    PlayerChoice Players;                         // kept in the players' file
    // Squares named in standard tafl coordinates (files a.. across, ranks 1..
    // up) on the board's edges and in the panes beyond the classic lists;
    // kept in the view's settings file.
    bool TaflCoordinates = false;
};

// How a game has ended: the King home (on a corner, or on the edge under a
// rule set that escapes there), taken, safe in an exit fort, every defender
// encircled, a side left without a move, or a position come round a third
// time. None while the game goes on.
enum class GameEnding : std::uint8_t {
    None,
    KingHome,
    KingTaken,
    KingInFort,
    DefendersEncircled,
    AttackersWithoutMove,
    DefendersWithoutMove,
    Repetition,
};

// The session: files, switches, the piece in hand, the game's progress, the
// chance generator, the clock and the view.
struct SessionState {
    std::string ProgramFolder;   // ends with a folder separator
    std::string LayoutFile = "patf.txt";
    std::string MovesLogFile;

    Square DragSource;
    Square PointerSquare;
    bool DragLineVisible = false;

    bool Check1 = true;          // "Computer Moves Auto after User Move"
    bool Check2 = false;         // recording the moves log
    bool EditorOn = false;       // the layout editor's palette Picture2 is visible
    Grid<int> EditorGrid;        // the layout editor's position: board codes, 99 the King
    bool BoardEnabled = true;    // Picture1 takes pointer input; false once a game ends
    bool GameOver = false;       // the King has been captured or is at Home
    GameEnding Result = GameEnding::None;   // how the game ended, once it has
    bool Ending = false;         // the program is ending
    bool AutoGameRunning = false;   // the automatic game is playing; a press of AutoGame stops it
    bool StopThinking = false;      // the user asked the strong player to stop at once
    std::array<int, 2> TurnCounts{0, 0};
    int LayoutLoadDepth = 0;     // guards LoadLayout's retry of the previous file
    // Counts the boards NewBoard has set up. A move whose pauses let a load
    // begin a new game sees it change and stops there.
    int GameNumber = 0;

    Chance Random;
    // The clock that names a new moves log; the system clock unless a test
    // sets another.
    std::function<ClockReading()> Clock;
    GameView* View = nullptr;
    // The move list's game while the board shows one of its earlier
    // positions: its positions as layout lines, oldest first (empty while
    // the board shows the game as played), with the undo history's length
    // and the game's number then; a move, an undo or a new game changes
    // those, and the board shows the game as played again.
    struct BrowsedGame {
        std::vector<std::string> Lines;
        std::size_t UndoLength = 0;
        int GameNumber = 0;
    } Browsed;
    // The outside engines playing in this game, each in its own process
    // (session/EngineTurn.h); ended with the game's session.
    std::shared_ptr<struct EngineSeats> Engines;
};

// The game: the parts above together. The procedures are free functions that
// take the parts they need, most of them the whole game first; the program
// owns exactly one Game, a test builds one per case.
struct Game : Position, PositionAnalysis, PlayerTables, UserLists, Settings, SessionState {};

}  // namespace jv
