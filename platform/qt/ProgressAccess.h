#pragma once

#include "platform/qt/ItemAccess.h"

namespace leafund {

// A progress bar: how far it is, as a value between two others. Qt Quick tells of values only for
// what a user can move. The item has the properties value, minimumValue and maximumValue.
class ProgressAccess final : public ItemAccess, public QAccessibleValueInterface {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override { return QAccessible::ProgressBar; }
  void setText(QAccessible::Text, const QString&) override {}
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type != QAccessible::ValueInterface) return ItemAccess::interface_cast(type);
    return static_cast<QAccessibleValueInterface*>(this);
  }

  QVariant currentValue() const override { return item()->property("value"); }
  QVariant minimumValue() const override { return item()->property("minimumValue"); }
  QVariant maximumValue() const override { return item()->property("maximumValue"); }
  QVariant minimumStepSize() const override { return 0; }
  void setCurrentValue(const QVariant&) override {}  // it shows, and is not to be moved
};

}  // namespace leafund
