#pragma once

#include "reference/NoticeEmail.h"

// "Pickup Location Email": subject and report of the pickup location notice. A blank message is not asked about.
class frmPickupLocationEmail : public NoticeEmail {
  Q_OBJECT

 public:
  explicit frmPickupLocationEmail(QWidget* parent = nullptr);
};
