#pragma once

#include <span>

#include "directory/CustomText.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// The advanced search for a library: by contact or postal code alone, or by institution and library name together.
// The current library of the common services is the answer, on OK and on Cancel alike.
class frmLibrarySearch : public Screen {
  Q_OBJECT

 public:
  explicit frmLibrarySearch(QWidget* parent = nullptr);

  static std::span<const TextKey> TextKeys();

 protected:
  void Form_Load() override;

 private:
  enum Column { Marker, Symbol, Institution, LibraryName, Contact, ZipPostalCode, LibraryId, ColumnCount };

  void BuildControls();
  void ID_LoadLibrarySearchText();
  void cmdSearch_Click();
  void cmdClear_Click();
  void grdViewSearchResults_SelChange();
  // The conditions of the boxes that hold something; empty when a message has been shown.
  QString Criteria();
  void ShowRows(const QString& criteria);
  void ShowResults(bool shown);

  QGroupBox* const fraSimpleSearch = Form::Frame(this, "fraSimpleSearch", "Simple Search");
  QLabel* const lblSimpleSearch =
      Form::Label(this, "lblSimpleSearch", "For a Simple Search enter only ONE of the Search Fields.");
  TextBox* const txtContact = new TextBox(this, "txtContact", 50);
  TextBox* const txtZipPostalCode = new TextBox(this, "txtZipPostalCode", 15);
  QGroupBox* const fraCombinationSearch = Form::Frame(this, "fraCombinationSearch", "Combination Search");
  QLabel* const lblCombinationSearch =
      Form::Label(this, "lblCombinationSearch", "For a Combination Search enter ONE (And/Or) BOTH the Search Fields.");
  TextBox* const txtInstitution = new TextBox(this, "txtInstitution", 100);
  TextBox* const txtLibrary = new TextBox(this, "txtLibrary", 100);
  Grid* const grdViewSearchResults = new Grid(this, "grdViewSearchResults", ColumnCount);
  QLabel* const lblFound = Form::Label(this, "lblFound", "Found:");
  QLabel* const lblValue = Form::Label(this, "lblValue", "");
  QPushButton* const cmdSearch = Form::Button(this, "cmdSearch", "&Search");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdOK = Form::Button(this, "cmdOK", "&OK");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
};
