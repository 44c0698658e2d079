#include "tests/random/ActionGenerator.h"
#include "tests/random/ReferenceRules.h"

// How a sequence that must end comes to its end.
namespace leafund::random {

Action ActionGenerator::head(const ReferenceApp& app) {
  return fate_ == Fate::JunkInARow ? headForJunk(app) : headForBadAddress(app);
}

Action ActionGenerator::headHome(const ReferenceApp& app) const {
  const Screen& top = app.top();
  switch (top.scene) {
    case Scene::Landing:
      if (top.at("userEmail").text.empty()) return typeInto("userEmail", "wren@example.org");
      if (top.at("password").text.empty()) return typeInto("password", "secret");
      return tapOn("signInButton");
    case Scene::Confirm:
      return tapOn("noButton");
    case Scene::Thanks:
      return tapOn("homeButton");
    default:
      return {.kind = ActionKind::GoBack};
  }
}

Action ActionGenerator::headForJunk(const ReferenceApp& app) {
  if (app.bodiesWait() && chance_.percent(30)) return {.kind = ActionKind::DrainMainQueue};
  for (std::size_t at = 0; at < app.openTransfers(); ++at) {
    if (!app.transferIsForARow(at)) continue;
    Action action{.kind = ActionKind::Answer, .number = static_cast<long>(at)};
    if (chance_.percent(30)) action.kind = ActionKind::AnswerLater;
    action.ending = chance_.percent(70) ? Ending::Junk : Ending::Picture;
    action.width = 16385;
    action.height = 1;
    return action;
  }
  if (app.top().scene != Scene::Home) return headHome(app);
  // No row is in sight where the window has no room for one.
  if (app.top().height < kRowHeight) {
    return {.kind = ActionKind::Resize, .width = 390, .height = 844};
  }
  return tapOn(app.shown().scene == Scene::Funded ? "mineTab" : "fundedTab");
}

Action ActionGenerator::headForBadAddress(const ReferenceApp& app) const {
  const Screen& top = app.top();
  if (top.scene == Scene::Home) {
    if (app.shown().scene != Scene::Mine) return tapOn("mineTab");
    if (isAddress(app.mine()->front()->photo)) return tapOn("newButton");
    // It stands above what is in sight, or the window has no room for a row.
    if (app.shown().table->offset > 0) return {.kind = ActionKind::Scroll};
    return {.kind = ActionKind::Resize, .width = 390, .height = 844};
  }
  if (top.scene != Scene::NewCampaign) return headHome(app);
  if (!spelledAmount(top.at("desiredFunding").text)) return typeInto("desiredFunding", "5");
  const auto& address = top.at("imageURL").text;
  if (!address.empty() && isAddress(address)) return typeInto("imageURL", "a b");
  return tapOn("createButton");
}

}  // namespace leafund::random
