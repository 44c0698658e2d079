// The walk past every screen, with real taps and keys, which whoever looks at all of them takes. At each it
// waits for `see(scene, state)`; the state is empty where the screen stands as it comes.
export async function walk(app, see) {
  await see("LandingPageVC", "");
  await app.tap("signInButton");
  await see("LandingPageVC", "refused");
  await app.tap("signUpButton");
  await see("SignUpVC", "");
  await app.back();
  await app.signIn();
  await see("OtherCampaignsTableViewController", "");
  await app.tapRow(0);
  await see("OneCampaignViewController", "");
  await app.type("dollarAmountField", "a lot");
  await app.tap("FundButton");
  await see("OneCampaignViewController", "refused");
  await app.type("dollarAmountField", "80");
  await app.tap("FundButton");
  await see("ConfirmPageVC", "");
  await app.tap("yesButton");
  await see("ThankYouVC", "");
  await app.tap("homeButton");
  await app.tap("fundedTab");
  await see("FundCampaignVC", "");
  await app.tapRow(1);
  await see("OneCampaignViewController", "funded");
  await app.tap("campaignUpdates");
  await see("UpdatePageVC", "");
  await app.back();
  await app.back();
  await app.tap("newsTab");
  await see("NewsFeedVC", "");
  await app.tap("mineTab");
  await see("MyProfileVC", "");
  await app.tap("newButton");
  await see("NewCampaignVC", "");
  await app.tap("createButton");
  await see("NewCampaignVC", "refused");
}
