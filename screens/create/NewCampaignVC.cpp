#include "screens/create/NewCampaignVC.h"

#include <optional>

#include "model/Catalogue.h"
#include "platform/foundation/AmountText.h"
#include "platform/uikit/UIStoryboard.h"
#include "platform/uikit/UITapGestureRecognizer.h"
#include "screens/InputMessage.h"
#include "screens/campaign/ThankYouVC.h"

namespace leafund {

struct NewCampaignVC::Inputs {
  std::string creator, title, pitch, description;
  std::optional<float> goal;
  std::string address;

  bool complete() const {
    return !creator.empty() && !title.empty() && !pitch.empty() && !description.empty() && goal &&
           !address.empty();
  }
};

void NewCampaignVC::viewDidLoad() {
  moneyErrorField->setHidden(true);
  view()->addGestureRecognizer(
      std::make_shared<UITapGestureRecognizer>("dismissKeyboard", [this] { dismissKeyboard(); }));
  UIViewController::viewDidLoad();
}

void NewCampaignVC::dismissKeyboard() { view()->endEditing(true); }

bool NewCampaignVC::textFieldShouldReturn(const std::shared_ptr<UITextField>&) {
  view()->endEditing(true);
  return false;  // return dismisses the keyboard, and never submits
}

void NewCampaignVC::createButtonClicked(const Sender&) {
  const Inputs inputs = readInputs();
  if (!inputs.complete()) {
    markRefused(inputs);
    return;
  }
  createCampaign(inputs);
  performSegueWithIdentifierSender("campaignCreatedSegue", shared(this));
}

NewCampaignVC::Inputs NewCampaignVC::readInputs() const {
  return {nameOfCreator->text(),
          nameOfCampaign->text(),
          shortDescription->text(),
          fullDescription->text(),
          amountFromText(desiredFunding->text()),
          imageURL->text()};
}

void NewCampaignVC::createCampaign(const Inputs& inputs) {
  // Every new campaign bears this date, whatever the day. The picture's address is kept as typed.
  constexpr std::ptrdiff_t kDayCreated = 4;
  auto campaign = std::make_shared<CampaignClass>(inputs.title, inputs.creator, *inputs.goal, 0.0F,
                                                  inputs.description, inputs.address, inputs.pitch,
                                                  kDayCreated, "Dec");
  auto& mine = myUnfundedCampaigns();
  mine.insert(mine.begin(), std::move(campaign));
}

void NewCampaignVC::markRefused(const Inputs& inputs) {
  // A message becomes its input's text, so the next press takes it for what was typed.
  if (inputs.creator.empty()) showMessage(*nameOfCreator.get(), "Error: Please Enter a Name");
  if (inputs.title.empty()) {
    showMessage(*nameOfCampaign.get(), "Error: Please Enter a Campaign Name");
  }
  if (inputs.pitch.empty()) {
    showMessage(*shortDescription.get(), "Error: Please Enter a Description");
  }
  if (inputs.description.empty()) {
    showMessage(*fullDescription.get(), "Error: Please Enter a Description");
  }
  // The amount stays as typed, and keeps refusing until it is corrected.
  if (!inputs.goal) moneyErrorField->setHidden(false);
  if (inputs.address.empty()) showMessage(*imageURL.get(), "Error: Please Enter a URL");
}

void NewCampaignVC::prepareForSegueSender(UIStoryboardSegue& segue, const Sender&) {
  const auto& destination = segue.destinationViewController();
  if (const auto thanks = std::dynamic_pointer_cast<ThankYouVC>(destination)) {
    thanks->pageFrom = "NewCampaignVC";
  }
}

}  // namespace leafund
