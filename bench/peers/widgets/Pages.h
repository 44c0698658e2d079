#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "bench/peers/widgets/CampaignRows.h"

// The window's pages, one above the other. A page is made when it is first gone to.
class PledgeWindow : public QStackedWidget {
 public:
  PledgeWindow();

 private:
  // Makes a page with a column of widgets, and puts it on top.
  QVBoxLayout* push(const QString& title, bool canGoBack = false);
  void pop();
  void popTo(int page);

  void openSignIn();
  void openBrowse();
  void openCampaign(int row);
  void openConfirm(int row, const QString& amount);
  void openThanks();

  PictureLoader loader_;
  CampaignListModel campaigns_{loader_};
};
