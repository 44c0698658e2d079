#include "bench/peers/widgets/Pages.h"

#include <QListView>
#include <QPainter>
#include <QScrollArea>
#include <QToolButton>

#include "bench/peers/Pledge.h"

namespace peers = leafund::peers;

namespace {

// A label of text as it is, wrapped.
QLabel* label(const QString& text, int points = 12, bool centred = false) {
  auto* made = new QLabel(text);
  made->setTextFormat(Qt::PlainText);
  made->setWordWrap(true);
  if (centred) made->setAlignment(Qt::AlignCenter);
  if (points > 12) {
    QFont font = made->font();
    font.setPointSize(points);
    font.setBold(true);
    made->setFont(font);
  }
  return made;
}

QLabel* quiet(QLabel* label) {
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

QLineEdit* field(const QString& placeholder) {
  auto* made = new QLineEdit;
  made->setPlaceholderText(placeholder);
  made->setFixedHeight(52);
  return made;
}

QPushButton* button(const QString& text, bool primary) {
  auto* made = new QPushButton(text);
  made->setFixedHeight(52);
  made->setProperty("primary", primary);
  return made;
}

// A picture in a circle, loaded from its address.
QLabel* portrait(PictureLoader& loader, const std::string& address) {
  auto* made = new QLabel;
  made->setFixedSize(130, 130);
  made->setAccessibleName(QStringLiteral("Picture of the campaign"));
  loader.load(QUrl(QString::fromStdString(address)), 130, made, [made](const QPixmap& picture) {
    QPixmap disc(130, 130);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    drawDisc(painter, disc.rect(), picture);
    painter.end();
    made->setPixmap(disc);
  });
  return made;
}

}  // namespace

PledgeWindow::PledgeWindow() {
  setWindowTitle(QStringLiteral("Leafund"));
  resize(390, 844);
  openSignIn();
}

QVBoxLayout* PledgeWindow::push(const QString& title, bool canGoBack) {
  auto* page = new QWidget;
  auto* outer = new QVBoxLayout(page);
  outer->setContentsMargins({});
  outer->setSpacing(0);
  if (!title.isEmpty()) {
    auto* bar = new QWidget;
    bar->setFixedHeight(56);
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::Base);
    auto* row = new QHBoxLayout(bar);
    if (canGoBack) {
      auto* back = new QToolButton;
      back->setArrowType(Qt::LeftArrow);
      back->setAutoRaise(true);
      back->setAccessibleName(QStringLiteral("Back"));
      connect(back, &QToolButton::clicked, this, &PledgeWindow::pop);
      row->addWidget(back);
    }
    row->addWidget(label(title, 15), 1);
    outer->addWidget(bar);
  }
  setCurrentIndex(addWidget(page));
  return outer;
}

void PledgeWindow::pop() { popTo(count() - 2); }

void PledgeWindow::popTo(int page) {
  setCurrentIndex(page);
  while (count() > page + 1) {
    QWidget* top = widget(count() - 1);
    removeWidget(top);
    top->deleteLater();
  }
}

void PledgeWindow::openSignIn() {
  auto* column = push({});
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(16);
  auto* email = field(QStringLiteral("E-mail"));
  auto* password = field(QStringLiteral("Password"));
  password->setEchoMode(QLineEdit::Password);
  auto* signIn = button(QStringLiteral("Sign in"), true);
  connect(signIn, &QPushButton::clicked, this, [this, email, password] {
    if (!email->text().isEmpty() && !password->text().isEmpty()) openBrowse();
  });
  column->addStretch();
  column->addWidget(label(QStringLiteral("Leafund"), 24, true));
  column->addWidget(quiet(label(QStringLiteral("Small pledges, green changes."), 12, true)));
  column->addWidget(email);
  column->addWidget(password);
  column->addWidget(signIn);
  column->addWidget(quiet(label(QStringLiteral("New to Leafund?"), 12, true)));
  column->addWidget(button(QStringLiteral("Create an account"), false));
  column->addStretch();
}

void PledgeWindow::openBrowse() {
  auto* list = new QListView;
  list->setModel(&campaigns_);
  list->setItemDelegate(new CampaignDelegate(list));
  list->setUniformItemSizes(true);
  list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  list->setFrameShape(QFrame::NoFrame);
  list->viewport()->setBackgroundRole(QPalette::Window);
  connect(list, &QListView::clicked, this,
          [this](const QModelIndex& index) { openCampaign(index.row()); });
  push(QStringLiteral("Browse"))->addWidget(list);
}

