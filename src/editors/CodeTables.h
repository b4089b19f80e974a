#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

class Recordset;

// Tab "Code Tables": one editor for all plain look-up tables of the system. Which tables exist is told by ID_TABLES;
// column names and types are read off the table itself. A few tables have extra columns with controls of their own.
class CodeTables : public TabPage {
  Q_OBJECT

 public:
  explicit CodeTables(frmTabulon& shell);

  void CodeTables_Tab();
  bool CodeTables_Add();
  bool CodeTables_Update();
  bool CodeTables_Delete();
  bool CodeTables_Clear();

  void ConfigureGrid() override;
  void LoadGrid() override;

 private:
  enum Column { Marker, Code, Description, DeliveryType, WebFlag, LibrarySymbol, DefaultLanguage, LibraryId };

  // What the selected table has besides code and description.
  struct Special {
    bool webFlag = false;
    bool deliveryType = false;
    bool catalogLibrary = false;
    bool ackStatement = false;
    bool language = false;
    bool exception = false;
  };

  void BuildControls();
  void ConnectControls();
  void cmb0Tables_Click();
  void cmb0CurrentLanguage_Click();
  void cmd0FindLibrary_Click();
  void grd0TableDesc_SelChange();
  void FillLanguages();
  void ReadTable();
  void ShowSpecialControls();
  QStringList CellsOf(Recordset& rows) const;
  void Compare(int column, const QString& value);
  void ForgetTable();

  QString TableName() const;
  bool TableSelected() const { return cmb0Tables->Index() > 0; }
  bool CodeIsNumeric() const;
  QString CodeQuote() const { return CodeIsNumeric() ? "" : "'"; }
  QString QuotedCode(const QString& code) const;
  int RowOfCode(const QString& code) const;

  // Steps of Add and Update.
  bool CodeIsValid(QString& code);
  bool IsDuplicate(const QString& code, qint32 libraryId) const;
  QString InsertStatement(const QString& code, qint32 libraryId) const;
  QString UpdateStatement(const QString& code, int row, qint32 libraryId) const;
  bool MayUpdate(int row);
  bool LibraryIsValid(qint32& libraryId);
  QString WebFlagValue() const;
  QString DefaultFlagValue() const;
  QString DeliveryTypeValue() const;
  bool RowIsUnchanged(int row) const;
  void WriteBack(int row, qint32 libraryId);
  void ReloadAndSelect(const QString& code, qint32 libraryId);

  // Rows of ID_TABLES, counted from 1 in the order of cmb0Tables behind "(none)".
  QStringList gstrTableNames, gstrTableDescriptions, gstrViewOnlyFlags;
  QString gstrCodeColumn;      // name of field 0 of the selected table
  QString gstrDescColumn;      // name of its description in the working language
  QString baseDescColumn_;     // name of its description in the default language
  int gintCodeColumnType = 0;  // ADO type of field 0
  Special special_;

  CodeComboBox* const cmb0Tables = new CodeComboBox(this, "cmb0Tables");
  TextBox* const txt0Code = new TextBox(this, "txt0Code");
  TextBox* const txt0Description = new TextBox(this, "txt0Description");
  OptionGroup* const opt0Display = new OptionGroup(this, "opt0Display", {"Yes", "No"});
  QLabel* const lbl0Display = Form::Label(this, "lbl0Display", "Display on Web:");
  QWidget* const fra0Display = opt0Display->Row("fra0Display");
  OptionGroup* const opt0DeliveryType = new OptionGroup(this, "opt0DeliveryType", {"Copy", "Loan"});
  QLabel* const lbl0aDisplay = Form::Label(this, "lbl0aDisplay", "Delivery Type:");
  QWidget* const fra0aDisplay = opt0DeliveryType->Row("fra0aDisplay");
  TextBox* const txt0LibrarySymbol = new TextBox(this, "txt0LibrarySymbol", 25);
  QPushButton* const cmd0FindLibrary = Form::Button(this, "cmd0FindLibrary", "&Find Library");
  QLabel* const lbl0bDisplay = Form::Label(this, "lbl0bDisplay", "Library Symbol:");
  QWidget* const fra0bDisplay = Form::Together(this, "fra0bDisplay", {txt0LibrarySymbol, cmd0FindLibrary});
  QLabel* const lbl0CurrentLanguage = Form::Label(this, "lbl0CurrentLanguage", "Current Language:");
  CodeComboBox* const cmb0CurrentLanguage = new CodeComboBox(this, "cmb0CurrentLanguage");
  QCheckBox* const chk0DefaultLanguage = Form::Check(this, "chk0DefaultLanguage", "Default Language");
  Grid* const grd0TableDesc = new Grid(this, "grd0TableDesc", 8);
  GridForm form_{grd0TableDesc, record(), 200};
};
