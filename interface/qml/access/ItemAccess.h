#pragma once

#include <QAccessible>
#include <QAccessibleObject>
#include <QQuickItem>

namespace leafund {

// What assistive technology is told of an item that Qt Quick itself describes too little of: the
// place, the name and the state, which all such items share. Names and descriptions come from the
// item's own `Accessible` lines. An item of this kind has no accessible parts.
class ItemAccess : public QAccessibleObject, public QAccessibleActionInterface {
 public:
  explicit ItemAccess(QQuickItem* item) : QAccessibleObject(item) {}

  QAccessibleInterface* parent() const override;
  int childCount() const override { return 0; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QRect rect() const override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& action) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 protected:
  QQuickItem* item() const { return static_cast<QQuickItem*>(object()); }
  // What the user takes for the item, in its own coordinates.
  virtual QRectF area() const { return item()->boundingRect(); }
  virtual bool focusable() const { return item()->activeFocusOnTab(); }
  QRect onScreen(const QRectF& area) const;
  // One of the item's `Accessible` lines, such as "Accessible.name".
  QVariant written(const char* property) const;

 private:
  bool inSight() const;
};

// From here on, inputs, progress bars and words are described by the classes of this folder. Doing
// it again changes nothing.
void describeItemsToAssistiveTechnology();

}  // namespace leafund
