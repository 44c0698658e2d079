#pragma once

#include <stdio.h>

#include <cstdlib>
#include <string_view>

namespace leafund::random {

// Takes what the process prints on standard output from now on, in memory. The stream is exchanged
// and not the file descriptor, because reading that back would cost system calls at every action.
class PrintedText {
 public:
  PrintedText() : stream_(open_memstream(&text_, &length_)), before_(stdout) { stdout = stream_; }
  PrintedText(const PrintedText&) = delete;
  PrintedText& operator=(const PrintedText&) = delete;
  ~PrintedText() {
    stdout = before_;
    fclose(stream_);
    std::free(text_);
  }

  // What was printed since the last call.
  std::string_view take() {
    fflush(stream_);
    const std::string_view all(text_, length_);
    const auto latest = all.substr(taken_);
    taken_ = all.size();
    return latest;
  }

 private:
  char* text_ = nullptr;
  std::size_t length_ = 0, taken_ = 0;
  FILE* stream_;
  FILE* before_;
};

}  // namespace leafund::random
