#include "tests/random/Sequence.h"

#include <signal.h>
#include <stdio.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

#include "tests/random/Comparison.h"
#include "tests/random/PrintedText.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace leafund::random {

namespace {

constexpr double kWidth = 390;
constexpr double kHeight = 844;
constexpr std::size_t kMostToTheEnd = 2000;  // actions, far more than the way there takes
constexpr unsigned kMostSeconds = 120;       // a sequence that takes longer hangs

template <std::size_t Size>
std::size_t keep(std::array<char, Size>& place, std::string_view text) {
  const std::size_t length = std::min(text.size(), Size);
  std::memcpy(place.data(), text.data(), length);
  return length;
}

// What must be known when the application stops the process in the middle of an action.
struct {
  Report* report = nullptr;
  PrintedText* printed = nullptr;
  const ReferenceApp* reference = nullptr;
} atTheStop;

void rememberPrinted(int) {
  auto& report = *atTheStop.report;
  report.printedAsExpected = atTheStop.printed->take() == atTheStop.reference->printed;
}

class Sequence {
 public:
  Sequence(const Plan& plan, const FreeWording& wording, Report& report)
      : plan_(plan),
        report_(report),
        reference_(wording, kWidth, kHeight, plan.twist),
        app_(kWidth, kHeight),
        generator_(plan.seed, plan.fate, plan.calm()) {
    watchForStop(report_, printed_, reference_);
  }

  void run() {
    const std::size_t length = plan_.script ? plan_.script->size() : plan_.length;
    if (differs()) return;
    for (std::size_t at = 0; at < length || goesOnToItsEnd(at); ++at) {
      if (!act(plan_.script ? (*plan_.script)[at] : generator_.next(reference_))) return;
      if (plan_.tamperAt && at >= *plan_.tamperAt) app_.tamper();
      if (differs()) return;
    }
    signal(SIGABRT, SIG_DFL);
    if (app_.end() > 0) return tell(report_, "  screens outlive the application\n");
    report_.verdict = Verdict::Lived;
  }

 private:
  // A sequence that must end goes on until it finds its end.
  bool goesOnToItsEnd(std::size_t at) const {
    return !plan_.script && plan_.fate != Fate::Live && at < plan_.length + kMostToTheEnd;
  }

  bool act(const Action& action) {
    count(report_, action, reference_);
    try {
      reference_.perform(action);
    } catch (const Stopped& stopped) {
      expectStop(report_, stopped);
    }
    app_.perform(action);
    if (report_.stopExpected) tell(report_, "  the application goes on\n");
    return !report_.stopExpected;
  }

  bool differs() {
    const auto told = comparison_.differences(reference_, app_, printed_.take());
    if (told.empty()) return false;
    tell(report_, told);
    return true;
  }

  const Plan& plan_;
  Report& report_;
  PrintedText printed_;
  ReferenceApp reference_;
  AppUnderTest app_;
  ActionGenerator generator_;
  Comparison comparison_;
};

}  // namespace

void keep(Report& report, const Action& action) {
  if (report.keptLength == report.kept.size()) return;
  auto& kept = report.kept[report.keptLength++];
  kept = {.kind = action.kind,
          .ending = action.ending,
          .name = {},
          .text = {},
          .number = action.number,
          .width = action.width,
          .height = action.height,
          .offset = action.offset,
          .how = action.how};
  std::string_view(action.name).copy(kept.name.data(), kept.name.size() - 1);
  std::string_view(action.text).copy(kept.text.data(), kept.text.size() - 1);
}

Script keptScript(const Report& report) {
  Script script;
  for (std::size_t at = 0; at < report.keptLength; ++at) {
    const auto& kept = report.kept[at];
    script.push_back({.kind = kept.kind,
                      .name = kept.name.data(),
                      .text = kept.text.data(),
                      .number = kept.number,
                      .ending = kept.ending,
                      .width = kept.width,
                      .height = kept.height,
                      .offset = kept.offset,
                      .how = kept.how});
  }
  return script;
}

void tell(Report& report, std::string_view text) {
  report.verdict = Verdict::Diverged;
  report.toldLength = keep(report.told, text);
}

void count(Report& report, const Action& action, const ReferenceApp& reference) {
  ++report.actions;
  ++report.kinds[static_cast<std::size_t>(action.kind)];
  const auto top = reference.top().scene, shown = reference.shown().scene;
  ++report.scenes[static_cast<std::size_t>(top)];
  if (shown != top) ++report.scenes[static_cast<std::size_t>(shown)];
}

void expectStop(Report& report, const Stopped& stopped) {
  report.stopExpected = true;
  report.stopLength =
      keep(report.stop, "Leafund stopped: " + stopped.place + ": " + stopped.reason + "\n");
}

void watchForStop(Report& report, PrintedText& printed, const ReferenceApp& reference) {
  atTheStop = {&report, &printed, &reference};
  signal(SIGABRT, rememberPrinted);
}

void playWithoutWindow(const Plan& plan, const FreeWording& wording, Report& report) {
  Sequence(plan, wording, report).run();
}

Plan Plan::ofSeed(std::uint64_t seed, std::size_t fatalPercent, std::size_t most) {
  Chance chance(~seed);
  Plan plan{.seed = seed};
  plan.length = most / 4 + chance.below(most - most / 4 + 1);
  if (chance.percent(fatalPercent)) {
    plan.fate = chance.percent(50) ? Fate::JunkInARow : Fate::BadAddress;
  }
  return plan;
}

pid_t startSequence(const Plan& plan, const FreeWording& wording, Report& report, int errors) {
  std::memset(&report, 0, sizeof report);
  const pid_t process = fork();
  if (process != 0) return process;
  dup2(errors, STDERR_FILENO);
  alarm(kMostSeconds);
  plan.play(plan, wording, report);
#if defined(__SANITIZE_ADDRESS__)
  __lsan_do_leak_check();
#endif
  _exit(0);
}

void judge(Report& report, int status, const std::string& errors) {
  if (WIFEXITED(status) && WEXITSTATUS(status) == 0 && errors.empty()) return;
  const std::string_view expected(report.stop.data(), report.stopLength);
  const bool aborted = WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
  if (report.stopExpected && aborted && errors.substr(0, report.stop.size()) == expected) {
    if (report.printedAsExpected) {
      report.verdict = Verdict::StoppedAsExpected;
    } else {
      tell(report, "  stopped as expected, but other lines were printed before\n");
    }
    return;
  }
  std::string told = report.verdict == Verdict::Diverged ? toldBy(report) : std::string();
  told += "  expected stop: " + (report.stopExpected ? readable(expected) : "none") +
          "\n  the process ended with status " + std::to_string(status) + ": " +
          readable(errors.substr(0, 4000)) + "\n";
  tell(report, told);
}

std::string toldBy(const Report& report) { return {report.told.data(), report.toldLength}; }

}  // namespace leafund::random
