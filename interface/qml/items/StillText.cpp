#include "interface/qml/items/StillText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextOption>
#include <algorithm>
#include <cmath>

namespace leafund {

namespace {

// How far letters may reach beyond their lines, in points: marks above capitals, and tails of
// letters that stand first. Whole pixels at every usual scale.
constexpr double kOverhang = 4;

}  // namespace

void StillText::setText(const QString& text) {
  if (text == text_) return;
  text_ = text;
  layOut();
  emit textChanged();
}

void StillText::setFont(const QFont& font) {
  if (font == font_) return;
  font_ = font;
  layOut();
  emit fontChanged();
}

void StillText::setColor(const QColor& color) {
  if (color == color_) return;
  color_ = color;
  repaint();
  emit colorChanged();
}

void StillText::setMaximumLineCount(int count) {
  count = std::max(count, 1);
  if (count == maximumLineCount_) return;
  maximumLineCount_ = count;
  layOut();
  emit maximumLineCountChanged();
}

void StillText::setFlushRight(bool flushRight) {
  if (flushRight == flushRight_) return;
  flushRight_ = flushRight;
  layOut();
  emit flushRightChanged();
}

void StillText::componentComplete() {
  ImageItem::componentComplete();
  layOut();
}

void StillText::geometryChange(const QRectF& now, const QRectF& before) {
  ImageItem::geometryChange(now, before);
  if (now.width() != before.width()) layOut();
}

void StillText::layOut() {
  if (!isComponentComplete()) return;
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  if (flushRight_) option.setAlignment(Qt::AlignRight | Qt::AlignAbsolute);
  option.setUseDesignMetrics(true);  // as wide at every size and scale as the letters are drawn
  layout_.setTextOption(option);
  layout_.setFont(font_);
  layout_.setText(QString(text_).replace('\n', QChar::LineSeparator));
  truncated_ = !breakLines();
  if (truncated_) elide();
  words_ = {};
  for (int i = 0; i < layout_.lineCount(); ++i) words_ |= layout_.lineAt(i).naturalTextRect();
  setImplicitHeight(std::ceil(contentHeight()));
  repaint();
  emit laidOut();
}

void StillText::elide() {
  const QString whole = layout_.text();
  const int start = layout_.lineAt(layout_.lineCount() - 1).textStart();
  const QString rest = whole.mid(start).section(QChar::LineSeparator, 0, 0) + QChar(0x2026);
  const QFontMetricsF metrics(font_);
  // What it measures may be narrower than the line that is then laid out, whose letters are not
  // rounded to whole pixels. It is shortened until the ellipsis finds room.
  for (double room = width(); room >= 0; --room) {
    layout_.setText(whole.left(start) + metrics.elidedText(rest, Qt::ElideRight, room));
    if (breakLines()) return;
  }
}

bool StillText::breakLines() {
  layout_.beginLayout();
  double height = 0;
  int end = 0;
  for (int i = 0; i < maximumLineCount_; ++i) {
    QTextLine line = layout_.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width());
    line.setPosition({0, height});
    height += line.height();
    end = line.textStart() + line.textLength();
  }
  layout_.endLayout();
  return end >= layout_.text().size();
}

QString StillText::shownText() const {
  const QTextLine last = layout_.lineAt(layout_.lineCount() - 1);
  return layout_.text().left(last.textStart() + last.textLength());
}

QRectF StillText::imageRect() const {
  const QRectF words = words_.toAlignedRect();
  return words.adjusted(-kOverhang, -kOverhang, kOverhang, kOverhang);
}

QImage StillText::paint(QSize pixels, double scale) {
  QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(scale, scale);
  painter.setPen(color_);
  layout_.draw(&painter, -imageRect().topLeft());
  return image;
}

}  // namespace leafund
