#pragma once

#include "platform/uikit/Outlet.h"
#include "platform/uikit/UIButton.h"
#include "platform/uikit/UILabel.h"
#include "platform/uikit/UITextInput.h"

namespace leafund {

// The form on which the user starts a campaign of their own.
class NewCampaignVC : public UIViewController, public UITextFieldDelegate {
 public:
  Outlet<UITextView> emailInvite{this, "emailInvite"};  // shown, and never read
  Outlet<UITextField> nameOfCreator{this, "nameOfCreator"};
  Outlet<UITextField> nameOfCampaign{this, "nameOfCampaign"};
  Outlet<UITextView> shortDescription{this, "shortDescription"};
  Outlet<UITextView> fullDescription{this, "fullDescription"};
  Outlet<UITextField> desiredFunding{this, "desiredFunding"};
  Outlet<UITextField> imageURL{this, "imageURL"};
  Outlet<UIButton> createButton{this, "createButton"};
  Outlet<UILabel> moneyErrorField{this, "moneyErrorField"};

  void viewDidLoad() override;
  void prepareForSegueSender(UIStoryboardSegue& segue, const Sender& sender) override;
  bool textFieldShouldReturn(const std::shared_ptr<UITextField>& textField) override;

  void dismissKeyboard();
  void createButtonClicked(const Sender& sender);

 private:
  struct Inputs;
  Inputs readInputs() const;
  void createCampaign(const Inputs& inputs);
  void markRefused(const Inputs& inputs);
};

}  // namespace leafund
