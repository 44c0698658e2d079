#include "platform/uikit/UIApplication.h"

#include <algorithm>
#include <cstdio>
#include <utility>

#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "platform/uikit/UITapGestureRecognizer.h"

namespace leafund {

namespace {

UIApplication* theApplication = nullptr;

// Of rounds that took no waiting work: what goes on for ever is a mistake in a screen or a skin.
constexpr int kMostRounds = 100;
// Of waiting work: more than any user raises, and soon over if work raises work for ever.
constexpr int kMostWork = 10'000;

void complain() {
#ifndef NDEBUG
  std::fputs("turn: the layout does not settle\n", stderr);
#endif
}

}  // namespace

UIApplication::UIApplication(Host& host, const UIStoryboard& storyboard,
                             std::shared_ptr<UIApplicationDelegate> delegate)
    : host_(host), storyboard_(storyboard), delegate_(std::move(delegate)) {
  theApplication = this;
}

UIApplication::~UIApplication() {
  if (theApplication == this) theApplication = nullptr;
}

UIApplication* UIApplication::current() { return theApplication; }

void UIApplication::launch(const std::optional<LaunchOptions>& options) {
  auto navigation = std::make_shared<UINavigationController>();
  delegate_->setWindow(std::make_shared<UIWindow>(navigation));
  delegate_->applicationDidFinishLaunchingWithOptions(*this, options);
  navigation_ = std::move(navigation);
  navigation_->setSize(size_, railWidth_);
  // Ahead of what was raised before the launch: nothing from outside meets a stack without a
  // screen.
  pending_.push_front({[this] {
    navigation_->pushViewController(storyboard_.instantiateInitialViewController());
  }});
  run();
}

void UIApplication::turn(std::function<void()> work) { add({std::move(work)}); }

void UIApplication::add(Waiting waiting) {
  if (waiting.about != nullptr && !pending_.empty() && pending_.back().about == waiting.about) {
    pending_.back() = std::move(waiting);
  } else {
    pending_.push_back(std::move(waiting));
  }
  if (!running_ && navigation_) run();
}

void UIApplication::run() {
  running_ = true;
  for (int work = 0, rounds = 0; !settled() && work < kMostWork && rounds < kMostRounds;) {
    ++(pending_.empty() ? rounds : work);
    runRound();
  }
  running_ = false;
  if (settled()) return;
  complain();
  if (std::exchange(resuming_, true)) return;  // or posts would multiply with every event
  host_.post([] {
    if (auto* application = current()) application->resuming_ = false;
  });
}

bool UIApplication::settled() const {
  return pending_.empty() && needLayout_.empty() && changed_.empty() && !stackChanged_;
}

void UIApplication::runRound() {
  if (!pending_.empty()) {
    const auto waiting = std::move(pending_.front());
    pending_.pop_front();
    waiting.work();
  }
  for (const auto& waiting : std::exchange(needLayout_, {})) {
    const auto view = std::static_pointer_cast<UIView>(waiting.lock());
    if (!view) continue;
    view->awaitsLayout_ = false;
    view->layoutSubviews();
  }
  if (std::exchange(stackChanged_, false)) host_.show(*navigation_);
  for (const auto& waiting : std::exchange(changed_, {})) {
    const auto view = std::static_pointer_cast<UIView>(waiting.lock());
    if (!view) continue;
    view->awaitsRefresh_ = false;
    if (view->skin() != nullptr) view->skin()->refresh();
  }
}

void UIApplication::noteChanged(UIView& view) {
  if (std::exchange(view.awaitsRefresh_, true)) return;
  changed_.push_back(view.weak_from_this());
}

void UIApplication::noteNeedsLayout(UIView& view) {
  if (view.weak_from_this().expired() || std::exchange(view.awaitsLayout_, true)) return;
  needLayout_.push_back(view.weak_from_this());
}

std::shared_ptr<UIViewController> UIApplication::shownScreenOf(const UIView& view) const {
  if (!navigation_) return nullptr;
  for (const UIView* root = &view; root != nullptr; root = root->superview()) {
    for (auto screen = navigation_->topViewController(); screen; screen = screen->shownChild()) {
      if (screen->viewIfLoaded().get() == root) return screen;
    }
  }
  return nullptr;
}

bool UIApplication::reachable(const UIView& view) const {
  for (const UIView* each = &view; each != nullptr; each = each->superview()) {
    if (each->hidden()) return false;
  }
  return shownScreenOf(view) != nullptr;
}

void UIApplication::tap(const std::shared_ptr<UIView>& view) {
  turn([this, view] {
    if (view && reachable(*view)) tapReached(view);
  });
}

void UIApplication::tapReached(const std::shared_ptr<UIView>& view) {
  const auto control = std::dynamic_pointer_cast<UIControl>(view);
  const auto cell = std::dynamic_pointer_cast<UITableViewCell>(view);
  const auto screen = cell ? shownScreenOf(*cell) : nullptr;
  const auto input = firstResponder();
  // The finger leaves the input it was in for another control, as on a phone whose keyboard goes
  // away. What a tap beside the controls does is for the screen's recognisers to say.
  if (input && input != view && (control || cell)) input->resignFirstResponder();
  if (control) {
    control->sendActionsForControlEvents(UIControlEvent::TouchUpInside);
    return;
  }
  if (cell) {
    screen->performSegueWithIdentifierSender(cell->segueIdentifier(), cell);
    return;
  }
  // Gathered first: what one of them does may take away the view that holds the next.
  std::vector<std::shared_ptr<UITapGestureRecognizer>> recognizers;
  for (const auto* each = view.get(); each != nullptr; each = each->superview()) {
    const auto& own = each->gestureRecognizers();
    recognizers.insert(recognizers.end(), own.begin(), own.end());
  }
  for (const auto& recognizer : recognizers) recognizer->recognize();
}

void UIApplication::beginEditing(const std::shared_ptr<UITextInput>& input) {
  turn([this, input] {
    if (!input || !input->editable() || !reachable(*input) || input->editing()) return;
    if (const auto other = firstResponder()) other->resignFirstResponder();
    firstResponder_ = input;
    input->becomeFirstResponder();
  });
}

void UIApplication::edit(const std::shared_ptr<UITextInput>& input, std::string text) {
  turn([this, input, text = std::move(text)]() mutable {
    if (input && input->editable() && reachable(*input)) input->editByUser(std::move(text));
  });
}

void UIApplication::endEditing(const std::shared_ptr<UITextInput>& input) {
  turn([input] {
    if (input) input->resignFirstResponder();
  });
}

void UIApplication::pressReturn(const std::shared_ptr<UITextField>& field) {
  turn([this, field] {
    if (!field || !reachable(*field)) return;
    // The default of the return key is to do nothing here, so only the delegate's own act counts.
    if (const auto delegate = field->delegate()) delegate->textFieldShouldReturn(field);
  });
}

void UIApplication::scroll(const std::shared_ptr<UITableView>& table, double offset,
                           std::optional<unsigned> placements) {
  if (!table) return;
  const auto seen = placements.value_or(table->placements());
  const auto follow = [this, table, offset, seen] {
    if (table->placements() != seen || table->contentOffset().y == offset) return;
    const double nearest = std::clamp(offset, 0.0, table->greatestOffset());
    const bool reached = reachable(*table);
    if (reached) table->followUser({table->contentOffset().x, nearest});
    if (!reached || nearest != offset) table->placeAnew();
  };
  add({follow, table.get()});
}

void UIApplication::resize(CGSize size, double railWidth) {
  size_ = size;
  railWidth_ = railWidth;
  if (!navigation_) return;  // the first size comes before launch
  add({[this, size, railWidth] { navigation_->setSize(size, railWidth); }, this});
}

void UIApplication::goBack() {
  turn([this] {
    if (!navigation_->canGoBack(*navigation_->topViewController())) return;
    if (const auto input = firstResponder()) input->resignFirstResponder();
    navigation_->goBack();
  });
}

void UIApplication::tell(void (UIApplicationDelegate::*call)(UIApplication&)) {
  turn([this, call] { ((*delegate_).*call)(*this); });
}

void UIApplication::resignActive() { tell(&UIApplicationDelegate::applicationWillResignActive); }
void UIApplication::enterBackground() {
  tell(&UIApplicationDelegate::applicationDidEnterBackground);
}
void UIApplication::enterForeground() {
  tell(&UIApplicationDelegate::applicationWillEnterForeground);
}
void UIApplication::becomeActive() { tell(&UIApplicationDelegate::applicationDidBecomeActive); }
void UIApplication::terminate() { tell(&UIApplicationDelegate::applicationWillTerminate); }

void UIApplication::receiveMemoryWarning() {
  turn([this] {
    for (const auto& screen : navigation_->viewControllers()) {
      screen->didReceiveMemoryWarning();
      for (const auto& child : screen->childViewControllers()) child->didReceiveMemoryWarning();
    }
  });
}

}  // namespace leafund
