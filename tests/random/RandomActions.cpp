#include <chrono>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <stdexcept>
#include <thread>

#include "tests/random/Comparison.h"
#include "tests/random/Runner.h"
#include "tests/random/Shrinker.h"

// Random actions against the application, held to the reference after each. Ends with 0 when the
// two never differed, with 1 and the shortest script found when they did, or when some screen was
// hardly met, and with 2 when called wrongly.
namespace leafund::random {
namespace {

struct Call {
  Order order;
  std::optional<std::uint64_t> replay;
};

std::uint64_t numberAfter(int& at, int argc, char** argv) {
  if (++at >= argc) throw std::invalid_argument(std::string(argv[at - 1]) + " needs a number");
  std::size_t read = 0;
  const auto number = std::stoull(argv[at], &read);
  if (read != std::strlen(argv[at]))
    throw std::invalid_argument(std::string("no number: ") + argv[at]);
  return number;
}

Call callFrom(const Order& defaults, int argc, char** argv) {
  Call call{.order = defaults, .replay = {}};
  call.order.jobs = std::max(1U, std::thread::hardware_concurrency());
  for (int at = 1; at < argc; ++at) {
    const std::string_view option = argv[at];
    if (option == "--actions") {
      call.order.actions = numberAfter(at, argc, argv);
    } else if (option == "--seed") {
      call.order.firstSeed = numberAfter(at, argc, argv);
    } else if (option == "--fatal-share") {
      call.order.fatalPercent = numberAfter(at, argc, argv);
    } else if (option == "--longest") {
      call.order.most = numberAfter(at, argc, argv);
    } else if (option == "--jobs") {
      call.order.jobs = std::max<std::size_t>(1, numberAfter(at, argc, argv));
    } else if (option == "--twist") {
      call.order.twist = static_cast<Twist>(numberAfter(at, argc, argv));
    } else if (option == "--replay") {
      call.replay = numberAfter(at, argc, argv);
    } else {
      throw std::invalid_argument("unknown option: " + std::string(option));
    }
  }
  return call;
}

void print(const Totals& totals, double seconds) {
  std::size_t screens = 0;
  for (const auto count : totals.scenes) screens += count > 0 ? 1 : 0;
  std::cout << totals.sequences << " sequences, " << totals.actions << " actions, " << totals.stops
            << " stopped as expected (" << totals.escaped << " meant to stop lived), " << seconds
            << " s, seeds " << totals.firstSeed << " to " << totals.nextSeed - 1 << ", " << screens
            << " screens;";
  for (int kind = 0; kind < kActionKinds; ++kind) {
    std::cout << ' ' << kindName(static_cast<ActionKind>(kind)) << '='
              << totals.kinds[static_cast<std::size_t>(kind)];
  }
  std::cout << ';';
  for (int scene = 0; scene < kScenes; ++scene) {
    std::cout << ' ' << className(static_cast<Scene>(scene)) << '='
              << totals.scenes[static_cast<std::size_t>(scene)];
  }
  std::cout << std::endl;
}

// A screen that fewer than one in a thousand actions find is as good as untried: the user no longer
// finds the way there.
bool allAreTried(const Totals& totals) {
  constexpr std::uint64_t enough = 5'000;
  if (totals.actions < enough) return true;
  bool all = true;
  for (int scene = 0; scene < kScenes; ++scene) {
    const auto count = totals.scenes[static_cast<std::size_t>(scene)];
    if (count * 1'000 >= totals.actions) continue;
    std::cout << className(static_cast<Scene>(scene)) << " was seldom tried: " << count
              << std::endl;
    all = false;
  }
  return all;
}

int tellFailure(const Plan& plan, const std::string& told, const FreeWording& wording) {
  std::cout << "seed " << plan.seed << " diverges:\n" << told << "Shrinking" << std::endl;
  const auto failure = shrinkFailure(plan, wording);
  for (const auto& action : failure.script) std::cout << readable(action) << '\n';
  std::cout << failure.told << "To see it again: --replay " << plan.seed
            << " with the same --fatal-share and --longest." << std::endl;
  return 1;
}

int run(const Call& call) {
  const auto wording = wordingOfTheApplication();
  warmUp();
  if (call.replay) {
    Plan plan = Plan::ofSeed(*call.replay, call.order.fatalPercent, call.order.most);
    plan.twist = call.order.twist;
    plan.play = call.order.play;
    const auto report = runSequence(plan, wording);
    if (report.verdict == Verdict::Diverged) return tellFailure(plan, toldBy(report), wording);
    std::cout << "seed " << *call.replay << " does not diverge" << std::endl;
    return 0;
  }
  Totals totals;
  const auto start = std::chrono::steady_clock::now();
  const auto diverged = runSequences(call.order, wording, totals);
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
  print(totals, took.count());
  if (diverged) return tellFailure(*diverged, totals.told, wording);
  return allAreTried(totals) ? 0 : 1;
}

}  // namespace

int runRandomActions(const Order& defaults, int argc, char** argv) {
  try {
    return run(callFrom(defaults, argc, argv));
  } catch (const std::exception& error) {
    std::cerr << argv[0] << ": " << error.what() << '\n';
    return 2;
  }
}

}  // namespace leafund::random
