#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace leafund {

// What a file format says of a picture, not checked for sense, zero included.
struct FrameHeader {
  std::uint32_t width;
  std::uint32_t height;
  int orientation = 1;  // 1 to 8, as in PictureHeader
};

// Of the markers or chunks of a body only so many are looked at, by the window's thread: 64 MB can
// hold 33 million of them. No picture that is not made to take time has a thousandth of a million.
inline constexpr int kMostParts = 1'000'000;

// One function a format: nothing for bytes that do not begin as that format, or whose size cannot
// be read.
std::optional<FrameHeader> readJpeg(std::string_view body);
std::optional<FrameHeader> readPng(std::string_view body);
std::optional<FrameHeader> readGif(std::string_view body);
std::optional<FrameHeader> readWebP(std::string_view body);

// The orientation in what cameras write about a picture; 1 when it tells none.
int exifOrientation(std::string_view exif);

}  // namespace leafund
