#pragma once

#include "platform/uikit/Scene.h"

namespace leafund {

class NewsFeedVC;
class TabBarVC;

void tabBarScene(Scene<TabBarVC>& scene, TabBarVC& screen);
void newsFeedScene(Scene<NewsFeedVC>& scene, NewsFeedVC& screen);

}  // namespace leafund
