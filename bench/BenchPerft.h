#pragma once

namespace jv::bench {

// Times the move counter at depths 3 and 4 of patf.txt and prints leaves per
// second; false when the layout cannot be read.
bool BenchPerft();

}  // namespace jv::bench
