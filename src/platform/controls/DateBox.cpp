#include "platform/controls/DateBox.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include "platform/controls/FieldEdge.h"
#include "platform/controls/LeaveGuard.h"

namespace {

// The check or the date: tells the guard of the whole when the focus comes and goes.
template <class Widget>
class Guarded : public Widget {
 public:
  Guarded(QWidget* parent, LeaveGuard* const& guard) : Widget(parent), guard_(guard) {}

 protected:
  void focusInEvent(QFocusEvent* event) override {
    Widget::focusInEvent(event);
    if (guard_ != nullptr) guard_->Entered();
  }
  void focusOutEvent(QFocusEvent* event) override {
    Widget::focusOutEvent(event);
    if (guard_ != nullptr) guard_->Left(*event);
  }
  void wheelEvent(QWheelEvent* event) override {
    if (this->hasFocus())
      Widget::wheelEvent(event);
    else
      event->ignore();
  }
  // Tab leaves the date as it leaves any field; the arrow keys go from year to month to day.
  bool focusNextPrevChild(bool next) override { return QWidget::focusNextPrevChild(next); }

 private:
  LeaveGuard* const& guard_;
};

// Years, months and days in the toolkit's letters; any other letter stands for itself.
QString DisplayFormat(const QString& format) {
  QString result;
  for (const QChar ch : format) {
    const QChar small = ch.toLower();
    if (small == u'm')
      result += u'M';
    else if (small == u'y' || small == u'd')
      result += small;
    else if (ch.isLetter())
      result += u'\'' + QString(ch) + u'\'';
    else
      result += ch;
  }
  return result;
}

}  // namespace

DateBox::DateBox(QWidget* parent, const QString& name)
    : QWidget(parent), check_(new Guarded<QCheckBox>(this, leave_)), edit_(new Guarded<QDateEdit>(this, leave_)) {
  setObjectName(name);
  FieldEdge::Watch(this);
  check_->setObjectName(QStringLiteral("qt_datebox_check"));
  edit_->setObjectName(QStringLiteral("qt_datebox_date"));
  edit_->setCalendarPopup(true);
  edit_->setFocusPolicy(Qt::StrongFocus);
  edit_->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
  edit_->setDate(QDate::currentDate());
  edit_->setEnabled(false);
  SetFormat(QStringLiteral("yyyy-mm-dd"));
  setFocusProxy(check_);
  setFocusPolicy(Qt::StrongFocus);  // without one the tab order would leave it where it was made
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(check_);
  layout->addWidget(edit_);
  connect(check_, &QCheckBox::toggled, this, [this](bool set) {
    edit_->setEnabled(set);
    UserChanged();
  });
  connect(edit_, &QDateEdit::dateChanged, this, &DateBox::UserChanged);
}

QDate DateBox::Date() const {
  return check_->isChecked() ? edit_->date() : QDate();
}

void DateBox::SetDate(const QDate& date) {
  const QDate before = Date();
  {
    const QScopedValueRollback filling(filling_, true);
    if (date.isValid()) edit_->setDate(date);
    check_->setChecked(date.isValid());
  }
  if (Date() != before) Q_EMIT Change();
}

void DateBox::UserChanged() {
  if (filling_) return;
  Q_EMIT Change();
  Q_EMIT Edited();
}

void DateBox::SetFormat(const QString& format) {
  if (!format.isEmpty()) edit_->setDisplayFormat(DisplayFormat(format));
}

void DateBox::SetLeaveCheck(std::function<bool()> check) {
  delete leave_;
  leave_ = check ? new LeaveGuard(this, std::move(check)) : nullptr;
}
