#include "shell/Messages.h"

#include <QApplication>

#include "platform/ado/AdoError.h"
#include "shell/Screen.h"

int ShowMessage(const QString& text, int style, const QString& title, const QString& icon, QWidget* owner) {
  MessageRequest request;
  request.text = text;
  request.style = style;
  request.title = title.isEmpty() ? QCoreApplication::applicationName() : title;
  request.icon = icon;
  request.owner = owner ? owner->window() : QApplication::activeWindow();
  const NoHourglass pointer;
  return Prompts().ShowMessage(request);
}

int Tell(QWidget* form, const QString& text, int style) {
  return ShowMessage(text, style, form->window()->windowTitle(), {}, form);
}

bool Refuse(QWidget* form, const QString& text, int style, QWidget* focus) {
  Tell(form, text, style);
  if (focus != nullptr) focus->setFocus(Qt::OtherFocusReason);
  return false;
}

bool Confirm(QWidget* form, const QString& question, int style) {
  return Tell(form, question, style) == MessageAnswer::Yes;
}

QString DeleteFailureText(const AdoError& error) {
  return Texts::DeleteFailed + "\n\n" + (error.RefusedByReference() ? Texts::Referenced : Texts::Persists);
}
