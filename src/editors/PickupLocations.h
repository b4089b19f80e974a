#pragma once

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class AdoError;

// Sub-tab "Pickup Location": where the patrons of each library collect material. A location's key is the library and
// a code; both may be changed while no patron is attached.
class PickupLocations : public SubPage {
  Q_OBJECT

 public:
  explicit PickupLocations(frmTabulon& shell);

  void ConfigureGrid() override { form_.Shape(); }
  // The rows of the library chosen in the list, or all.
  void LoadGrid() override;
  void Enter() override;
  bool Add() override;
  bool Update() override;
  bool Delete() override;
  bool Clear() override;

 private:
  void BuildControls();
  void ConnectControls();
  void SetPickupLocationList();
  void SelectFirstRow();
  void ShowRow();
  // The grid's row of the library and code in the boxes; 0 when there is none.
  int RowOnShow() const;
  void grd5dTable_SelChange();
  void cmb5dSelectLibrarySymbol_Click();
  void cmd5dFindLibrary_Click();

  // Trims the boxes and tests the required ones; the library's id comes out.
  bool EntryIsValid(qint32& libraryId);
  // Asks the table, not the grid: that one may show a single library.
  bool EntryIsNew(qint32 libraryId);
  QString InsertStatement(qint32 libraryId) const;
  // False when the record on show is not one that can be written.
  bool WriteUpdate();
  QString UpdateStatement(qint32 libraryId, qint32 oldLibraryId) const;
  QString IlsCodeValue() const;
  QString DeliveryCodeValue() const;

  TextBox* const txt5dCode = new TextBox(this, "txt5dCode", 1);
  TextBox* const txt5dDescription = new TextBox(this, "txt5dDescription", 50);
  TextBox* const txt5dLibrarySymbol = new TextBox(this, "txt5dLibrarySymbol", 25);
  QPushButton* const cmd5dFindLibrary = Form::Button(this, "cmd5dFindLibrary", "&Find Library");
  TextBox* const txt5dILSCode = new TextBox(this, "txt5dILSCode", 20);
  TextBox* const txt5dDeliverySystemCode = new TextBox(this, "txt5dDeliverySystemCode", 10);
  CodeComboBox* const cmb5dSelectLibrarySymbol = new CodeComboBox(this, "cmb5dSelectLibrarySymbol");
  Grid* const grd5dTable = new Grid(this, "grd5dTable", 6);
  GridForm form_{grd5dTable, record()};
};
