#pragma once

#include <QObject>
#include <QVariant>
#include <functional>
#include <memory>
#include <vector>

class QWidget;
class Record;

// Marks the fields of a page that differ from what the record holds, as long as the record counts as modified, and
// gives back to one of them what the record holds. What stands in the fields of a record that is not modified is what
// it holds.
class UnsavedMarks : public QObject {
  Q_OBJECT

 public:
  // Goes with the page. The page's own reactions to its fields are connected already.
  UnsavedMarks(QWidget& page, Record& record);

  // False when the field is none of the page's, or holds what the record holds.
  bool GiveBack(QWidget* field);

 private:
  struct Field {
    QWidget* widget;  // what wears the edge
    std::function<QVariant()> value;
    std::function<void(const QVariant&)> put;
    QVariant held;
  };

  void Find(QWidget& page);
  template <class Control, class Signal>
  void Watch(Control* control, QWidget* widget, Signal changed, std::function<QVariant()> value,
             std::function<void(const QVariant&)> put);
  void Compare(Field& field);
  void CompareAll();

  Record& record_;
  std::vector<std::unique_ptr<Field>> fields_;
};
