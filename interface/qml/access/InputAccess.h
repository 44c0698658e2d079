#pragma once

#include "interface/qml/access/ItemAccess.h"

namespace leafund {

// An input, of one line or of many. A masked password is read out as dots alone: Qt Quick gives it
// in clear. What assistive technology writes arrives as an input method's text does, so that the
// application hears of it as of any other typing: Qt Quick changes the window alone. Positions are
// in UTF-16 units.
class InputAccess final : public ItemAccess,
                          public QAccessibleTextInterface,
                          public QAccessibleEditableTextInterface {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override { return QAccessible::EditableText; }
  QAccessible::State state() const override;
  using ItemAccess::text;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QString text(int start, int end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  int cursorPosition() const override { return number("cursorPosition"); }
  void setCursorPosition(int position) override;
  int selectionCount() const override;
  void selection(int index, int* start, int* end) const override;
  void addSelection(int start, int end) override;
  void setSelection(int, int start, int end) override { addSelection(start, end); }
  void removeSelection(int index) override;
  void scrollToSubstring(int start, int) override { setCursorPosition(start); }
  QString attributes(int offset, int* start, int* end) const override;

  void insertText(int offset, const QString& text) override { replaceText(offset, offset, text); }
  void deleteText(int start, int end) override { replaceText(start, end, {}); }
  void replaceText(int start, int end, const QString& text) override;

 protected:
  // The box that the input stands in, all of which takes a tap for it.
  QRectF area() const override;

 private:
  int number(const char* property) const { return item()->property(property).toInt(); }
  bool secret() const;
  QString shownText() const;
};

}  // namespace leafund
