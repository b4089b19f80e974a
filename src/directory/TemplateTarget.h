#pragma once

#include <QString>

class QPushButton;

// Whose template a template screen shows: the current library's, a patron's of it, or, while the toggle stands on the
// system's default, that of library 0.
class TemplateTarget {
 public:
  // `toggle` shows the captions of the two states, `remove` is off while the default is shown.
  TemplateTarget(QPushButton* toggle, QPushButton* save, QPushButton* remove);

  bool IsSystemDefault() const { return systemDefault_; }
  void Toggle();

  qint32 LibraryId() const;  // 0 for the default
  QString PatronId() const;  // empty where the row has none
  // Institution of the library, or "System Default".
  QString Institution() const;
  // Name and surname of the patron; empty without one.
  QString PatronName() const;

 private:
  void ShowState();

  QPushButton* toggle_;
  QPushButton* save_;
  QPushButton* remove_;
  bool systemDefault_ = false;
};
