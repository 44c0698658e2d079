#include "interface/qml/bridge/TextBridge.h"

namespace leafund {

namespace {

constexpr qsizetype kMostWords = 20'000;  // UTF-16 units

}  // namespace

QString wordsToRead(const std::string& text) {
  QString words = qtText(text);
  if (words.size() <= kMostWords) return words;
  words.truncate(kMostWords);
  if (words.back().isHighSurrogate()) words.chop(1);
  return words + u'\u2026';
}

}  // namespace leafund
