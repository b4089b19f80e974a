#pragma once

#include "interop/ServerConnection.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/OptionLabel.h"

// The API server of a library: of the library in hand, LibraryId of the common services, whatever the NCIP symbol on
// the contact screen says. It shares the code tables of NCIP.
class frmAPIServerConnection : public ServerConnection {
  Q_OBJECT

 public:
  explicit frmAPIServerConnection(QWidget* parent = nullptr);

 protected:
  void ShowRow(const Recordset& rows) override;
  void TrimFields() override;
  Columns Values() const override;

 private:
  void BuildControls();
  void rdUseAllLocations_Click();

  CodeComboBox* const cmbILSSystem = cmbSystem;
  TextBox* const txtAPIURL = txtUrl;  // both as the base class made them
  OptionGroup* const rdUseAllLocations =
      new OptionGroup(this, {{"rdUseAllLocationsYes", ""}, {"rdUseAllLocationsNo", ""}});
  OptionLabel* const lblUseAllLocationsYes =
      new OptionLabel(this, "lblUseAllLocationsYes", "Yes", rdUseAllLocations->Button(0));
  OptionLabel* const lblUseAllLocationsNo =
      new OptionLabel(this, "lblUseAllLocationsNo", "No", rdUseAllLocations->Button(1));
  QLabel* const lblValidLocations = Form::Label(this, "lblValidLocations", "Valid Locations:");
  TextBox* const txtValidLocations = new TextBox(this, "txtValidLocations", 80);
};
