// ReadLayoutFile (and so ApplyLayoutLine) on a layout file holding the input.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunLayoutFile)
