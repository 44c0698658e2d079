#pragma once

#include <cstddef>
#include <deque>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/random/Sheet.h"

namespace leafund::random {

struct Pledge {
  std::string title, creator;
  float goal = 0, raised = 0;
  std::string description, photo, pitch;
  long day = 0;
  std::string month;
  std::string updatePhoto = {}, updateText = {}, updateDate = {};
};
using PledgeRef = std::shared_ptr<Pledge>;
using PledgeList = std::deque<PledgeRef>;

enum class ViewKind { Label, Button, Field, Area, Picture, Progress, Scroll, Tab, TabBar, Tabs };

struct View {
  ViewKind kind = ViewKind::Label;
  std::string name = {};
  std::string text = {};
  std::string placeholder = {};
  std::string spoken = {};
  int keyboard = 0;
  bool hidden = false, editing = false, selected = false;
  bool secure = false, editable = true, byScreen = false, returnEndsEditing = false;
  bool fillsByCutting = false;
  Ink ink = Ink::Black;
  float progress = 0, progressFrom = 0;
  PictureFacts picture = {};
  BorderFacts border = {};

  bool isInput() const { return kind == ViewKind::Field || kind == ViewKind::Area; }
  // What takes a tap for itself.
  bool isControl() const { return isInput() || kind == ViewKind::Button || kind == ViewKind::Tab; }
  bool showsMessage() const { return byScreen && !text.empty(); }
  ViewFacts facts() const;
};

struct Row {
  bool hidden = false;
  double top = 0, width = 0;
  std::string title, detail;
  PictureFacts picture;
  std::size_t cards = 0;
  double lastCardWidth = 0;
};
using RowRef = std::shared_ptr<Row>;

constexpr double kRowHeight = 160;
constexpr double kBarHeight = 56;
constexpr double kTabBarHeight = 64;

// The rows of a list screen. Which row object shows which campaign matters, because pictures are
// bound to it.
struct Table {
  double height = 0, width = 0, offset = 0;
  double toldRowHeight = 44;
  std::size_t count = 0;
  std::vector<RowRef> made;    // in the order made
  std::deque<RowRef> waiting;  // for reuse, the longest waiting first
  std::map<std::size_t, RowRef> shown;

  double contentHeight() const { return static_cast<double>(count) * kRowHeight; }
  double greatestOffset() const { return contentHeight() > height ? contentHeight() - height : 0; }
  void reload(std::size_t rows);
  // The rows that must be in sight and are not yet; those out of sight go. Each is then given what
  // it shows, and put with place().
  std::vector<std::size_t> missing();
  RowRef take();
  void place(std::size_t row, const RowRef& object);
  void putAway(const RowRef& row);
};

enum class Scene {
  Landing,
  SignUp,
  Home,
  Browse,
  Funded,
  Mine,
  News,
  Campaign,
  Confirm,
  Thanks,
  Update,
  NewCampaign,
};
// Their classes, in the same order.
constexpr const char* kClassNames[] = {
    "LandingPageVC",  "SignUpVC",    "TabBarVC",     "OtherCampaignsTableViewController",
    "FundCampaignVC", "MyProfileVC", "NewsFeedVC",   "OneCampaignViewController",
    "ConfirmPageVC",  "ThankYouVC",  "UpdatePageVC", "NewCampaignVC"};
constexpr int kScenes = static_cast<int>(std::size(kClassNames));
constexpr Scene kTabs[] = {Scene::Browse, Scene::Funded, Scene::Mine, Scene::News};
constexpr const char* className(Scene scene) { return kClassNames[static_cast<int>(scene)]; }

struct Screen {
  Scene scene = Scene::Landing;
  std::string title;
  bool hidesBack = false;
  double y = 0, width = 0, height = 0;
  std::vector<View> views;  // in reading order

  std::vector<std::shared_ptr<Screen>> tabs;  // those opened so far, in that order
  std::size_t tab = 0;                        // the selected one among the four
  std::optional<Table> table;

  std::size_t position = 0;
  std::string listName;
  float amount = 0;
  PledgeRef pledge;
  std::string cameFrom;

  View* find(const std::string& name);
  View& at(const char* name);
  const View& at(const char* name) const { return const_cast<Screen*>(this)->at(name); }
  std::shared_ptr<Screen> openTab(Scene wanted) const;
};
using ScreenRef = std::shared_ptr<Screen>;

// A screen as its scene lays it out, before anything is loaded into it.
ScreenRef layOut(Scene scene, const SceneWords& words);

}  // namespace leafund::random
