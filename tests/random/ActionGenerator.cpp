#include "tests/random/ActionGenerator.h"

#include <iterator>
#include <tuple>
#include <utility>

#include "tests/random/ReferenceRules.h"
#include "tests/random/TypedTexts.h"

namespace leafund::random {

namespace {

Action just(ActionKind kind) { return {.kind = kind}; }

bool isWhole(const Action& action) {
  if (action.ending != Ending::Picture) return action.ending != Ending::Junk;
  return action.width >= 1 && action.height >= 1;
}

Action numbered(ActionKind kind, long number) { return {.kind = kind, .number = number}; }

// The size of a picture: mostly small, sometimes at the limits of what is a picture. A GIF cannot
// tell a side beyond them, and of several answered together each is wider by one.
void drawPicture(Chance& chance, Action& action, bool mayBeEmpty) {
  static constexpr std::pair<double, double> kLimits[] = {
      {1, 1}, {65000, 1}, {65000, 65535}, {1, 65535}};
  static constexpr std::pair<double, double> kEmpty[] = {{0, 5}, {5, 0}};
  std::tie(action.width, action.height) = std::pair(static_cast<double>(chance.between(1, 2000)),
                                                    static_cast<double>(chance.between(1, 2000)));
  if (chance.percent(4)) std::tie(action.width, action.height) = chance.oneOf(kLimits);
  if (mayBeEmpty && chance.percent(15)) {
    std::tie(action.width, action.height) = chance.oneOf(kEmpty);
  }
}

}  // namespace

Action tapOn(std::string view) { return {.kind = ActionKind::Tap, .name = std::move(view)}; }

Action typeInto(std::string view, std::string text) {
  return {.kind = ActionKind::Type, .name = std::move(view), .text = std::move(text)};
}

Action ActionGenerator::next(const ReferenceApp& app) {
  Action action = chooseOrHead(app);
  action.how = how_.draw();
  return action;
}

Action ActionGenerator::chooseOrHead(const ReferenceApp& app) {
  if (doomed() && chance_.percent(60)) return head(app);
  if (calm_ > 0) --calm_;
  for (;;) {
    auto action = choose(app);
    if (!endsTooSoon(app, action)) return action;
  }
}

Action ActionGenerator::choose(const ReferenceApp& app) {
  const auto open = app.openTransfers();
  if (app.stepsWait() && chance_.percent(12)) return just(ActionKind::DrainMainQueue);
  if (open > 0 && chance_.percent(open > 24 ? 40 : 18)) return chooseTransfer(app);
  if (chance_.percent(12)) return chooseRare(app);
  return chooseHere(app);
}

Action ActionGenerator::chooseTransfer(const ReferenceApp& app) {
  Action action = numbered(ActionKind::Answer, chance_.between(0, 60));
  if (chance_.percent(25)) action.kind = ActionKind::AnswerLater;
  if (app.openTransfers() > 24 && chance_.percent(40)) action.kind = ActionKind::AnswerAll;
  static constexpr Ending kEndings[] = {Ending::Picture, Ending::Picture,     Ending::Picture,
                                        Ending::Picture, Ending::Error,       Ending::EmptyBody,
                                        Ending::Junk,    Ending::BodyAndError};
  action.ending = chance_.oneOf(kEndings);
  const bool all = action.kind == ActionKind::AnswerAll;
  drawPicture(chance_, action, !all);
  if (all) action.width = static_cast<double>(chance_.between(1, 1000));
  return action;
}

Action ActionGenerator::chooseRare(const ReferenceApp& app) {
  switch (chance_.below(12)) {
    case 0:
    case 1:
      return resize();
    case 2:
      return numbered(ActionKind::TellApplication, chance_.between(0, 4));
    case 3:
      return {.kind = ActionKind::AskEmailRule, .text = emailText(chance_)};
    case 4:
      return just(chance_.percent(10) ? ActionKind::TouchOwnCampaigns : ActionKind::TapBeside);
    case 5:
      return just(ActionKind::DrainMainQueue);
    case 6:
      return just(ActionKind::GoBack);
    default:
      return onHeld(app);
  }
}

Action ActionGenerator::onHeld(const ReferenceApp& app) {
  if (app.somethingHeld() && chance_.percent(60)) {
    if (chance_.percent(80)) return just(ActionKind::TapHeld);
    return {.kind = ActionKind::TypeIntoHeld, .text = anyText(chance_)};
  }
  const Screen& shown = app.shown();
  if (shown.table && chance_.percent(60)) {
    return numbered(ActionKind::HoldRow, chance_.between(0, 8));
  }
  const auto& views = app.top().views;
  return {.kind = ActionKind::HoldView, .name = chance_.oneOf(views).name};
}

Action ActionGenerator::chooseHere(const ReferenceApp& app) {
  const Screen& top = app.top();
  if (top.scene == Scene::Home) return chooseAtHome(app);
  if (chance_.percent(20)) {
    if (auto onwards = chooseOnwards(app)) return *onwards;
  }
  const bool leads = top.scene == Scene::Campaign || top.scene == Scene::Update;
  if (app.canGoBack(top) && chance_.percent(leads ? 15 : 3)) return just(ActionKind::GoBack);
  const View* view = &chance_.oneOf(top.views);
  // A second look for what is not seen or does nothing, so that it is tried less often.
  if (view->hidden || !view->isControl()) view = &chance_.oneOf(top.views);
  return onView(app, *view);
}

std::optional<Action> ActionGenerator::chooseOnwards(const ReferenceApp& app) {
  const Screen& top = app.top();
  if (top.scene == Scene::NewCampaign) {
    for (const char* name : {"nameOfCreator", "nameOfCampaign", "shortDescription",
                             "fullDescription", "imageURL", "desiredFunding"}) {
      if (top.at(name).text.empty()) return typeInto(name, textFor(app, name));
    }
    return tapOn("createButton");
  }
  if (top.scene != Scene::Campaign) return std::nullopt;
  if (!top.at("campaignUpdates").hidden) return tapOn("campaignUpdates");
  if (top.at("FundButton").hidden) return just(ActionKind::GoBack);
  if (!spelledAmount(top.at("dollarAmountField").text) || chance_.percent(30)) {
    return typeInto("dollarAmountField", textFor(app, "dollarAmountField"));
  }
  return tapOn("FundButton");
}

Action ActionGenerator::chooseAtHome(const ReferenceApp& app) {
  const Screen& shown = app.shown();
  if (shown.table && !shown.table->shown.empty()) {
    if (chance_.percent(35)) {
      auto row = shown.table->shown.begin();
      std::advance(row, static_cast<long>(chance_.below(shown.table->shown.size())));
      return numbered(ActionKind::TapRow, static_cast<long>(row->first));
    }
    if (chance_.percent(45)) return scroll(*shown.table);
    if (chance_.percent(5)) return numbered(ActionKind::TapRow, chance_.between(-1, 40));
  }
  if (!shown.views.empty() && chance_.percent(30)) return onView(app, chance_.oneOf(shown.views));
  return onView(app, chance_.oneOf(app.top().views));
}

Action ActionGenerator::onView(const ReferenceApp& app, const View& view) {
  if (view.isInput() && chance_.percent(88)) return onInput(app, view);
  // Pledges are few, because the list they are made from does not grow again.
  if (view.name == "yesButton" && chance_.percent(70)) return tapOn("noButton");
  if (chance_.percent(12)) {
    const auto& other = chance_.percent(50) ? view.name : chance_.oneOf(app.top().views).name;
    return {.kind = ActionKind::TapBoth, .name = view.name, .text = other};
  }
  return tapOn(view.name);
}

Action ActionGenerator::onInput(const ReferenceApp& app, const View& view) {
  const auto lot = chance_.below(100);
  if (lot < 62) return typeInto(view.name, textFor(app, view.name));
  if (lot < 82) return {.kind = ActionKind::BeginEditing, .name = view.name};
  return {.kind = lot < 91 ? ActionKind::EndEditing : ActionKind::PressReturn, .name = view.name};
}

std::string ActionGenerator::textFor(const ReferenceApp& app, const std::string& input) {
  if (input == "dollarAmountField") {
    const Pledge& pledge = *app.top().pledge;
    return amountText(chance_, pledge.goal - pledge.raised);
  }
  if (input == "desiredFunding") {
    return chance_.percent(40) ? "250" : amountText(chance_, 100);
  }
  if (input == "userEmail") return chance_.percent(50) ? emailText(chance_) : anyText(chance_);
  if (input == "passwordField" || input == "passwordConfirmField") return passwordText(chance_);
  if (input == "imageURL") {
    auto address = addressText(chance_);
    while (!doomed() && !isAddress(address)) address = addressText(chance_);
    return address;
  }
  return anyText(chance_);
}

Action ActionGenerator::resize() {
  static constexpr std::pair<double, double> kSizes[] = {
      {390, 844}, {320, 568}, {568, 320}, {1024, 1366}, {390, 0},  {0, 844},
      {390, 120}, {390, 121}, {390, 280}, {390, 281},   {390, 440}};
  Action action = just(ActionKind::Resize);
  std::tie(action.width, action.height) = chance_.oneOf(kSizes);
  if (chance_.percent(50)) {
    action.width = static_cast<double>(chance_.between(0, 1600)) / 2;
    action.height = static_cast<double>(chance_.between(0, 3000)) / 2;
  }
  static constexpr double kRails[] = {80, 96, 144};
  if (chance_.percent(30)) action.railWidth = chance_.oneOf(kRails);
  return action;
}

Action ActionGenerator::scroll(const Table& table) {
  Action action = just(ActionKind::Scroll);
  const double rows = static_cast<double>(chance_.between(-2, static_cast<long>(table.count) + 1));
  action.offset = rows * kRowHeight;
  if (chance_.percent(50)) action.offset += static_cast<double>(chance_.between(-160, 160)) / 4;
  if (chance_.percent(30))
    action.offset = table.offset + static_cast<double>(chance_.between(-60, 60));
  return action;
}

bool ActionGenerator::endsTooSoon(const ReferenceApp& app, const Action& action) const {
  if (doomed()) return false;
  const bool answers = action.kind == ActionKind::Answer || action.kind == ActionKind::AnswerLater;
  if (action.kind == ActionKind::AnswerAll) return action.ending == Ending::Junk;
  if (answers && app.openTransfers() > 0) {
    return !isWhole(action) &&
           app.transferIsForARow(static_cast<std::size_t>(action.number) % app.openTransfers());
  }
  const bool taps = action.kind == ActionKind::Tap || action.kind == ActionKind::TapBoth ||
                    action.kind == ActionKind::TapHeld;
  if (!taps || app.top().scene != Scene::NewCampaign) return false;
  const auto& address = app.top().at("imageURL").text;
  // An empty address becomes a message, which a second press takes for an address.
  return !isAddress(address) && (!address.empty() || action.kind == ActionKind::TapBoth);
}

}  // namespace leafund::random
