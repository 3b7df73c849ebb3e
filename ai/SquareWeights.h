#pragma once
#include "core/Game.h"

namespace jv {

// Writes multiples of the scale into SquareWeight near the corners, along
// the edges and beside the King; every other entry keeps its value.
void SetSquareWeights(Game& g, int scale);

}  // namespace jv
