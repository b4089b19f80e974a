#include "shell/Messages.h"

#include <QApplication>

#include "platform/ado/AdoError.h"

int ShowMessage(const QString& text, int style, const QString& title, const QString& icon, QWidget* owner) {
  MessageRequest request;
  request.text = text;
  request.style = style;
  request.title = title.isEmpty() ? QCoreApplication::applicationName() : title;
  request.icon = icon;
  request.owner = owner ? owner->window() : QApplication::activeWindow();
  return Prompts().ShowMessage(request);
}

QString DeleteFailureText(const AdoError& error) {
  return Texts::DeleteFailed + "\n\n" + (error.RefusedByReference() ? Texts::Referenced : Texts::Persists);
}
