#pragma once

#include "reference/NoticeEmail.h"

// "Notify/Cancel Email": the notify or cancel message to the patron.
class frmNotifyPatronEmail : public NoticeEmail {
  Q_OBJECT

 public:
  explicit frmNotifyPatronEmail(QWidget* parent = nullptr);

 protected:
  QWidget* BlankMessage() const override;
};
