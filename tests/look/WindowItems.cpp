#include "tests/look/WindowItems.h"

#include <algorithm>
#include <cstdio>
#include <ostream>

namespace leafund {

namespace {

bool isWrittenText(const QQuickItem& item) {
  return item.inherits("QQuickText") || isStillText(item);
}

void collect(QQuickItem& item, std::vector<QQuickItem*>& shown) {
  if (!item.isVisible() || item.opacity() == 0) return;
  shown.push_back(&item);
  for (auto* child : item.childItems()) collect(*child, shown);
}

// In an ancestor's coordinates, and what has been lost on the way up to it.
struct Climb {
  QRectF rectangle;
  QSizeF lost;
};

void cut(Climb& climb, const QRectF& frame) {
  const QRectF whole = climb.rectangle;
  climb.rectangle = whole & frame;
  climb.lost +=
      QSizeF(whole.width() - climb.rectangle.width(), whole.height() - climb.rectangle.height());
}

// Out of a pane's content, scrolled to where most of the rectangle is in sight.
void leavePane(Climb& climb, const QQuickItem& pane, const QQuickItem& content) {
  const double contentHeight = std::max(pane.height(), pane.property("contentHeight").toDouble());
  cut(climb, {0, 0, pane.width(), contentHeight});
  climb.rectangle = {climb.rectangle.x() + content.x(), 0, climb.rectangle.width(),
                     std::min(climb.rectangle.height(), pane.height())};
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Fault& fault) {
  return out << fault.item << " " << fault.what << ": " << fault.figure;
}

std::string figure(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.1f", value);
  return text;
}

std::string figure(const QRectF& rectangle) {
  const QRect whole = rectangle.toRect();
  return std::to_string(whole.width()) + "x" + std::to_string(whole.height()) + " at " +
         std::to_string(whole.x()) + "," + std::to_string(whole.y());
}

std::vector<QQuickItem*> shownItems(QQuickItem& root) {
  std::vector<QQuickItem*> shown;
  collect(root, shown);
  return shown;
}

bool isPane(const QQuickItem& item) { return item.inherits("QQuickFlickable"); }

bool isInput(const QQuickItem& item) {
  return item.inherits("QQuickTextInput") || item.inherits("QQuickTextEdit");
}

bool isStillText(const QQuickItem& item) { return item.inherits("leafund::StillText"); }

bool isText(const QQuickItem& item) {
  if (!isWrittenText(item) && !isInput(item)) return false;
  return !item.property("text").toString().trimmed().isEmpty() && item.width() > 0;
}

bool isControl(const QQuickItem& item) { return item.activeFocusOnTab() && item.isEnabled(); }

std::string described(const QQuickItem& item) {
  std::string name;
  for (const auto* each = &item; each != nullptr && name.empty(); each = each->parentItem()) {
    name = each->objectName().toStdString();
  }
  constexpr int kEnough = 28;
  const QString words = item.property("text").toString();
  if (words.isEmpty()) return name;
  return name + " \"" + words.left(kEnough).toStdString() + (words.size() > kEnough ? "…\"" : "\"");
}

QRectF hitArea(const QQuickItem& control) {
  const QRectF own(QPointF(0, 0), control.size());
  if (!isInput(control)) return own;
  for (const auto* each = control.parentItem(); each != nullptr; each = each->parentItem()) {
    if (each->property("input").value<QQuickItem*>() != &control) continue;
    return control.mapRectFromItem(each, QRectF(QPointF(0, 0), each->size()));
  }
  return own;
}

QRectF seenPart(const QQuickItem& item, const QRectF& rectangle) {
  QRectF part = rectangle;
  for (const auto* each = &item; each->parentItem() != nullptr; each = each->parentItem()) {
    if (each->clip()) part &= QRectF(QPointF(0, 0), each->size());
    part = each->mapRectToItem(each->parentItem(), part);
  }
  return part & QRectF(QPointF(0, 0), QSizeF(item.window()->size()));
}

Reach reachOf(const QQuickItem& item, const QRectF& rectangle) {
  Climb climb{rectangle, QSizeF(0, 0)};
  const auto* each = &item;
  for (; each->parentItem() != nullptr; each = each->parentItem()) {
    const auto* parent = each->parentItem();
    // An input of one line scrolls its own text.
    if (each->clip() && !isPane(*each) && each != &item) {
      cut(climb, QRectF(QPointF(0, 0), each->size()));
    }
    climb.rectangle = each->mapRectToItem(parent, climb.rectangle);
    if (!isPane(*parent)) continue;
    climb.rectangle.translate(-each->position());
    leavePane(climb, *parent, *each);
  }
  cut(climb, QRectF(QPointF(0, 0), QSizeF(item.window()->size())));
  return {climb.rectangle.size(), climb.lost};
}

}  // namespace leafund
