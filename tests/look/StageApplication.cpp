#include "tests/look/StageApplication.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <QScreen>
#include <cmath>
#include <sstream>
#include <stdexcept>

#include "interface/qml/bridge/ImageBridge.h"
#include "interface/qml/items/PictureItem.h"
#include "model/Catalogue.h"
#include "platform/qt/DesktopSettings.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/look/WindowItems.h"
#include "tests/support/PictureAnswers.h"
#include "tests/support/ProjectPictures.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/PrivateBus.h"

namespace leafund {

namespace {

// Without these every figure and every picture would be of something else.
void requireSurroundings(const Surroundings& wanted, const QQuickWindow& window) {
  if (QFontInfo(QGuiApplication::font()).family() != QLatin1String("Inter")) {
    throw std::runtime_error("the typeface Inter is not found: install the package fonts-inter");
  }
  const double dots = window.screen()->logicalDotsPerInch();
  if (std::abs(dots - 0.96 * wanted.fontPercent) > 1) {
    throw std::runtime_error("the font resolution is " + std::to_string(dots));
  }
  if (DesktopSettings::ofApplication().mirrored() != wanted.mirrored) {
    throw std::runtime_error("the direction is not the one asked for");
  }
  if (DesktopSettings::ofApplication().highContrast() != wanted.contrast) {
    throw std::runtime_error("the contrast is not the one asked for");
  }
  if (std::abs(window.effectiveDevicePixelRatio() - wanted.scale) > 0.01) {
    throw std::runtime_error("the scale is not the one asked for");
  }
}

void fallNight() {
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  QGuiApplication::setPalette(dark);
  QCoreApplication::processEvents();
  if (!DesktopSettings::ofApplication().night()) throw std::runtime_error("night does not fall");
}

}  // namespace

std::string nameOf(const Surroundings& surroundings) {
  std::ostringstream name;
  if (surroundings.fontPercent != 100) name << "-font" << surroundings.fontPercent;
  if (surroundings.scale != 1) name << "-scale" << surroundings.scale;
  if (surroundings.night) name << "-night";
  if (surroundings.mirrored) name << "-mirrored";
  if (surroundings.contrast) name << "-contrast";
  return name.str();
}

struct StageApplication::Prepared::Desktop {
  PrivateBus bus;
  SettingsPortal portal{
      bus, {{QStringLiteral("org.freedesktop.appearance"), {{QStringLiteral("contrast"), 1U}}}}};
};

StageApplication::Prepared::Prepared(const Surroundings& surroundings) {
  if (surroundings.contrast) desktop = std::make_shared<Desktop>();
  qputenv("QT_FONT_DPI", QByteArray::number(96 * surroundings.fontPercent / 100));
  qputenv("QT_SCALE_FACTOR", QByteArray::number(surroundings.scale));
  // With its scaling on, the platform without a screen reads no font resolution.
  if (surroundings.fontPercent != 100) qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
  if (surroundings.mirrored) QLocale::setDefault(QLocale(QLocale::Arabic));
}

StageApplication::StageApplication(Surroundings surroundings, Pictures pictures, QSize size)
    : prepared_(surroundings), host_(app_.host, app_.server().baseAddress()), pictures_(pictures) {
  requireSurroundings(surroundings, window());
  if (surroundings.night) fallNight();
  setCurrentHost(&host_);
  serve(pictures);
  resize(size);
  // The platform puts a pointer on the window's corner, where the way back stands.
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&window(), &leave);
}

StageApplication::~StageApplication() { setCurrentHost(&app_.host); }

void StageApplication::serve(Pictures pictures) {
  for (const auto& [name, body] : projectPictures()) {
    const auto answer = pictures == Pictures::Served ? answers::ok(body) : answers::neverAnswers();
    app_.server().serve("/" + name, answer);
  }
}

std::shared_ptr<UIView> StageApplication::view(std::string_view name) {
  return viewNamed(app_.navigation(), name);
}

