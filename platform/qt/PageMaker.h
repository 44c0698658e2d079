#pragma once

#include <memory>

class QQuickItem;

namespace leafund {

class UINavigationController;
class UIViewController;

// A screen in the window. A page that ends deletes its item later, so that no handler deletes its
// own item.
class Page {
 public:
  Page() = default;
  Page(const Page&) = delete;
  Page& operator=(const Page&) = delete;
  virtual ~Page() = default;

  // Has the property slideDuration, in milliseconds, and the signals drawnBack(double) and
  // letGo(bool): the user draws the page so far, in points, towards the way back; the finger was
  // lifted, or taken away.
  virtual QQuickItem& item() const = 0;
  // Brings the bar and the child that the screen shows up to date.
  virtual void refresh(const UINavigationController& navigation, UIViewController& controller) = 0;
};

// Who makes the pages: the host shows, hides, slides and ends them, and knows nothing of their
// look.
class PageMaker {
 public:
  PageMaker() = default;
  PageMaker(const PageMaker&) = delete;
  PageMaker& operator=(const PageMaker&) = delete;
  virtual ~PageMaker() = default;

  // The controller's view must be loaded. The page's item is a hidden child of the window's
  // content.
  virtual std::unique_ptr<Page> make(UIViewController& controller) = 0;
  // Called while nothing moves: may prepare a page that the screen shown may lead to.
  virtual void lookAhead(const UINavigationController& navigation) = 0;
  // How much of the window's width, in points, tabs take that stand in a rail at its side; 0 where
  // they stand in a bar at its foot. By the present size of the window's content item, which no
  // keyboard makes shorter.
  virtual double railWidth() const = 0;
};

}  // namespace leafund
