#include "interface/qml/bridge/ViewObject.h"

#include <utility>

#include "platform/display/SceneViews.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {

namespace {

std::shared_ptr<UITextInput> inputIn(const std::shared_ptr<UIView>& view) {
  if (!view) return nullptr;
  const bool is = view->kind() == ViewKind::TextField || view->kind() == ViewKind::TextView;
  return is ? std::static_pointer_cast<UITextInput>(view) : nullptr;
}

// Null for a view that is gone or of another kind.
template <class View>
std::shared_ptr<View> viewOfKind(ViewKind kind, const std::shared_ptr<UIView>& view) {
  return view && view->kind() == kind ? std::static_pointer_cast<View>(view) : nullptr;
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
  cards_ = {};
  takeParts(*view);
  ++aims_;
  auto look = lookOf(*view);
  if (look == look_ && view->kind() != ViewKind::Table) return;
  look_ = std::move(look);
  emit changed();
}

void ViewObject::addParts(const UIView& view) {
  if (view.kind() != ViewKind::Cell) return;
  for (const auto& [name, each] : partsOf(static_cast<const UITableViewCell&>(view))) {
    parts_.emplace(name, new ViewObject(each, this));
  }
}

ViewObject* ViewObject::part(std::string_view name) const {
  const auto found = parts_.find(name);
  return found == parts_.end() ? nullptr : found->second;
}

void ViewObject::refresh() {
  const auto view = view_.lock();
  if (!view) return;
  look_ = lookOf(*view);
  takeParts(*view);
  emit changed();
}

void ViewObject::takeParts(const UIView& view) {
  if (view.kind() != ViewKind::Table) return cards_.take(view);
  const auto& cells = view.subviews();
  while (cells_.size() < cells.size()) cells_.push_back(new ViewObject(cells[cells_.size()], this));
}

QColor ViewObject::borderColor() const {
  const auto color = look_.layer.borderColor();
  return color ? qtColor(*color) : QColor(Qt::transparent);
}

void ViewObject::tap() {
  if (auto* application = UIApplication::current()) application->tap(view_.lock());
}

void ViewObject::edit(const QString& text) {
  const auto input = inputIn(view_.lock());
  if (auto* application = UIApplication::current()) application->edit(input, text.toStdString());
}

void ViewObject::beginEditing() {
  const auto input = inputIn(view_.lock());
  if (auto* application = UIApplication::current()) application->beginEditing(input);
}

void ViewObject::endEditing() {
  const auto input = inputIn(view_.lock());
  if (auto* application = UIApplication::current()) application->endEditing(input);
}

void ViewObject::pressReturn() {
  const auto field = viewOfKind<UITextField>(ViewKind::TextField, view_.lock());
  if (auto* application = UIApplication::current()) application->pressReturn(field);
}

void ViewObject::scroll(double y) {
  const auto table = viewOfKind<UITableView>(ViewKind::Table, view_.lock());
  if (auto* application = UIApplication::current()) application->scroll(table, y, look_.placements);
}

}  // namespace leafund
