#pragma once

#include <QWidget>

#include "core/Record.h"

// A sub-tab of frmLoans, with the record in its fields. The form's buttons act on the one in front; operations answer
// True when they went through, and the form tells what they throw.
class LoansPage : public QWidget {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  // Reads the rows anew. The row that was current is so again where it is still there.
  virtual void Load() = 0;
  // The page comes to the front after a load: the current row stands in the boxes, or nothing does.
  virtual void Enter() = 0;
  virtual bool Add() = 0;
  virtual bool Update() = 0;
  virtual bool Delete() = 0;
  virtual void Clear() = 0;
  Record& record() { return record_; }

 private:
  Record record_;
};