void PledgeWindow::openCampaign(int row) {
  const auto& campaign = *leafund::otherCampaigns().at(static_cast<std::size_t>(row));
  const auto words = [](const std::string& text) { return QString::fromStdString(text); };

  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(16, 24, 16, 16);
  column->setSpacing(16);
  column->addWidget(portrait(loader_, campaign.photo()), 0, Qt::AlignHCenter);
  column->addWidget(label(words(campaign.title()), 24, true));
  column->addWidget(quiet(label(QStringLiteral("by %1").arg(words(campaign.creator())), 12, true)));
  column->addWidget(quiet(label(QStringLiteral("Raised so far"))));
  auto* share = new QProgressBar;
  share->setTextVisible(false);
  share->setFixedHeight(12);
  share->setValue(qRound(100 * campaign.currFunding() / campaign.totalFunding()));
  column->addWidget(share);
  auto* sums = new QHBoxLayout;
  sums->addWidget(label(words(peers::dollars(campaign.currFunding())), 15), 1);
  sums->addWidget(label(words(peers::dollars(campaign.totalFunding()))));
  column->addLayout(sums);

  auto* amount = field(QStringLiteral("Amount in dollars"));
  auto* error = label({});
  error->setStyleSheet(QStringLiteral("color: #b3201b"));
  error->hide();
  auto* fund = button(QStringLiteral("Fund this campaign"), true);
  connect(fund, &QPushButton::clicked, this, [this, row, amount, error] {
    const auto& wanted = *leafund::otherCampaigns().at(static_cast<std::size_t>(row));
    const auto complaint = peers::complaintAbout(wanted, amount->text().toStdString());
    error->setText(QString::fromStdString(complaint));
    error->setVisible(!complaint.empty());
    if (complaint.empty()) openConfirm(row, amount->text());
  });
  column->addWidget(amount);
  column->addWidget(error);
  column->addWidget(fund);
  column->addWidget(label(QStringLiteral("About this campaign"), 15, true));
  auto* about = label(words(campaign.campaignDescription()));
  about->setFrameShape(QFrame::Box);
  about->setMargin(16);
  column->addWidget(about);
  column->addStretch();

  auto* scroll = new QScrollArea;
  scroll->setWidget(content);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  push(QStringLiteral("Campaign"), true)->addWidget(scroll);
}

void PledgeWindow::openConfirm(int row, const QString& amount) {
  auto* column = push(QStringLiteral("Confirm your pledge"));
  auto* yes = button(QStringLiteral("Yes"), true);
  connect(yes, &QPushButton::clicked, this, [this, row, amount] {
    campaigns_.pledge(row, amount);
    openThanks();
  });
  auto* no = button(QStringLiteral("No"), false);
  connect(no, &QPushButton::clicked, this, &PledgeWindow::pop);

  auto* card = new QFrame;
  card->setObjectName(QStringLiteral("card"));
  auto* inside = new QVBoxLayout(card);
  inside->setContentsMargins(24, 24, 24, 24);
  inside->setSpacing(16);
  inside->addWidget(label(QStringLiteral("Do you want to fund this campaign?"), 24, true));
  inside->addWidget(quiet(
      label(QStringLiteral("Your pledge counts at once, and you find the campaign under Funded."),
            12, true)));
  inside->addWidget(yes);
  inside->addWidget(no);
  auto* frame = new QHBoxLayout;
  frame->setContentsMargins(16, 16, 16, 16);
  frame->addWidget(card);
  column->addStretch();
  column->addLayout(frame);
  column->addStretch();
}

void PledgeWindow::openThanks() {
  auto* column = push({});
  column->setContentsMargins(16, 16, 16, 16);
  column->setSpacing(24);
  auto* home = button(QStringLiteral("Home"), true);
  connect(home, &QPushButton::clicked, this, [this] { popTo(1); });  // above the landing page
  column->addStretch();
  column->addWidget(label(QStringLiteral("Thank you for your pledge!"), 24, true));
  column->addWidget(home);
  column->addStretch();
}
