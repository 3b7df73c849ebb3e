// ApplyPositionRecord of any record over a board of any size up to 14 by 14.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunPositionRecord)
