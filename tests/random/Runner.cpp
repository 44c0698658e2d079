#include "tests/random/Runner.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <deque>
#include <system_error>

#include "platform/foundation/Unicode.h"
#include "shell/Storyboard.h"

namespace leafund::random {

namespace {

[[noreturn]] void fail(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

std::string contentOf(int file) {
  std::string content(static_cast<std::size_t>(lseek(file, 0, SEEK_END)), '\0');
  const auto read = pread(file, content.data(), content.size(), 0);
  if (read != static_cast<ssize_t>(content.size())) fail("pread");
  return content;
}

void add(Totals& totals, const Plan& plan, const Report& report) {
  ++totals.sequences;
  totals.actions += report.actions;
  if (report.verdict == Verdict::StoppedAsExpected) ++totals.stops;
  if (report.verdict == Verdict::Lived && plan.fate != Fate::Live) ++totals.escaped;
  for (std::size_t at = 0; at < totals.kinds.size(); ++at) totals.kinds[at] += report.kinds[at];
  for (std::size_t at = 0; at < totals.scenes.size(); ++at) totals.scenes[at] += report.scenes[at];
}

}  // namespace

Lane::Lane() {
  void* shared =
      mmap(nullptr, sizeof(Report), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) fail("mmap");
  report_ = static_cast<Report*>(shared);
  errors_ = memfd_create("errors", 0);
  if (errors_ < 0) fail("memfd_create");
}

Lane::~Lane() {
  munmap(report_, sizeof(Report));
  close(errors_);
}

void Lane::start(const Plan& plan, const FreeWording& wording) {
  plan_ = plan;
  if (ftruncate(errors_, 0) != 0 || lseek(errors_, 0, SEEK_SET) != 0) fail("ftruncate");
  process_ = startSequence(plan_, wording, *report_, errors_);
  if (process_ < 0) fail("fork");
}

void Lane::finish(int status) {
  process_ = 0;
  judge(*report_, status, contentOf(errors_));
}

Report runSequence(const Plan& plan, const FreeWording& wording) {
  Lane lane;
  lane.start(plan, wording);
  int status = 0;
  waitpid(lane.process(), &status, 0);
  lane.finish(status);
  return lane.report();
}

std::optional<Plan> runSequences(const Order& order, const FreeWording& wording, Totals& totals) {
  std::deque<Lane> lanes(order.jobs);
  totals.firstSeed = totals.nextSeed = order.firstSeed;
  std::optional<Plan> diverged;
  const auto goOn = [&](Lane& lane) {
    if (diverged || totals.actions >= order.actions) return;
    Plan plan = Plan::ofSeed(totals.nextSeed++, order.fatalPercent, order.most);
    plan.twist = order.twist;
    plan.tamperAt = order.tamperAt;
    plan.play = order.play;
    lane.start(plan, wording);
  };
  for (auto& lane : lanes) goOn(lane);
  for (bool running = true; running;) {
    running = false;
    for (auto& lane : lanes) {
      if (lane.process() == 0) continue;
      running = true;
      int status = 0;
      const pid_t ended = waitpid(lane.process(), &status, lanes.size() == 1 ? 0 : WNOHANG);
      if (ended == 0) continue;
      lane.finish(status);
      add(totals, lane.plan(), lane.report());
      if (lane.report().verdict == Verdict::Diverged && !diverged) {
        diverged = lane.plan();
        totals.told = toldBy(lane.report());
      }
      goOn(lane);
    }
    if (lanes.size() > 1) usleep(500);
  }
  return diverged;
}

void warmUp() {
  mainStoryboard();
  canonicallyEquivalent("e\u0301", "\u00E9");
  matchesWholeText("a+", "aa");
}

}  // namespace leafund::random
