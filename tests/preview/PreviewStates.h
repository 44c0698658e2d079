#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/uikit/UIApplication.h"
#include "platform/uikit/UIStoryboard.h"

namespace leafund {

// A scene with canned data.
struct PreviewState {
  std::string scene;
  std::string name;
  // Before the scene's view loads: its context, and what the catalogue holds.
  std::function<void(UIViewController&)> prepare;
  // Once it is shown: what a user types and taps.
  std::function<void(UIApplication&, UIViewController&)> act;
  std::string tab;  // a screen on a tab is shown there; empty for the others
};

// All of them, the scenes in the order of the storyboard; a scene's first state is its default.
const std::vector<PreviewState>& previewStates();

// The state of that name, or the scene's first where the name is empty; null where there is none.
const PreviewState* previewState(const std::string& scene, const std::string& name);

// The application's own storyboard, but it begins with the state's scene or with what holds its
// tab. Every screen that a tap leads to is prepared by its default state, and every way back leads
// forward: below the scene there is nothing to go back to.
UIStoryboard previewStoryboard(const PreviewState& state);

// Once that is launched: selects the tab, and does what a user does.
void actPreview(UIApplication& application, const PreviewState& state);

}  // namespace leafund
