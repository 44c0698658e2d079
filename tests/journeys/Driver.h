#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/graphics/Geometry.h"

namespace leafund {

// How a journey goes through the application: five verbs, and what a user then sees. One driver
// speaks to the toolkit, another clicks and types in the window; each journey runs with both.
//
// A view is named as in its scene. Acting on one that cannot be reached changes nothing, as for a
// user; looking at one that is not on the screen shown fails the test.
class Driver {
 public:
  // The application, launched, with its pictures at hand.
  static std::unique_ptr<Driver> make();
  virtual ~Driver() = default;

  virtual void tap(const std::string& name) = 0;
  virtual void tapRow(std::ptrdiff_t row) = 0;
  // Enters the input and replaces all it holds.
  virtual void type(const std::string& name, const std::string& text) = 0;
  virtual void scroll(double offset) = 0;
  virtual void resize(CGSize size) = 0;
  virtual void back() = 0;

  // The class name of the screen shown; of the selected tab's where there are tabs.
  virtual std::string screen() = 0;
  virtual std::string text(const std::string& name) = 0;
  virtual bool seen(const std::string& name) = 0;
  // The titles of the rows in sight, from the top.
  virtual std::vector<std::string> rows() = 0;

  // Waits until pictures have come, and answers whether one is shown there.
  virtual bool pictureShown(const std::string& name) = 0;
  virtual bool rowPictureShown(std::ptrdiff_t row) = 0;
  // The address of one of the project's pictures, by its file name.
  virtual std::string pictureAddress(const std::string& fileName) = 0;
};

}  // namespace leafund
