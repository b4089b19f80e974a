#pragma once

#include "reference/NoticeEmail.h"

// "General Message Email": the general message, which exists as text only.
class frmGeneralEmail : public NoticeEmail {
  Q_OBJECT

 public:
  explicit frmGeneralEmail(QWidget* parent = nullptr);

 protected:
  QWidget* BlankMessage() const override;
};
