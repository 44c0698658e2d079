#include "platform/qt/QtHost.h"

#include <malloc.h>

#include <QFontDatabase>
#include <QGuiApplication>
#include <QThread>
#include <chrono>
#include <thread>
#include <utility>

#include "platform/curl/CurlTransfer.h"
#include "platform/foundation/FatalError.h"
#include "platform/foundation/NSURLRequest.h"
#include "platform/qt/DesktopSettings.h"
#include "platform/qt/Display.h"
#include "platform/qt/QtWindow.h"
#include "platform/qt/SceneStage.h"
#include "platform/uikit/UIApplication.h"

namespace leafund {

namespace {

// What the first frame waits for the desktop's settings at most; they come while the window is
// made.
constexpr std::chrono::milliseconds kSettingsWait{20};

// How far the application is from the user: in front, in sight, out of sight.
enum class Activity { Background, Inactive, Active };

Activity activityOf(Qt::ApplicationState state) {
  if (state == Qt::ApplicationActive) return Activity::Active;
  return state == Qt::ApplicationInactive ? Activity::Inactive : Activity::Background;
}

// The system may skip the middle; the application hears of every step.
class ActivityReport {
 public:
  void reach(Activity reached) {
    auto* application = UIApplication::current();
    if (application == nullptr) return;
    if (activity_ == Activity::Active && reached != Activity::Active) application->resignActive();
    if (activity_ != Activity::Background && reached == Activity::Background) {
      application->enterBackground();
    }
    if (activity_ == Activity::Background && reached != Activity::Background) {
      application->enterForeground();
    }
    if (activity_ != Activity::Active && reached == Activity::Active) application->becomeActive();
    activity_ = reached;
  }

 private:
  Activity activity_ = Activity::Inactive;
};

QFont fontOf(const QString& typeface) {
  QFont font = QGuiApplication::font();
  font.setFamilies({typeface, font.family()});
  return font;
}

}  // namespace

QtHost::QtHost(int argc, char** argv, WindowSettings settings)
    : argc_(argc), argv_(argv), settings_(std::move(settings)) {
#ifdef M_ARENA_MAX
  // Where addresses are short, a heap a thread (64 MB and more of them) leaves none for a thread
  // that Qt paints with and waits for: with 400 MB the window froze.
  mallopt(M_ARENA_MAX, 2);
#endif
}

QtHost::~QtHost() { stop(); }

int QtHost::run(UIApplication& application) {
  start(application);
  QGuiApplication::exec();
  application.terminate();
  stop();
  return 0;
}

void QtHost::start(UIApplication& application) {
  transfer_ = std::make_unique<CurlTransfer>();  // before there are threads
  // On a phone-sized window the software renderer is on screen first and takes a third of the
  // memory that a software OpenGL needs; it is also the only one that every machine has.
  if (QQuickWindow::sceneGraphBackend() != QLatin1String("software")) {
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  }
  gui_ = connectToDisplay(argc_, argv_, settings_.title);
  auto& desktop = DesktopSettings::ofApplication();
  QGuiApplication::setDesktopFileName(settings_.desktopFile);
  QGuiApplication::setFont(fontOf(settings_.typeface));
  // The list of the system's fonts takes a sixth of the start, and the first text waits for it. The
  // landing screen's files are read in the meantime.
  const std::jthread fonts([] { QFontDatabase::families(); });
  window_ = std::make_unique<QtWindow>(settings_);
  pages_ = settings_.makePages(*window_->contentItem());
  stage_ = std::make_unique<SceneStage>(*pages_, *window_->contentItem());
  QObject::connect(gui_.get(), &QGuiApplication::applicationStateChanged, &mainThread_,
                   [report = ActivityReport()](Qt::ApplicationState state) mutable {
                     report.reach(activityOf(state));
                   });
  window_->setPageMaker(*pages_);
  application.launch();
  desktop.await(kSettingsWait);
  window_->show();
  window_->requestActivate();  // where no window manager does it, no key would arrive
}

void QtHost::stop() {
  if (!gui_) return;
  transfer_.reset();
  stage_.reset();
  // The pages' items first, before their maker and the window they belong to.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  pages_.reset();
  window_.reset();
  gui_.reset();
}

bool QtHost::onMain() const { return QThread::currentThread() == mainThread_.thread(); }

void QtHost::post(std::function<void()> step) {
  QMetaObject::invokeMethod(
      &mainThread_,
      [step = std::move(step)]() mutable {
        if (auto* application = UIApplication::current()) application->turn(std::move(step));
      },
      Qt::QueuedConnection);
}

void QtHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  transfer_->start(request.URL().absoluteString(), std::move(completion));
}

double QtHost::screenScale() const { return window_ ? window_->effectiveDevicePixelRatio() : 1.0; }

void QtHost::show(const UINavigationController& navigation) {
  if (stage_) stage_->show(navigation);
}

}  // namespace leafund
