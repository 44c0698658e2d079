#include "bench/peers/widgets/CampaignRows.h"

#include <QImageReader>
#include <QNetworkReply>
#include <QPainter>
#include <QPainterPath>

#include "bench/peers/Pledge.h"

namespace {

constexpr int kRowHeight = 160;
constexpr int kPicture = 64;
constexpr int kMargin = 16;

const leafund::CampaignClass& campaignAt(int row) {
  return *leafund::otherCampaigns().at(static_cast<std::size_t>(row));
}

}  // namespace

void PictureLoader::load(const QUrl& address, int size, QObject* receiver,
                         std::function<void(const QPixmap&)> done) {
  QNetworkReply* reply = network_.get(QNetworkRequest(address));
  QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
  QObject::connect(
      reply, &QNetworkReply::finished, receiver, [reply, size, done = std::move(done)] {
        if (reply->error() != QNetworkReply::NoError) return;
        QImageReader reader(reply);
        reader.setScaledSize(reader.size().scaled(size, size, Qt::KeepAspectRatioByExpanding));
        const QImage image = reader.read();
        if (!image.isNull()) done(QPixmap::fromImage(image));
      });
}

void drawDisc(QPainter& painter, const QRect& place, const QPixmap& picture) {
  if (picture.isNull()) return;
  const QPoint offset((place.width() - picture.width()) / 2,
                      (place.height() - picture.height()) / 2);
  QPainterPath disc;
  disc.addEllipse(place);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipPath(disc);
  painter.drawPixmap(place.topLeft() + offset, picture);
  painter.restore();
}

int CampaignListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(leafund::otherCampaigns().size());
}

QVariant CampaignListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(campaignAt(index.row()).title());
    case Qt::DecorationRole:
      return pictureAt(index);
    case Pitch:
      return QString::fromStdString(campaignAt(index.row()).shortDescription());
    default:
      return {};
  }
}

QPixmap CampaignListModel::pictureAt(const QModelIndex& index) const {
  const QString address = QString::fromStdString(campaignAt(index.row()).photo());
  const auto known = pictures_.constFind(address);
  if (known != pictures_.cend()) return *known;
  pictures_.insert(address, {});
  auto* self = const_cast<CampaignListModel*>(this);
  loader_.load(QUrl(address), kPicture, self,
               [self, address, row = QPersistentModelIndex(index)](const QPixmap& picture) {
                 self->pictures_.insert(address, picture);
                 if (row.isValid()) emit self->dataChanged(row, row, {Qt::DecorationRole});
               });
  return {};
}

void CampaignListModel::pledge(int row, const QString& amount) {
  beginRemoveRows({}, row, row);
  leafund::peers::bookPledge(static_cast<std::size_t>(row), amount.toStdString());
  endRemoveRows();
}

QSize CampaignDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {option.rect.width(), kRowHeight};
}

void CampaignDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  const QRect card = option.rect.adjusted(0, 10, 0, -5);
  painter->save();
  painter->fillRect(card, option.palette.base());

  const QRect picture(card.left() + kMargin, card.center().y() - kPicture / 2, kPicture, kPicture);
  drawDisc(*painter, picture, index.data(Qt::DecorationRole).value<QPixmap>());

  QFont bold = option.font;
  bold.setPointSize(15);
  bold.setBold(true);
  const QString pitch = index.data(CampaignListModel::Pitch).toString();
  const int left = picture.right() + kMargin;
  const int width = card.right() - kMargin - left;
  const int titleHeight = QFontMetrics(bold).height();
  const QRect room(0, 0, width, 4 * option.fontMetrics.lineSpacing());
  const int pitchHeight = option.fontMetrics.boundingRect(room, Qt::TextWordWrap, pitch).height();
  const int top = card.center().y() - (titleHeight + 4 + pitchHeight) / 2;

  painter->setFont(bold);
  painter->setPen(option.palette.color(QPalette::Text));
  const QString title = index.data(Qt::DisplayRole).toString();
  painter->drawText(QRect(left, top, width, titleHeight), Qt::AlignLeft,
                    QFontMetrics(bold).elidedText(title, Qt::ElideRight, width));
  painter->setFont(option.font);
  painter->setPen(option.palette.color(QPalette::PlaceholderText));
  painter->drawText(QRect(left, top + titleHeight + 4, width, room.height()),
                    Qt::AlignLeft | Qt::TextWordWrap, pitch);
  painter->restore();
}
