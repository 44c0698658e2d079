// From a tap to the first frame: of each page the first time, and of the campaign's again and again
// beside an empty scene that is pushed in the same way.

#include "bench/Figures.h"
#include "bench/WindowBench.h"
#include "platform/uikit/Scene.h"
#include "platform/uikit/UINavigationController.h"
#include "platform/uikit/UITableViewCell.h"

namespace leafund {
namespace {

class EmptyVC : public UIViewController {};

void emptyScene(Scene<EmptyVC>& scene, EmptyVC&) { scene.title("Empty"); }

UIStoryboard storyboard() {
  auto scenes = mainStoryboard().scenes();
  scenes.push_back(scene("EmptyVC", emptyScene));
  auto segues = mainStoryboard().segues();
  segues.push_back({"emptySegue", "TabBarVC", "EmptyVC", SegueKind::Push});
  return {"LandingPageVC", std::move(scenes), std::move(segues)};
}

// Opens a screen with its first frame, checks that it is there, and goes back.
double opened(WindowBench& window, const std::function<void()>& open, const char* className) {
  window.rest();
  const QImage before = window.picture();
  const double seconds = secondsOf([&] {
    open();
    window.frame();
  });
  demand(window.page().objectName() == className, "the screen is shown");
  window.settle();
  demand(window.picture() != before, "and seen");
  window.application->goBack();
  window.settle();
  return seconds;
}

// The first time that each page is opened, from the tap to its first frame.
void openEachOnce(WindowBench& window, Figures& figures) {
  const auto open = [&](const std::function<void()>& tap, const std::string& className) {
    window.rest();
    const double seconds = secondsOf([&] {
      tap();
      window.frame();
    });
    demand(window.page().objectName().toStdString() == className, className + " is shown");
    figures.add("first_ms", seconds * 1e3);
    figures.add("first_" + className + "_ms", seconds * 1e3);
    window.settle();
  };
  const auto tap = [&](const char* name) {
    return [&window, name] { window.application->tap(window.view(name)); };
  };
  const auto tapRow = [&] { window.application->tap(window.table()->visibleCells().at(0)); };
  const auto back = [&] { window.application->goBack(); };
  open(tap("signUpButton"), "SignUpVC");
  back();
  window.type("userEmail", "wren");
  window.type("password", "wren");
  open(tap("signInButton"), "TabBarVC");
  tap("fundedTab")();
  open(tapRow, "OneCampaignViewController");
  open(tap("campaignUpdates"), "UpdatePageVC");
  back();
  back();
  tap("browseTab")();
  window.settle();
  tapRow();
  window.type("dollarAmountField", "1");
  open(tap("FundButton"), "ConfirmPageVC");
  open(tap("yesButton"), "ThankYouVC");
  tap("homeButton")();
  tap("mineTab")();
  open(tap("newButton"), "NewCampaignVC");
  back();
  tap("browseTab")();
}

int run(int argc, char** argv) {
  Figures figures(argc, argv);
  const UIStoryboard withEmpty = storyboard();
  WindowBench window(withEmpty);
  openEachOnce(window, figures);
  const auto openCampaign = [&] { window.application->tap(window.table()->visibleCells().at(1)); };
  const auto openEmpty = [&] {
    window.application->turn([&] {
      const auto& home = window.application->navigation()->topViewController();
      home->performSegueWithIdentifierSender("emptySegue", home);
    });
  };
  for (int round = 0; round < 25; ++round) {
    figures.add("campaign_ms", opened(window, openCampaign, "OneCampaignViewController") * 1e3);
    figures.add("empty_ms", opened(window, openEmpty, "EmptyVC") * 1e3);
  }
  return 0;
}

}  // namespace
}  // namespace leafund

int main(int argc, char** argv) { return leafund::run(argc, argv); }
