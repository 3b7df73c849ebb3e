// ReadOtnGame (Load of an OpenTafl game, *.otg) on any record, and the game it
// reads written back as a record.
#include "fuzz/ReaderRuns.h"

JARLSVAKT_FUZZ_TARGET(jv::fuzz::RunGameRecord)
