#include <malloc.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "tests/window/WindowFixture.h"

namespace leafund {
namespace {

// As the C library tells of itself.
int heaps() {
  char* text = nullptr;
  std::size_t size = 0;
  std::FILE* told = open_memstream(&text, &size);
  malloc_info(0, told);
  std::fclose(told);
  const std::string_view all(text, size);
  int count = 0;
  for (auto at = all.find("<heap "); at != all.npos; at = all.find("<heap ", at + 1)) ++count;
  std::free(text);
  return count;
}

// Each heap reserves 64 MB of addresses and more, which a machine may not have to give.
TEST_F(WindowTest, TheThreadsOfTheProgramShareTwoHeaps) {
  signIn();
  app.settle();
  EXPECT_LE(heaps(), 2);
}

}  // namespace
}  // namespace leafund
