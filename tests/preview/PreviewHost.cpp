#include "tests/preview/PreviewHost.h"

#include <QDir>
#include <QGuiApplication>
#include <QQmlComponent>
#include <cstdio>
#include <utility>

#include "interface/qml/LeafundWindow.h"
#include "platform/foundation/NSURLRequest.h"
#include "platform/qt/QtWindow.h"
#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UINavigationController.h"

namespace leafund {

namespace {

// An editor that saves writes, renames and touches in quick succession.
constexpr int kPauseMilliseconds = 100;

}  // namespace

PreviewHost::PreviewHost(int argc, char** argv, const QString& skins)
    : folder_(skins), skins_(skins), host_(argc, argv, leafundWindow()) {}

PreviewHost::~PreviewHost() { stop(); }

int PreviewHost::run(UIApplication& application) {
  start(application);
  QGuiApplication::exec();
  stop();
  return 0;
}

void PreviewHost::start(UIApplication& application) {
  host_.start(application);
  pause_ = std::make_unique<QTimer>();
  pause_->setSingleShot(true);
  pause_->setInterval(kPauseMilliseconds);
  QObject::connect(pause_.get(), &QTimer::timeout, pause_.get(), [this] { reload(); });
  watcher_ = std::make_unique<QFileSystemWatcher>();
  const auto again = [this] { pause_->start(); };
  QObject::connect(watcher_.get(), &QFileSystemWatcher::fileChanged, watcher_.get(), again);
  QObject::connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, watcher_.get(), again);
  watch();
}

void PreviewHost::stop() {
  watcher_.reset();
  pause_.reset();
  stage_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  pages_.reset();
  host_.stop();
}

void PreviewHost::transfer(const NSURLRequest& request, CompletionHandler completion) {
  host_.transfer(request, std::move(completion));
}

void PreviewHost::show(const UINavigationController& navigation) {
  if (window() == nullptr) return;
  if (!stage_) {
    pages_ = makePages();
    stage_ = std::make_unique<SceneStage>(*pages_, *window()->contentItem());
  }
  stage_->show(navigation);
}

std::unique_ptr<SceneLoader> PreviewHost::makePages() {
  auto pages = std::make_unique<SceneLoader>(*window()->contentItem());
  pages->engine().addUrlInterceptor(&skins_);
  return pages;
}

// A file that was replaced is not watched any more, so all are named again each time.
void PreviewHost::watch() {
  QStringList paths{folder_};
  for (const auto& file : QDir(folder_).entryInfoList({QStringLiteral("*.qml")})) {
    paths.append(file.filePath());
  }
  watcher_->addPaths(paths);
}

void PreviewHost::reload() {
  watch();
  const auto& navigation = *UIApplication::current()->navigation();
  const auto name = QString::fromStdString(navigation.topViewController()->className());
  auto pages = makePages();
  const QQmlComponent trial(&pages->engine(), skins_.skinOf(name));
  if (!trial.isReady()) {
    std::fprintf(stderr, "%s", qPrintable(trial.errorString()));
    return;
  }
  stage_.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  pages_ = std::move(pages);
  stage_ = std::make_unique<SceneStage>(*pages_, *window()->contentItem());
  stage_->show(navigation);
  ++reloads_;
}

}  // namespace leafund
