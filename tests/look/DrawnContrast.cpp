#include "tests/look/DrawnContrast.h"

#include <QColor>
#include <algorithm>
#include <array>
#include <cmath>

namespace leafund {

namespace {

// A channel's share of the light, by its value.
std::array<double, 256> linearShares() {
  std::array<double, 256> shares{};
  for (std::size_t value = 0; value < shares.size(); ++value) {
    const double share = static_cast<double>(value) / 255;
    shares[value] = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  }
  return shares;
}

double luminance(QRgb colour) {
  static const auto kLinear = linearShares();  // asked for each pixel that is measured
  const auto linear = [](int channel) { return kLinear[static_cast<std::size_t>(channel)]; };
  return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
         0.0722 * linear(qBlue(colour));
}

// Takes colours away, and gives them back at its end. The bindings stay.
class Hidden {
 public:
  explicit Hidden(const std::vector<Painted>& painted) {
    for (const auto& [object, name] : painted) {
      before_.push_back({object, name, object->property(name)});
      object->setProperty(name, QColor(Qt::transparent));
    }
  }
  Hidden(const Hidden&) = delete;
  Hidden& operator=(const Hidden&) = delete;
  ~Hidden() {
    for (const auto& [object, name, colour] : before_) object->setProperty(name, colour);
  }

 private:
  struct Colour {
    QObject* object;
    const char* name;
    QVariant colour;
  };
  std::vector<Colour> before_;
};

QImage grab(QQuickWindow& window) {
  return window.grabWindow().convertToFormat(QImage::Format_RGB32);
}

QImage grabWithout(QQuickWindow& window, const std::vector<Painted>& painted) {
  const Hidden hidden(painted);
  return grab(window);
}

const QRgb* line(const QImage& image, int y) {
  return reinterpret_cast<const QRgb*>(image.constScanLine(y));
}

}  // namespace

double contrast(QRgb one, QRgb other) {
  const double first = luminance(one);
  const double second = luminance(other);
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

Grabs::Grabs(QQuickWindow& window, const std::vector<Painted>& painted)
    : scale_(window.effectiveDevicePixelRatio()),
      whole_(grab(window)),
      ground_(grabWithout(window, painted)) {}

Grabs::Found Grabs::find(const QRectF& area) const {
  Found found;
  const QRect pixels =
      QRectF(area.topLeft() * scale_, area.size() * scale_).toAlignedRect() & whole_.rect();
  for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
    const QRgb* whole = line(whole_, y);
    const QRgb* grounds = line(ground_, y);
    for (int x = pixels.left(), end = x + pixels.width(); x < end; ++x) {
      const QRgb drawn = whole[x], ground = grounds[x];
      if (drawn == ground) continue;
      if (found.grounds.empty() || found.grounds.back() != ground) found.grounds.push_back(ground);
      const double here = contrast(drawn, ground);
      if (here <= found.furthest) continue;
      found.furthest = here;
      found.ink = drawn;
    }
  }
  return found;
}

std::optional<double> Grabs::leastContrast(const QRectF& area) const {
  const Found found = find(area);
  if (found.grounds.empty()) return std::nullopt;
  double least = found.furthest;
  for (const QRgb ground : found.grounds) least = std::min(least, contrast(found.ink, ground));
  return least;
}

std::optional<double> Grabs::contrastBeside(const QRectF& area, const QPointF& place) const {
  const Found found = find(area);
  const QPoint at(static_cast<int>(place.x() * scale_), static_cast<int>(place.y() * scale_));
  if (found.grounds.empty() || !ground_.rect().contains(at)) return std::nullopt;
  return contrast(found.ink, line(ground_, at.y())[at.x()]);
}

}  // namespace leafund
