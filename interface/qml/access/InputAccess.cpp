#include "interface/qml/access/InputAccess.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <algorithm>

namespace leafund {

namespace {

constexpr QChar kDot(0x2022);

}  // namespace

// An item without an echo mode hides nothing.
bool InputAccess::secret() const { return number("echoMode") != 0; }

QRectF InputAccess::area() const {
  for (auto* each = item()->parentItem(); each != nullptr; each = each->parentItem()) {
    if (each->property("input").value<QQuickItem*>() != item()) continue;
    return item()->mapRectFromItem(each, each->boundingRect());
  }
  return ItemAccess::area();
}

QString InputAccess::shownText() const {
  const QString typed = item()->property("text").toString();
  return secret() ? QString(typed.size(), kDot) : typed;
}

QAccessible::State InputAccess::state() const {
  auto state = ItemAccess::state();
  state.editable = !item()->property("readOnly").toBool();
  state.passwordEdit = secret();
  state.multiLine = item()->inherits("QQuickTextEdit");
  state.selectableText = true;
  return state;
}

QString InputAccess::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? shownText() : ItemAccess::text(kind);
}

void InputAccess::setText(QAccessible::Text kind, const QString& text) {
  if (kind == QAccessible::Value) replaceText(0, characterCount(), text);
}

void* InputAccess::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return ItemAccess::interface_cast(type);
}

QString InputAccess::text(int start, int end) const {
  return shownText().mid(start, std::max(0, end - start));
}

int InputAccess::characterCount() const { return static_cast<int>(shownText().size()); }

QRect InputAccess::characterRect(int offset) const {
  const auto caretAt = [this](int position) {
    QRectF caret;
    QMetaObject::invokeMethod(item(), "positionToRectangle", Q_RETURN_ARG(QRectF, caret),
                              Q_ARG(int, position));
    return caret;
  };
  QRectF area = caretAt(offset);
  const QRectF next = caretAt(offset + 1);
  if (next.top() == area.top()) area.setRight(next.left());
  return onScreen(area);
}

int InputAccess::offsetAtPoint(const QPoint& point) const {
  for (int offset = 0; offset < characterCount(); ++offset) {
    if (characterRect(offset).contains(point)) return offset;
  }
  return -1;
}

void InputAccess::setCursorPosition(int position) {
  item()->setProperty("cursorPosition", std::clamp(position, 0, characterCount()));
}

int InputAccess::selectionCount() const {
  return number("selectionStart") == number("selectionEnd") ? 0 : 1;
}

void InputAccess::selection(int, int* start, int* end) const {
  *start = number("selectionStart");
  *end = number("selectionEnd");
}

void InputAccess::addSelection(int start, int end) {
  QMetaObject::invokeMethod(item(), "select", Q_ARG(int, start), Q_ARG(int, end));
}

void InputAccess::removeSelection(int) { QMetaObject::invokeMethod(item(), "deselect"); }

QString InputAccess::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

void InputAccess::replaceText(int start, int end, const QString& text) {
  if (!state().editable || state().invisible || state().disabled) return;
  // Entering may take a message of the screen away, and the positions with it.
  item()->forceActiveFocus(Qt::OtherFocusReason);
  const int from = std::clamp(start, 0, characterCount());
  setCursorPosition(from);  // which also ends a selection
  QInputMethodEvent typing;
  typing.setCommitString(text, 0, std::clamp(end, from, characterCount()) - from);
  QCoreApplication::sendEvent(item(), &typing);
}

}  // namespace leafund
