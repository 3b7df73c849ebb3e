// Val and ValInt on any text.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunVal)
