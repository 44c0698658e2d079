#include "tests/random/ReferenceApp.h"

#include <algorithm>

#include "tests/random/ReferenceRules.h"

// What the user does, and whether it reaches anything.
namespace leafund::random {

ReferenceApp::ReferenceApp(const FreeWording& wording, double width, double height, Twist twist)
    : wording_(wording), twist_(twist), width_(width), height_(height) {
  plantSeeds();
  push(make(Scene::Landing));
}

const Screen& ReferenceApp::shown() const {
  const auto tab = selectedTab();
  return tab ? *tab : top();
}

void ReferenceApp::perform(const Action& action) {
  printed.clear();
  emailAnswer_.reset();
  switch (action.kind) {
    case ActionKind::Tap:
      tap(touchOf(action.name));
      break;
    case ActionKind::TapRow:
      tap(touchOfRow(action.number));
      break;
    case ActionKind::TapBeside:
      tapBeside();
      break;
    case ActionKind::TapBoth: {
      const auto first = touchOf(action.name);
      const auto second = touchOf(action.text);
      tap(first);
      settle();
      tap(second);
      break;
    }
    case ActionKind::BeginEditing:
      beginEditing(action.name);
      break;
    case ActionKind::Type:
      type(touchOf(action.name), action.text);
      break;
    case ActionKind::EndEditing:
      if (const auto* view = viewUnder(touchOf(action.name)); view && view->editing) endEditing();
      break;
    case ActionKind::PressReturn:
      if (const auto* view = viewUnder(touchOf(action.name)); view && view->returnEndsEditing) {
        endEditing();
      }
      break;
    case ActionKind::Scroll:
      if (auto tab = selectedTab(); tab && tab->table) {
        tab->table->offset = std::clamp(action.offset, 0.0, tab->table->greatestOffset());
      }
      break;
    case ActionKind::Resize:
      width_ = action.width;
      height_ = action.height;
      railWidth_ = action.railWidth;
      layOutTop();
      break;
    case ActionKind::GoBack:
      goBack();
      break;
    case ActionKind::Answer:
    case ActionKind::AnswerLater:
      if (transfers_.empty()) break;
      end(static_cast<std::size_t>(action.number) % transfers_.size(), action, action.width);
      if (action.kind == ActionKind::Answer) drain();
      break;
    case ActionKind::AnswerAll:
      answerAll(action);
      break;
    case ActionKind::DrainMainQueue:
      drain(action.number == 0);
      break;
    case ActionKind::TellApplication:
      break;  // the background, coming back and memory warnings change nothing
    case ActionKind::AskEmailRule:
      if (top().scene == Scene::SignUp) emailAnswer_ = looksLikeEmail(action.text);
      break;
    case ActionKind::TouchOwnCampaigns:
      own();
      break;
    case ActionKind::HoldView:
    case ActionKind::HoldRow:
    case ActionKind::TapHeld:
    case ActionKind::TypeIntoHeld:
      performOnHeld(action);
      break;
  }
  settle();
}

void ReferenceApp::performOnHeld(const Action& action) {
  switch (action.kind) {
    case ActionKind::HoldView:
      held_ = touchOf(action.name);
      break;
    case ActionKind::HoldRow:
      held_ = touchOfRow(action.number);
      break;
    case ActionKind::TapHeld:
      tap(held_);
      break;
    default:
      type(held_, action.text);
      break;
  }
}

std::optional<ReferenceApp::Touch> ReferenceApp::touchOf(const std::string& view) const {
  for (const auto& screen : {stack_.back(), selectedTab()}) {
    if (screen && screen->find(view)) return Touch{screen, view, {}};
  }
  return std::nullopt;
}

std::optional<ReferenceApp::Touch> ReferenceApp::touchOfRow(long row) const {
  const auto tab = selectedTab();
  if (!tab || !tab->table || row < 0) return std::nullopt;
  const auto found = tab->table->shown.find(static_cast<std::size_t>(row));
  if (found == tab->table->shown.end()) return std::nullopt;
  return Touch{tab, "", found->second, true};
}

bool ReferenceApp::reachable(const Touch& touch) const {
  const auto screen = touch.screen.lock();
  if (!screen || (screen != stack_.back() && screen != selectedTab())) return false;
  if (touch.onRow) return !touch.row.lock()->hidden;
  return !screen->find(touch.view)->hidden;
}

// The view, also when it is not to be reached; null for a row.
View* ReferenceApp::viewUnder(const std::optional<Touch>& touch) const {
  const auto screen = touch ? touch->screen.lock() : nullptr;
  return screen && !touch->onRow ? screen->find(touch->view) : nullptr;
}

void ReferenceApp::tap(const std::optional<Touch>& touch) {
  if (!touch || !reachable(*touch)) return;
  const auto screen = touch->screen.lock();
  auto* view = viewUnder(touch);
  if (view && !view->isControl()) {
    if (screen->scene == Scene::NewCampaign) endEditing();
    return;
  }
  if (!view || !view->editing) endEditing();
  if (!view) {
    openRow(screen, touch->row.lock());
  } else if (!view->isInput()) {
    press(screen, touch->view);
  }
}

void ReferenceApp::tapBeside() {
  if (top().scene == Scene::NewCampaign) endEditing();
}

void ReferenceApp::beginEditing(const std::string& name) {
  const auto touch = touchOf(name);
  auto* view = viewUnder(touch);
  if (!view || !view->isInput() || !view->editable || !reachable(*touch) || view->editing) return;
  endEditing();
  view->editing = true;
  // Entering an input of the landing screen takes away the message that stands in it.
  if (top().scene == Scene::Landing && view->showsMessage()) {
    view->text.clear();
    view->ink = Ink::Black;
  }
}

void ReferenceApp::type(const std::optional<Touch>& touch, const std::string& text) {
  auto* view = viewUnder(touch);
  if (!view || !view->isInput() || !view->editable || !reachable(*touch)) return;
  view->text = text;
  view->byScreen = false;
}

void ReferenceApp::endEditing() {
  for (auto& view : stack_.back()->views) view.editing = false;
}

void ReferenceApp::goBack() {
  if (!canGoBack(top())) return;
  endEditing();
  popTo(stack_.size() - 1);
}

}  // namespace leafund::random
