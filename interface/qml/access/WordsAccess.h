#pragma once

#include "interface/qml/access/ItemAccess.h"

namespace leafund {

// Words to read. Qt Quick would have all of them take the focus, as if they were controls. The item
// has the properties heading, and takesFocus where a reader is put when the screen comes.
class WordsAccess final : public ItemAccess {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override {
    return item()->property("heading").toBool() ? QAccessible::Heading : QAccessible::StaticText;
  }
  void setText(QAccessible::Text, const QString&) override {}

 protected:
  bool focusable() const override { return item()->property("takesFocus").toBool(); }
};

}  // namespace leafund
