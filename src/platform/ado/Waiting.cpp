#include "platform/ado/Waiting.h"

namespace {

Waiting::Hook hook;
std::chrono::milliseconds patience{2000};

}  // namespace

void Waiting::SetHook(Hook newHook, std::chrono::milliseconds newPatience) {
  hook = std::move(newHook);
  patience = newPatience;
}

const Waiting::Hook& Waiting::CurrentHook() {
  return hook;
}

std::chrono::milliseconds Waiting::Patience() {
  return patience;
}
