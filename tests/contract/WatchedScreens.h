#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/uikit/UIStoryboard.h"
#include "screens/lists/OtherCampaignsTableViewController.h"
#include "shell/AppDelegate.h"

namespace leafund {

// What happened, in order, a line each: "ThankYouVC viewDidLoad".
using ContractLog = std::vector<std::string>;

// What a watched screen keeps of its life.
class WatchedLife {
 public:
  virtual ~WatchedLife() = default;
  std::vector<CGRect> framesAtAppearance;
  std::weak_ptr<UIResponder> lastSender;  // often the screen itself
};

// A screen of the application that also writes its life down. Its scene, and so its skin, are the
// application's own.
template <class Screen>
class Watched : public Screen, public WatchedLife {
 public:
  explicit Watched(ContractLog& log) : log_(log) {}

  void viewDidLoad() override {
    note("viewDidLoad");
    Screen::viewDidLoad();
  }
  void viewWillAppear(bool animated) override {
    note("viewWillAppear");
    framesAtAppearance.push_back(this->viewIfLoaded()->frame());
    Screen::viewWillAppear(animated);
  }
  void didReceiveMemoryWarning() override {
    note("didReceiveMemoryWarning");
    Screen::didReceiveMemoryWarning();
  }
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override {
    note("prepares " + segue.identifier());
    lastSender = sender;
    Screen::prepareForSegueSender(segue, sender);
  }

 private:
  void note(const std::string& what) { log_.push_back(this->className() + " " + what); }
  ContractLog& log_;
};

// The browse screen, which also counts what its table asks and tells.
class WatchedBrowse : public Watched<OtherCampaignsTableViewController> {
 public:
  using Watched::Watched;
  int countQuestions = 0;
  std::vector<std::string> told;  // "cell 3", "display 3"

  std::ptrdiff_t tableViewNumberOfRowsInSection(UITableView& table,
                                                std::ptrdiff_t section) override;
  std::shared_ptr<UITableViewCell> tableViewCellForRowAtIndexPath(UITableView& table,
                                                                  NSIndexPath path) override;
  void tableViewWillDisplayCellForRowAtIndexPath(UITableView& table,
                                                 const std::shared_ptr<UITableViewCell>& cell,
                                                 NSIndexPath path) override;
};

// The application's delegate, which also writes the system's calls down.
class WatchedDelegate : public AppDelegate {
 public:
  explicit WatchedDelegate(ContractLog& log) : log_(log) {}
  void applicationWillResignActive(UIApplication&) override { log_.push_back("resigns active"); }
  void applicationDidEnterBackground(UIApplication&) override { log_.push_back("in background"); }
  void applicationWillEnterForeground(UIApplication&) override { log_.push_back("to foreground"); }
  void applicationDidBecomeActive(UIApplication&) override { log_.push_back("active"); }
  void applicationWillTerminate(UIApplication&) override { log_.push_back("ends"); }

 private:
  ContractLog& log_;
};

// The application's storyboard with every screen watched. The log must outlive its screens.
UIStoryboard watchedStoryboard(ContractLog& log);

}  // namespace leafund
