#include "tests/look/ContrastMeasure.h"

#include <QColor>
#include <QFont>
#include <QFontInfo>
#include <QJSValue>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <optional>

namespace leafund {

namespace {

double luminance(QRgb colour) {
  const auto linear = [](int channel) {
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

// Takes the colour out of words, and gives it back at its end. The bindings stay.
class WordsHidden {
 public:
  explicit WordsHidden(const std::vector<QQuickItem*>& texts) {
    for (auto* text : texts) {
      for (const char* name : {"color", "selectedTextColor"}) {
        if (!text->property(name).isValid()) continue;
        before_.push_back({text, name, text->property(name)});
        text->setProperty(name, QColor(Qt::transparent));
      }
    }
  }
  WordsHidden(const WordsHidden&) = delete;
  WordsHidden& operator=(const WordsHidden&) = delete;
  ~WordsHidden() {
    for (const auto& [text, name, colour] : before_) text->setProperty(name, colour);
  }

 private:
  struct Colour {
    QQuickItem* text;
    const char* name;
    QVariant colour;
  };
  std::vector<Colour> before_;
};

struct Grabs {
  QImage words;
  QImage ground;
};

QImage grab(QQuickWindow& window) {
  return window.grabWindow().convertToFormat(QImage::Format_RGB32);
}

Grabs grabBoth(QQuickWindow& window, const std::vector<QQuickItem*>& texts) {
  Grabs grabs{grab(window), {}};
  const WordsHidden hidden(texts);
  grabs.ground = grab(window);
  return grabs;
}

QRgb pixel(const QImage& image, int x, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y))[x];
}

// The colour of the words is that of the pixel furthest from its ground: on thin strokes all others
// are blends of the two. The least contrast of that colour with any ground under the words counts;
// nothing when no pixel of words is there.
std::optional<double> measured(const Grabs& grabs, const QRect& area) {
  QRgb ink = 0;
  double furthest = 1;
  std::vector<QRgb> grounds;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) {
      const QRgb word = pixel(grabs.words, x, y);
      const QRgb ground = pixel(grabs.ground, x, y);
      if (word == ground) continue;
      if (grounds.empty() || grounds.back() != ground) grounds.push_back(ground);
      const double here = contrast(word, ground);
      if (here <= furthest) continue;
      furthest = here;
      ink = word;
    }
  }
  if (grounds.empty()) return std::nullopt;
  double least = furthest;
  for (const QRgb ground : grounds) least = std::min(least, contrast(ink, ground));
  return least;
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
  const double scale = text.window()->effectiveDevicePixelRatio();
  const QRect area = QRectF(seen.topLeft() * scale, seen.size() * scale).toAlignedRect();
  const auto found = measured(grabs, area & grabs.words.rect());
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

double contrast(QRgb one, QRgb other) {
  const double first = luminance(one);
  const double second = luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

double leastContrast(double pixels, bool bold) {
  return pixels >= 24 || (bold && pixels >= 19) ? 3 : 4.5;
}

std::vector<Fault> contrastFaults(QQuickWindow& window, const std::vector<QQuickItem*>& shown) {
  std::vector<Fault> faults;
  const auto texts = textsOf(shown);
  const Grabs grabs = grabBoth(window, texts);
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
