#include <cstdlib>

#include "platform/web/Bridge.h"
#include "tests/journeys/Driver.h"

extern "C" void start(double width, double height, double rail);

namespace leafund {

namespace page {
// Suspends the program until a finger, a key or an eye from outside the page has done it. The
// answer is to be freed.
LEAFUND_FROM_PAGE(drive) char* drive(const char* verb, const char* name, const char* text);
}  // namespace page

namespace {

// Taps and types on the page, and reads from it: verbs.mjs.
class WebDriver final : public Driver {
 public:
  WebDriver() { start(390, 844, 0); }
  void tap(const std::string& name) override { ask("tap", name); }
  void tapRow(std::ptrdiff_t row) override { ask("tapRow", std::to_string(row)); }
  void type(const std::string& name, const std::string& text) override { ask("type", name, text); }
  void scroll(double offset) override { ask("scroll", std::to_string(offset)); }
  void resize(CGSize size) override {
    ask("resize", std::to_string(size.width), std::to_string(size.height));
  }
  void back() override { ask("back"); }
  std::string screen() override { return ask("screen"); }
  std::string text(const std::string& name) override { return ask("text", name); }
  bool seen(const std::string& name) override { return ask("seen", name) == "true"; }
  std::vector<std::string> rows() override {
    std::vector<std::string> titles;
    std::string rest = ask("rows");
    for (std::size_t end = 0; (end = rest.find('\n')) != std::string::npos;
         rest.erase(0, end + 1)) {
      titles.push_back(rest.substr(0, end));
    }
    return titles;
  }
  bool pictureShown(const std::string& name) override { return ask("picture", name) == "true"; }
  bool rowPictureShown(std::ptrdiff_t row) override {
    return ask("rowPicture", std::to_string(row)) == "true";
  }
  std::string pictureAddress(const std::string& fileName) override {
    return ask("pictureAddress", fileName);
  }

 private:
  static std::string ask(const char* verb, const std::string& name = "",
                         const std::string& text = "") {
    char* answer = page::drive(verb, name.c_str(), text.c_str());
    std::string said(answer);
    std::free(answer);
    return said;
  }
};

}  // namespace

std::unique_ptr<Driver> Driver::make() { return std::make_unique<WebDriver>(); }

}  // namespace leafund
