#include "tests/look/MarkMeasure.h"

#include <QCoreApplication>
#include <algorithm>

#include "tests/look/DrawnContrast.h"

namespace leafund {

namespace {

QObject* edgeOf(const QQuickItem& item) {
  auto* edge = item.property("border").value<QObject*>();
  return edge != nullptr && edge->property("width").toDouble() > 0 ? edge : nullptr;
}

// The box that is drawn around an input.
bool isBox(const QQuickItem& item) {
  return item.property("input").value<QQuickItem*>() != nullptr && edgeOf(item) != nullptr;
}

bool isRing(const QQuickItem& item) {
  return QByteArray(item.metaObject()->className()).startsWith("FocusRing");
}

// Its icons say nothing that its words do not.
bool isRow(QQuickItem& item) {
  const auto shown = shownItems(item);
  return std::any_of(shown.begin(), shown.end(),
                     [](const auto* each) { return isStillText(*each); });
}

bool isTellingIcon(const QQuickItem& item) {
  if (!item.inherits("leafund::IconItem")) return false;
  for (auto* each = item.parentItem(); each != nullptr; each = each->parentItem()) {
    if (isControl(*each) || isText(*each) || isBox(*each)) return !isRow(*each);
  }
  return false;
}

bool isWhole(const QQuickItem& item, const QRectF& seen) {
  return seen.height() >= item.height() - 1 && seen.width() >= item.width() - 1;
}

void hold(std::optional<double> found, const QQuickItem& item, const char* what,
          std::vector<Fault>& faults) {
  if (!found || *found >= kLeastOfMarks) return;
  faults.push_back({what, described(item), figure(*found) + ":1"});
}

void addIcon(const Grabs& grabs, const QQuickItem& icon, std::vector<Fault>& faults) {
  const QRectF seen = seenPart(icon, icon.boundingRect());
  if (!isWhole(icon, seen)) return;
  hold(grabs.leastContrast(seen).value_or(1), icon, "has too pale an icon", faults);
}

// At its left side, below what may be round.
void addEdge(const Grabs& grabs, const QQuickItem& item, std::vector<Fault>& faults) {
  const QRectF seen = seenPart(item, item.boundingRect());
  if (!isWhole(item, seen)) return;
  const double width = edgeOf(item)->property("width").toDouble();
  const QPointF left(seen.left(), seen.top() + seen.height() / 4);
  const QRectF stretch(left, QSizeF(width, 1));
  const auto beside = [&](double away) {
    return grabs.contrastBeside(stretch, left + QPointF(away, 0));
  };
  hold(grabs.leastContrast(stretch).value_or(1), item, "has too pale an edge", faults);
  hold(beside(-1.5), item, "has an edge too pale for what is around it", faults);
  hold(beside(width), item, "has an edge too pale for what is in it", faults);
}

// What is filled stands last in a progress bar, over its track.
void addBar(const Grabs& grabs, const QQuickItem& bar, std::vector<Fault>& faults) {
  const auto parts = bar.childItems();
  if (parts.size() < 2 || !parts.last()->isVisible()) return;
  const QRectF seen = seenPart(bar, bar.boundingRect());
  const auto& filled = *parts.last();
  const double rest = bar.width() - filled.width();
  if (!isWhole(bar, seen) || rest < bar.height()) return;
  const auto place =
      bar.mapToScene({filled.x() > 0 ? rest / 2 : bar.width() - rest / 2, bar.height() / 2});
  hold(grabs.contrastBeside(seenPart(filled, filled.boundingRect()), place), bar,
       "shows too palely how full it is", faults);
}

bool isBar(const QQuickItem& item) {
  return QByteArray(item.metaObject()->className()).startsWith("ProgressBar");
}

std::vector<Painted> paintedMarks(const std::vector<QQuickItem*>& shown) {
  std::vector<Painted> painted;
  for (auto* each : shown) {
    if (isTellingIcon(*each)) painted.push_back({each, "color"});
    if (isBox(*each) || isRing(*each)) painted.push_back({edgeOf(*each), "color"});
    if (isBar(*each)) painted.push_back({each->childItems().last(), "color"});
  }
  return painted;
}

// The left side of the box that the control stands in, as it is drawn; null where it has none.
QImage boxSide(QQuickWindow& window, const QQuickItem& control) {
  const auto* box = &control;
  while (box != nullptr && !isBox(*box)) box = box->parentItem();
  if (box == nullptr) return {};
  const QRectF seen = seenPart(*box, box->boundingRect());
  const double scale = window.effectiveDevicePixelRatio();
  const QPointF left(seen.left(), seen.top() + seen.height() / 4);
  return window.grabWindow().copy(QRectF(left * scale, QSizeF(3, 1) * scale).toRect());
}

}  // namespace

std::vector<Fault> markFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  const Grabs grabs(window, paintedMarks(shown));
  for (const auto* each : shown) {
    if (isTellingIcon(*each)) addIcon(grabs, *each, faults);
    if (isBox(*each)) addEdge(grabs, *each, faults);
    if (isBar(*each)) addBar(grabs, *each, faults);
  }
  return faults;
}

std::vector<Fault> focusFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  auto* before = window.activeFocusItem();
  for (auto* control : shown) {
    const QRectF seen = seenPart(*control, hitArea(*control));
    if (!isControl(*control) || seen.height() < hitArea(*control).height() - 1) continue;
    window.contentItem()->forceActiveFocus();
    const QImage unfocused = boxSide(window, *control);
    control->forceActiveFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
    auto now = shownItems(*window.contentItem());
    std::erase_if(now, [&](const auto* each) {
      return !(isRing(*each) && edgeOf(*each)) && !(isBox(*each) && each->isAncestorOf(control));
    });
    if (now.empty() || (!unfocused.isNull() && boxSide(window, *control) == unfocused)) {
      faults.push_back({"does not show the focus", described(*control), figure(seen)});
      continue;
    }
    const Grabs grabs(window, paintedMarks(now));
    for (const auto* each : now) addEdge(grabs, *each, faults);
  }
  if (before != nullptr) before->forceActiveFocus();
  return faults;
}

}  // namespace leafund
