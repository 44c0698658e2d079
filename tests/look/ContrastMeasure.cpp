#include "tests/look/ContrastMeasure.h"

#include <QFont>
#include <QFontInfo>
#include <QJSValue>
#include <QTest>
#include <algorithm>

#include "tests/look/DrawnContrast.h"

namespace leafund {

namespace {

// What colours the words.
std::vector<Painted> paintedWords(const std::vector<QQuickItem*>& texts) {
  std::vector<Painted> painted;
  for (auto* text : texts) {
    for (const char* name : {"color", "selectedTextColor"}) {
      if (text->property(name).isValid()) painted.push_back({text, name});
    }
  }
  return painted;
}

// In logical pixels, as drawn: smaller than asked for where a text is fitted into its place.
double pixelsOf(const QQuickItem& text) {
  const QVariant info = text.property("fontInfo");
  if (info.canConvert<QJSValue>()) return info.value<QJSValue>().property("pixelSize").toNumber();
  return QFontInfo(text.property("font").value<QFont>()).pixelSize();
}

// A sliver at the edge of a pane shows no whole stroke; scrolled further in, it is measured.
bool inSight(const QRectF& seen, const QQuickItem& text) {
  const double line =
      text.property("contentHeight").toDouble() / std::max(1, text.property("lineCount").toInt());
  return seen.width() > 1 && seen.height() >= std::min(text.boundingRect().height(), line) - 1;
}

void add(const Grabs& grabs, const QQuickItem& text, std::vector<Fault>& faults) {
  const QRectF seen = seenPart(text, text.boundingRect());
  if (!inSight(seen, text)) return;
  const auto found = grabs.leastContrast(seen);
  if (!found) {
    faults.push_back({"is not seen where it stands", described(text), figure(seen)});
    return;
  }
  const double pixels = pixelsOf(text);
  const bool bold = text.property("font").value<QFont>().weight() >= QFont::Bold;
  if (*found >= leastContrast(pixels, bold)) return;
  faults.push_back({"is too pale", described(text),
                    figure(*found) + ":1 at " + figure(pixels) + (bold ? " px bold" : " px")});
}

std::vector<QQuickItem*> textsOf(const std::vector<QQuickItem*>& shown) {
  std::vector<QQuickItem*> texts;
  std::copy_if(shown.begin(), shown.end(), std::back_inserter(texts),
               [](const auto* each) { return isText(*each); });
  return texts;
}

// Lets go without having pressed: what a finger does that slips away.
void slipAway(QQuickWindow& window, const QPoint& where) {
  if (auto* holder = window.mouseGrabberItem()) holder->ungrabMouse();
  QTest::mouseRelease(&window, Qt::LeftButton, {}, where);
}

}  // namespace

double leastContrast(double pixels, bool bold) {
  return pixels >= 24 || (bold && pixels >= 19) ? 3 : 4.5;
}

std::vector<Fault> contrastFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  const auto texts = textsOf(shown);
  const Grabs grabs(window, paintedWords(texts));
  for (const auto* text : texts) add(grabs, *text, faults);
  return faults;
}

std::vector<Fault> selectedContrastFaults(QQuickWindow& window,
                                          const std::vector<QQuickItem*>& shown) {
  std::vector<QQuickItem*> inputs = textsOf(shown);
  std::erase_if(inputs, [](const auto* each) { return !isInput(*each); });
  for (auto* input : inputs) QMetaObject::invokeMethod(input, "selectAll");
  auto faults = contrastFaults(window, inputs);
  for (auto* input : inputs) QMetaObject::invokeMethod(input, "deselect");
  for (auto& fault : faults) fault.what += " when selected";
  return faults;
}

std::vector<Fault> heldContrastFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  for (auto* control : shown) {
    const QVariant held = control->property("held");
    const QRectF seen = seenPart(*control, hitArea(*control));
    if (!isControl(*control) || !held.isValid() || seen.height() < control->height() / 2) continue;
    const QPoint middle = seen.center().toPoint();
    QTest::mousePress(&window, Qt::LeftButton, {}, middle);
    if (control->property("held").toBool()) {
      auto own = contrastFaults(window, shownItems(*control));
      for (auto& fault : own) fault.what += " when held";
      faults.insert(faults.end(), own.begin(), own.end());
    } else {
      faults.push_back({"takes no press in its middle", described(*control), figure(seen)});
    }
    slipAway(window, middle);
  }
  return faults;
}

}  // namespace leafund
