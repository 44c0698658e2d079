#include "interface/qml/bridge/ViewBridge.h"

#include <utility>

#include "platform/uikit/UIApplication.h"

namespace leafund {

ViewBridge::ViewBridge(const std::shared_ptr<UIView>& view, QObject* parent)
    : QObject(parent),
      view_(view),
      name_(qtText(view->name())),
      accessibleName_(qtText(view->accessibilityLabel())) {
  view->setSkin(this);
}

ViewBridge::~ViewBridge() { leaveView(); }

void ViewBridge::leaveView() {
  const auto shown = view();
  if (shown && shown->skin() == this) shown->setSkin(nullptr);
}

void ViewBridge::show(const std::shared_ptr<UIView>& view) {
  leaveView();
  view_ = view;
  view->setSkin(this);
  refresh();
}

void ViewBridge::refresh() {
  const auto shown = view();
  if (!shown) return;
  read(*shown);
  for (const auto changed : std::exchange(changes_, {})) emit(this->*changed)();
  emit refreshed();
}

void ViewBridge::read(const UIView& view) {
  const auto frame = view.frame();
  take(frame_, {frame.x, frame.y, frame.width, frame.height}, &ViewBridge::frameChanged);
  take(visible_, !view.hidden(), &ViewBridge::visibleChanged);
}

QColor ViewBridge::drawnAs(const QColor& set, const QColor& black, const QColor& white) {
  if (set == QColor(Qt::black)) return black;
  return set == QColor(Qt::white) ? white : set;
}

void ViewBridge::tap() {
  if (auto* application = UIApplication::current()) application->tap(view());
}

}  // namespace leafund
