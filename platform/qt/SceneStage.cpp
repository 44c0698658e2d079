#include "platform/qt/SceneStage.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <utility>

#include "platform/uikit/UIApplication.h"

namespace leafund {

namespace {

// The lower of the two screens moves a third of the way, which shows which one lies on top.
constexpr double kLowerShare = 1.0 / 3;

// A window without a new frame for so long, in milliseconds, is at rest.
constexpr int kRest = 50;

// A screen comes from where reading goes on.
double wayIn() { return QGuiApplication::isRightToLeft() ? -1 : 1; }

double between(double from, double to, double share) { return from + (to - from) * share; }

}  // namespace

SceneStage::SceneStage(PageMaker& maker, QQuickItem& content) : maker_(maker), content_(content) {
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] {
    const auto* application = UIApplication::current();
    if (application == nullptr || application->navigation() == nullptr) return;
    maker_.lookAhead(*application->navigation());
  });
  connect(content.window(), &QQuickWindow::frameSwapped, &rest_, qOverload<>(&QTimer::start));
  animation_.setStartValue(0.0);
  animation_.setEndValue(1.0);
  animation_.setEasingCurve(QEasingCurve::OutCubic);
  connect(&animation_, &QVariantAnimation::finished, this, &SceneStage::endSlide);
}

void SceneStage::show(const UINavigationController& navigation) {
  auto change =
      pages_.follow(navigation, [this](UIViewController& screen) { return maker_.make(screen); });
  change.shown.refresh(navigation, *navigation.topViewController());
  if (&change.shown.item() != shown_) exchangeFor(change.shown.item(), change.came);
  for (auto& gone : change.gone) {
    // Only what slides out is still seen; the others end here.
    if (&gone->item() == outgoing_) leaving_.push_back(std::move(gone));
  }
}

void SceneStage::exchangeFor(QQuickItem& incoming, bool forward) {
  const double edge = wayIn() * content_.width() * (forward ? 1 : -kLowerShare);
  // If reversed mid-slide, both go on from where they are.
  const double incomingX = &incoming == outgoing_ ? incoming.x() : edge;
  const double outgoingX = shown_ != nullptr ? shown_->x() : 0;
  animation_.stop();
  endSlide();
  outgoing_ = std::exchange(shown_, &incoming);
  if (outgoing_ != nullptr) {
    outgoing_->setX(outgoingX);
    outgoing_->setEnabled(false);
    outgoing_->setFocus(false);
  }
  incoming.setVisible(true);
  incoming.setEnabled(true);
  // Restored focus does not count as user focus.
  incoming.forceActiveFocus(Qt::ActiveWindowFocusReason);
  if (outgoing_ == nullptr) return;
  incoming.setX(incomingX);
  slide(incoming, forward);
}

void SceneStage::slide(QQuickItem& incoming, bool forward) {
  incoming.setZ(forward ? 1 : 0);
  outgoing_->setZ(forward ? 0 : 1);
  const double inFrom = incoming.x();
  const double outFrom = outgoing_->x();
  const double outTo = wayIn() * content_.width() * (forward ? -kLowerShare : 1);
  animation_.disconnect(&content_);
  connect(&animation_, &QVariantAnimation::valueChanged, &content_,
          [this, in = &incoming, inFrom, outFrom, outTo](const QVariant& value) {
            if (outgoing_ == nullptr) return;
            in->setX(between(inFrom, 0, value.toDouble()));
            outgoing_->setX(between(outFrom, outTo, value.toDouble()));
          });
  animation_.setDuration(incoming.property("slideDuration").toInt());
  animation_.start();
}

void SceneStage::endSlide() {
  if (shown_ != nullptr) shown_->setX(0);
  if (auto* gone = std::exchange(outgoing_, nullptr)) {
    gone->setVisible(false);
    gone->setX(0);
  }
  leaving_.clear();
}

}  // namespace leafund
