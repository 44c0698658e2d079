#include "platform/uikit/UIImageView.h"
#include "platform/uikit/UITableView.h"
#include "platform/uikit/UITableViewCell.h"
#include "tests/journeys/Driver.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Pictures.h"

namespace leafund {
namespace {

// Speaks to the toolkit. Every fetch is answered with a picture.
class HeadlessDriver final : public Driver {
 public:
  void tap(const std::string& name) override { app_.tap(name); }
  void tapRow(std::ptrdiff_t row) override { app_.tapRow(row); }
  void type(const std::string& name, const std::string& text) override { app_.type(name, text); }
  void scroll(double offset) override { app_.scroll(offset); }
  void resize(CGSize size) override { app_.application->resize(size); }
  void back() override { app_.application->goBack(); }

  std::string screen() override { return app_.shown()->className(); }
  std::string text(const std::string& name) override { return app_.text(name); }
  bool seen(const std::string& name) override {
    return app_.application->reachable(*app_.view(name));
  }
  std::vector<std::string> rows() override { return app_.rowTitles(); }

  bool pictureShown(const std::string& name) override {
    answerAll();
    return app_.viewAs<UIImageView>(name)->image() != nullptr;
  }
  bool rowPictureShown(std::ptrdiff_t row) override {
    answerAll();
    const auto table = std::dynamic_pointer_cast<UITableView>(app_.shown()->view());
    return table->visibleCells().at(row)->imageView()->image() != nullptr;
  }
  std::string pictureAddress(const std::string& fileName) override {
    return "http://pictures.example/" + fileName;
  }

 private:
  void answerAll() {
    while (!app_.host.fetches().empty()) app_.host.answer(0, pictureBody(640, 480));
  }

  HeadlessApplication app_;
};

}  // namespace

std::unique_ptr<Driver> Driver::make() { return std::make_unique<HeadlessDriver>(); }

}  // namespace leafund
