#pragma once

#include <QtQml/qqmlregistration.h>

#include <QAbstractListModel>

// The campaigns to browse, for a ListView.
class CampaignModel : public QAbstractListModel {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  enum Role { Title = Qt::UserRole + 1, Creator, Pitch, About, Photo, Raised, Goal };

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  // Why the amount cannot be pledged; empty if it can.
  Q_INVOKABLE QString complaint(int row, const QString& amount) const;
  Q_INVOKABLE void pledge(int row, const QString& amount);
};
