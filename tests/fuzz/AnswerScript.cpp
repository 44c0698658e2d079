#include "tests/fuzz/AnswerScript.h"

#include <algorithm>
#include <array>

namespace leafund::fuzz {

namespace {

constexpr std::string_view separator = "\xFE\xFE";
// Small pieces are sent at the beginning of an answer, where its header is, and the rest is one.
constexpr std::size_t mostPieces = 24;
constexpr std::size_t undivided = std::string::npos;
constexpr std::array<std::size_t, 8> pieceSizes{undivided, 1, 2, 3, 7, 16, 41, 200};

unsigned takeByte(std::string_view& input) {
  if (input.empty()) return 0;
  const auto byte = static_cast<unsigned char>(input.front());
  input.remove_prefix(1);
  return byte;
}

}  // namespace

AnswerScript::AnswerScript(std::string_view input) {
  const unsigned course = takeByte(input);
  fetches_ = 1 + (course & 3U);
  atOnce_ = (course & 16U) != 0;
  ending_ = static_cast<Ending>((course >> 2U) & 3U);
  const unsigned pace = takeByte(input);
  pieceSize_ = pieceSizes[pace & 7U];
  pauses_ = (pace >> 3U) & 3U;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = input.find(separator);
    answers_.emplace_back(input.substr(0, end));
    if (end != std::string_view::npos) input.remove_prefix(end + separator.size());
  }
}

std::vector<std::string> AnswerScript::nextAnswer() {
  const std::string& answer = answers_[std::min(next_++, answers_.size() - 1)];
  std::vector<std::string> pieces;
  for (std::size_t at = 0; at < answer.size();) {
    pieces.push_back(answer.substr(at, pieces.size() < mostPieces ? pieceSize_ : undivided));
    at += pieces.back().size();
  }
  return pieces;
}

}  // namespace leafund::fuzz
