#pragma once

#include <QObject>
#include <QQuickItem>
#include <QTimer>
#include <QVariantAnimation>
#include <memory>
#include <vector>

#include "platform/display/ScreenPages.h"
#include "platform/qt/PageMaker.h"

namespace leafund {

// The screens in the window. The stack of the toolkit moves at once, and the window slides after
// it: the screen that comes takes input from the start, the one that goes takes none any more.
class SceneStage : public QObject {
 public:
  // `content` is where the maker puts the pages.
  SceneStage(PageMaker& maker, QQuickItem& content);

  void show(const UINavigationController& navigation);

 private:
  void exchangeFor(QQuickItem& incoming, bool forward);
  void slide(QQuickItem& incoming, bool forward);
  void endSlide();

  PageMaker& maker_;
  QQuickItem& content_;
  QTimer rest_;
  ScreenPages<Page> pages_;
  std::vector<std::unique_ptr<Page>> leaving_;  // until their slide has ended
  QQuickItem* shown_ = nullptr;
  QQuickItem* outgoing_ = nullptr;  // while it slides
  QVariantAnimation animation_;
};

}  // namespace leafund
