#pragma once

#include <QDate>
#include <QWidget>
#include <functional>

class LeaveGuard;
class QCheckBox;
class QDateEdit;

// A date picker with a none state: a check box before the date says whether there is one.
class DateBox : public QWidget {
  Q_OBJECT

 public:
  DateBox(QWidget* parent, const QString& name);

  // An invalid date when none is set.
  QDate Date() const;
  bool IsNone() const { return !Date().isValid(); }
  // Sets by code: emits Change, not Edited. An invalid date sets none; the date on show stays behind the empty check.
  void SetDate(const QDate& date);
  void SetNone() { SetDate({}); }
  // A display format such as "yyyy-mm-dd" (months in small letters, as the settings write it).
  void SetFormat(const QString& format);
  // As TextBox::SetLeaveCheck.
  void SetLeaveCheck(std::function<bool()> check);

 Q_SIGNALS:
  void Change();
  void Edited();

 private:
  void UserChanged();

  LeaveGuard* leave_ = nullptr;
  QCheckBox* check_;
  QDateEdit* edit_;
  bool filling_ = false;
};
