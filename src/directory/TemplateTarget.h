#pragma once

#include <QString>
#include <functional>

class QPushButton;
class Record;

// Told when the row to delete is gone.
inline const QString NothingDeleted = "Nothing was deleted.  Make sure you have a valid record selected.";

// Whose template a template screen shows: the current library's, a patron's of it, or, while the toggle stands on the
// system's default, that of library 0. OK and Delete follow the record: what was not read is not written.
class TemplateTarget {
 public:
  // `toggle` shows the captions of the two states, `remove` is off while the default is shown.
  TemplateTarget(Record& record, QPushButton* toggle, QPushButton* save, QPushButton* remove);
  TemplateTarget(const TemplateTarget&) = delete;
  TemplateTarget& operator=(const TemplateTarget&) = delete;

  // To the default or back, when the template there can be loaded.
  void Toggle(const std::function<bool()>& load);

  qint32 LibraryId() const;  // 0 for the default
  QString PatronId() const;  // empty where the row has none
  // The patron's part of a WHERE: the column as the statement leads up to it, and its test for no patron.
  QString PatronIs(const QString& column, const QString& none) const;
  // Institution of the library, or "System Default".
  QString Institution() const;
  // Name and surname of the patron; empty without one.
  QString PatronName() const;

 private:
  void ShowState();

  const Record& record_;
  QPushButton* toggle_;
  QPushButton* save_;
  QPushButton* remove_;
  bool systemDefault_ = false;
};
