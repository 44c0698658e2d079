#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/random/Sequence.h"

namespace leafund::random {

// A place where one sequence after another runs, with what it shares with its processes.
class Lane {
 public:
  Lane();
  Lane(const Lane&) = delete;
  Lane& operator=(const Lane&) = delete;
  ~Lane();

  void start(const Plan& plan, const FreeWording& wording);
  // The process has ended with that status.
  void finish(int status);

  pid_t process() const { return process_; }
  const Plan& plan() const { return plan_; }
  const Report& report() const { return *report_; }

 private:
  Plan plan_;
  Report* report_;
  int errors_;
  pid_t process_ = 0;
};

// Runs one sequence and answers what it told.
Report runSequence(const Plan& plan, const FreeWording& wording);

struct Totals {
  std::uint64_t sequences = 0, actions = 0, stops = 0, escaped = 0;
  std::uint64_t firstSeed = 0, nextSeed = 0;
  std::array<std::uint64_t, kActionKinds> kinds{};
  std::array<std::uint64_t, kScenes> scenes{};
  std::string told;  // where the one that diverged did
};

struct Order {
  std::uint64_t actions = 20'000, firstSeed = 1;
  std::size_t fatalPercent = 20, most = 1500, jobs = 1;
  Twist twist = Twist::None;
  std::optional<std::size_t> tamperAt = {};
  Play play = playWithoutWindow;
};

// Runs sequences until there were that many actions, or one diverged, which is then answered.
std::optional<Plan> runSequences(const Order& order, const FreeWording& wording, Totals& totals);

// Fills, before forking, the caches that each process would fill again; not the catalogue.
void warmUp();

// The command: runs or replays what the arguments say. Answers 0 when application and reference
// never differed, 1 and the shortest script found when they did, or when some screen was hardly
// met, and 2 when called wrongly.
int runRandomActions(const Order& defaults, int argc, char** argv);

}  // namespace leafund::random
