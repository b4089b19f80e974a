#pragma once

#include <array>
#include <map>

#include "core/Record.h"
#include "interop/DeliveryChoice.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "shell/Screen.h"

class Recordset;

// The NCIP profiles of the library in hand, LibraryId of the common services: which request defaults apply to a user of
// the local system. The grid is the working copy; closing replaces the rows of the table in one transaction.
class frmNCIPProfile : public Screen {
  Q_OBJECT

 public:
  explicit frmNCIPProfile(QWidget* parent = nullptr);

  // Columns of the grid. Cells hold what the user sees; the codes behind them are kept beside the row.
  enum Column {
    ProfileCode = 1,
    Description,
    PatronType,
    LoanCode,
    FileFormat,
    MessageFormat,
    BillingType,
    BillingRate,
    AllowCopy,
    SelectCopy,
    MethodCopy,
    AddressCopy,
    AllowLoan,
    SelectLoan,
    MethodLoan,
    AddressLoan,
    ColumnCount
  };

 protected:
  void Form_Load() override;

 private:
  // Codes by grid column: of the eight lists, and of the addresses, which are texts or pickup locations.
  using Codes = std::array<QString, ColumnCount>;

  void BuildControls();
  QWidget* RequestFields();
  void ConnectControls();

  // --- Reading ---
  void ReadOstanaInfo();
  void FillLists();
  void ReadProfiles();
  void LoadProfile(const Recordset& rows);
  // Adds a row; its codes stay beside it wherever a sort moves it.
  int AddRow(const QStringList& cells, const Codes& codes);
  const Codes& CodesOf(int row) const;
  // The row that is shown by the controls, 0 for none.
  int RowOnShow() const;

  // --- Editing ---
  void MarkChanged();
  void ShowRow(int row);
  void ShowCleared();
  bool Validate(bool adding);
  bool MethodIsGiven(const DeliveryChoice* choice, const QString& refusal);
  bool AddressIsGood(const DeliveryChoice* choice);
  QStringList CellsOnScreen() const;
  Codes CodesOnScreen() const;
  // The question before an edited row is left; the answer.
  bool UpdateIsWanted();
  void UpdateCurrentRow(int row);
  void grdNCIPProfile_SelChange();
  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  void cmdClear_Click();
  void cmdClose_Click();
  QString ValuesOf(int row) const;

  // --- Frames ---
  void Run(const QString& handler, const std::function<void()>& body);
  void ApplyRights();

  // The profile on screen has been edited.
  bool mbProfileChanged() const { return profile_.Modified(); }

  Record list_;            // the rows of the table in the grid
  Record profile_;         // the one in the controls
  bool mbLoading = false;  // code fills the controls
  const QString mstrDefaultFileFormat = "P";
  const QString mstrDefaultMsgFormat = "T";
  std::map<qint64, Codes> codes_;  // by the number kept with a grid row
  qint64 lastKey_ = 0;
  qint64 keyOnShow_ = 0;

  TextBox* const txtProfileCode = new TextBox(this, "txtProfileCode", 20);
  TextBox* const txtDescription = new TextBox(this, "txtDescription", 50);
  CodeComboBox* const cmbPatronType = new CodeComboBox(this, "cmbPatronType");
  CodeComboBox* const cmbLoanCode = new CodeComboBox(this, "cmbLoanCode");
  CodeComboBox* const cmbFileFormat = new CodeComboBox(this, "cmbFileFormat");
  CodeComboBox* const cmbMessageFormat = new CodeComboBox(this, "cmbMessageFormat");
  CodeComboBox* const cmbBillingType = new CodeComboBox(this, "cmbBillingType");
  CodeComboBox* const cmbBillingRate = new CodeComboBox(this, "cmbBillingRate");
  DeliveryChoice* const copy_ =
      new DeliveryChoice(this, "Copy", "Cop&y",
                         {"rdAllowCopyYes", "rdAllowCopyNo", "rdDeliverySelectCopyYes", "rdDeliverySelectCopyNo",
                          "cmbDeliveryMethodCopy", "txtDeliveryAddressCopy", "cmbPickupLocationCopy"});
  DeliveryChoice* const loan_ =
      new DeliveryChoice(this, "Loan", "Loa&n",
                         {"rdAllowLoanYes", "rdAllowLoanNo", "rdDeliverySelectLoanYes", "rdDeliverySelectLoanNo",
                          "cmbDeliveryMethodLoan", "txtDeliveryAddressLoan", "cmbPickupLocationLoan"});
  Grid* const grdNCIPProfile = new Grid(this, "grdNCIPProfile", ColumnCount);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "C&lear");
  QPushButton* const cmdCancel = Form::Button(this, "cmdCancel", "&Cancel");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "Cl&ose");

  // The lists that are a column of their own.
  struct List {
    CodeComboBox* box;
    Column column;
    const char* field;
  };
  const std::array<List, 6> lists_ = {{{cmbPatronType, PatronType, "NCIP_PATRON_TYPE"},
                                       {cmbLoanCode, LoanCode, "LOAN_CODE"},
                                       {cmbFileFormat, FileFormat, "FILE_FORMAT"},
                                       {cmbMessageFormat, MessageFormat, "MSG_FORMAT"},
                                       {cmbBillingType, BillingType, "BILLING_TYPE"},
                                       {cmbBillingRate, BillingRate, "BILLING_RATE"}}};
};
