#include "bench/peers/controls/CampaignModel.h"

#include <QUrl>

#include "bench/peers/Pledge.h"

namespace peers = leafund::peers;

namespace {

const leafund::CampaignClass& campaignAt(int row) {
  return *leafund::otherCampaigns().at(static_cast<std::size_t>(row));
}

}  // namespace

int CampaignModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(leafund::otherCampaigns().size());
}

QVariant CampaignModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const auto& campaign = campaignAt(index.row());
  switch (role) {
    case Title:
      return QString::fromStdString(campaign.title());
    case Creator:
      return QString::fromStdString(campaign.creator());
    case Pitch:
      return QString::fromStdString(campaign.shortDescription());
    case About:
      return QString::fromStdString(campaign.campaignDescription());
    case Photo:
      return QUrl(QString::fromStdString(campaign.photo()));
    case Raised:
      return campaign.currFunding();
    case Goal:
      return campaign.totalFunding();
    default:
      return {};
  }
}

QHash<int, QByteArray> CampaignModel::roleNames() const {
  return {{Title, "title"}, {Creator, "creator"}, {Pitch, "pitch"}, {About, "about"},
          {Photo, "photo"}, {Raised, "raised"},   {Goal, "goal"}};
}

QString CampaignModel::complaint(int row, const QString& amount) const {
  return QString::fromStdString(peers::complaintAbout(campaignAt(row), amount.toStdString()));
}

void CampaignModel::pledge(int row, const QString& amount) {
  beginRemoveRows({}, row, row);
  peers::bookPledge(static_cast<std::size_t>(row), amount.toStdString());
  endRemoveRows();
}
