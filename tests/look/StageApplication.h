#pragma once

#include <QImage>
#include <QSize>
#include <string>

#include "tests/look/RoutedHost.h"
#include "tests/window/WindowApplication.h"

namespace leafund {

// How the system shows the application. Both must be known before the application is made, and hold
// for the life of the process.
struct Surroundings {
  int fontPercent = 100;  // of a font resolution of 96 dots an inch
  double scale = 1;       // device pixels to a logical one
  bool night = false;     // by the desktop's palette
  bool mirrored = false;  // for a language written from right to left
  bool contrast = false;  // high, by the desktop's settings
};

// What differs from the ordinary, for the names of tests and pictures: "-font150-night".
std::string nameOf(const Surroundings& surroundings);

// The application in its window, for whoever measures or photographs what it shows: driven through
// the toolkit, so that no time goes by on the way to a deep screen.
class StageApplication {
 public:
  enum class Pictures { Served, Silent };
  // Its name does not change with the build, as a port does.
  static constexpr const char* kOtherHost = "http://pictures.example";

  StageApplication(Surroundings surroundings, Pictures pictures, QSize size);
  ~StageApplication();

  void tap(std::string_view name);
  void tapRow(std::ptrdiff_t row);
  void type(std::string_view name, std::string text);
  void signIn();
  void openTab(std::string_view name);
  void goBack();
  // With the keyboard, from control to control.
  void tab(int times);

  void resize(QSize size);
  // Until slides and animations have ended, pictures have come and what changed has been drawn.
  void settle();

  QtWindow& window() { return app_.window(); }
  QQuickItem& page() { return *app_.page(); }
  UINavigationController& navigation() { return app_.navigation(); }
  // The settled window, without a cursor, which comes and goes.
  QImage photograph();

 private:
  // Goes first, because the application reads it when it is made.
  struct Prepared {
    explicit Prepared(const Surroundings& surroundings);
    struct Desktop;
    std::shared_ptr<Desktop> desktop;  // where it has settings
  };

  void serve(Pictures pictures);
  std::shared_ptr<UIView> view(std::string_view name);
  bool hasAllPictures();
  bool rowsHaveTheirOwnPictures();
  bool isAnimated();

  Prepared prepared_;
  WindowApplication app_;
  RoutedHost host_;
  Pictures pictures_;
};

}  // namespace leafund
