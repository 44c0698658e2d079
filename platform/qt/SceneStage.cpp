#include "platform/qt/SceneStage.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <algorithm>
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

// A drag leads back that would come so far, in points, or half across a narrow window, if it went
// on for so long, in milliseconds.
constexpr double kFar = 160;
constexpr double kGlide = 150;

double between(double from, double to, double share) { return from + (to - from) * share; }

}  // namespace

SceneStage::SceneStage(PageMaker& maker, QQuickItem& content) : maker_(maker), content_(content) {
  clock_.start();
  rest_.setSingleShot(true);
  rest_.setInterval(kRest);
  connect(&rest_, &QTimer::timeout, this, [this] {
    const auto* application = UIApplication::current();
    if (application == nullptr || application->navigation() == nullptr) return;
    if (drawn_ != nullptr) return;
    maker_.lookAhead(*application->navigation());
  });
  connect(content.window(), &QQuickWindow::frameSwapped, &rest_, qOverload<>(&QTimer::start));
  connect(content.window(), &QWindow::visibleChanged, this, [this](bool visible) {
    // Nobody tells that the finger was lifted.
    if (!visible && std::exchange(drawn_, nullptr) != nullptr) endSlide();
  });
  animation_.setStartValue(0.0);
  animation_.setEndValue(1.0);
  animation_.setEasingCurve(QEasingCurve::OutCubic);
  connect(&animation_, &QVariantAnimation::finished, this, &SceneStage::endSlide);
}

void SceneStage::show(const UINavigationController& navigation) {
  auto change =
      pages_.follow(navigation, [this](UIViewController& screen) { return make(screen); });
  change.shown.refresh(navigation, *navigation.topViewController());
  if (&change.shown.item() != shown_) exchangeFor(change.shown.item(), change.came);
  for (auto& gone : change.gone) {
    // Only what slides out is still seen; the others end here.
    if (&gone->item() == outgoing_) leaving_.push_back(std::move(gone));
  }
}

std::unique_ptr<Page> SceneStage::make(UIViewController& screen) {
  auto page = maker_.make(screen);
  connect(&page->item(), SIGNAL(drawnBack(double)), this, SLOT(draw(double)));
  connect(&page->item(), SIGNAL(letGo(bool)), this, SLOT(letGo(bool)));
  return page;
}

QQuickItem* SceneStage::below() const {
  const auto& stack = UIApplication::current()->navigation()->viewControllers();
  const auto* page = stack.size() > 1 ? pages_.pageOf(*stack[stack.size() - 2]) : nullptr;
  return page != nullptr ? &page->item() : nullptr;
}

void SceneStage::draw(double way) {
  auto* page = qobject_cast<QQuickItem*>(sender());
  if (page == nullptr || page != shown_) return;
  speed_.note(way, clock_.elapsed());
  if (drawn_ == nullptr && !take(*page, way)) return;
  const double x = std::clamp(way + ahead_, 0.0, content_.width());
  page->setX(wayIn() * x);
  outgoing_->setX(wayIn() * between(-content_.width() * kLowerShare, 0, x / content_.width()));
}

// From where it is; what slides elsewhere is left to end.
bool SceneStage::take(QQuickItem& page, double way) {
  auto* lower = below();
  if (lower == nullptr || (outgoing_ != nullptr && outgoing_ != lower)) return false;
  animation_.stop();
  drawn_ = &page;
  ahead_ = wayIn() * page.x() - way;
  outgoing_ = lower;
  lower->setZ(0);
  page.setZ(1);
  lower->setVisible(true);
  return true;
}

void SceneStage::letGo(bool lifted) {
  if (sender() != shown_) return;
  const double far = std::min(kFar, content_.width() / 2);
  const double way = speed_.way() + speed_.at(clock_.elapsed()) * kGlide;
  speed_ = {};
  if (lifted && way > far) UIApplication::current()->goBack();
  giveUp();
}

// What still stands where it was drawn returns.
void SceneStage::giveUp() {
  if (std::exchange(drawn_, nullptr) != nullptr) slide(*shown_, true);
}

void SceneStage::exchangeFor(QQuickItem& incoming, bool forward) {
  drawn_ = nullptr;
  speed_ = {};
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
