#pragma once

#include <QPushButton>

#include "platform/controls/CodeComboBox.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Tab "Departments": the departments of each library, with their addresses and the names used towards an NCIP server.
class Departments : public TabPage {
  Q_OBJECT

 public:
  explicit Departments(frmTabulon& shell);

  void Departments_Tab();
  bool Departments_Add();
  bool Departments_Update();
  bool Departments_Delete();
  bool Departments_Clear();

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;

 private:
  void BuildControls();
  void TellGrid();
  void ConnectControls();
  void SetDepartmentList();
  void cmbShowDepartments_Click();
  void grd2Department_SelChange();
  void SelectFirstRow();

  // Steps of Add, Update and Delete.
  bool EntryIsComplete();
  bool IsNew();
  bool KeyIsThatOfRow(int row);
  bool RefuseDescriptionOf(const QString& department);
  void FindDepartmentLibraryId();
  // Department of the library that has the description in the box, in the working language.
  QString DepartmentOfDescription(const QString& failureLine) const;
  QString InsertStatement() const;
  QString UpdateStatement() const;
  QString WhereLibrary() const;

  qint32 glngDepartmentLibraryId_ = 0;  // 0: no symbol given, -1: no such library

  CodeComboBox* const cmbShowDepartments = new CodeComboBox(this, "cmbShowDepartments");
  TextBox* const txt2LibrarySymbol = new TextBox(this, "txt2LibrarySymbol", 25);
  QPushButton* const cmd2FindLibrary = Form::Button(this, "cmd2FindLibrary", "&Find Library");
  TextBox* const txt2Department = new TextBox(this, "txt2Department", 3);
  TextBox* const txt2Description = new TextBox(this, "txt2Description", 50);
  TextBox* const txt2Address = new TextBox(this, "txt2Address", 25);
  TextBox* const txtNCIPDepartment = new TextBox(this, "txtNCIPDepartment", 20);
  Grid* const grd2Department = new Grid(this, "grd2Department", 6);
  GridForm form_{grd2Department, record()};
};
