#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTimer>
#include <QVariantAnimation>
#include <memory>
#include <vector>

#include "platform/qt/ScenePage.h"

namespace leafund {

// The screens on the glass. The stack of the toolkit moves at once, and the glass slides after it:
// the screen that comes takes input from the start, the one that goes takes none any more.
class SceneStage : public QObject {
 public:
  // Screens become children of `glass`.
  SceneStage(QQmlEngine& engine, QQuickItem& glass);

  void show(const UINavigationController& navigation);

 private:
  void exchangeFor(QQuickItem& incoming, bool forward);
  void slide(QQuickItem& incoming, bool forward);
  void endSlide();
  // While nothing moves: makes ahead a skin that the screen shown may lead to.
  void lookAhead();

  QQuickItem& glass_;
  SceneLoader loader_;
  QTimer rest_;
  ScreenPages<ScenePage> pages_;
  std::vector<std::unique_ptr<ScenePage>> leaving_;  // until their slide has ended
  QQuickItem* shown_ = nullptr;
  QQuickItem* outgoing_ = nullptr;  // while it slides
  QVariantAnimation animation_;
};

}  // namespace leafund
