#pragma once

#include <QLabel>

class QRadioButton;

// The caption of an option button that stands beside it as a label of its own: a click on it is a click on the button,
// which it also lends its text as accessible name.
class OptionLabel : public QLabel {
  Q_OBJECT

 public:
  OptionLabel(QWidget* parent, const QString& name, const QString& caption, QRadioButton* button);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QRadioButton* button_;
};
