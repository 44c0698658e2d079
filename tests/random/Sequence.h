#pragma once

#include <sys/types.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "tests/random/ActionGenerator.h"
#include "tests/random/PrintedText.h"

namespace leafund::random {

struct Plan;
struct Report;
// Runs a plan's sequence in the process it is called in, and tells it to the report.
using Play = void (*)(const Plan& plan, const FreeWording& wording, Report& report);
void playWithoutWindow(const Plan& plan, const FreeWording& wording, Report& report);

// One sequence of actions, in a process of its own because the catalogue is made once a process.
struct Plan {
  std::uint64_t seed = 0;
  std::size_t length = 1000;
  Fate fate = Fate::Live;
  Twist twist = Twist::None;
  std::optional<std::size_t> tamperAt =
      {};                             // the action after which the application is tampered with
  std::optional<Script> script = {};  // instead of what the seed would give
  Play play = playWithoutWindow;

  // The length and the fate that the seed draws.
  static Plan ofSeed(std::uint64_t seed, std::size_t fatalPercent, std::size_t most);
  std::size_t calm() const { return length / 2; }
};

// An action as it is kept in memory shared between processes: long texts are cut.
struct KeptAction {
  ActionKind kind;
  Ending ending;
  std::array<char, 32> name;
  std::array<char, 256> text;
  long number;
  double width, height, offset;
  std::uint64_t how;
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
  // The first actions, where what is done depends on the window as well and not on the seed alone.
  std::size_t keptLength;
  std::array<KeptAction, 400> kept;
};

void keep(Report& report, const Action& action);
Script keptScript(const Report& report);
void tell(Report& report, std::string_view text);
// Counts an action that begins on the screen that the reference shows.
void count(Report& report, const Action& action, const ReferenceApp& reference);
// The reference has stopped.
void expectStop(Report& report, const Stopped& stopped);
// Notes at an abort whether what was printed until then is what the reference expects.
void watchForStop(Report& report, PrintedText& printed, const ReferenceApp& reference);

// Starts the sequence; its standard error goes to `errors`, a file descriptor.
pid_t startSequence(const Plan& plan, const FreeWording& wording, Report& report, int errors);

// The verdict, once the process has ended with that status and written those errors.
void judge(Report& report, int status, const std::string& errors);

std::string toldBy(const Report& report);

}  // namespace leafund::random
