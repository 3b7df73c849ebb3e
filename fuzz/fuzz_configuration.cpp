// ReadConfiguration of a jarlsvakt.cfg holding the input.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunConfiguration)
