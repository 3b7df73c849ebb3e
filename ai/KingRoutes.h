#pragma once
#include <string>

#include "core/Game.h"

namespace jv {

// Route results: 99 the King has a route, -1 none. A route text lists square
// items ("0102,0103,").

// The free squares along one edge from the King's square (a, b) towards the
// corner in direction "L", "R", "U" or "D", nearest first, the corner itself
// never examined. Empty when any examined square is not empty, and for any
// other letter.
void ScanKingRoute(const Game& g, int a, int b, char direction, std::string& route);

// Whether the King, on the edge, has a free run to a Home corner: 99 with the
// free squares as route text, or 99 with an empty text when he stands beside
// a corner; -1 with an empty text otherwise.
int RouteFromKing(const Game& g, std::string& route);

// Whether the King can slide in one move to a square next to a corner: for
// each direction "L", "R", "U", "D" whose farthest reachable square is such a
// square, the whole slide is appended to the route text. 99 when it is not
// empty, else -1.
int KingHomeInTwo(const Game& g, std::string& route);

// The King's way home as the computer players read it: 99 direct (the route
// of RouteFromKing), 1 in two moves (KingHomeInTwo), 2 indirect (the first
// square S of the King's MoveTargets from which RouteFromKing gives 99: S's
// item followed by that route), -1 none. The indirect search stands the King
// on each S in turn and puts board and King back afterwards.
int KingRouteStatus(Game& g, std::string& route);

}  // namespace jv
