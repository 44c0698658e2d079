#include "tests/look/TextMeasure.h"

#include <QFont>
#include <QFontMetricsF>

namespace leafund {

namespace {

constexpr double kRounding = 0.5;

bool elides(const QQuickItem& text) {
  if (isStillText(text)) return true;
  const QVariant elide = text.property("elide");
  return elide.isValid() && elide.toInt() != Qt::ElideNone;
}

constexpr int kNoWrap = 0;  // of texts and of inputs alike

bool wraps(const QQuickItem& text) {
  return isStillText(text) || text.property("wrapMode").toInt() != kNoWrap;
}

// An input of one line scrolls along it, as far as its cursor goes.
bool scrollsAlong(const QQuickItem& text) {
  return text.inherits("QQuickTextInput") && !wraps(text);
}

void addCut(const QQuickItem& text, std::vector<Fault>& faults) {
  const double width = text.property("contentWidth").toDouble();
  const double height = text.property("contentHeight").toDouble();
  const auto cut = [&](const char* how, double by) {
    faults.push_back({how, described(text), figure(by) + " px"});
  };
  if (!elides(text) && text.property("truncated").toBool()) cut("ends without an ellipsis", 0);
  if (!scrollsAlong(text) && width > text.width() + kRounding) {
    cut("is wider than its place", width - text.width());
  }
  if (elides(text) && wraps(text) && text.property("truncated").toBool() &&
      text.property("lineCount").toInt() < kFewestLines) {
    cut("is cut to too few lines", 0);
  }
  if (height > text.height() + kRounding) cut("is higher than its place", height - text.height());
  if (scrollsAlong(text)) return;
  const Reach reach = reachOf(text, text.boundingRect());
  if (reach.lost.width() > 1 || reach.lost.height() > 1) {
    cut("is cut off", std::max(reach.lost.width(), reach.lost.height()));
  }
}

// A row's or a button's words stay on it.
void addOutOfControl(const QQuickItem& text, std::vector<Fault>& faults) {
  if (isInput(text)) return;
  for (auto* each = text.parentItem(); each != nullptr && !isPane(*each);
       each = each->parentItem()) {
    if (!isControl(*each)) continue;
    const QRectF place = text.mapRectToItem(each, text.boundingRect());
    const QRectF control(QPointF(-1, -1), each->size() + QSizeF(2, 2));
    if (!control.contains(place)) {
      faults.push_back(
          {"stands out of its control", described(text), figure(place) + " in " + figure(control)});
    }
    return;
  }
}

void addLongLines(const QQuickItem& text, std::vector<Fault>& faults) {
  if (text.property("lineCount").toInt() < 2) return;
  const QString words = text.property("text").toString();
  const QFontMetricsF metrics(text.property("font").value<QFont>());
  const double mean = metrics.horizontalAdvance(words) / static_cast<double>(words.size());
  const double characters = text.width() / mean;
  if (characters > kLongestLine) {
    faults.push_back(
        {"has lines too long to follow", described(text), figure(characters) + " characters"});
  }
}

void addOverlaps(const std::vector<QQuickItem*>& texts, std::vector<Fault>& faults) {
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const QRectF first = seenPart(*texts[i], texts[i]->boundingRect());
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      const QRectF both = first & seenPart(*texts[j], texts[j]->boundingRect());
      if (both.width() <= 1 || both.height() <= 1) continue;
      faults.push_back({"overlaps " + described(*texts[j]), described(*texts[i]), figure(both)});
    }
  }
}

}  // namespace

std::vector<Fault> textFaults(const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  std::vector<QQuickItem*> texts;
  for (auto* each : shown) {
    if (!isText(*each)) continue;
    texts.push_back(each);
    addCut(*each, faults);
    addOutOfControl(*each, faults);
    addLongLines(*each, faults);
  }
  addOverlaps(texts, faults);
  return faults;
}

}  // namespace leafund
