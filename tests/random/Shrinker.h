#pragma once

#include <functional>

#include "tests/random/Sequence.h"

namespace leafund::random {

// The actions that a seed gives, up to and including the last one begun.
Script scriptOf(const Plan& plan, const FreeWording& wording, std::size_t actions);

// A shorter script for which `fails` still holds and from which no single action can be left out
// (delta debugging: ever smaller pieces are left out, as long as it fails).
Script shrink(Script script, const std::function<bool(const Script&)>& fails);

// The plan's diverging sequence as the shortest script found, one action a line, and what differs.
struct ShrunkFailure {
  Script script;
  std::string told;
};
ShrunkFailure shrinkFailure(const Plan& plan, const FreeWording& wording);

}  // namespace leafund::random
