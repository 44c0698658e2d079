#include <cstdio>

#include "shell/AppDelegate.h"
#include "tests/preview/PreviewHost.h"
#include "tests/preview/PreviewStates.h"

namespace {

int listStates(std::FILE* out) {
  std::string scene;
  for (const auto& state : leafund::previewStates()) {
    if (state.scene != scene) {
      std::fprintf(out, "%s%s:", scene.empty() ? "" : "\n", state.scene.c_str());
    }
    scene = state.scene;
    std::fprintf(out, " %s", state.name.c_str());
  }
  std::fputs("\n", out);
  return out == stdout ? 0 : 2;
}

}  // namespace

// Shows one scene alone, in a state; without arguments, says which there are.
int main(int argc, char** argv) {
  if (argc < 2) return listStates(stdout);
  const auto* state = leafund::previewState(argv[1], argc > 2 ? argv[2] : "");
  if (state == nullptr) return listStates(stderr);

  leafund::PreviewHost host(argc, argv, QStringLiteral(LEAFUND_SKINS));
  leafund::setCurrentHost(&host);
  const auto storyboard = leafund::previewStoryboard(*state);
  const auto application = std::make_shared<leafund::UIApplication>(
      host, storyboard, std::make_shared<leafund::AppDelegate>());
  // The first turn after the launch, when the scene is shown.
  host.post([&] { leafund::actPreview(*application, *state); });
  return host.run(*application);
}
