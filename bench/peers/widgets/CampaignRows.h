#pragma once

#include <QAbstractListModel>
#include <QNetworkAccessManager>
#include <QPixmap>
#include <QStyledItemDelegate>
#include <functional>

// Fetches pictures and decodes them at the size they are drawn.
class PictureLoader {
 public:
  // Calls `done` on this thread with the picture, unless it cannot be had or `receiver` is gone.
  // `size` is in points and is filled; what is beyond it is cut off by whoever draws.
  void load(const QUrl& address, int size, QObject* receiver,
            std::function<void(const QPixmap&)> done);

 private:
  QNetworkAccessManager network_;
};

// Draws a square picture as a disc.
void drawDisc(QPainter& painter, const QRect& place, const QPixmap& picture);

// The campaigns to browse. Pictures come with the first request for them.
class CampaignListModel : public QAbstractListModel {
 public:
  enum Role { Pitch = Qt::UserRole };

  explicit CampaignListModel(PictureLoader& loader) : loader_(loader) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  void pledge(int row, const QString& amount);

 private:
  QPixmap pictureAt(const QModelIndex& index) const;

  PictureLoader& loader_;
  mutable QHash<QString, QPixmap> pictures_;  // by address; a null one is under way
};

// A campaign as a card.
class CampaignDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};
