#include "interface/scenes/Scenes.h"
#include "screens/accounts/SignUpVC.h"

namespace leafund {

void signUpScene(Scene<SignUpVC>& scene, SignUpVC& screen) {
  scene.title("Create an account");
  scene.words("welcome", "Welcome! Under which name shall others see your campaigns?");
  scene.field(screen.nameField, {.placeholder = "Your name"});
  scene.field(screen.passwordField, {.placeholder = "Password", .secure = true});
  scene.field(screen.passwordConfirmField, {.placeholder = "Password again", .secure = true});
  auto& signUp = scene.button(screen.signUpButton, "Sign up");
  scene.on(signUp, UIControlEvent::TouchUpInside, "signUpClicked:", &SignUpVC::signUpClicked);
}

}  // namespace leafund
