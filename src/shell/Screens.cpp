#include "shell/Screens.h"

#include <QApplication>
#include <map>
#include <stdexcept>

#include "shell/Screen.h"

namespace {

std::map<QString, ScreenMaker>& Makers() {
  static std::map<QString, ScreenMaker> makers;
  return makers;
}

// A chain of screens, each shown in the place of the one before.
struct Chain {
  QString next;
  std::vector<std::function<void()>> afterwards;
};

// The chains that are open: Find Library opens a chain over a chain.
std::vector<Chain>& Chains() {
  static std::vector<Chain> chains;
  return chains;
}

}  // namespace

FormName FormName::Of(const QString& name) {
  return {Known(name.toStdString()), Checked()};
}

void RegisterScreen(const QString& formName, ScreenMaker maker) {
  Makers()[formName] = std::move(maker);
}

std::unique_ptr<Screen> MakeScreen(const QString& formName, QWidget* owner) {
  const auto found = Makers().find(formName);
  if (found == Makers().end()) throw std::logic_error("No screen is registered as " + formName.toStdString());
  return found->second(owner);
}

QStringList RegisteredScreens() {
  QStringList names;
  for (const auto& entry : Makers()) names.append(entry.first);
  return names;
}

void ShowModal(FormName form, QWidget* owner) {
  QWidget* const window = owner ? owner->window() : QApplication::activeWindow();
  Chains().emplace_back();
  try {
    for (QString name = form; !name.isEmpty(); name = std::exchange(Chains().back().next, QString()))
      MakeScreen(name, window)->ShowModal();
  } catch (...) {
    Chains().pop_back();
    throw;
  }
  const Chain ended = std::move(Chains().back());
  Chains().pop_back();
  for (auto after = ended.afterwards.rbegin(); after != ended.afterwards.rend(); ++after) (*after)();
  auto* const below = dynamic_cast<ActivatedForm*>(window);
  if (below && window->isVisible()) below->Form_Activate();
}

void ShowNext(FormName form, std::function<void()> afterwards) {
  if (Chains().empty()) throw std::logic_error("No modal screen is open to be followed");
  Chains().back().next = form;
  if (afterwards) Chains().back().afterwards.push_back(std::move(afterwards));
}
