#pragma once

#include <QtQmlIntegration/qqmlintegration.h>

#include <QObject>
#include <QQuickItem>

namespace leafund {

// What the window has room for, by its width: compact, medium or expanded. The keyboard on the
// screen changes nothing of it. Lengths in points.
class WindowClass : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool compact READ compact NOTIFY changed FINAL)
  Q_PROPERTY(bool expanded READ expanded NOTIFY changed FINAL)
  // Beside one another, on pages that have several.
  Q_PROPERTY(int columns READ columns NOTIFY changed FINAL)
  // How wide a column of inputs is at most.
  Q_PROPERTY(double form READ form NOTIFY changed FINAL)
  // How much larger than usual the system's text is, and how much larger it makes a rail.
  Q_PROPERTY(double textScale READ textScale CONSTANT FINAL)
  Q_PROPERTY(double growth READ growth CONSTANT FINAL)

 public:
  // By a window's content item from now on, which lives as long.
  void follow(const QQuickItem& content);

  bool compact() const;
  bool expanded() const;
  int columns() const { return compact() ? 1 : 2; }
  double form() const;
  double textScale() const { return textScale_; }
  double growth() const;
  // How wide the rail is that the tabs stand in; 0 where they stand in a bar.
  double rail() const;

 signals:
  void changed();

 private:
  void note();

  const QQuickItem* content_ = nullptr;
  double textScale_ = 1;
  double noted_ = 0;  // the rail's width, which differs from class to class
};

}  // namespace leafund
