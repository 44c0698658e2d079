#pragma once

#include <QImage>
#include <QQuickWindow>
#include <QVariant>
#include <optional>
#include <vector>

namespace leafund {

// By the formula of WCAG 2.1 (relative luminance), 1 to 21.
double contrast(QRgb one, QRgb other);

// What is drawn in one colour: the object that has it as a property, and the property.
struct Painted {
  QObject* object;
  const char* property;
};

// A window as it is drawn, once whole and once without the colours of something, which are back
// when the grabs stand. Rectangles and points are the window's, in logical pixels.
class Grabs {
 public:
  Grabs(QQuickWindow& window, const std::vector<Painted>& painted);

  // The least contrast of what was taken away there with any ground that was under it; nothing when
  // it was not seen. Its colour is that of the pixel furthest from its ground: on thin strokes all
  // others are blends of the two.
  std::optional<double> leastContrast(const QRectF& area) const;
  // With the ground at a place beside it.
  std::optional<double> contrastBeside(const QRectF& area, const QPointF& place) const;

 private:
  struct Found {
    QRgb ink = 0;
    double furthest = 1;
    std::vector<QRgb> grounds;
  };
  Found find(const QRectF& area) const;

  double scale_;
  QImage whole_;
  QImage ground_;
};

}  // namespace leafund
