#include "tests/random/AppUnderTest.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/Catalogue.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITabContainer.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "screens/accounts/SignUpVC.h"
#include "shell/Storyboard.h"
#include "tests/support/Pictures.h"

namespace leafund::random {

namespace {

std::shared_ptr<UIView> named(const UIView& root, const std::string& name) {
  for (const auto& view : root.subviews()) {
    if (view->name() == name) return view;
    if (auto found = named(*view, name)) return found;
  }
  return nullptr;
}

// Bodies that are no picture, and what comes nearest to one.
std::string junk(long number) {
  static const std::array<std::string, 6> kJunk{"<html><body>404 Not Found</body></html>",
                                                "x",
                                                std::string("\0", 1),
                                                pictureBody(0, 0),
                                                pictureBody(4, 4).substr(0, 9),
                                                std::string("\xFF\xD8\xFF\xE0\0\x10", 6)};
  return kJunk.at(static_cast<std::size_t>(number) % kJunk.size());
}

}  // namespace

AppUnderTest::AppUnderTest(double width, double height, std::unique_ptr<PromptHost> host)
    : host_(std::move(host)) {
  application_ = std::make_shared<UIApplication>(*host_, mainStoryboard(), delegate_);
  application_->resize({width, height});
  host_->run(*application_);
}

AppUnderTest::~AppUnderTest() { end(); }

std::size_t AppUnderTest::end() {
  held_.reset();
  application_.reset();
  delegate_->setWindow(nullptr);
  host_->forget();
  return screensAlive();
}

std::shared_ptr<UIView> AppUnderTest::find(const std::string& name) const {
  return named(*application_->navigation()->topViewController()->view(), name);
}

std::shared_ptr<UITextInput> AppUnderTest::input(const std::string& name) const {
  return std::dynamic_pointer_cast<UITextInput>(find(name));
}

std::shared_ptr<UITableView> AppUnderTest::table() const {
  const auto child = application_->navigation()->topViewController()->shownChild();
  return child ? std::dynamic_pointer_cast<UITableView>(child->view()) : nullptr;
}

std::shared_ptr<UIView> AppUnderTest::row(long number) const {
  const auto rows = table();
  if (!rows) return nullptr;
  const auto found = rows->visibleCells().find(number);
  return found == rows->visibleCells().end() ? nullptr : found->second;
}

void AppUnderTest::perform(const Action& action) {
  emailAnswer_.clear();
  switch (action.kind) {
    case ActionKind::Tap:
      return application_->tap(find(action.name));
    case ActionKind::TapRow:
      return application_->tap(row(action.number));
    case ActionKind::TapBeside:
      return application_->tap(application_->navigation()->topViewController()->view());
    case ActionKind::TapBoth:
      return tapBoth(action);
    case ActionKind::BeginEditing:
      return application_->beginEditing(input(action.name));
    case ActionKind::Type:
      return application_->edit(input(action.name), action.text);
    case ActionKind::EndEditing:
      return application_->endEditing(input(action.name));
    case ActionKind::PressReturn:
      return application_->pressReturn(std::dynamic_pointer_cast<UITextField>(input(action.name)));
    case ActionKind::Scroll:
      return application_->scroll(table(), action.offset);
    case ActionKind::Resize:
      return application_->resize({action.width, action.height}, action.railWidth);
    case ActionKind::GoBack:
      return application_->goBack();
    case ActionKind::Answer:
    case ActionKind::AnswerLater:
      if (host_->open() == 0) return;
      endTransfer(static_cast<std::size_t>(action.number) % host_->open(), action, action.width);
      if (action.kind == ActionKind::Answer) host_->drain();
      return;
    case ActionKind::AnswerAll:
      return answerAll(action);
    case ActionKind::DrainMainQueue:
      return host_->drain();
    case ActionKind::TellApplication:
      return tell(action.number);
    case ActionKind::AskEmailRule:
      return askEmailRule(action.text);
    case ActionKind::TouchOwnCampaigns:
      myUnfundedCampaigns();
      return;
    case ActionKind::HoldView:
    case ActionKind::HoldRow:
    case ActionKind::TapHeld:
    case ActionKind::TypeIntoHeld:
      return performOnHeld(action);
  }
}

void AppUnderTest::tapBoth(const Action& action) {
  const auto first = find(action.name);
  const auto second = find(action.text);
  // Raised within one turn, so that both wait until it is over.
  application_->turn([&] {
    application_->tap(first);
    application_->tap(second);
  });
}

void AppUnderTest::performOnHeld(const Action& action) {
  switch (action.kind) {
    case ActionKind::HoldView:
      held_ = find(action.name);
      break;
    case ActionKind::HoldRow:
      held_ = row(action.number);
      break;
    case ActionKind::TapHeld:
      application_->tap(held_);
      break;
    default:
      application_->edit(std::dynamic_pointer_cast<UITextInput>(held_), action.text);
      break;
  }
}

void AppUnderTest::endTransfer(std::size_t at, const Action& action, double width) {
  const auto body = [&]() -> NSData {
    if (action.ending == Ending::Error) return nullptr;
    if (action.ending == Ending::EmptyBody) return std::make_shared<const std::string>();
    return std::make_shared<const std::string>(
        action.ending == Ending::Junk
            ? junk(action.number)
            : pictureBody(static_cast<unsigned>(width), static_cast<unsigned>(action.height)));
  };
  host_->end(at, body(), action.ending == Ending::Error || action.ending == Ending::BodyAndError);
}

void AppUnderTest::answerAll(const Action& action) {
  double width = action.width;
  while (host_->open() > 0) {
    endTransfer(action.number % 2 == 0 ? 0 : host_->open() - 1, action, width++);
    host_->drain();
  }
}

void AppUnderTest::tell(long news) {
  switch (news % 5) {
    case 0:
      return application_->resignActive();
    case 1:
      return application_->enterBackground();
    case 2:
      return application_->enterForeground();
    case 3:
      return application_->becomeActive();
    default:
      return application_->receiveMemoryWarning();
  }
}

void AppUnderTest::askEmailRule(const std::string& text) {
  const auto& top = application_->navigation()->topViewController();
  if (const auto form = std::dynamic_pointer_cast<SignUpVC>(top)) {
    emailAnswer_ = form->isValidEmail(text) ? "yes" : "no";
  }
}

void AppUnderTest::tamper() {
  const auto& root = application_->navigation()->topViewController()->view();
  for (const auto& view : root->subviews()) {
    if (const auto label = std::dynamic_pointer_cast<UILabel>(view)) {
      return label->setText(label->text() + " ");
    }
  }
}

std::size_t AppUnderTest::screensAlive() {
  std::erase_if(everSeen_, [](const auto& each) { return each.expired(); });
  return everSeen_.size();
}

}  // namespace leafund::random
