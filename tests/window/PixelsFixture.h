#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

#include "platform/qt/PicturePixels.h"

namespace leafund {

inline constexpr auto stretch = UIViewContentMode::ScaleToFill;
inline constexpr auto cover = UIViewContentMode::ScaleAspectFill;

// A quarter each of red, green, blue and yellow: upper left, upper right, lower left, lower right.
inline QImage quadrants(QSize size) {
  QImage image(size, QImage::Format_RGB32);
  QPainter painter(&image);
  const int x = size.width() / 2;
  const int y = size.height() / 2;
  painter.fillRect(0, 0, x, y, Qt::red);
  painter.fillRect(x, 0, size.width() - x, y, Qt::green);
  painter.fillRect(0, y, x, size.height() - y, Qt::blue);
  painter.fillRect(x, y, size.width() - x, size.height() - y, Qt::yellow);
  return image;
}

inline NSData written(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!QImageWriter(&buffer, format).write(image)) return nullptr;
  return std::make_shared<const std::string>(bytes.toStdString());
}

inline std::shared_ptr<const UIImage> picture(QSize size, const char* format = "jpeg") {
  return UIImage::initWithData(written(quadrants(size), format));
}

inline std::shared_ptr<const UIImage> redrawn(const std::shared_ptr<const UIImage>& image,
                                              CGSize size, double scale = 1) {
  return UIImage::withDrawing({.size = size,
                               .opaque = false,
                               .scale = scale,
                               .strokes = {{image, {0, 0, size.width, size.height}}}});
}

// As the body is drawn; null where it is no picture, too.
inline QImage drawn(const std::string& body, QSize size = {128, 128}) {
  const auto recipe = UIImage::initWithData(std::make_shared<const std::string>(body));
  return recipe ? picturePixels(*recipe, size, stretch) : QImage();
}

// How far two colours are apart, in the channel in which they differ most.
inline int difference(QColor one, QColor other) {
  return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                   std::abs(one.blue() - other.blue()), std::abs(one.alpha() - other.alpha())});
}

inline int greatestDifference(const QImage& one, const QImage& other) {
  int greatest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      greatest = std::max(greatest, difference(one.pixelColor(x, y), other.pixelColor(x, y)));
    }
  }
  return greatest;
}

inline testing::AssertionResult shows(const QImage& image, int x, int y, QColor colour,
                                      int within = 12) {
  const QColor there = image.pixelColor(x, y);
  if (difference(there, colour) <= within) return testing::AssertionSuccess();
  return testing::AssertionFailure()
         << x << ", " << y << " is " << there.name(QColor::HexArgb).toStdString();
}

// That every quarter has its colour right up to the outer edges and nearly up to the middle.
inline void expectQuadrants(const QImage& image) {
  const int right = image.width() - 1;
  const int lower = image.height() - 1;
  const int x = right / 2;
  const int y = lower / 2;
  constexpr int blend = 6;
  for (const auto& [column, row] : {std::pair{0, 0}, {x - blend, y - blend}}) {
    EXPECT_TRUE(shows(image, column, row, Qt::red));
    EXPECT_TRUE(shows(image, right - column, row, Qt::green));
    EXPECT_TRUE(shows(image, column, lower - row, Qt::blue));
    EXPECT_TRUE(shows(image, right - column, lower - row, Qt::yellow));
  }
}

}  // namespace leafund
