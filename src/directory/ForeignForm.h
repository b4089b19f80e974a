#pragma once

#include "shell/Screen.h"

// A form of another application of the system: frmRequestArticle, frmRequestBook, frmQueryRequests,
// frmPatronRegistration, frmSupplierRegistration. This program shows it by name and holds nothing of it.
class ForeignForm : public Screen {
  Q_OBJECT

 public:
  ForeignForm(const QString& formName, QWidget* parent) : Screen(formName, "Form1", parent) { resize(400, 300); }
};
