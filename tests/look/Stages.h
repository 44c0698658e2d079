#pragma once

#include <QSize>
#include <iosfwd>
#include <string>
#include <vector>

#include "tests/look/StageApplication.h"

namespace leafund {

// A scene in one of its states, and how it is reached.
struct Stage {
  std::string name;  // the scene's, a dash, the state's
  bool ordinary;     // the state in which the scene is mostly seen
  void (*reach)(StageApplication& app);
  StageApplication::Pictures pictures = StageApplication::Pictures::Served;
};

const std::vector<Stage>& stages();
// Fails the test for a name that is none.
const Stage& stageNamed(const std::string& name);

// The sizes the interface is made for, from the lowest. In this order a table only ever grows, and
// no cell is used for another row, whose picture would come later.
inline constexpr QSize kLeast{280, 240};
inline constexpr QSize kLandscape{844, 390};
inline constexpr QSize kOverKeyboard{390, 460};  // what a keyboard on the screen leaves of kNatural
inline constexpr QSize kSmall{320, 568};
inline constexpr QSize kMiddling{360, 640};
inline constexpr QSize kWide{1024, 768};
inline constexpr QSize kNatural{390, 844};
inline constexpr QSize kDesktop{1280, 800};
inline constexpr QSize kLarge{430, 932};
inline constexpr QSize kTablet{768, 1024};
inline constexpr QSize kWidest{1920, 1080};
inline constexpr QSize kMeasured[] = {kLeast,    kLandscape, kOverKeyboard, kSmall,
                                      kMiddling, kWide,      kNatural,      kDesktop,
                                      kLarge,    kTablet,    kWidest};
inline constexpr QSize kPhotographed[] = {kSmall, kWide, kNatural, kLarge};

std::string sizeText(QSize size);  // "390x844"

// The name of a test may hold letters, digits and underscores only.
std::string testName(std::string text);

}  // namespace leafund
