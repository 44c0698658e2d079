#include "interface/scenes/Scenes.h"
#include "screens/accounts/LandingPageVC.h"

namespace leafund {

void landingScene(Scene<LandingPageVC>& scene, LandingPageVC& screen) {
  scene.words("brand", "Leafund");
  scene.words("tagline", "Small pledges, green changes.");

  auto& email = scene.field(screen.userEmail,
                            {.placeholder = "E-mail", .keyboard = UIKeyboardType::EmailAddress});
  scene.onEnteringMessage(email, "fixThingAction:", &LandingPageVC::fixThingAction);

  auto& password = scene.field(screen.password, {.placeholder = "Password", .secure = true});
  scene.onEnteringMessage(password, "fixOtherThingAction:", &LandingPageVC::fixOtherThingAction);

  auto& signIn = scene.button(screen.signInButton, "Sign in");
  scene.on(signIn, UIControlEvent::TouchUpInside, "signInClicked:", &LandingPageVC::signInClicked);

  scene.words("newHere", "New to Leafund?");
  auto& signUp = scene.button(screen.signUpButton, "Create an account");
  scene.on(signUp, UIControlEvent::TouchUpInside, "signUpClicked:", &LandingPageVC::signUpClicked);
}

}  // namespace leafund
