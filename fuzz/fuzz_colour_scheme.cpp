// LoadColourScheme and FillSchemeList on an all.col holding the input.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunColourScheme)
