#include "platform/controls/OptionLabel.h"

#include <QMouseEvent>
#include <QRadioButton>

#include "platform/controls/FormLayout.h"

OptionLabel::OptionLabel(QWidget* parent, const QString& name, const QString& caption, QRadioButton* button)
    : QLabel(caption, parent), button_(button) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setBuddy(button);
  button->setAccessibleName(Form::PlainCaption(caption));
}

// Taken, so that the release comes here and not to the window behind.
void OptionLabel::mousePressEvent(QMouseEvent* event) {
  event->accept();
}

void OptionLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint()) || !button_->isEnabled())
    return;
  button_->setFocus(Qt::MouseFocusReason);
  button_->click();
}
