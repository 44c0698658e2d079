#include "tests/window/WindowApplication.h"

#include <gtest/gtest.h>

#include <QStyleHints>
#include <QTest>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "interface/qml/LeafundWindow.h"
#include "interface/qml/items/PictureItem.h"
#include "model/Catalogue.h"
#include "model/PictureHost.h"
#include "tests/support/KeyText.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/ProjectPictures.h"
#include "tests/support/ViewNamed.h"

namespace leafund {

namespace {

// As on a phone, whatever the screen of the surroundings has room for.
constexpr QSize kNatural{390, 844};

constexpr int kPatience = 10'000;  // milliseconds; reached only by what never happens

QtHost makeHost() {
  static int argc = 1;
  static char name[] = "leafund";
  static char* argv[] = {name, nullptr};
  return QtHost(argc, argv, leafundWindow());
}

}  // namespace

void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtDebugMsg || type == QtInfoMsg) return;
  // Said of the surroundings: by the offscreen platform, and where nobody is logged in.
  for (const auto* nobodysFault : {"This plugin does not support", "XDG_RUNTIME_DIR"}) {
    if (message.contains(QLatin1String(nobodysFault))) return;
  }
  ADD_FAILURE() << "warned: " << message.toStdString();
}

WindowApplication::WindowApplication(const UIStoryboard& storyboard)
    : host(makeHost()),
      application(
          std::make_shared<UIApplication>(host, storyboard, std::make_shared<AppDelegate>())) {
  qInstallMessageHandler(failOnWarning);
  setCurrentHost(&host);
  host.start(*application);
  server_ = std::make_unique<PictureServer>();
  servePictures();  // after launching, which writes the updates
  window().resize(kNatural);
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window()));
  settle();
}

WindowApplication::~WindowApplication() {
  host.stop();
  application.reset();
  setCurrentHost(nullptr);
  qInstallMessageHandler(nullptr);
}

// The addresses of the catalogue name the host that the build was made for; here they name the
// test's own server.
void WindowApplication::servePictures() {
  const std::string built = pictureAddress("");
  const auto moved = [&](const std::string& address) {
    return address.starts_with(built) ? server_->address("/").append(address, built.size())
                                      : address;
  };
  for (const auto& [name, body] : projectPictures()) server_->serve("/" + name, answers::ok(body));
  for (const auto* list : {&otherCampaigns(), &campaignsIFunded()}) {
    for (const auto& campaign : *list) {
      campaign->setPhoto(moved(campaign->photo()));
      campaign->setUpdateOnePhoto(moved(campaign->updateOnePhoto()));
    }
  }
}

std::shared_ptr<UIViewController> WindowApplication::shown() { return shownScreen(navigation()); }

bool WindowApplication::waitUntil(const std::function<bool()>& done) {
  return QTest::qWaitFor(done, kPatience);
}

void WindowApplication::settle() {
  QCoreApplication::processEvents();
  EXPECT_TRUE(waitUntil([&] {
    const auto* shownPage = page();
    if (shownPage == nullptr || shownPage->x() != 0) return false;
    int visible = 0;
    for (const auto* each : window().contentItem()->childItems()) visible += each->isVisible();
    return visible == 1 && PictureItem::areDrawn(window());
  })) << "a slide or the painting of a picture does not end";
  // One more frame: rows of controls are laid out when it is drawn.
  int frames = 0;
  QObject context;
  QObject::connect(&window(), &QQuickWindow::afterRendering, &context, [&] { ++frames; });
  window().update();
  EXPECT_TRUE(waitUntil([&] { return frames > 0; })) << "no frame is drawn";
}

QQuickItem* WindowApplication::page() {
  const auto name = QString::fromStdString(navigation().topViewController()->className());
  for (auto* each : window().contentItem()->childItems()) {
    if (each->objectName() == name && each->isVisible() && each->isEnabled()) return each;
  }
  return nullptr;
}

QQuickItem* WindowApplication::item(const std::string& name) {
  auto* shownPage = page();
  if (shownPage == nullptr) return nullptr;
  for (auto* each : shownPage->findChildren<QQuickItem*>(QString::fromStdString(name))) {
    if (each->isVisible()) return each;
  }
  return shownPage->findChild<QQuickItem*>(QString::fromStdString(name));
}

QQuickItem& WindowApplication::require(const std::string& name) {
  auto* found = item(name);
  if (found == nullptr) throw std::out_of_range("no item is named " + name);
  return *found;
}

QRectF WindowApplication::paneOf(const QQuickItem& item) {
  const QQuickItem* pane = page();
  for (const auto* each = item.parentItem(); each != nullptr; each = each->parentItem()) {
    if (each->inherits("QQuickFlickable")) pane = each;
  }
  return pane->mapRectToScene(pane->boundingRect());
}

void WindowApplication::click(QQuickItem& target) {
  settle();
  for (auto* each = target.parentItem(); each != nullptr; each = each->parentItem()) {
    if (!each->inherits("QQuickFlickable")) continue;
    const double top = target.mapToItem(each, QPointF(0, 0)).y();
    const double beyond = top + target.height() - each->height();
    if (top < 0 || beyond > 0) {
      const double offset = each->property("contentY").toDouble();
      each->setProperty("contentY", offset + (top < 0 ? top : beyond));
    }
  }
  const QPointF middle(target.width() / 2, target.height() / 2);
  QTest::mouseClick(&window(), Qt::LeftButton, {}, target.mapToScene(middle).toPoint());
  QCoreApplication::processEvents();
}

void WindowApplication::typeKeys(const std::string& text) {
  for (const char letter : text) QTest::keyClick(&window(), letter);
}

void WindowApplication::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  pressedAt_ += 2 * static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, keyText(key));
    event.setTimestamp(pressedAt_);
    QCoreApplication::sendEvent(&window(), &event);
  }
  QCoreApplication::processEvents();
}

}  // namespace leafund
