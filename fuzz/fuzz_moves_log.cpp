// The moves-log replay (ReplayCommand) with scripted answers to its questions.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunMovesLog)
