#pragma once

#include "reference/NoticeEmail.h"

// "Loan Notices Email": the notices about loans. Its failed updates are logged without their statement.
class frmLoanNoticesEmail : public NoticeEmail {
  Q_OBJECT

 public:
  explicit frmLoanNoticesEmail(QWidget* parent = nullptr);

 protected:
  QWidget* BlankMessage() const override;
};
