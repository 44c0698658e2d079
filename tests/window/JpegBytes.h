#pragma once

// clang-format off
#include <cstdio>  // which libjpeg's header needs before it
#include <jpeglib.h>
// clang-format on

#include <QImage>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

namespace leafund::jpegbytes {

using Row = std::vector<unsigned char>;

// How libjpeg is to write a picture of that size, row by row, so that a huge one needs no memory.
struct Wish {
  QSize size;
  std::function<Row&(int y)> row;
  std::function<void(jpeg_compress_struct&)> options = [](auto&) {};
  int components = 3;  // 3 are RGB, and 4 are CMYK as Adobe's programs write it, inverted
};

inline std::string written(const Wish& wish) {
  jpeg_error_mgr errors{};
  jpeg_compress_struct picture{};
  picture.err = jpeg_std_error(&errors);
  jpeg_create_compress(&picture);
  unsigned char* bytes = nullptr;
  unsigned long length = 0;
  jpeg_mem_dest(&picture, &bytes, &length);
  picture.image_width = static_cast<JDIMENSION>(wish.size.width());
  picture.image_height = static_cast<JDIMENSION>(wish.size.height());
  picture.input_components = wish.components;
  picture.in_color_space = wish.components == 4 ? JCS_CMYK : JCS_RGB;
  jpeg_set_defaults(&picture);
  jpeg_set_quality(&picture, 90, TRUE);
  wish.options(picture);
  jpeg_start_compress(&picture, TRUE);
  for (int y = 0; y < wish.size.height(); ++y) {
    JSAMPROW row = wish.row(y).data();
    jpeg_write_scanlines(&picture, &row, 1);
  }
  jpeg_finish_compress(&picture);
  jpeg_destroy_compress(&picture);
  std::string body(reinterpret_cast<const char*>(bytes), length);
  std::free(bytes);
  return body;
}

// Red, green, blue and yellow, as quadrants() has them.
inline std::function<Row&(int)> quadrantsOf(QSize size, int components = 3) {
  const auto rowOf = [&](QRgb left, QRgb right) {
    Row row;
    for (int x = 0; x < size.width(); ++x) {
      const QRgb colour = x < size.width() / 2 ? left : right;
      for (const int light : {qRed(colour), qGreen(colour), qBlue(colour)}) {
        row.push_back(static_cast<unsigned char>(light));
      }
      if (components == 4) row.push_back(255);  // no black
    }
    return row;
  };
  return [upper = rowOf(0xFFFF0000, 0xFF00FF00), lower = rowOf(0xFF0000FF, 0xFFFFFF00),
          middle = size.height() / 2](int y) mutable -> Row& { return y < middle ? upper : lower; };
}

// The body with its last scan so many times over.
inline std::string withScans(const std::string& body, int times) {
  const std::size_t last = body.rfind("\xFF\xDA");
  const std::string scan = body.substr(last, body.size() - 2 - last);
  std::string bomb = body.substr(0, last);
  bomb.reserve(bomb.size() + scan.size() * static_cast<std::size_t>(times) + 2);
  for (int each = 0; each < times; ++each) bomb += scan;
  return bomb + "\xFF\xD9";
}

}  // namespace leafund::jpegbytes
