#include <QBuffer>

#include "interface/qml/items/PictureItem.h"
#include "platform/uikit/UIImageView.h"
#include "tests/window/HeldTime.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// A picture in one colour that takes a while to make.
std::shared_ptr<const UIImage> picture(QColor colour, QSize size, const char* format = "PNG") {
  QImage image(size, QImage::Format_RGB32);
  image.fill(colour);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  image.save(&buffer, format);
  return UIImage::initWithData(std::make_shared<const std::string>(bytes.toStdString()));
}

constexpr QSize k12Megapixels{4000, 3000};
constexpr QSize kSmall{40, 40};

// A picture of 40 by 40 on a window of its own.
class PixelsTest : public WindowTest {
 protected:
  PixelsTest() {
    window_.resize(60, 60);
    item_->setParentItem(window_.contentItem());
    item_->setSize({40, 40});
    item_->setGround(Qt::white);
    item_->setView(&bridge_);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window_));
  }

  void show(std::shared_ptr<const UIImage> image) {
    view_->setImage(std::move(image));
    bridge_.refresh();
  }
  // A frame is drawn, with whatever there is by now.
  QColor colour() { return window_.grabWindow().pixelColor(20, 20); }
  bool comesToBe(QColor wanted) {
    return app.waitUntil([&] { return PictureItem::areDrawn(window_); }) && colour() == wanted;
  }
  // The pixels of what was asked for earlier have been made, or dropped.
  void letTheWorkerFinish() {
    bool isDone = false;
    const auto last = PixelWorker::of(window_).ask([](const auto&) { return QImage(); },
                                                   [&](const QImage&) { isDone = true; });
    EXPECT_TRUE(app.waitUntil([&] { return isDone; }));
  }

  std::shared_ptr<UIImageView> view_ = std::make_shared<UIImageView>();
  ImageBridge bridge_{view_, nullptr};
  QQuickWindow window_;
  std::unique_ptr<PictureItem> item_ = std::make_unique<PictureItem>();
};

TEST_F(PixelsTest, WhatWasDrawnBeforeStaysUntilTheNewPixelsAreThere) {
  EXPECT_EQ(colour(), QColor(Qt::white));
  const auto large = picture(Qt::red, k12Megapixels);
  show(large);
  EXPECT_EQ(colour(), QColor(Qt::white));
  EXPECT_TRUE(comesToBe(Qt::red));
  show(picture(Qt::blue, k12Megapixels));
  EXPECT_EQ(colour(), QColor(Qt::red));
  EXPECT_TRUE(comesToBe(Qt::blue));
  show(nullptr);
  EXPECT_EQ(colour(), QColor(Qt::white));
}

TEST_F(PixelsTest, PixelsOfAnOlderPictureNeverReplaceThoseOfANewerOne) {
  show(picture(Qt::red, k12Megapixels));
  colour();
  show(picture(Qt::blue, kSmall));
  EXPECT_TRUE(comesToBe(Qt::blue));
  letTheWorkerFinish();
  EXPECT_EQ(colour(), QColor(Qt::blue));
}

TEST_F(PixelsTest, APictureThatIsTakenAwayDoesNotComeLater) {
  show(picture(Qt::red, k12Megapixels));
  colour();
  show(nullptr);
  colour();
  letTheWorkerFinish();
  EXPECT_EQ(colour(), QColor(Qt::white));
}

// Not even for a moment.
TEST_F(PixelsTest, NorDoesOneThatCameAfterAnother) {
  show(picture(Qt::blue, kSmall));
  EXPECT_TRUE(comesToBe(Qt::blue));
  show(picture(Qt::red, k12Megapixels));
  colour();
  show(nullptr);
  colour();
  int comings = 0;
  QObject::connect(item_.get(), &PictureItem::hasPictureChanged, &window_, [&] { ++comings; });
  letTheWorkerFinish();
  EXPECT_EQ(comings, 0);
}

TEST_F(PixelsTest, OutOfSightNoPixelsAreMade) {
  show(picture(Qt::red, k12Megapixels));
  colour();
  item_->setVisible(false);
  letTheWorkerFinish();
  item_->setVisible(true);
  EXPECT_FALSE(PictureItem::areDrawn(window_));
  EXPECT_EQ(colour(), QColor(Qt::white));
  EXPECT_TRUE(comesToBe(Qt::red));
}

TEST_F(PixelsTest, APictureThatIsSetOutOfSightIsMadeInSight) {
  item_->setVisible(false);
  show(picture(Qt::red, kSmall));
  colour();
  letTheWorkerFinish();
  item_->setVisible(true);
  EXPECT_TRUE(comesToBe(Qt::red));
}

TEST_F(PixelsTest, AnItemThatIsGoneGetsNoPixels) {
  show(picture(Qt::red, k12Megapixels));
  colour();
  item_.reset();
  letTheWorkerFinish();
}

TEST_F(PixelsTest, AnotherSizeIsPaintedAnewAndTheOldOneStretchedUntilThen) {
  show(picture(Qt::red, k12Megapixels));
  EXPECT_TRUE(comesToBe(Qt::red));
  item_->setSize({50, 50});
  EXPECT_FALSE(PictureItem::areDrawn(window_));
  EXPECT_EQ(window_.grabWindow().pixelColor(47, 47), QColor(Qt::red));
  EXPECT_TRUE(comesToBe(Qt::red));
}

TEST_F(PixelsTest, APhotoOf12MegapixelsHoldsTheWindowsThreadForEightMilliseconds) {
  for (const char* format : {"PNG", "JPEG"}) {
    double held = 1e9;
    for (int round = 0; round < 3; ++round) {  // the window may have something of its own to do
      show(picture(Qt::white, kSmall));
      EXPECT_TRUE(comesToBe(Qt::white));
      const auto photo = picture(Qt::blue, k12Megapixels, format);
      const auto isDrawn = [&] { return PictureItem::areDrawn(window_); };
      held = std::min(held, longestHold([&] { show(photo); }, isDrawn));
      EXPECT_LT(colour().red(), 16);
    }
    RecordProperty(format, std::to_string(held));
    EXPECT_LE(held, 8) << format;
  }
}

}  // namespace
}  // namespace leafund
