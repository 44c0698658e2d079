#pragma once

#include "tests/random/Action.h"
#include "tests/random/Chance.h"
#include "tests/random/ReferenceApp.h"

namespace leafund::random {

// How a sequence is to go: on and on, or to one of the two ends that a user and a picture host can
// bring about.
enum class Fate { Live, JunkInARow, BadAddress };

// Chooses actions by looking at the reference: mostly what can be reached, sometimes what cannot. A
// sequence that is to live meets nothing that stops the process; the others head for their end
// after `calm` actions.
class ActionGenerator {
 public:
  ActionGenerator(std::uint64_t seed, Fate fate, std::size_t calm)
      : chance_(seed), how_(seed ^ kOtherLot), fate_(fate), calm_(calm) {}

  Action next(const ReferenceApp& app);

 private:
  bool doomed() const { return fate_ != Fate::Live && calm_ == 0; }
  Action chooseOrHead(const ReferenceApp& app);
  Action choose(const ReferenceApp& app);
  Action chooseTransfer(const ReferenceApp& app);
  Action chooseRare(const ReferenceApp& app);
  Action chooseHere(const ReferenceApp& app);
  Action chooseAtHome(const ReferenceApp& app);
  // What leads on from here: without it, forms and pledges would seldom be brought to their end.
  std::optional<Action> chooseOnwards(const ReferenceApp& app);
  Action onView(const ReferenceApp& app, const View& view);
  Action onInput(const ReferenceApp& app, const View& view);
  Action onHeld(const ReferenceApp& app);
  std::string textFor(const ReferenceApp& app, const std::string& input);
  Action resize();
  Action scroll(const Table& table);
  bool endsTooSoon(const ReferenceApp& app, const Action& action) const;

  // The shortest way to the end (FatalActions.cpp).
  Action head(const ReferenceApp& app);
  Action headHome(const ReferenceApp& app) const;
  Action headForJunk(const ReferenceApp& app);
  Action headForBadAddress(const ReferenceApp& app) const;

  // Drawn apart, so that a seed means the same with a window and without.
  static constexpr std::uint64_t kOtherLot = 0x5DEECE66D;

  Chance chance_, how_;
  Fate fate_;
  std::size_t calm_;
};

Action tapOn(std::string view);
Action typeInto(std::string view, std::string text);

}  // namespace leafund::random
