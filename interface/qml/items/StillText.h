#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QColor>
#include <QFont>
#include <QString>
#include <QTextLayout>

#include "interface/qml/items/ImageItem.h"

namespace leafund {

// Plain text that is drawn once and moves as an image from then on, for rows that scroll: to blend
// each letter anew is most of what a frame of a list costs. It wraps at its width, between words
// where it can, and its last line ends in an ellipsis where there is more. It has the properties
// of QML's Text that say the same.
class StillText : public leafund::ImageItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged REQUIRED FINAL)
  Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged REQUIRED FINAL)
  Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)
  // Fewer than 1 count as 1.
  Q_PROPERTY(int maximumLineCount READ maximumLineCount WRITE setMaximumLineCount NOTIFY
                 maximumLineCountChanged REQUIRED FINAL)
  // Lines end at the right, whatever the direction of their words.
  Q_PROPERTY(bool flushRight READ flushRight WRITE setFlushRight NOTIFY flushRightChanged FINAL)
  Q_PROPERTY(int lineCount READ lineCount NOTIFY laidOut FINAL)
  Q_PROPERTY(bool truncated READ truncated NOTIFY laidOut FINAL)
  Q_PROPERTY(double contentWidth READ contentWidth NOTIFY laidOut FINAL)
  Q_PROPERTY(double contentHeight READ contentHeight NOTIFY laidOut FINAL)

 public:
  using ImageItem::ImageItem;

  QString text() const { return text_; }
  void setText(const QString& text);
  QFont font() const { return font_; }
  void setFont(const QFont& font);
  QColor color() const { return color_; }
  void setColor(const QColor& color);
  int maximumLineCount() const { return maximumLineCount_; }
  void setMaximumLineCount(int count);
  bool flushRight() const { return flushRight_; }
  void setFlushRight(bool flushRight);

  int lineCount() const { return layout_.lineCount(); }
  bool truncated() const { return truncated_; }
  double contentWidth() const { return words_.width(); }
  double contentHeight() const { return layout_.boundingRect().height(); }
  // What its lines hold, with a line separator for each line break of its own.
  QString shownText() const;

 signals:
  void textChanged();
  void fontChanged();
  void colorChanged();
  void maximumLineCountChanged();
  void flushRightChanged();
  void laidOut();

 protected:
  QImage paint(QSize pixels, double scale) override;
  QRectF imageRect() const override;
  void componentComplete() override;
  void geometryChange(const QRectF& now, const QRectF& before) override;

 private:
  void layOut();
  // Puts an ellipsis where the last line ends.
  void elide();
  // Breaks into as many lines as there may be; whether that was all of it.
  bool breakLines();

  QString text_;
  QFont font_;
  QColor color_;
  int maximumLineCount_ = 1;
  bool flushRight_ = false;
  QTextLayout layout_;
  bool truncated_ = false;
  QRectF words_;  // what its lines take
};

}  // namespace leafund
