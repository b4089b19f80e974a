#pragma once

#include <QPushButton>
#include <optional>

#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"
#include "shell/WorkingCopy.h"

// The order in which the suppliers of the current library are tried. Moving rows changes nothing in the database until
// the sequence is saved, which numbers the rows from 1.
class frmLibrarySequence : public Screen {
  Q_OBJECT

 public:
  explicit frmLibrarySequence(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  bool Form_QueryUnload() override;

 private:
  enum Column { Marker, SupplierCode, Sequence, Name };

  void BuildControls();
  // False when the list could not be read: the user has been told, and the one before stays.
  bool LoadSuppliers();
  // Gives the rows their numbers.
  void WriteNumbers();
  // By one place up (-1) or down (+1).
  void MoveRow(int by);
  void cmdSort_Click();
  // False when the numbers could not be written; the user has been told.
  bool cmdSequence_Click();

  bool mbLoaded = false;
  bool mbSequenceChanged = false;
  std::optional<WorkingCopy> suppliers_;

  Grid* const grdSupplierSequencing = new Grid(this, "grdSupplierSequencing", 4);
  QPushButton* const cmdUp = Form::Button(this, "cmdUp", "Move &Up");
  QPushButton* const cmdDown = Form::Button(this, "cmdDown", "Move &Down");
  QPushButton* const cmdSort = Form::Button(this, "cmdSort", "S&ort");
  QPushButton* const cmdSequence = Form::Button(this, "cmdSequence", "&Sequence");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");
};
