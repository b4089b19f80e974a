#pragma once

#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "core/Record.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/Screen.h"

// "Service Code": which code is charged for a combination of item type, delivery method, service level, system source
// and country region, a missing value matching anything; and which region a country belongs to. A service code row has
// no key: all six values together tell it. Everything is written with plain literals and without a transaction.
class frmServiceCode : public Screen {
  Q_OBJECT

 public:
  explicit frmServiceCode(QWidget* parent = nullptr);

 protected:
  void Form_Load() override;
  bool Form_Unload() override { return !CloseButtonUpdate(); }

 private:
  enum Tab { ServiceCodeTab, CountryRegionTab };
  enum Column { Marker, ServiceCode, Region, DeliveryMethod, ServiceLevel, SystemSource, ItemType };

  // One of the five values that may be missing, in the order of the statements.
  struct Wildcard {
    QString column;  // of the table
    int col;         // of the grid
    CodeComboBox* box;
  };

  void BuildControls();
  void ConnectControls();
  void PopulateServiceCodeCombos();
  void LoadServiceCodeGrid();
  void LoadCountryCodeGrid();
  void sstabServiceCode_Click(int tab);
  void grdServiceCode_SelChange();
  void grdCountryCode_SelChange();
  // The boxes of the tab in front empty, its lists on "(none)".
  void ClearFields();

  void cmdAdd_Click();
  void cmdUpdate_Click();
  void cmdDelete_Click();
  // False: the user cancelled.
  bool CloseButtonUpdate();

  void AddServiceCode();
  void DeleteServiceCode();
  void AddCountry();
  void DeleteCountry();

  // Values of the controls or of a row, by grid column from column 1 on.
  QStringList EnteredValues() const;
  QStringList RowValues(int row) const;
  void WriteRow(int row);
  // WHERE of the row as the grid holds it.
  QString WhereRow(int row) const;

  bool OnServiceCodeTab() const { return sstabServiceCode->currentIndex() == ServiceCodeTab; }

  // The record on the controls was edited.
  bool mbRecordChanged() const { return serviceCode_.Modified() || country_.Modified(); }
  Record& Front() { return OnServiceCodeTab() ? serviceCode_ : country_; }
  // The frame of what writes: a failure is logged with its statement.
  void Run(const QString& handler, const std::function<void()>& body);

  Record serviceCode_, country_;  // one for each tab

  QTabWidget* const sstabServiceCode = new QTabWidget(this);
  TextBox* const txtServiceCode = new TextBox(this, "txtServiceCode", 3);
  CodeComboBox* const cmbCountryRegion = new CodeComboBox(this, "cmbCountryRegion");
  CodeComboBox* const cmbDeliveryMethod = new CodeComboBox(this, "cmbDeliveryMethod");
  CodeComboBox* const cmbServiceLevel = new CodeComboBox(this, "cmbServiceLevel");
  CodeComboBox* const cmbSystemSource = new CodeComboBox(this, "cmbSystemSource");
  CodeComboBox* const cmbItemType = new CodeComboBox(this, "cmbItemType");
  Grid* const grdServiceCode = new Grid(this, "grdServiceCode", 7);
  CodeComboBox* const cmbRegion = new CodeComboBox(this, "cmbRegion");
  TextBox* const txtCountryCode = new TextBox(this, "txtCountryCode", 2);
  Grid* const grdCountryCode = new Grid(this, "grdCountryCode", 2);
  QPushButton* const cmdAdd = Form::Button(this, "cmdAdd", "&Add");
  QPushButton* const cmdUpdate = Form::Button(this, "cmdUpdate", "&Update");
  QPushButton* const cmdDelete = Form::Button(this, "cmdDelete", "&Delete");
  QPushButton* const cmdClear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const cmdClose = Form::Button(this, "cmdClose", "&Close");

  const std::array<Wildcard, 5> wildcards_{{{"ITEM_TYPE", ItemType, cmbItemType},
                                            {"DELIVERY_METHOD", DeliveryMethod, cmbDeliveryMethod},
                                            {"SERVICE_LEVEL", ServiceLevel, cmbServiceLevel},
                                            {"SYSTEM_SOURCE", SystemSource, cmbSystemSource},
                                            {"COUNTRY_REGION", Region, cmbCountryRegion}}};
};
