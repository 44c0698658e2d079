#include <QBuffer>

#include "model/Catalogue.h"
#include "tests/support/PictureAnswers.h"
#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

class ShownPictureTest : public WindowTest {
 protected:
  // The address of a picture in one colour.
  std::string serve(const std::string& path, const QColor& color) {
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return app.server().serve(path, answers::ok(bytes.toStdString(), "image/png"));
  }
  QColor colourInTheMiddleOf(const QQuickItem& item) {
    const QPoint middle = item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
    return app.window().grabWindow().pixelColor(middle);
  }
  const QQuickItem& rowPicture(const std::string& row) {
    for (const auto* each : app.require(row).findChildren<QQuickItem*>()) {
      if (QByteArray(each->metaObject()->className()).startsWith("Picture")) return *each;
    }
    throw std::out_of_range("the row has no picture");
  }
  const QQuickItem& signOn(const std::string& row) { return *rowPicture(row).childItems().front(); }
  bool comesToShow(const std::string& row, const QColor& color) {
    return app.waitUntil([&] { return colourInTheMiddleOf(rowPicture(row)) == color; });
  }
};

TEST_F(ShownPictureTest, ARowShowsADrawnSignUntilItsPictureComes) {
  otherCampaigns()[0]->setPhoto(serve("/red.png", Qt::red));
  otherCampaigns()[1]->setPhoto(app.server().serve("/never.png", answers::neverAnswers()));
  signIn();
  EXPECT_TRUE(comesToShow("abc-0", Qt::red));
  EXPECT_TRUE(app.waitUntil([&] { return signOn("abc-0").opacity() == 0; }));
  EXPECT_EQ(signOn("abc-1").opacity(), 1);
  EXPECT_NE(colourInTheMiddleOf(rowPicture("abc-1")),
            rowPicture("abc-1").property("ground").value<QColor>());
}

TEST_F(ShownPictureTest, ARowShowsANewPictureInThePlaceOfTheLast) {
  otherCampaigns()[0]->setPhoto(serve("/red.png", Qt::red));
  signIn();
  EXPECT_TRUE(comesToShow("abc-0", Qt::red));
  otherCampaigns()[0]->setPhoto(serve("/blue.png", Qt::blue));
  click("newsTab");
  click("browseTab");
  EXPECT_TRUE(comesToShow("abc-0", Qt::blue));
}

}  // namespace
}  // namespace leafund
