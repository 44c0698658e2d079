#include "tests/random/Shrinker.h"

#include <algorithm>

#include "tests/random/Runner.h"

namespace leafund::random {

namespace {

Script without(const Script& script, std::size_t from, std::size_t count) {
  Script rest(script.begin(), script.begin() + static_cast<std::ptrdiff_t>(from));
  const auto end = std::min(from + count, script.size());
  rest.insert(rest.end(), script.begin() + static_cast<std::ptrdiff_t>(end), script.end());
  return rest;
}

}  // namespace

Script scriptOf(const Plan& plan, const FreeWording& wording, std::size_t actions) {
  if (plan.script) return *plan.script;
  // The reference alone chooses, so it needs no application to say what it chose.
  ReferenceApp reference(wording, 390, 844, plan.twist);
  ActionGenerator generator(plan.seed, plan.fate, plan.calm());
  Script script;
  try {
    while (script.size() < actions) {
      script.push_back(generator.next(reference));
      reference.perform(script.back());
    }
  } catch (const Stopped&) {
    // The last action is in the script already.
  }
  return script;
}

Script shrink(Script script, const std::function<bool(const Script&)>& fails) {
  for (std::size_t piece = std::max<std::size_t>(1, script.size() / 2);;) {
    bool shrunk = false;
    for (std::size_t from = 0; from < script.size();) {
      auto rest = without(script, from, piece);
      if (fails(rest)) {
        script = std::move(rest);
        shrunk = true;
      } else {
        from += piece;
      }
    }
    if (piece == 1 && !shrunk) return script;
    if (piece > 1) piece /= 2;
  }
}

ShrunkFailure shrinkFailure(const Plan& plan, const FreeWording& wording) {
  const Report first = runSequence(plan, wording);
  Plan shorter = plan;
  ShrunkFailure failure{.script = {}, .told = toldBy(first)};
  const auto fails = [&](const Script& script) {
    shorter.script = script;
    const Report report = runSequence(shorter, wording);
    if (report.verdict != Verdict::Diverged) return false;
    failure.told = toldBy(report);
    return true;
  };
  failure.script = shrink(
      first.keptLength > 0 ? keptScript(first) : scriptOf(plan, wording, first.actions), fails);
  return failure;
}

}  // namespace leafund::random
