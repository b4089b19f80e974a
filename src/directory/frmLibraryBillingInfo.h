#pragma once

#include "directory/DefaultCode.h"
#include "directory/LibraryScreen.h"
#include "platform/controls/DateBox.h"

// Billing address and account of a library, its credit card, quota and load balancing figures. Leads on to the
// sequence of its suppliers and to its annotation template.
class frmLibraryBillingInfo : public LibraryScreen {
  Q_OBJECT

 public:
  explicit frmLibraryBillingInfo(QWidget* parent = nullptr);

 protected:
  QString Columns() const override;
  void ReadFurther(const Recordset& rows, qint32 libraryId) override;
  void ShowRecord(const Recordset& rows) override;
  void ClearFields() override;
  void cmdUpdate_Click() override;
  std::vector<CodeList> CodeLists() const override;
  void ChooseDefaults() override;
  std::span<const TextKey> TextKeys() const override;
  void ReadFurtherText(const CustomText& texts) override;
  void LoadSettings() override;
  void ShowNoRecord() override;
  void EnableRecord(bool enabled) override;

 private:
  void BuildControls();
  QWidget* AddressPart();
  QWidget* AccountPart();
  void mnuOptionsResetLoadBalancing_Click();
  bool ResetDateIsValid();
  QString UpdateStatement() const;
  std::array<DefaultCode*, 4> Defaults() {
    return {&defaultBillingType_, &defaultBillingRate_, &defaultCurrency_, &defaultCreditCard_};
  }

  TextBox* const txtStreet1 = new TextBox(this, "txtStreet1", 70);
  TextBox* const txtStreet2 = new TextBox(this, "txtStreet2", 70);
  TextBox* const txtCity = new TextBox(this, "txtCity", 40);
  TextBox* const txtStateProvince = new TextBox(this, "txtStateProvince", 20);
  TextBox* const txtCountry = new TextBox(this, "txtCountry", 35);
  TextBox* const txtZipPostalCode = new TextBox(this, "txtZipPostalCode", 15);
  TextBox* const txtBillingContact = new TextBox(this, "txtBillingContact", 50);
  TextBox* const txtPhone = new TextBox(this, "txtPhone", 25);
  TextBox* const txtFax = new TextBox(this, "txtFax", 25);
  TextBox* const txtAccountNumber = new TextBox(this, "txtAccountNumber", 20);
  CodeComboBox* const cboBillingType = new CodeComboBox(this, "cboBillingType");
  CodeComboBox* const cboBillingRate = new CodeComboBox(this, "cboBillingRate");
  CodeComboBox* const cmbCurrency = new CodeComboBox(this, "cmbCurrency");

  QGroupBox* const fraLoadBalancing = Form::Frame(this, "fraLoadBalancing", "Load Balancing");
  QLabel* const lblNumberProcessed = Form::Label(this, "lblNumberProcessed", "Requests Processed:");
  TextBox* const txtNumberProcessed = new TextBox(this, "txtNumberProcessed", 9);
  QLabel* const lblWeightingFactor = Form::Label(this, "lblWeightingFactor", "Weighting Factor:");
  TextBox* const txtWeightingFactor = new TextBox(this, "txtWeightingFactor", 9);

  QGroupBox* const fraCreditCard = Form::Frame(this, "fraCreditCard", "Credit Card");
  CodeComboBox* const cboCCType = new CodeComboBox(this, "cboCCType");
  TextBox* const txtCCName = new TextBox(this, "txtCCName", 50);
  TextBox* const txtCCNumber = new TextBox(this, "txtCCNumber", 20);
  TextBox* const txtCCExpirationDate = new TextBox(this, "txtCCExpirationDate", 5);
  QLabel* const lblCreditCardExpText = Form::Label(this, "lblCreditCardExpText", "(MM/YY)");
  TextBox* const txtCCCode = new TextBox(this, "txtCCCode", 4);

  QGroupBox* const fraQuota = Form::Frame(this, "fraQuota", "Quota");
  QLabel* const lblQTotal = Form::Label(this, "lblQTotal", "Quota Total:");
  TextBox* const txtQTotal = new TextBox(this, "txtQTotal", 8);
  TextBox* const txtQFilled = new TextBox(this, "txtQFilled", 9);
  DateBox* const txtQuotaResetDate = new DateBox(this, "txtQuotaResetDate");

  QPushButton* const cmdSequenceSupplier = Form::Button(this, "cmdSequenceSupplier", "Sequence Su&ppliers");
  QAction* mnuOptionsAnnotation = nullptr;
  QAction* mnuOptionsResetLoadBalancing = nullptr;

  DefaultCode defaultBillingType_, defaultBillingRate_, defaultCurrency_, defaultCreditCard_;
  QString defaultQuotaTotal_;
  bool hasSuppliers_ = false;  // of the library read last
};
