#include "interface/qml/items/CardItem.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace leafund {

namespace {

constexpr double kShadowBlur = 3;  // points; the toolkit's layers have no other
// How far the shadow reaches beyond the row at either side, in points.
constexpr double kReach = 4;

// A blurred shadow as rings of growing size that lie on one another, a pixel apart: their common
// alpha falls from the shadow's opacity inside to nothing outside.
void paintShadow(QPainter& painter, const QRectF& card, const CALayer& layer) {
  const auto opacity = std::clamp(layer.shadowOpacity(), 0.0, 1.0);
  constexpr int kRings = 8;
  const double ringAlpha = 1 - std::pow(1 - opacity, 1.0 / kRings);
  const auto offset = layer.shadowOffset();
  const QRectF shadow = card.translated(offset.width, offset.height);
  painter.setBrush(QColor::fromRgbF(0, 0, 0, static_cast<float>(ringAlpha)));
  for (int ring = 0; ring < kRings; ++ring) {
    const double grow = kShadowBlur * (1 - 2.0 * ring / (kRings - 1));
    const double radius = std::max(0.0, layer.cornerRadius() + grow);
    painter.drawRoundedRect(shadow.adjusted(-grow, -grow, grow, grow), radius, radius);
  }
}

void paintCard(QPainter& painter, const CardLook& card, const QColor& color, double rowWidth) {
  const QRectF rect(card.frame.x, card.frame.y, rowWidth - card.frame.x, card.frame.height);
  if (card.layer.shadowOpacity() > 0 && !card.layer.masksToBounds()) {
    paintShadow(painter, rect, card.layer);
  }
  painter.setBrush(color);
  painter.drawRoundedRect(rect, card.layer.cornerRadius(), card.layer.cornerRadius());
}

}  // namespace

void CardItem::catchUp() {
  std::vector<CardLook> looks;
  for (auto card : view()->cards()) {
    card.frame.width = 0;
    if (std::find(looks.begin(), looks.end(), card) == looks.end()) looks.push_back(card);
  }
  if (looks == looks_) return;
  looks_ = std::move(looks);
  repaint();
}

QRectF CardItem::imageRect() const { return boundingRect().adjusted(-kReach, 0, kReach, 0); }

// The cards of a list look alike: what was painted for one row serves the next, and their frames
// read one image instead of as many as there are rows in sight.
QImage CardItem::paint(QSize pixels, double scale) {
  static Painted last;
  if (!last.isOf(*this, pixels, scale)) {
    last = {looks_, ground(), white(), pixels, scale, painted(pixels, scale)};
  }
  return last.image;
}

bool CardItem::Painted::isOf(const CardItem& item, QSize size, double scaled) const {
  return pixels == size && scale == scaled && ground == item.ground() && white == item.white() &&
         looks == item.looks_;
}

QImage CardItem::painted(QSize pixels, double scale) const {
  QImage image(pixels, QImage::Format_RGB32);
  image.fill(ground());
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.scale(scale, scale);
  painter.translate(kReach, 0);
  for (const auto& look : looks_)
    paintCard(painter, look, drawnAs(*look.layer.backgroundColor()), width());
  return image;
}

}  // namespace leafund
