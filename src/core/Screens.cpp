#include "core/Screens.h"

#include <QApplication>
#include <map>
#include <stdexcept>

#include "core/Screen.h"

namespace {

std::map<QString, ScreenMaker>& Makers() {
  static std::map<QString, ScreenMaker> makers;
  return makers;
}

// Successors named so far, one for each chain of screens that is open: Find Library opens a chain over a chain.
std::vector<QString>& Successors() {
  static std::vector<QString> successors;
  return successors;
}

}  // namespace

void RegisterScreen(const QString& formName, ScreenMaker maker) { Makers()[formName] = std::move(maker); }

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

void ShowModal(const QString& formName, QWidget* owner) {
  QWidget* const window = owner ? owner->window() : QApplication::activeWindow();
  Successors().emplace_back();
  try {
    for (QString name = formName; !name.isEmpty(); name = std::exchange(Successors().back(), QString()))
      MakeScreen(name, window)->ShowModal();
  } catch (...) {
    Successors().pop_back();
    throw;
  }
  Successors().pop_back();
  auto* const form = dynamic_cast<ActivatedForm*>(window);
  if (form && window->isVisible()) form->Form_Activate();
}

void ShowNext(const QString& formName) {
  if (Successors().empty()) throw std::logic_error("No modal screen is open to be followed");
  Successors().back() = formName;
}
