#pragma once

#include <sys/types.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "tests/random/ActionGenerator.h"

namespace leafund::random {

// One sequence of actions, in a process of its own because the catalogue is made once a process.
struct Plan {
  std::uint64_t seed = 0;
  std::size_t length = 1000;
  Fate fate = Fate::Live;
  Twist twist = Twist::None;
  std::optional<std::size_t> tamperAt =
      {};                             // the action after which the application is tampered with
  std::optional<Script> script = {};  // instead of what the seed would give

  // The length and the fate that the seed draws.
  static Plan ofSeed(std::uint64_t seed, std::size_t fatalPercent, std::size_t most);
  std::size_t calm() const { return length / 2; }
};

enum class Verdict { Unknown, Lived, StoppedAsExpected, Diverged };

// What a sequence's process tells; it lies in memory shared with the parent.
struct Report {
  Verdict verdict;
  std::uint64_t actions;  // begun
  std::array<std::uint64_t, kActionKinds> kinds;
  std::array<std::uint64_t, kScenes> scenes;  // actions begun on each
  bool stopExpected;
  bool printedAsExpected;  // up to the stop
  std::size_t stopLength, toldLength;
  std::array<char, 32768> stop;  // the whole line on standard error
  std::array<char, 8192> told;   // where the two differ
};

// Starts the sequence; its standard error goes to `errors`, a file descriptor.
pid_t startSequence(const Plan& plan, const FreeWording& wording, Report& report, int errors);

// The verdict, once the process has ended with that status and written those errors.
void judge(Report& report, int status, const std::string& errors);

std::string toldBy(const Report& report);

}  // namespace leafund::random
