#pragma once

#include <QTabWidget>

#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/OptionGroup.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Tab "Audit Codes": the codes that label the stages of the request status audit, with a sub-tab for the places and one
// for the functions. Rows are never deleted here.
class Audit : public TabPage {
  Q_OBJECT

 public:
  explicit Audit(frmTabulon& shell);

  void Audit_Tab();
  bool Audit_Add();
  bool Audit_Update();
  bool Audit_Clear();

  void ConfigureGrid() override { Current().form->Shape(); }
  void LoadGrid() override;

 private:
  enum SubTab { LocationTab, FunctionTab };

  // What the two sub-tabs differ in.
  struct Kind {
    TextBox* code;
    TextBox* description;
    Grid* grid;
    GridForm* form;
    QString table, codeColumn;
    QString selectFailure, insertFailure;
    int RowOf(const QString& code) const { return grid->FindRow(code, form->ColumnOf(codeColumn)); }
  };

  void BuildControls();
  void ConnectControls();
  void BuildSubTab(QWidget* page, const Kind& kind, const QString& letter);
  void sstab10Audit_Click();
  void SelChange(const Kind& kind);
  void ShowStored(const Kind& kind, const QString& code);

  bool OnFunctions() const { return sstab10Audit->currentIndex() == FunctionTab; }
  const Kind& Current() const { return OnFunctions() ? functions_ : locations_; }
  QString FlagLetter() const { return opt10Display->IsSet(0) ? "Y" : "N"; }
  QString InsertStatement(const Kind& kind) const;
  QString UpdateStatement(const Kind& kind) const;

  bool mbSubTabClicked_ = false;  // Audit_Tab comes from the inner tab strip, not from the outer one

  QTabWidget* const sstab10Audit = new QTabWidget(this);
  TextBox* const txt10aCode = new TextBox(this, "txt10aCode", 1);
  TextBox* const txt10aDescription = new TextBox(this, "txt10aDescription", 50);
  Grid* const grd10aTable = new Grid(this, "grd10aTable", 3);
  TextBox* const txt10bCode = new TextBox(this, "txt10bCode", 1);
  TextBox* const txt10bDescription = new TextBox(this, "txt10bDescription", 50);
  OptionGroup* const opt10Display = new OptionGroup(this, "opt10Display", {"Yes", "No"});
  Grid* const grd10bTable = new Grid(this, "grd10bTable", 4);
  GridForm locationForm_{grd10aTable, record()};
  GridForm functionForm_{grd10bTable, record()};

  const Kind locations_;
  const Kind functions_;
};
