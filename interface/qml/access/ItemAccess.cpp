#include "interface/qml/access/ItemAccess.h"

#include <QQmlContext>
#include <QQmlProperty>
#include <QQuickWindow>

#include "interface/qml/access/InputAccess.h"
#include "interface/qml/access/ProgressAccess.h"
#include "interface/qml/access/WordsAccess.h"

namespace leafund {

namespace {

// What the item declares its view to be. The view itself may come later than this is asked.
QMetaType viewTypeOf(const QQuickItem& item) {
  const auto& type = *item.metaObject();
  return type.property(type.indexOfProperty("view")).metaType();
}

QAccessibleInterface* accessFor(const QString&, QObject* object) {
  auto* item = qobject_cast<QQuickItem*>(object);
  if (item == nullptr) return nullptr;
  if (item->inherits("QQuickTextInput") || item->inherits("QQuickTextEdit")) {
    return new InputAccess(item);
  }
  if (item->inherits("QQuickText")) return new WordsAccess(item);
  if (viewTypeOf(*item) == QMetaType::fromType<ProgressBridge*>()) return new ProgressAccess(item);
  return nullptr;
}

}  // namespace

void describeItemsToAssistiveTechnology() { QAccessible::installFactory(accessFor); }

QAccessibleInterface* ItemAccess::parent() const {
  auto* window = item()->window();
  if (window == nullptr) return nullptr;
  for (auto* each = item()->parentItem(); each != nullptr; each = each->parentItem()) {
    if (each == window->contentItem()) break;
    if (auto* access = QAccessible::queryAccessibleInterface(each)) return access;
  }
  return QAccessible::queryAccessibleInterface(window);
}

QRect ItemAccess::onScreen(const QRectF& area) const {
  const auto* window = item()->window();
  if (window == nullptr) return {};
  const QRect inWindow = item()->mapRectToScene(area).toRect();
  return {window->mapToGlobal(inWindow.topLeft()), inWindow.size()};
}

// What is hidden has no place.
QRect ItemAccess::rect() const { return item()->isVisible() ? onScreen(area()) : QRect(); }

// Whether neither the window nor a scrolled pane cuts off all of it.
bool ItemAccess::inSight() const {
  QRectF seen = area();
  for (const auto* each = item(); each->parentItem() != nullptr; each = each->parentItem()) {
    if (each->clip() && each != item()) seen &= each->boundingRect();
    seen = each->mapRectToItem(each->parentItem(), seen);
  }
  return item()->window() != nullptr && seen.intersects(QRectF({0, 0}, item()->window()->size()));
}

QString ItemAccess::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Name) return written("Accessible.name").toString();
  if (kind == QAccessible::Description) return written("Accessible.description").toString();
  return {};
}

QVariant ItemAccess::written(const char* property) const {
  // While a page is being destroyed a bus may still ask of what is on it.
  auto* context = qmlContext(item());
  if (context == nullptr || !context->isValid()) return {};
  return QQmlProperty::read(item(), property, context);
}

QAccessible::State ItemAccess::state() const {
  QAccessible::State state;
  const auto* window = item()->window();
  state.invisible = window == nullptr || !window->isVisible() || !item()->isVisible();
  state.offscreen = !inSight();
  state.disabled = !item()->isEnabled();
  state.focusable = focusable();
  state.focused = item()->hasActiveFocus();
  return state;
}

void* ItemAccess::interface_cast(QAccessible::InterfaceType type) {
  if (type != QAccessible::ActionInterface || !focusable()) return nullptr;
  return static_cast<QAccessibleActionInterface*>(this);
}

QStringList ItemAccess::actionNames() const { return {setFocusAction()}; }

void ItemAccess::doAction(const QString& action) {
  if (action != setFocusAction() || !item()->isVisible() || !item()->isEnabled()) return;
  item()->forceActiveFocus(Qt::OtherFocusReason);
}

}  // namespace leafund
