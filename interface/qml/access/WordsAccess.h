#pragma once

#include "interface/qml/access/ItemAccess.h"

namespace leafund {

// Words to read. Qt Quick would have all of them take the focus, as if they were controls; only
// those do that a reader is put on when the screen comes, which have the property takesFocus.
class WordsAccess final : public ItemAccess {
 public:
  using ItemAccess::ItemAccess;

  QAccessible::Role role() const override {
    return written("Accessible.role").value<QAccessible::Role>();
  }
  void setText(QAccessible::Text, const QString&) override {}

 protected:
  bool focusable() const override { return item()->property("takesFocus").toBool(); }
};

}  // namespace leafund
