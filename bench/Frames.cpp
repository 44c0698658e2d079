// A frame of the browse list that scrolls by 60 pixels a frame, with its pictures there, beside
// plain painting of the same rows; and a frame while nothing scrolls.

#include <QCoreApplication>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QTextLayout>
#include <map>
#include <memory>

#include "bench/Figures.h"
#include "bench/WindowBench.h"
#include "interface/qml/items/PictureItem.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {
namespace {

constexpr std::size_t kRows = 10'000;
constexpr int kFrames = 3'000;
constexpr int kStep = 60;
constexpr int kRowHeight = 160;

// The limit: the rows' card and picture ready as images, their texts laid out once a row, and
// nothing around them.
class PaintedList {
 public:
  PaintedList(QSize size, QImage card, QImage picture)
      : canvas_(size, QImage::Format_RGB32),
        card_(std::move(card)),
        picture_(std::move(picture)),
        title_(QGuiApplication::font()),
        pitch_(title_) {
    title_.setPointSizeF(15);
    title_.setWeight(QFont::Bold);
    pitch_.setPointSizeF(12);
  }

  void paint(int offset) {
    QPainter painter(&canvas_);
    const int first = offset / kRowHeight;
    const int last = std::min<int>((offset + canvas_.height() - 1) / kRowHeight, kRows - 1);
    for (int row = first; row <= last; ++row) paintRow(painter, row, row * kRowHeight - offset);
    while (!texts_.empty() && texts_.begin()->first < first) texts_.erase(texts_.begin());
  }

  const QImage& canvas() const { return canvas_; }

 private:
  struct Texts {
    std::unique_ptr<QTextLayout> title;
    std::unique_ptr<QTextLayout> pitch;
  };

  void paintRow(QPainter& painter, int row, int top) {
    painter.drawImage(0, top, card_);
    painter.drawImage(16, top + 50, picture_);
    auto& texts = textsOf(row);
    painter.setPen(QColor(31, 42, 25));
    texts.title->draw(&painter, QPointF(97, top + 40));
    painter.setPen(QColor(85, 98, 77));
    texts.pitch->draw(&painter, QPointF(97, top + 64));
  }

  Texts& textsOf(int row) {
    auto& texts = texts_[row];
    if (!texts.title) {
      const auto& campaign = *otherCampaigns()[static_cast<std::size_t>(row)];
      texts.title = laidOut(campaign.title(), title_);
      texts.pitch = laidOut(campaign.shortDescription(), pitch_);
    }
    return texts;
  }

  std::unique_ptr<QTextLayout> laidOut(const std::string& text, const QFont& font) const {
    auto layout = std::make_unique<QTextLayout>(QString::fromStdString(text), font);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    qreal y = 0;
    for (auto line = layout->createLine(); line.isValid(); line = layout->createLine()) {
      line.setLineWidth(canvas_.width() - 97 - 16);
      line.setPosition({0, y});
      y += line.height();
    }
    layout->endLayout();
    return layout;
  }

  QImage canvas_;
  QImage card_;
  QImage picture_;
  QFont title_;
  QFont pitch_;
  std::map<int, Texts> texts_;
};

// Every cell of the pool has got its picture; from now on none comes.
void showPictures(WindowBench& window) {
  QFile file(QStringLiteral(LEAFUND_PICTURES_DIR "/biking-to-work.jpg"));
  demand(file.open(QFile::ReadOnly), "the picture is there");
  const auto body = std::make_shared<const std::string>(file.readAll().toStdString());
  const auto image = UIImage::initWithData(body);
  for (int frame = 0; frame < 40; ++frame) {
    window.scrollTo(frame * kStep);
    window.application->turn([&] {
      for (const auto& [row, cell] : window.table()->visibleCells()) {
        cell->imageView()->setImage(image);
      }
    });
    window.waitUntil([&] { return PictureItem::areDrawn(window.window()); });
  }
}

// A row's picture as it is drawn: opaque inside its round frame, and nothing outside.
QImage framedPicture() {
  QImage picture(65, 65, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(QColor(120, 80, 40));
  painter.drawEllipse(picture.rect());
  return picture;
}

// The frame shows the rows: what was at one place is at another after scrolling.
void checkThatItScrolls(WindowBench& window) {
  window.scrollTo(16'000);
  window.frame();
  const QImage before = window.picture();
  window.scrollTo(16'000 + kStep);
  window.frame();
  const QImage after = window.picture();
  const auto top = static_cast<int>(window.list().mapToScene({0, 0}).y());
  // The second whole row's picture, without its edges.
  const QRect there(20, top + 210, 57, 57);
  demand(before.copy(there) == after.copy(there.translated(0, -kStep)), "the rows move by a step");
  demand(before.copy(there) != after.copy(there), "and do not stay");
  // Rows that show what they showed earlier would be fast, and wrong.
  window.scrollTo(48'000);
  window.frame();
  demand(window.picture() != before, "other rows have other titles");
  window.scrollTo(16'000);
  window.frame();
  demand(window.picture() == before, "the same rows look the same again");
}

std::vector<double> framesOfOurs(WindowBench& window) {
  std::vector<double> times;
  for (int frame = 0; frame < kFrames; ++frame) {
    QCoreApplication::processEvents();  // what was posted is no part of the frame
    times.push_back(secondsOf([&] {
      window.scrollTo(16'000 + frame * kStep);
      window.frame();
    }));
  }
  return times;
}

std::vector<double> framesOfTheLimit(PaintedList& painted) {
  std::vector<double> times;
  for (int frame = 0; frame < kFrames; ++frame) {
    times.push_back(secondsOf([&] { painted.paint(16'000 + frame * kStep); }));
  }
  return times;
}

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  resizeList(otherCampaigns(), kRows);
  WindowBench window;
  window.signIn();
  showPictures(window);
  checkThatItScrolls(window);
  const auto& list = window.list();
  QImage card(QSize(static_cast<int>(list.width()), kRowHeight), QImage::Format_RGB32);
  card.fill(Qt::white);
  const QImage picture = framedPicture();
  PaintedList painted(list.size().toSize(), card, picture);
  for (int round = 0; round < 5; ++round) {
    const auto ours = framesOfOurs(window);
    const auto limit = framesOfTheLimit(painted);
    figures.add("ours_median_ms", median(ours) * 1e3);
    figures.add("ours_p99_ms", quantile(ours, 0.99) * 1e3);
    figures.add("limit_median_ms", median(limit) * 1e3);
  }
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
