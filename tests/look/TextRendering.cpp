#include "tests/look/TextRendering.h"

#include <QGuiApplication>
#include <QLibrary>
#include <QRawFont>
#include <QtEndian>
#include <fstream>

namespace leafund {

namespace {

// Of the library that Qt has loaded; empty where Qt brings its own.
QString freeTypeVersion() {
  QLibrary library("freetype", 6);
  const auto open = reinterpret_cast<int (*)(void**)>(library.resolve("FT_Init_FreeType"));
  const auto version =
      reinterpret_cast<void (*)(void*, int*, int*, int*)>(library.resolve("FT_Library_Version"));
  const auto close = reinterpret_cast<int (*)(void*)>(library.resolve("FT_Done_FreeType"));
  void* freeType = nullptr;
  if (!open || !version || !close || open(&freeType) != 0) return {};
  int major = 0;
  int minor = 0;
  int patch = 0;
  version(freeType, &major, &minor, &patch);
  close(freeType);
  return QStringLiteral("%1.%2.%3").arg(major).arg(minor).arg(patch);
}

// As the font's "head" table says it, in 65,536ths.
QString fontVersion() {
  const QByteArray head = QRawFont::fromFont(QGuiApplication::font()).fontTable("head");
  constexpr qsizetype kRevision = 4;
  if (head.size() < kRevision + 4) return {};
  return QString::number(qFromBigEndian<quint32>(head.constData() + kRevision) / 65536.0, 'f', 3);
}

}  // namespace

std::string textRendering() {
  return QStringLiteral("Qt %1, FreeType %2, Inter %3")
      .arg(QString::fromLatin1(qVersion()), freeTypeVersion(), fontVersion())
      .toStdString();
}

RenderingRecord::RenderingRecord(const std::filesystem::path& file) {
  std::ifstream lines(file);
  std::getline(lines, first_);
  for (std::string picture, rendering; lines >> picture && std::getline(lines, rendering);) {
    named_[picture] = rendering.substr(1);  // behind the blank
  }
}

const std::string& RenderingRecord::of(const std::string& picture) const {
  const auto named = named_.find(picture);
  return named == named_.end() ? first_ : named->second;
}

std::vector<std::string> RenderingRecord::named() const {
  std::vector<std::string> all;
  for (const auto& [picture, rendering] : named_) all.push_back(picture);
  return all;
}

}  // namespace leafund
