#pragma once

#include "interface/qml/bridge/ViewBridge.h"
#include "platform/qt/FramedPicture.h"

namespace leafund {

class ImageBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")

 public:
  using ViewBridge::ViewBridge;

  // The image as the view cuts and frames it; neither ground nor size.
  const FramedPicture& picture() const { return picture_; }

 protected:
  void read(const UIView& view) override {
    ViewBridge::read(view);
    const auto& shown = static_cast<const UIImageView&>(view);
    picture_ = {.image = shown.image(), .mode = shown.contentMode(), .layer = shown.layer()};
  }

 private:
  FramedPicture picture_;
};

}  // namespace leafund
