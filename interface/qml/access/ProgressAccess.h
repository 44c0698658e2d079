#pragma once

#include <cmath>
#include <utility>

#include "interface/qml/access/ItemAccess.h"
#include "interface/qml/bridge/ProgressBridge.h"

namespace leafund {

// A progress bar: how far it is, as a value between two others. Qt Quick tells of values only for
// what a user can move. In per cent.
class ProgressAccess final : public ItemAccess, public QAccessibleValueInterface {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override {
    askedForActions_ = false;
    return QAccessible::ProgressBar;
  }
  QAccessible::State state() const override {
    askedForActions_ = false;
    return ItemAccess::state();
  }
  void setText(QAccessible::Text, const QString&) override {}
  // Of whatever has a value the platform's bridge takes for granted that a user can move it, and
  // offers to increase and decrease it. For that it asks for the actions and, with nothing between,
  // for the value, and is then told of none.
  void* interface_cast(QAccessible::InterfaceType type) override {
    const bool movable = std::exchange(askedForActions_, type == QAccessible::ActionInterface);
    if (type != QAccessible::ValueInterface) return ItemAccess::interface_cast(type);
    return movable ? nullptr : static_cast<QAccessibleValueInterface*>(this);
  }

  QVariant currentValue() const override {
    const auto* view = item()->property("view").value<ProgressBridge*>();
    return std::round((view ? view->progress() : 0) * 100);
  }
  QVariant minimumValue() const override { return 0; }
  QVariant maximumValue() const override { return 100; }
  QVariant minimumStepSize() const override { return 0; }
  void setCurrentValue(const QVariant&) override {}  // it shows, and is not to be moved

 private:
  mutable bool askedForActions_ = false;
};

}  // namespace leafund
