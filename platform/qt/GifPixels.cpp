#include <QBuffer>
#include <QImageReader>

#include "platform/qt/DecodedPicture.h"

namespace leafund {

// The format is named and not guessed by the reader, whose plug-ins may know formats that read
// other files.
DecodedPicture decodeGif(std::string_view body) {
  QImageReader::setAllocationLimit(static_cast<int>(kMostPictureBytes / 1'048'576));
  auto bytes = QByteArray::fromRawData(body.data(), static_cast<qsizetype>(body.size()));
  bytes.replace(0, 6, "GIF89a");  // Qt minds the version, which browsers do not.
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "gif");
  reader.setAutoDetectImageFormat(false);
  return {reader.read().convertToFormat(QImage::Format_ARGB32), {}};
}

}  // namespace leafund
