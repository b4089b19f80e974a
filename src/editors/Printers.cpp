#include "editors/Printers.h"

#include "core/ModuleState.h"
#include "core/SqlText.h"
#include "platform/desktop/Prompts.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Printers::Printers(frmTabulon& shell) : TabPage(shell) {
  BuildControls();
  ConnectControls();
}

void Printers::BuildControls() {
  auto* const boxes = new QWidget(this);
  Form::Rows rows(boxes);
  rows.Add("lbl3Printer", "Printer name", txt3Printer);
  rows.Add("lbl3Device", "Device:", txt3Device, cmd3Select);
  grd3Printer->setAccessibleName("Printers");
  Form::Require({txt3Printer});
  Form::Column(this, {boxes})->addWidget(grd3Printer, 1);
}

void Printers::ConnectControls() {
  form_.Edits(txt3Printer, {"PRINTER", "Printer Name", 2000}).Edits(txt3Device, {"DEVICE", "Device", 5620});
  PassFocusOn(txt3Device, cmd3Select);
  connect(cmd3Select, &QPushButton::clicked, this, &Printers::cmd3Select_Click);
  connect(grd3Printer, &Grid::SelChange, this, &Printers::grd3Printer_SelChange);
  KeepRowOnSort(grd3Printer);
}

void Printers::Printers_Tab() {
  Procedure procedure("frmTabulon.Printers_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "F";
    form_.Clear();
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    form_.SelectFirstRow([this] { grd3Printer_SelChange(); });
    txt3Printer->setFocus();
  });
}

void Printers::LoadGrid() {
  form_.Load("SELECT   * FROM " + Sql::Table("ID_PRINTER"), "***** SQL error on OSTANA.ID_PRINTER (Select) *****");
}

void Printers::grd3Printer_SelChange() {
  const int row = grd3Printer->Row();
  if (!gbSkipGridEvents && row > 0) form_.ShowRow(row);
}

void Printers::cmd3Select_Click() {
  Procedure procedure("frmTabulon.cmd3Select_Click", this);
  procedure.Run([this] {
    if (Prompts().PrinterNames().isEmpty()) {
      Tell("No printer is installed on this machine.", MessageStyle::Warning);
      return;
    }
    // The form comes to the front again when the platform's dialog has closed; nothing is to happen then.
    gbSkipActivate = true;
    const std::optional<QString> device = Prompts().ChoosePrinter(this);
    shell().Form_Activate();
    if (device) txt3Device->SetText(*device);
    txt3Printer->setFocus();
  });
}

// --- Add ---

bool Printers::Printers_Add() {
  return Procedure("frmTabulon.Printers_Add", this).OnFailure(Texts::DatabaseError).Answers([&] {
    form_.TrimAll();
    const QString printer = txt3Printer->Text();
    if (printer.isEmpty()) return Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt3Printer);
    if (RowOf(printer) > 0) return Refuse("This record already exists", MessageStyle::Warning, txt3Printer);
    // A printer without a device has an empty text there, not NULL.
    ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_PRINTER") + " " + "(PRINTER, DEVICE ) " + "VALUES(" +
                             Sql::Plain(printer) + ", " + Sql::Plain(txt3Device->Text()) + ")",
                         "***** SQL error on OSTANA.ID_PRINTER (INSERT INTO) *****");
    LoadDataInGrid();
    grd3Printer->SetRowQuietly(RowOf(printer));
    Tell("Record Added", MessageStyle::Information);
    return true;
  });
}

// --- Update ---

bool Printers::Printers_Update() {
  return Procedure("frmTabulon.Printers_Update", this).Answers([&] {
    form_.TrimAll();
    const int row = grd3Printer->Row();
    if (!IsUpdate(row)) return false;
    gstrOldPrinter = form_.Cell(row, "PRINTER");
    gstrOldDevice = form_.Cell(row, "DEVICE");
    if (ExecuteInTransaction(UpdateStatement(), "***** SQL error on OSTANA.ID_PRINTER (UPDATE) *****") == 0)
      return Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt3Printer);
    form_.WriteRow(row);
    Tell("Record Updated", MessageStyle::Information);
    return true;
  });
}

int Printers::RowOf(const QString& printer) const {
  return grd3Printer->FindRow(printer, form_.ColumnOf("PRINTER"));
}

bool Printers::IsUpdate(int row) {
  if (row > 0 && form_.EqualsRow(row)) return Refuse("Nothing has been changed", MessageStyle::Warning, txt3Printer);
  if (txt3Printer->Text().isEmpty())
    return Refuse("Please select a Valid Code to Update.", MessageStyle::Stop, txt3Printer);
  if (txt3Device->Text().isEmpty())
    return Refuse("Please select a Valid Device using the Device button.", MessageStyle::Stop, cmd3Select);
  if (IsNameOfAnotherRow(row))
    return Refuse("This Code already exists. Please select a Valid Code to Update.", MessageStyle::Stop, txt3Printer);
  return row > 0 || Refuse(Texts::NoSuchCode, MessageStyle::Stop, txt3Printer);
}

bool Printers::IsNameOfAnotherRow(int row) const {
  const QString printer = txt3Printer->Text();
  if (row > 0 && form_.Cell(row, "PRINTER") == printer) return false;
  return RowOf(printer) > 0;
}

QString Printers::UpdateStatement() const {
  const QString printer = txt3Printer->Text(), device = txt3Device->Text();
  const QString update = "UPDATE  " + Sql::Table("ID_PRINTER") + " ";
  const QString setDevice = "DEVICE = " + Sql::Plain(device);
  const QString where = " WHERE PRINTER = " + Sql::Plain(gstrOldPrinter);
  if (printer == gstrOldPrinter) return update + "SET " + setDevice + where;
  // A device that other programs left NULL reads as empty.
  const QString whereDevice = gstrOldDevice.isEmpty() ? QString(" AND (DEVICE = '' OR DEVICE IS NULL)")
                                                      : " AND DEVICE = " + Sql::Plain(gstrOldDevice);
  // A new name carries the device along, whether that has changed or not.
  return update + "SET PRINTER = " + Sql::Plain(printer) + ", " + setDevice + where + whereDevice;
}

// --- Delete and Clear ---

bool Printers::Printers_Delete() {
  return Procedure("frmTabulon.Printers_Delete", this).OnFailure(DeleteFailureText).Answers([&] {
    const QString printer = txt3Printer->Trimmed();
    if (printer.isEmpty()) return Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt3Printer);
    if (RowOf(printer) == 0) return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt3Printer);
    if (!Confirm(this, Texts::DeleteQuestion)) {
      txt3Printer->setFocus();
      return false;
    }
    // The table's name is misspelt in the failure line that log readers know.
    if (ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_PRINTER") + " WHERE PRINTER =" + Sql::Plain(printer),
                             "***** SQL error on OSTANA.ID_PRIONTERS (DELETE) *****") == 0)
      return Refuse(Texts::NoSuchRow, MessageStyle::Stop, txt3Printer);
    LoadDataInGrid();
    Printers_Clear();
    Tell("Record Deleted", MessageStyle::Information);
    return true;
  });
}

bool Printers::Printers_Clear() {
  grd3Printer->SetRowQuietly(0);
  form_.Clear();
  txt3Printer->setFocus();
  return true;
}
