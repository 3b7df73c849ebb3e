// A header of the lowest layer that reaches up: the layer check must name it.
#include "session/Undo.h"
