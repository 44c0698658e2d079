#pragma once

#include "interface/qml/bridge/ViewBridge.h"
#include "platform/uikit/UIProgressView.h"

namespace leafund {

class ProgressBridge : public leafund::ViewBridge {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("the host makes one for each view")
  // Both from 0 to 1: how far it is, and where the last animated change began.
  Q_PROPERTY(double progress READ progress NOTIFY progressChanged FINAL)
  Q_PROPERTY(double progressFrom READ progressFrom NOTIFY progressFromChanged FINAL)

 public:
  using ViewBridge::ViewBridge;

  double progress() const { return progress_; }
  double progressFrom() const { return progressFrom_; }

 signals:
  void progressChanged();
  void progressFromChanged();

 protected:
  void read(const UIView& view) override {
    ViewBridge::read(view);
    const auto& bar = static_cast<const UIProgressView&>(view);
    take(progress_, double{bar.shownProgress()}, &ProgressBridge::progressChanged);
    take(progressFrom_, double{bar.animatedFrom()}, &ProgressBridge::progressFromChanged);
  }

 private:
  double progress_ = 0;
  double progressFrom_ = 0;
};

}  // namespace leafund
