#include "platform/qt/Fingers.h"

#include <QGuiApplication>
#include <QPointer>
#include <QStyleHints>
#include <QVariant>
#include <algorithm>
#include <iterator>

namespace leafund {

namespace {

bool isPressed(const QEventPoint& point) { return point.state() == QEventPoint::Pressed; }

// On a text for the menu that comes when it stays, or for a tap that enters.
bool mayTap(const QPointerEvent& event, const QEventPoint& point) {
  const auto handlers = event.passiveGrabbers(point);
  return std::any_of(handlers.begin(), handlers.end(), [](const QPointer<QObject>& handler) {
    return handler && handler->inherits("QQuickTapHandler");
  });
}

bool rests(const QPointerEvent& event, const QEventPoint& point) {
  if (mayTap(event, point)) return false;
  const auto* holder = event.exclusiveGrabber(point);
  if (holder == nullptr || holder->property("isGround").toBool()) return true;
  if (holder->inherits("QQuickFlickable")) return !holder->property("dragging").toBool();
  if (holder->inherits("QQuickDragHandler")) return false;
  const auto tap = static_cast<quint64>(QGuiApplication::styleHints()->mousePressAndHoldInterval());
  return event.timestamp() - point.pressTimestamp() > tap;
}

}  // namespace

QList<QEventPoint> pressedPoints(const QPointerEvent& event) {
  QList<QEventPoint> pressed;
  std::copy_if(event.points().begin(), event.points().end(), std::back_inserter(pressed),
               isPressed);
  return pressed;
}

bool joinsRestingFingers(const QPointerEvent& event) {
  const auto& points = event.points();
  const auto pressed = std::count_if(points.begin(), points.end(), isPressed);
  return pressed > 0 && pressed < points.size() &&
         std::all_of(
             points.begin(), points.end(),
             [&event](const QEventPoint& point) {
               return isPressed(point) || rests(event, point);
             });
}

void cancelTap(QPointerEvent& event, int pointId) {
  for (const auto& point : event.points()) {
    const auto* holder = event.exclusiveGrabber(point);
    const bool drags = holder != nullptr && (holder->inherits("QQuickFlickable") ||
                                             holder->inherits("QQuickDragHandler"));
    if (point.id() != pointId || point.state() != QEventPoint::Released || drags) continue;
    event.setExclusiveGrabber(point, nullptr);
    event.clearPassiveGrabbers(point);
  }
}

}  // namespace leafund
