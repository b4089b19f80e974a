#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

#include "shell/FormName.h"

class QWidget;
class Screen;

// Screens by name: a room opens a screen of another room without knowing it. What opens one takes a FormName, so that a
// misspelt name does not compile; the names as texts are for what goes through all screens.
using ScreenMaker = std::function<std::unique_ptr<Screen>(QWidget* owner)>;

void RegisterScreen(const QString& formName, ScreenMaker maker);
template <class Form>
void RegisterScreen(FormName form) {
  RegisterScreen(form, [](QWidget* owner) { return std::make_unique<Form>(owner); });
}
// std::logic_error when no screen is registered so.
std::unique_ptr<Screen> MakeScreen(const QString& formName, QWidget* owner);
QStringList RegisteredScreens();

// Opens the screen as a modal dialog over `owner` (the active window when null) and returns when the user has closed
// it and every successor it named.
void ShowModal(FormName form, QWidget* owner = nullptr);
// For a screen that hands its record on: it unloads itself and names what is shown next, in its place. `afterwards`
// runs when that screen and every one that followed it have been closed, the last one named first.
void ShowNext(FormName form, std::function<void()> afterwards = {});
