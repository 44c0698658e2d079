#pragma once

#include <utility>

#include "platform/qt/ItemAccess.h"

namespace leafund {

// A progress bar: how far it is, as a value between two others. Qt Quick tells of values only for
// what a user can move. The item has the properties value, minimumValue and maximumValue.
class ProgressAccess final : public ItemAccess, public QAccessibleValueInterface {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override { return QAccessible::ProgressBar; }
  void setText(QAccessible::Text, const QString&) override {}
  // Of whatever has a value the platform's bridge takes for granted that a user can move it, and
  // offers to increase and decrease it. It asks for the actions first and for the value right after
  // them, and is then told of none.
  void* interface_cast(QAccessible::InterfaceType type) override {
    const auto before = std::exchange(lastAskedFor_, type);
    if (type != QAccessible::ValueInterface) return ItemAccess::interface_cast(type);
    if (before == QAccessible::ActionInterface) return nullptr;
    return static_cast<QAccessibleValueInterface*>(this);
  }

  QVariant currentValue() const override { return item()->property("value"); }
  QVariant minimumValue() const override { return item()->property("minimumValue"); }
  QVariant maximumValue() const override { return item()->property("maximumValue"); }
  QVariant minimumStepSize() const override { return 0; }
  void setCurrentValue(const QVariant&) override {}  // it shows, and is not to be moved

 private:
  QAccessible::InterfaceType lastAskedFor_ = QAccessible::ValueInterface;
};

}  // namespace leafund
