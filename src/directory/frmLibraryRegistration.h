#pragma once

#include <QCheckBox>

#include "directory/DefaultCode.h"
#include "directory/LibraryScreen.h"

class ColumnValues;
class FaxInput;

// The first of the five library screens, and the only one that creates and deletes libraries: identity, postal
// address, delivery and messaging.
class frmLibraryRegistration : public LibraryScreen {
  Q_OBJECT

 public:
  explicit frmLibraryRegistration(QWidget* parent = nullptr);

 protected:
  QString Columns() const override;
  void ShowRecord(const Recordset& rows) override;
  void ClearFields() override;
  void cmdUpdate_Click() override;
  std::vector<CodeList> CodeLists() const override;
  void ChooseDefaults() override;
  std::span<const TextKey> TextKeys() const override;
  void ReadFurtherText(const CustomText& texts) override;
  void LoadSettings() override;
  void ApplyRights() override;
  void EnableRecord(bool enabled) override;
  // There is no question while this screen unloads: the window's own close button is the Close command.
  void CloseRequested() override { cmdClose->click(); }

 private:
  // The three methods that ask for an address, as codes.
  struct Methods {
    QString copy;
    QString loan;
    QString messaging;
  };
  struct RequiredAddress;

  void BuildControls();
  QWidget* AddressPart();
  QWidget* DeliveryPart();
  void ConnectControls();

  void cmdAdd_Click();
  void cmdDelete_Click();
  void cmdSupplier_Click();
  void cmdPatron_Click();
  void cmdMessageFormat_Click();

  // Symbol and institution trimmed and given; `hint` follows the message.
  bool RequiredFieldsGiven(const QString& hint);
  // On False the user has been told and the faulty box has the focus.
  bool ValidateInput(const Methods& methods);
  bool AddressesAreWellFormed();
  bool RequiredAddressesGiven(const Methods& methods);
  bool FaxIsValid(const FaxInput& fax, TextBox* box, const QString& message);
  bool EmailIsValid(TextBox* box, const QString& message);
  bool ArielIsValid();
  bool OdysseyIsValid();
  Methods ChosenMethods() const;
  QString InsertStatement(qint32 id) const;
  QString UpdateStatement() const;
  // The six address boxes as columns of that prefix.
  std::array<DefaultCode*, 5> Defaults() {
    return {&defaultCopy_, &defaultLoan_, &defaultMessaging_, &defaultMsgFormat_, &defaultFileFormat_};
  }
  void AddAddress(ColumnValues& row, const QString& prefix) const;
  void ShowAdded(qint32 id);
  void TellNoNumber(qint32 id);
  void ReadSupplier();
  // Takes the rights of another function, or tells that they are refused.
  bool BorrowRight(const QString& function);
  void ShowMethod(CodeComboBox* box, const QString& stored, const QString& deactivated);

  TextBox* const txtStreet1 = new TextBox(this, "txtStreet1", 70);
  TextBox* const txtStreet2 = new TextBox(this, "txtStreet2", 70);
  TextBox* const txtCity = new TextBox(this, "txtCity", 40);
  TextBox* const txtStateProvince = new TextBox(this, "txtStateProvince", 20);
  TextBox* const txtCountry = new TextBox(this, "txtCountry", 35);
  TextBox* const txtZipPostalCode = new TextBox(this, "txtZipPostalCode", 15);
  CodeComboBox* const cmbTimeZone = new CodeComboBox(this, "cmbTimeZone");
  CodeComboBox* const cmbDeliveryMethodCopy = new CodeComboBox(this, "cmbDeliveryMethodCopy");
  CodeComboBox* const cmbDeliveryMethodLoan = new CodeComboBox(this, "cmbDeliveryMethodLoan");
  CodeComboBox* const cboFileFormat = new CodeComboBox(this, "cboFileFormat");
  CodeComboBox* const cmbEmailMsgFormat = new CodeComboBox(this, "cmbEmailMsgFormat");
  TextBox* const txtDeliveryFax = new TextBox(this, "txtDeliveryFax", 14);
  QCheckBox* const chkDeliveryFax = Form::Check(this, "chkDeliveryFax", "Unformatted");
  TextBox* const txtDeliveryEmail = new TextBox(this, "txtDeliveryEmail", 80);
  CodeComboBox* const cboMsgMethod = new CodeComboBox(this, "cboMsgMethod");
  TextBox* const txtMsgFax = new TextBox(this, "txtMsgFax", 14);
  QCheckBox* const chkMessagingFax = Form::Check(this, "chkMessagingFax", "Unformatted");
  TextBox* const txtMsgEmail = new TextBox(this, "txtMsgEmail", 80);
  QLabel* const lblAriel = Form::Label(this, "lblAriel", "Ariel Address:");
  TextBox* const txtAriel = new TextBox(this, "txtAriel", 80);
  TextBox* const txtOdyssey = new TextBox(this, "txtOdyssey", 80);
  TextBox* const txtDeliveryService = new TextBox(this, "txtDeliveryService", 9);
  TextBox* const txtDocview = new TextBox(this, "txtDocview", 80);

  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "D&elete");
  QPushButton* const cmdSupplier = Form::Button(this, "cmdSupplier", "Su&pplier");
  QPushButton* const cmdPatron = Form::Button(this, "cmdPatron", "Patron");
  QPushButton* const cmdMessageFormat = Form::Button(this, "cmdMessageFormat", "&Message Format");

  FaxInput* deliveryFax_ = nullptr;
  FaxInput* messagingFax_ = nullptr;
  QString defaultTimeZone_;
  DefaultCode defaultCopy_, defaultLoan_, defaultMessaging_, defaultFileFormat_, defaultMsgFormat_;
};
