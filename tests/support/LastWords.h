#pragma once

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <functional>
#include <string>
#include <utility>

namespace leafund {

// For the statement of a death test: what `words` answers is written behind the fatal line, and so
// tells how far things had come.
inline void sayWhenStopped(std::function<std::string()> words) {
  static std::function<std::string()> lastWords;
  lastWords = std::move(words);
  std::signal(SIGABRT, [](int) { std::fputs((lastWords() + "\n").c_str(), stderr); });
}

// For the statement of a death test: what is printed from now on goes where the fatal line goes, in
// the order in which it comes.
inline void printToStandardError() { dup2(STDERR_FILENO, STDOUT_FILENO); }

}  // namespace leafund
