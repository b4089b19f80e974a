#pragma once

#include <QGridLayout>

#include "directory/DefaultCode.h"
#include "directory/LibraryScreen.h"
#include "platform/controls/OptionGroup.h"

// Identities of a library at outside systems, its statistics categories and type, its limits of cost and days.
class frmLibraryStatisticalInfo : public LibraryScreen {
  Q_OBJECT

 public:
  explicit frmLibraryStatisticalInfo(QWidget* parent = nullptr);

 protected:
  QString Columns() const override;
  void ShowRecord(const Recordset& rows) override;
  void ClearFields() override;
  void cmdUpdate_Click() override;
  std::vector<CodeList> CodeLists() const override;
  void ChooseDefaults() override;
  std::span<const TextKey> TextKeys() const override;
  void ReadFurtherText(const CustomText& texts) override;
  void ShowNoRecord() override;

 private:
  enum Option { Yes, No };

  // A box that holds the library's identity at an outside system, with the button that searches by it.
  struct OutsideSymbol {
    TextBox* box;
    QPushButton* search;
    QString column;
  };
  // User id, password and confirmation of an outside system.
  struct Login {
    TextBox* user;
    TextBox* password;
    TextBox* confirm;
  };

  void BuildControls();
  QWidget* VornPart();
  QWidget* BritishLibraryPart();
  QWidget* RapidPart();
  QWidget* SymbolsPart();
  QWidget* CategoriesPart();
  QWidget* LimitsPart();
  // The options with captions of their own beside them, labels "name(0)" and "name(1)" that choose what they name.
  QWidget* OptionRow(OptionGroup* options, const QString& labelName);
  void ConnectControls();

  void ChooseUsualService();
  void SearchOutside(const OutsideSymbol& symbol);
  void optUseIFM_Click();
  // Options and the state of the maximum that goes with them.
  void SelectIFM(Option option);

  bool RapidIsValid();
  bool VornIsValid();
  bool BritishLibraryIsValid();
  // The four tests of a login whose user id is given.
  bool LoginIsValid(const Login& login);
  QString UpdateStatement() const;
  void AddVorn(ColumnValues& row) const;
  void AddBritishLibrary(ColumnValues& row) const;
  void AddRapid(ColumnValues& row) const;
  std::array<DefaultCode*, 6> Defaults() {
    return {&defaultStatsCat1_, &defaultStatsCat2_, &defaultStatsCat3_,
            &defaultCategory_,  &defaultType_,      &defaultLoanCode_};
  }

  QGroupBox* const fraVORN = Form::Frame(this, "fraVORN", "VORN");
  TextBox* const txtVORNSymbol = new TextBox(this, "txtVORNSymbol", 8);
  QPushButton* const cmdSearchVORNSymbol = Form::Button(this, "cmdSearchVORNSymbol", "Search");
  TextBox* const txtVORNUserID = new TextBox(this, "txtVORNUserID", 20);
  TextBox* const txtVORNPassword = new TextBox(this, "txtVORNPassword", 20);
  TextBox* const txtVORNConfirmPassword = new TextBox(this, "txtVORNConfirmPassword", 20);
  CodeComboBox* const cmbServiceType = new CodeComboBox(this, "cmbServiceType");
  OptionGroup* const optUseIFM = new OptionGroup(this, "optUseIFM", {"", ""});
  QLabel* const lblIFMMaxCost = Form::Label(this, "lblIFMMaxCost", "IFM Max in US$:");
  TextBox* const txtIFMMaxCost = new TextBox(this, "txtIFMMaxCost", 10);

  QGroupBox* const fraBritishLibrary = Form::Frame(this, "fraBritishLibrary", "British Library");
  TextBox* const txtBLUserID = new TextBox(this, "txtBLUserID", 20);
  TextBox* const txtBLPassword = new TextBox(this, "txtBLPassword", 20);
  TextBox* const txtBLConfirmPassword = new TextBox(this, "txtBLConfirmPassword", 20);

  QGroupBox* const fraRapid = Form::Frame(this, "fraRapid", "Rapid ILL");
  TextBox* const txtRapid = new TextBox(this, "txtRapid", 10);
  QPushButton* const cmdSearchRapidCode = Form::Button(this, "cmdSearchRapidCode", "Search");
  TextBox* const txtRapidBranchName = new TextBox(this, "txtRapidBranchName", 100);
  TextBox* const txtRapidUserName = new TextBox(this, "txtRapidUserName", 10);
  OptionGroup* const optRapidAllowLocal = new OptionGroup(this, "optRapidAllowLocal", {"", ""});
  TextBox* const txtRapidPassword = new TextBox(this, "txtRapidPassword", 20);
  TextBox* const txtRapidConfirmPassword = new TextBox(this, "txtRapidConfirmPassword", 20);

  TextBox* const txtDoclineSymbol = new TextBox(this, "txtDoclineSymbol", 10);
  QPushButton* const cmdSearchDoclineSymbol = Form::Button(this, "cmdSearchDoclineSymbol", "Search");
  TextBox* const txtNewZealand = new TextBox(this, "txtNewZealand", 12);
  QPushButton* const cmdSearchNewZealandSymbol = Form::Button(this, "cmdSearchNewZealandSymbol", "Search");
  TextBox* const txtFD = new TextBox(this, "txtFD", 25);
  QPushButton* const cmdSearchFDSymbol = Form::Button(this, "cmdSearchFDSymbol", "Search");
  TextBox* const txtAgent = new TextBox(this, "txtAgent", 25);
  QPushButton* const cmdSearchAgentSymbol = Form::Button(this, "cmdSearchAgentSymbol", "Search");

  CodeComboBox* const cboStatsCat1 = new CodeComboBox(this, "cboStatsCat1");
  CodeComboBox* const cboStatsCat2 = new CodeComboBox(this, "cboStatsCat2");
  CodeComboBox* const cboStatsCat3 = new CodeComboBox(this, "cboStatsCat3");
  CodeComboBox* const cboCategory = new CodeComboBox(this, "cboCategory");
  CodeComboBox* const cboLibraryType = new CodeComboBox(this, "cboLibraryType");
  CodeComboBox* const cmbLoanCode = new CodeComboBox(this, "cmbLoanCode");
  QLabel* const lblMaximumCost = Form::Label(this, "lblMaximumCost", "Maximum Cost:");
  TextBox* const txtMaximumCost = new TextBox(this, "txtMaximumCost", 10);
  QLabel* const lblMaximumDays = Form::Label(this, "lblMaximumDays", "Maximum Days:");
  TextBox* const txtMaximumDays = new TextBox(this, "txtMaximumDays", 5);
  TextBox* const txtDateEntered = new TextBox(this, "txtDateEntered", 50);
  TextBox* const txtDateLastUpdated = new TextBox(this, "txtDateLastUpdated", 50);

  const Login vornLogin_ = {txtVORNUserID, txtVORNPassword, txtVORNConfirmPassword};
  const Login britishLibraryLogin_ = {txtBLUserID, txtBLPassword, txtBLConfirmPassword};
  DefaultCode defaultStatsCat1_, defaultStatsCat2_, defaultStatsCat3_, defaultCategory_, defaultType_, defaultLoanCode_;
  QString defaultMaxCost_, defaultMaxDays_;
};
