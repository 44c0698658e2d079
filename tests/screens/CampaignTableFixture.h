#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/uikit/UITableViewCell.h"
#include "screens/campaign/UpdatePageVC.h"
#include "screens/lists/CampaignTableViewController.h"
#include "tests/support/HeadlessApplication.h"
#include "tests/support/Screens.h"

namespace leafund {

// The application, signed in, with one of the list screens shown.
class CampaignTableTest : public testing::Test {
 protected:
  void open(const std::string& tab) {
    app.signIn();
    app.tap(tab);
    screen = app.shownAs<CampaignTableViewController>();
    table = screen->tableView();
  }
  std::shared_ptr<UITableViewCell> cell(std::ptrdiff_t row) {
    return table->visibleCells().at(row);
  }

  HeadlessApplication app;
  std::shared_ptr<CampaignTableViewController> screen;
  std::shared_ptr<UITableView> table;
};

}  // namespace leafund
