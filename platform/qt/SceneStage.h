#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QQuickItem>
#include <QTimer>
#include <QVariantAnimation>
#include <memory>
#include <vector>

#include "platform/display/ScreenPages.h"
#include "platform/qt/DragSpeed.h"
#include "platform/qt/PageMaker.h"

namespace leafund {

// The screens in the window. The stack of the toolkit moves at once, and the window slides after
// it: the screen that comes takes input from the start, the one that goes takes none any more.
//
// A finger that draws a screen towards the way back has it follow, and shows the screen below,
// which takes no input. When it is lifted the screen goes back, by how far and how fast it was
// drawn, or returns; the stack hears only of the former.
class SceneStage : public QObject {
  Q_OBJECT

 public:
  // `content` is where the maker puts the pages.
  SceneStage(PageMaker& maker, QQuickItem& content);

  void show(const UINavigationController& navigation);

 private slots:
  // By the page that sends it.
  void draw(double way);
  void letGo(bool lifted);

 private:
  std::unique_ptr<Page> make(UIViewController& screen);
  bool take(QQuickItem& page, double way);
  void giveUp();
  QQuickItem* below() const;
  void exchangeFor(QQuickItem& incoming, bool forward);
  void slide(QQuickItem& incoming, bool forward);
  void endSlide();

  PageMaker& maker_;
  QQuickItem& content_;
  QTimer rest_;
  ScreenPages<Page> pages_;
  std::vector<std::unique_ptr<Page>> leaving_;  // until their slide has ended
  QQuickItem* shown_ = nullptr;
  QQuickItem* outgoing_ = nullptr;  // while it slides, and the one below while a finger draws
  QQuickItem* drawn_ = nullptr;     // by a finger
  double ahead_ = 0;                // how far, in points, what is drawn is ahead of the finger
  DragSpeed speed_;
  QElapsedTimer clock_;
  QVariantAnimation animation_;
};

}  // namespace leafund
