#pragma once

#include "interface/qml/bridge/ViewBridge.h"
#include "platform/display/Cards.h"

namespace leafund {

// A view that shows nothing but its place and the cards that lie in it.
class PlainBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")

 public:
  using ViewBridge::ViewBridge;

  // The looks of the cards, undermost first, each look once.
  const std::vector<CardLook>& cards() const { return cards_.looks(); }

 protected:
  void read(const UIView& view) override {
    ViewBridge::read(view);
    cards_.take(view);
  }

 private:
  Cards cards_;
};

}  // namespace leafund
