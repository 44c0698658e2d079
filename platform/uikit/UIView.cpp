#include "platform/uikit/UIView.h"

#include <algorithm>
#include <utility>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITapGestureRecognizer.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

namespace {
const std::string kNoText;
}

UIView::~UIView() {
  if (!subviews_) return;
  for (const auto& view : *subviews_) view->superview_ = nullptr;
}

void UIView::setFrame(CGRect frame) {
  if (frame == frame_) return;
  frame_ = frame;
  setNeedsLayout();
  changed();
}

void UIView::setHidden(bool hidden) {
  // Shown once more counts as a change: it is how a message says that it holds again.
  if (hidden && hidden_) return;
  hidden_ = hidden;
  changed();
}

const CALayer& UIView::layer() const {
  static const CALayer plain;
  return layer_ ? *layer_ : plain;
}

CALayer& UIView::layer() {
  if (!layer_) layer_ = std::make_unique<CALayer>();
  changed();
  return *layer_;
}

const std::deque<std::shared_ptr<UIView>>& UIView::subviews() const {
  static const std::deque<std::shared_ptr<UIView>> none;
  return subviews_ ? *subviews_ : none;
}

void UIView::addSubview(std::shared_ptr<UIView> view) {
  view->removeFromSuperview();
  view->superview_ = this;
  if (!subviews_) subviews_ = std::make_unique<std::deque<std::shared_ptr<UIView>>>();
  subviews_->push_back(std::move(view));
  changed();
}

void UIView::sendSubviewToBack(const std::shared_ptr<UIView>& view) {
  if (view->superview_ != this) return;
  // From the front, where a view that was just added stands: no other view is moved then.
  const auto found = std::find(subviews_->rbegin(), subviews_->rend(), view);
  auto kept = *found;
  subviews_->erase(std::next(found).base());
  subviews_->push_front(std::move(kept));
  changed();
}

void UIView::removeFromSuperview() {
  auto* parent = std::exchange(superview_, nullptr);
  if (parent == nullptr) return;
  auto& siblings = *parent->subviews_;
  siblings.erase(std::find_if(siblings.begin(), siblings.end(),
                              [this](const auto& sibling) { return sibling.get() == this; }));
  parent->changed();
}

bool UIView::endEditing(bool) {
  auto* application = UIApplication::current();
  const auto input = application ? application->firstResponder() : nullptr;
  for (const UIView* view = input.get(); view != nullptr; view = view->superview_) {
    if (view != this) continue;
    input->resignFirstResponder();
    return true;
  }
  return false;
}

void UIView::addGestureRecognizer(std::shared_ptr<UITapGestureRecognizer> recognizer) {
  identity().gestureRecognizers.push_back(std::move(recognizer));
}

const std::vector<std::shared_ptr<UITapGestureRecognizer>>& UIView::gestureRecognizers() const {
  static const std::vector<std::shared_ptr<UITapGestureRecognizer>> none;
  return identity_ ? identity_->gestureRecognizers : none;
}

const std::string& UIView::name() const { return identity_ ? identity_->name : kNoText; }
void UIView::setName(std::string name) { identity().name = std::move(name); }

const std::string& UIView::accessibilityLabel() const {
  return identity_ ? identity_->accessibilityLabel : kNoText;
}
void UIView::setAccessibilityLabel(std::string label) {
  identity().accessibilityLabel = std::move(label);
}

UIView::Identity& UIView::identity() {
  if (!identity_) identity_ = std::make_unique<Identity>();
  return *identity_;
}

void UIView::setNeedsLayout() {
  if (auto* application = UIApplication::current()) application->noteNeedsLayout(*this);
}

void UIView::changed() {
  if (skin_ == nullptr) return;
  if (auto* application = UIApplication::current()) application->noteChanged(*this);
}

}  // namespace leafund
