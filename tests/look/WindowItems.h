#pragma once

#include <QQuickItem>
#include <QQuickWindow>
#include <QRectF>
#include <string>
#include <vector>

namespace leafund {

// What a measurement found: what is wrong, with which item, and the figure measured.
struct Fault {
  std::string what;
  std::string item;
  std::string figure;
  bool operator==(const Fault&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Fault& fault);

// A figure to one decimal, and a rectangle in whole pixels.
std::string figure(double value);
std::string figure(const QRectF& rectangle);

// Everything shown below an item, itself included, parents first.
std::vector<QQuickItem*> shownItems(QQuickItem& root);

bool isPane(const QQuickItem& item);       // scrolls what is in it
bool isInput(const QQuickItem& item);      // of one line or of several
bool isStillText(const QQuickItem& item);  // a row's words, which wrap and end in an ellipsis
bool isText(const QQuickItem& item);       // written words, an input's included; not empty
bool isControl(const QQuickItem& item);

// Its name, or that of what it is in, and its words.
std::string described(const QQuickItem& item);

// Where a finger reaches a control, in the control's own coordinates: for an input the whole box
// that is drawn around it and names it as its `input`.
QRectF hitArea(const QQuickItem& control);

// A rectangle of an item as the window shows it at this moment, in the window's coordinates: cut by
// the window and by everything around the item that clips. Empty when nothing of it is in sight.
QRectF seenPart(const QQuickItem& item, const QRectF& rectangle);

// What is left of a rectangle of an item when every pane is scrolled as favourably as can be, and
// how much is cut off all the same. Being higher than a pane costs nothing.
struct Reach {
  QSizeF seen;
  QSizeF lost;
};
Reach reachOf(const QQuickItem& item, const QRectF& rectangle);

}  // namespace leafund