void StageApplication::tap(std::string_view name) { app_.application->tap(view(name)); }

void StageApplication::tapRow(std::ptrdiff_t row) {
  const auto table = std::dynamic_pointer_cast<UITableView>(app_.shown()->view());
  app_.application->tap(table->visibleCells().at(row));
}

void StageApplication::type(std::string_view name, std::string text) {
  const auto input = std::dynamic_pointer_cast<UITextInput>(view(name));
  app_.application->beginEditing(input);
  app_.application->edit(input, std::move(text));
  app_.application->endEditing(input);
}

void StageApplication::signIn() {
  type("userEmail", "wren@example.org");
  type("password", "secret");
  tap("signInButton");
}

void StageApplication::openTab(std::string_view name) {
  signIn();
  tap(name);
}

void StageApplication::goBack() { app_.application->goBack(); }

void StageApplication::tab(int times) {
  settle();
  for (int i = 0; i < times; ++i) app_.press(Qt::Key_Tab);
}

void StageApplication::resize(QSize size) {
  window().resize(size);
  EXPECT_TRUE(app_.waitUntil([&] { return page().width() == size.width(); }));
}

void StageApplication::settle() {
  const auto isSettled = [&] {
    int screens = 0;
    for (const auto* each : window().contentItem()->childItems()) screens += each->isVisible();
    if (screens != 1 || app_.page() == nullptr || page().x() != 0 || isAnimated()) return false;
    if (!PictureItem::areDrawn(window())) return false;
    return pictures_ == Pictures::Silent || (hasAllPictures() && rowsHaveTheirOwnPictures());
  };
  window().grabWindow();  // lays out, which may begin an animation or show another picture
  QCoreApplication::processEvents();  // a message is brought into sight later
  EXPECT_TRUE(app_.waitUntil(isSettled)) << "a slide, an animation or a picture does not end";
  window().grabWindow();
}

// A cell that was used before shows its last row's picture until its own has come.
bool StageApplication::rowsHaveTheirOwnPictures() {
  static const std::map<std::string, CampaignList& (*)()> lists = {
      {"OtherCampaignsTableViewController", otherCampaigns},
      {"FundCampaignVC", campaignsIFunded},
      {"MyProfileVC", myUnfundedCampaigns}};
  static const auto pictures = projectPictures();
  const auto list = lists.find(app_.shown()->className());
  if (list == lists.end()) return true;
  const auto table = std::dynamic_pointer_cast<UITableView>(app_.shown()->view());
  for (const auto& [row, cell] : table->visibleCells()) {
    const auto& address = list->second().at(static_cast<std::size_t>(row))->photo();
    const auto& image = cell->imageView()->image();
    if (!image || !image->drawing()) return false;
    const auto& body = *image->drawing()->strokes.at(0).image->body();
    if (body != pictures.at(address.substr(address.rfind('/') + 1))) return false;
  }
  return true;
}

bool StageApplication::hasAllPictures() {
  for (const auto* item : shownItems(page())) {
    if (!item->inherits("leafund::PictureItem")) continue;
    if (item->property("view").value<ImageBridge*>()->picture().image == nullptr) return false;
  }
  return true;
}

bool StageApplication::isAnimated() {
  bool animated = false;
  for (auto* object : window().findChildren<QObject*>()) {
    const bool waits = object->inherits("QQmlTimer");
    if (!waits && !object->inherits("QQuickAbstractAnimation")) continue;
    if (!object->property("running").toBool()) continue;
    animated = true;
    if (waits) object->setProperty("interval", 1);  // as long as a mark lingers, at each size again
  }
  return animated;
}

QImage StageApplication::photograph() {
  settle();
  for (auto* item : shownItems(page())) {
    if (isInput(*item)) item->setProperty("cursorVisible", false);
  }
  return window().grabWindow().convertToFormat(QImage::Format_RGB888);
}

}  // namespace leafund
