#pragma once

#include "tests/random/Sequence.h"

namespace leafund::random {

// The same with the real window, on a platform that needs no display.
void playInWindow(const Plan& plan, const FreeWording& wording, Report& report);

}  // namespace leafund::random
