#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace leafund::fuzz {

// What a host does during one run, as an input of the fuzzer tells it. The first byte says how many
// addresses are fetched, whether all at once, and how a connection ends; the second, in what pieces
// and with how many pauses an answer is sent. The rest is answers, with the bytes FE FE between
// them: one for each request, the last one for all that are still to come.
class AnswerScript {
 public:
  // Open: the host waits for another request, and closes once nothing happens any more.
  enum class Ending { Open, Close, CloseForWriting, Reset };

  explicit AnswerScript(std::string_view input);

  std::size_t fetches() const { return fetches_; }  // 1 to 4
  bool atOnce() const { return atOnce_; }
  Ending ending() const { return ending_; }

  // The next request's answer, in pieces that are sent one by one.
  std::vector<std::string> nextAnswer();
  std::size_t pauses() const { return pauses_; }  // 0 to 3, a run

 private:
  std::size_t fetches_ = 1;
  bool atOnce_ = false;
  Ending ending_ = Ending::Close;
  std::size_t pieceSize_ = 0;
  std::size_t pauses_ = 0;
  std::vector<std::string> answers_;
  std::size_t next_ = 0;
};

}  // namespace leafund::fuzz
