#include "core/Rules.h"

namespace jv {

Rules Rules::Classic() {
    Rules rules;
    rules.Name = "Classic";
    return rules;
}

}  // namespace jv
