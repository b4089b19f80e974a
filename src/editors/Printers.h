#pragma once

#include <QPushButton>

#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "shell/GridForm.h"
#include "shell/TabPage.h"

// Tab "Printers": the named printers of the system and the device behind each name.
class Printers : public TabPage {
  Q_OBJECT

 public:
  explicit Printers(frmTabulon& shell);

  void Printers_Tab();
  bool Printers_Add();
  bool Printers_Update();
  bool Printers_Delete();
  bool Printers_Clear();

  void ConfigureGrid() override { form_.Shape(); }
  void LoadGrid() override;

 private:
  void BuildControls();
  void ConnectControls();
  void grd3Printer_SelChange();
  void cmd3Select_Click();
  bool IsUpdate(int row);
  int RowOf(const QString& printer) const;
  bool IsNameOfAnotherRow(int row) const;
  QString UpdateStatement() const;

  QString gstrOldPrinter, gstrOldDevice;  // of the row that is updated

  TextBox* const txt3Printer = new TextBox(this, "txt3Printer", 40);
  TextBox* const txt3Device = new TextBox(this, "txt3Device", 80);
  QPushButton* const cmd3Select =
      Form::Button(this, "cmd3Select", "D&evice", "Choose the device in the printer dialog");
  Grid* const grd3Printer = new Grid(this, "grd3Printer", 3);
  GridForm form_{grd3Printer, record()};
};
