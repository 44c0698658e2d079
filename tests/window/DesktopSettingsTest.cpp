#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QPalette>
#include <QTest>
#include <algorithm>
#include <optional>

#include "platform/qt/DesktopSettings.h"
#include "tests/window/PrivateBus.h"
#include "tests/window/WindowApplication.h"

namespace leafund {
namespace {

using namespace std::chrono_literals;

const QString kAppearance = QStringLiteral("org.freedesktop.appearance");
const QColor kDay("#f3f7ef");
const QColor kNight("#10150d");

SettingsPortal::Settings appearance(const char* key, uint value) {
  return {{kAppearance, {{QString::fromLatin1(key), value}}}};
}

// The ground of the landing screen, in its corner.
QColor ground(WindowApplication& app) { return app.window().grabWindow().pixelColor(2, 2); }

class DesktopSettingsTest : public testing::Test {
 protected:
  void open(const SettingsPortal::Settings& settings, bool answers = true) {
    portal.emplace(bus, settings, answers);
    app.emplace();
  }
  bool becomes(const QColor& color) {
    return app->waitUntil([&] { return ground(*app) == color; });
  }
  QColor colorOf(const std::string& name) {
    return app->require(name).property("color").value<QColor>();
  }

  PrivateBus bus;
  std::optional<SettingsPortal> portal;
  std::optional<WindowApplication> app;
};

TEST_F(DesktopSettingsTest, ByNightTheFirstFrameIsDark) {
  open(appearance("color-scheme", 1));
  EXPECT_EQ(ground(*app), kNight);
}

TEST_F(DesktopSettingsTest, WhoAsksForNothingHasDay) {
  open(appearance("color-scheme", 0));
  EXPECT_EQ(ground(*app), kDay);
}

TEST_F(DesktopSettingsTest, NightFallsWhileTheAppRuns) {
  open(appearance("color-scheme", 2));
  ASSERT_EQ(ground(*app), kDay);
  portal->change(kAppearance, QStringLiteral("color-scheme"), 1U);
  EXPECT_TRUE(becomes(kNight));
  portal->change(kAppearance, QStringLiteral("color-scheme"), 2U);
  EXPECT_TRUE(becomes(kDay));
}

TEST_F(DesktopSettingsTest, TheToolkitsBlackIsInkByNightAndBlackByDay) {
  open(appearance("color-scheme", 1));
  EXPECT_EQ(colorOf("userEmail"), QColor("#e7efe0"));
  portal->change(kAppearance, QStringLiteral("color-scheme"), 2U);
  ASSERT_TRUE(becomes(kDay));
  EXPECT_EQ(colorOf("userEmail"), QColor(Qt::black));
}

TEST_F(DesktopSettingsTest, RedIsDrawnAsItIsSetByNightToo) {
  open(appearance("color-scheme", 1));
  app->click(app->require("signInButton"));
  app->settle();
  EXPECT_EQ(colorOf("userEmail"), QColor(Qt::red));
}

TEST_F(DesktopSettingsTest, MoreContrastMakesInkBlack) {
  open(appearance("contrast", 1));
  EXPECT_EQ(colorOf("brand"), QColor(Qt::black));
}

TEST_F(DesktopSettingsTest, WithLessMotionNothingSlides) {
  open(appearance("reduced-motion", 1));
  EXPECT_EQ(app->page()->property("slideDuration").toInt(), 0);
}

TEST_F(DesktopSettingsTest, WithLessMotionACelebrationStandsOpen) {
  open(appearance("reduced-motion", 1));
  app->click(app->require("signInButton"));
  app->settle();
  app->click(app->require("signInButton"));
  app->settle();
  app->click(app->require("fundedTab"));
  app->click(app->require("Funded-0"));
  const auto items = app->page()->findChildren<QQuickItem*>();
  const auto party = std::find_if(items.begin(), items.end(), [](const QQuickItem* each) {
    return QByteArray(each->metaObject()->className()).startsWith("Celebration");
  });
  ASSERT_NE(party, items.end());
  EXPECT_TRUE((*party)->isVisible());
  EXPECT_EQ((*party)->scale(), 1);
}

TEST_F(DesktopSettingsTest, WithLessMotionAReasonHasItsRoomAtOnce) {
  open(appearance("reduced-motion", 1));
  app->click(app->require("signInButton"));
  app->settle();
  app->click(app->require("signInButton"));
  app->settle();
  app->click(app->require("abc-0"));
  app->settle();
  app->click(app->require("FundButton"));
  const auto& reason = app->require("errorLabel");
  ASSERT_TRUE(reason.isVisible());
  EXPECT_EQ(reason.parentItem()->height(), reason.height());
}

TEST_F(DesktopSettingsTest, WithLessMotionAPageFollowsTheFingerAndReturnsAtOnce) {
  open(appearance("reduced-motion", 1));
  app->click(app->require("signUpButton"));
  app->settle();
  const auto* page = app->page();
  QTest::mousePress(&app->window(), Qt::LeftButton, {}, QPoint(6, 300));
  for (int x = 6; x <= 120; x += 6) QTest::mouseMove(&app->window(), QPoint(x, 300));
  EXPECT_GT(page->x(), 60);
  QTest::qWait(150);
  QTest::mouseRelease(&app->window(), Qt::LeftButton, {}, QPoint(120, 300));
  EXPECT_EQ(page->x(), 0);
  EXPECT_EQ(app->shown()->className(), "SignUpVC");
}

TEST_F(DesktopSettingsTest, ADesktopWithoutAnimationsAsksForLessMotion) {
  open({{QStringLiteral("org.gnome.desktop.interface"),
         {{QStringLiteral("enable-animations"), false}}}});
  EXPECT_EQ(app->page()->property("slideDuration").toInt(), 0);
}

TEST_F(DesktopSettingsTest, APortalThatIsLateHoldsNothingUpAndIsHeardLater) {
  open(appearance("color-scheme", 1), false);
  EXPECT_EQ(ground(*app), kDay);
  QElapsedTimer passed;
  passed.start();
  DesktopSettings::ofApplication().await(20ms);
  EXPECT_GE(passed.elapsed(), 20);
  EXPECT_LT(passed.elapsed(), 1000);
  portal->answer();
  EXPECT_TRUE(becomes(kNight));
}

TEST_F(DesktopSettingsTest, WithoutAPortalTheDesktopsPaletteTells) {
  app.emplace();
  ASSERT_EQ(ground(*app), kDay);
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  QGuiApplication::setPalette(dark);
  EXPECT_TRUE(becomes(kNight));
}

}  // namespace
}  // namespace leafund
