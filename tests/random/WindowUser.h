#pragma once

#include <QElapsedTimer>
#include <QQuickItem>
#include <optional>
#include <string>
#include <vector>

#include "tests/random/ReferenceApp.h"
#include "tests/random/WindowHand.h"
#include "tests/random/WindowUnderTest.h"

namespace leafund::random {

// Does an action with pointer, finger and keys, and judges by the reference what had to reach the
// application: without that, a tap that is lost or doubled would be followed by both and noticed by
// nobody.
class WindowUser {
 public:
  WindowUser(WindowUnderTest& app, const ReferenceApp& reference)
      : app_(app), reference_(reference), hand_(app.window()) {}

  // Answers what reached the application and should not have, or did not and should have; and what
  // is not as it should be where everything has come to rest. Empty when all is well.
  std::string perform(const Action& action);

 private:
  // What taps and steps back amount to, a word each, in order.
  using Taps = std::vector<std::string>;
  // What stands under a point; unsure at edges.
  struct Place {
    Taps tap = {};
    std::string input = {};
    bool sure = true;
  };
  // Enough to tell whether a tap exchanged the screen.
  struct Top {
    const Screen* screen;
    std::size_t depth;
    bool operator==(const Top&) const = default;
  };
  // A tap or a key that what follows soon at the same place may be part of. Fingers are told in
  // real time, all else in that of the frames, so either counts.
  struct Earlier {
    QPointF where = {};
    int key = 0;
    int at = 0;
    QElapsedTimer since = {};

    void note(int now, QPointF place);
    bool soonAfter(int now, QPointF place) const;
  };

  void go(const Action& action, Chance& how);
  void tapView(const std::string& name, Chance& how);
  void tapRow(long row, Chance& how);
  void tapItem(QQuickItem* item, Chance& how);
  void tapAt(QPointF where, Chance& how, int count, bool byTouch);
  bool putThumb();
  void longPress(QPointF where, Chance& how);
  void clickRight(QPointF where);
  void pressKeys(int key, int count, int repeats, Chance& how);
  void type(const Action& action, Chance& how);
  void scroll(const Action& action, Chance& how);
  void turnWheel(QPointF where, int notches);
  void drag(QPointF from, QPointF to, Chance& how);
  void goBack(Chance& how);
  void resize(const Action& action, Chance& how);
  void hideAndShow(Chance& how);

  Top top() const { return {&reference_.top(), reference_.depth()}; }
  QQuickItem* itemOf(const std::string& name);
  QQuickItem* rowItem(long row);
  // The part of the item that is to be seen, in the window.
  QRectF inSight(const QQuickItem& item);
  // Scrolls as a user does until the item is to be seen; null when it never is.
  QQuickItem* reach(QQuickItem* item, Chance& how);
  bool focusByTab(const std::string& name, Chance& how);
  QPointF anyPoint(Chance& how);
  Place placeAt(QPointF where);
  Place placeInFocus(int key);
  // That of a text, which takes taps and keys for itself.
  bool menuIsOpen();
  bool contentMoves();

  // What has arrived since the last call.
  Taps takeTaps();
  // Whether it is what had to arrive; with `orNone` a tap may as well be lost.
  void judge(const Taps& taps, const Place& place, bool orNone, const std::string& what);
  void expect(const Place& place, bool orNone, const std::string& what) {
    judge(takeTaps(), place, orNone, what);
  }
  void complain(const std::string& what) { told_ += "  " + what + '\n'; }

  WindowUnderTest& app_;
  const ReferenceApp& reference_;
  WindowHand hand_;
  Earlier lastClick_, lastKey_;  // those that exchanged the screen, and what is part of them
  Earlier lastTouch_;
  std::string told_;
};

}  // namespace leafund::random
