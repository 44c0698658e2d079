#include "platform/qt/ViewObject.h"

#include <algorithm>
#include <typeinfo>
#include <utility>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

namespace {

// A card is a plain view with a ground; what is laid into a row besides is of a class of its own.
bool isCard(const UIView& view) {
  return typeid(view) == typeid(UIView) && view.layer().backgroundColor().has_value();
}

}  // namespace

ViewObject::ViewObject(const std::shared_ptr<UIView>& view, QObject* parent)
    : QObject(parent), view_(view), look_(lookOf(*view)) {
  view->setSkin(this);
  addParts(*view);
  takeParts(*view);
}

ViewObject::~ViewObject() { leaveView(); }

void ViewObject::leaveView() {
  const auto view = view_.lock();
  if (view && view->skin() == this) view->setSkin(nullptr);
}

void ViewObject::show(const std::shared_ptr<UIView>& view) {
  leaveView();
  view_ = view;
  view->setSkin(this);
  cards_.clear();
  knownSubviews_ = 0;
  takeParts(*view);
  ++aims_;
  auto look = lookOf(*view);
  if (look == look_ && dynamic_cast<const UITableView*>(view.get()) == nullptr) return;
  look_ = std::move(look);
  emit changed();
}

void ViewObject::addParts(UIView& view) {
  const auto* cell = dynamic_cast<const UITableViewCell*>(&view);
  if (cell == nullptr) return;
  const auto add = [this](const char* name, const std::shared_ptr<UIView>& part) {
    if (part) parts_.insert(name, QVariant::fromValue(new ViewObject(part, this)));
  };
  add("content", cell->contentView());
  add("picture", cell->imageView());
  add("title", cell->textLabel());
  add("detail", cell->detailTextLabel());
}

void ViewObject::refresh() {
  const auto view = view_.lock();
  if (!view) return;
  look_ = lookOf(*view);
  takeParts(*view);
  emit changed();
}

void ViewObject::takeParts(const UIView& view) {
  if (dynamic_cast<const UITableView*>(&view) != nullptr) {
    takeNewCells(view);
  } else {
    takeNewCards(view);
  }
}

// A row gathers a card a showing and keeps them all, each new one at the back. So those added since
// the last time stand at the front of the list, and a refresh costs the same after a million. A
// look that is drawn already is not drawn again.
void ViewObject::takeNewCards(const UIView& view) {
  const auto& subviews = view.subviews();
  std::size_t added = subviews.size() - std::min(subviews.size(), knownSubviews_);
  knownSubviews_ = subviews.size();
  while (added > 0) {
    const auto& candidate = *subviews[--added];
    if (!isCard(candidate)) continue;
    const CardLook card{candidate.frame(), candidate.layer()};
    if (std::find(cards_.begin(), cards_.end(), card) == cards_.end()) {
      cards_.insert(cards_.begin(), card);
    }
  }
}

void ViewObject::takeNewCells(const UIView& view) {
  const auto& subviews = view.subviews();
  for (; knownSubviews_ < subviews.size(); ++knownSubviews_) {
    cells_.push_back(new ViewObject(subviews[knownSubviews_], this));
  }
}

QColor ViewObject::borderColor() const {
  const auto color = look_.layer.borderColor();
  return color ? qtColor(*color) : QColor(Qt::transparent);
}

void ViewObject::tap() {
  if (auto* application = UIApplication::current()) application->tap(view_.lock());
}

void ViewObject::edit(const QString& text) {
  const auto input = std::dynamic_pointer_cast<UITextInput>(view_.lock());
  if (auto* application = UIApplication::current()) application->edit(input, text.toStdString());
}

void ViewObject::beginEditing() {
  const auto input = std::dynamic_pointer_cast<UITextInput>(view_.lock());
  if (auto* application = UIApplication::current()) application->beginEditing(input);
}

void ViewObject::endEditing() {
  const auto input = std::dynamic_pointer_cast<UITextInput>(view_.lock());
  if (auto* application = UIApplication::current()) application->endEditing(input);
}

void ViewObject::pressReturn() {
  const auto field = std::dynamic_pointer_cast<UITextField>(view_.lock());
  if (auto* application = UIApplication::current()) application->pressReturn(field);
}

void ViewObject::scroll(double y) {
  const auto table = std::dynamic_pointer_cast<UITableView>(view_.lock());
  if (auto* application = UIApplication::current()) application->scroll(table, y, look_.placements);
}

}  // namespace leafund
