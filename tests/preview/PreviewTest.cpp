#include <gtest/gtest.h>

#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>
#include <ostream>
#include <set>

#include "platform/qt/QtWindow.h"
#include "platform/uikit/UINavigationController.h"
#include "shell/AppDelegate.h"
#include "shell/Storyboard.h"
#include "tests/preview/PreviewHost.h"
#include "tests/preview/PreviewStates.h"
#include "tests/support/ViewNamed.h"
#include "tests/window/WindowApplication.h"

namespace leafund {

// How a test names its state.
static void PrintTo(const PreviewState& state, std::ostream* out) {
  *out << state.scene << " " << state.name;
}

namespace {

// A state of a scene in its window, with skins from a folder.
class Preview {
 public:
  Preview(const PreviewState& state, const QString& skins)
      : host(1, arguments(), skins),
        storyboard(previewStoryboard(state)),
        application(
            std::make_shared<UIApplication>(host, storyboard, std::make_shared<AppDelegate>())) {
    qInstallMessageHandler(failOnWarning);
    setCurrentHost(&host);
    host.start(*application);
    actPreview(*application, state);
    QCoreApplication::processEvents();
  }
  ~Preview() {
    host.stop();
    application.reset();
    setCurrentHost(nullptr);
    qInstallMessageHandler(nullptr);
  }

  std::shared_ptr<UIViewController> shown() { return shownScreen(*application->navigation()); }
  QQuickItem* page() {
    return host.window()->contentItem()->findChild<QQuickItem*>(
        QString::fromStdString(shown()->className()));
  }

  PreviewHost host;
  UIStoryboard storyboard;
  std::shared_ptr<UIApplication> application;

 private:
  static char** arguments() {
    static char name[] = "preview";
    static char* all[] = {name, nullptr};
    return all;
  }
};

class PreviewStateTest : public testing::TestWithParam<PreviewState> {};

std::string nameOf(const testing::TestParamInfo<PreviewState>& state) {
  return state.param.scene + "_" + state.param.name;
}

}  // namespace

TEST_P(PreviewStateTest, IsShownAloneAndWithoutAWarning) {
  Preview preview(GetParam(), LEAFUND_SKINS);
  ASSERT_NE(preview.page(), nullptr);
  EXPECT_TRUE(preview.page()->isVisible());
  const auto& looked = GetParam().scene;
  const auto& top = preview.application->navigation()->topViewController();
  EXPECT_TRUE(preview.shown()->className() == looked || top->className() == looked);
  EXPECT_EQ(preview.application->navigation()->viewControllers().size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(All, PreviewStateTest, testing::ValuesIn(previewStates()), nameOf);

TEST(PreviewTest, EverySceneHasAState) {
  std::set<std::string> previewed, all;
  for (const auto& state : previewStates()) previewed.insert(state.scene);
  for (const auto& scene : mainStoryboard().scenes()) all.insert(scene.name);
  EXPECT_EQ(previewed, all);
}

namespace {

class SkinsOfOnesOwn {
 public:
  SkinsOfOnesOwn() {
    const QDir source(LEAFUND_SKINS);
    for (const auto& name : source.entryList({"*.qml"})) {
      EXPECT_TRUE(QFile::copy(source.filePath(name), folder_.filePath(name)));
    }
  }
  QString path() const { return folder_.path(); }
  void write(const QString& name, const QByteArray& text) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(text);
  }
  QByteArray read(const QString& name) {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QFile::ReadOnly));
    return file.readAll();
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace

TEST(PreviewTest, ASavedSkinIsTakenUp) {
  SkinsOfOnesOwn skins;
  Preview preview(*previewState("LandingPageVC", "filled"), skins.path());
  ASSERT_NE(preview.page()->opacity(), 0.5);
  const auto text = skins.read("LandingPageVC.qml");
  skins.write("LandingPageVC.qml",
              QByteArray(text).replace("id: page\n", "id: page\nopacity: 0.5\n"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.host.reloads() > 0; }));
  EXPECT_EQ(preview.page()->opacity(), 0.5);
}

TEST(PreviewTest, ASkinThatCannotBeReadLeavesTheWindowAsItIs) {
  SkinsOfOnesOwn skins;
  Preview preview(*previewState("LandingPageVC", ""), skins.path());
  const QPointer<QQuickItem> before = preview.page();
  const auto text = skins.read("LandingPageVC.qml");
  testing::internal::CaptureStderr();
  skins.write("LandingPageVC.qml", "import QtQuick\nItem {\n");
  QString said;
  EXPECT_TRUE(QTest::qWaitFor([&] {
    said += QString::fromStdString(testing::internal::GetCapturedStderr());
    testing::internal::CaptureStderr();
    return said.contains("LandingPageVC.qml");
  }));
  testing::internal::GetCapturedStderr();
  EXPECT_EQ(preview.page(), before.data());

  skins.write("LandingPageVC.qml", text);
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.host.reloads() == 1; }));
}

}  // namespace leafund
