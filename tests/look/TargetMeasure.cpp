#include "tests/look/TargetMeasure.h"

#include <QCoreApplication>
#include <algorithm>

namespace leafund {

namespace {

constexpr double kRounding = 0.5;

std::vector<QQuickItem*> controlsOf(const std::vector<QQuickItem*>& shown) {
  std::vector<QQuickItem*> controls;
  for (auto* each : shown) {
    if (isControl(*each)) controls.push_back(each);
  }
  return controls;
}

void addOverlaps(const std::vector<QQuickItem*>& controls, std::vector<Fault>& faults) {
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const QRectF first = seenPart(*controls[i], hitArea(*controls[i]));
    for (std::size_t j = i + 1; j < controls.size(); ++j) {
      if (controls[i]->isAncestorOf(controls[j])) continue;
      const QRectF both = first & seenPart(*controls[j], hitArea(*controls[j]));
      if (both.width() <= kRounding || both.height() <= kRounding) continue;
      faults.push_back(
          {"lies on " + described(*controls[j]), described(*controls[i]), figure(both)});
    }
  }
}

bool isDrawn(const QQuickItem& item) {
  return item.inherits("QQuickRectangle") || item.inherits("QQuickImage") ||
         item.inherits("leafund::ImageItem");
}

void addTooWide(const QQuickWindow& window, const QQuickItem& item, std::vector<Fault>& faults) {
  const QRectF place = item.mapRectToScene(QRectF(QPointF(0, 0), item.size()));
  if (place.left() >= -kRounding && place.right() <= window.width() + kRounding) return;
  faults.push_back({"is wider than the window", described(item), figure(place)});
}

// Pictures, boxes and bars: what is drawn and is neither a text nor a control.
void addCutOff(const QQuickItem& item, std::vector<Fault>& faults) {
  const Reach reach = reachOf(item, QRectF(QPointF(0, 0), item.size()));
  if (reach.lost.height() <= kRounding) return;
  faults.push_back({"is cut off, and no scrolling shows it", described(item),
                    figure(reach.lost.height()) + " px"});
}

// The lowest control or text in a pane; null in an empty one.
QQuickItem* lowestIn(QQuickItem& pane) {
  QQuickItem* lowest = nullptr;
  double bottom = 0;
  for (auto* each : shownItems(pane)) {
    if (each == &pane || (!isControl(*each) && !isText(*each))) continue;
    const double own = each->mapToScene({0, each->height()}).y();
    if (lowest != nullptr && own < bottom) continue;
    lowest = each;
    bottom = own;
  }
  return lowest;
}

void addUnreachedEnd(QQuickWindow& window, QQuickItem& pane, std::vector<Fault>& faults) {
  const double beyond = pane.property("contentHeight").toDouble() - pane.height();
  if (beyond > kRounding && !pane.property("interactive").toBool()) {
    faults.push_back({"cannot be scrolled", described(pane), figure(beyond) + " px too low"});
  }
  if (pane.property("contentWidth").toDouble() > pane.width() + kRounding) {
    faults.push_back({"has content wider than itself", described(pane),
                      figure(pane.property("contentWidth").toDouble())});
  }
  const QVariant before = pane.property("contentY");
  pane.setProperty("contentY", std::max(0.0, beyond));
  QCoreApplication::processEvents();
  window.grabWindow();  // lays out
  if (const auto* last = lowestIn(pane)) {
    const double end = std::min(last->height(), kLeastTarget);
    const QRectF foot(0, last->height() - end, last->width(), end);
    const double missing = end - seenPart(*last, foot).height();
    if (missing > kRounding) {
      faults.push_back(
          {"cannot be scrolled into sight", described(*last), figure(missing) + " px missing"});
    }
  }
  pane.setProperty("contentY", before);
  QCoreApplication::processEvents();
}

}  // namespace

std::vector<Fault> targetFaults(const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  const auto controls = controlsOf(shown);
  for (const auto* each : controls) {
    const Reach reach = reachOf(*each, hitArea(*each));
    if (reach.seen.width() < kLeastTarget || reach.seen.height() < kLeastTarget) {
      faults.push_back({"is too small a target", described(*each),
                        figure(reach.seen.width()) + " x " + figure(reach.seen.height())});
    }
    if (reach.lost.width() > kRounding || reach.lost.height() > kRounding) {
      faults.push_back(
          {"cannot be reached whole", described(*each),
           figure(reach.lost.width()) + " x " + figure(reach.lost.height()) + " px lost"});
    }
  }
  addOverlaps(controls, faults);
  return faults;
}

std::vector<Fault> frameFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  std::vector<QQuickItem*> panes;
  for (auto* each : shown) {
    if (isDrawn(*each)) {
      addTooWide(window, *each, faults);
      addCutOff(*each, faults);
    }
    if (isPane(*each)) panes.push_back(each);
  }
  for (auto* pane : panes) addUnreachedEnd(window, *pane, faults);
  return faults;
}

}  // namespace leafund
