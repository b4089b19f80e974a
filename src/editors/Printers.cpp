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
  fields_.Add(txt3Printer, Printer).Add(txt3Device, Device);
  WatchField(record(), txt3Printer, grd3Printer, Printer);
  WatchField(record(), txt3Device, grd3Printer, Device);
  PassFocusOn(txt3Device, cmd3Select);
  connect(cmd3Select, &QPushButton::clicked, this, &Printers::cmd3Select_Click);
  connect(grd3Printer, &Grid::SelChange, this, &Printers::grd3Printer_SelChange);
  KeepRowOnSort(grd3Printer);
}

void Printers::Printers_Tab() {
  Procedure procedure("frmTabulon.Printers_Tab", this);
  procedure.Run([this] {
    gstrButtonMode = "F";
    fields_.Clear();
    ConfigureGrdTable();
    LoadDataInGrid();
    shell().EnableButtons(gstrButtonMode);
    if (grd3Printer->Rows() > 1) {
      grd3Printer->SetRowQuietly(1);
      gbSkipGridEvents = false;
      grd3Printer_SelChange();
    }
    txt3Printer->setFocus();
  });
}

void Printers::grd3Printer_SelChange() {
  const int row = grd3Printer->Row();
  if (gbSkipGridEvents || row == 0) return;
  fields_.FillFromRow(*grd3Printer, row);
  record().Settled();
  txt3Printer->setFocus();
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
  bool done = false;
  Procedure procedure("frmTabulon.Printers_Add", this);
  procedure.OnFailure(Texts::DatabaseError).Run([&] {
    fields_.TrimAll();
    const QString printer = txt3Printer->Text();
    if (printer.isEmpty()) {
      Refuse("Please enter a Valid Code.", MessageStyle::Warning, txt3Printer);
      return;
    }
    if (grd3Printer->FindRow(printer, Printer) > 0) {
      Refuse("This record already exists", MessageStyle::Warning, txt3Printer);
      return;
    }
    // A printer without a device has an empty text there, not NULL.
    ExecuteInTransaction("INSERT INTO " + Sql::Table("ID_PRINTER") + " " + "(PRINTER, DEVICE ) " + "VALUES(" +
                             Sql::Plain(printer) + ", " + Sql::Plain(txt3Device->Text()) + ")",
                         "***** SQL error on OSTANA.ID_PRINTER (INSERT INTO) *****");
    LoadDataInGrid();
    grd3Printer->SetRowQuietly(grd3Printer->FindRow(printer, Printer));
    Tell("Record Added", MessageStyle::Information);
    done = true;
  });
  return done;
}

// --- Update ---

bool Printers::Printers_Update() {
  bool done = false;
  Procedure procedure("frmTabulon.Printers_Update", this);
  procedure.Run([&] {
    fields_.TrimAll();
    const int row = grd3Printer->Row();
    if (!IsUpdate(row)) return;
    gstrOldPrinter = grd3Printer->Text(row, Printer);
    gstrOldDevice = grd3Printer->Text(row, Device);
    ExecuteInTransaction(UpdateStatement(), "***** SQL error on OSTANA.ID_PRINTER (UPDATE) *****");
    fields_.WriteRow(*grd3Printer, row);
    Tell("Record Updated", MessageStyle::Information);
    done = true;
  });
  return done;
}

bool Printers::IsUpdate(int row) {
  if (row > 0 && fields_.EqualsRow(*grd3Printer, row))
    return Refuse("Nothing has been changed", MessageStyle::Warning, txt3Printer);
  if (txt3Printer->Text().isEmpty())
    return Refuse("Please select a Valid Code to Update.", MessageStyle::Stop, txt3Printer);
  if (txt3Device->Text().isEmpty())
    return Refuse("Please select a Valid Device using the Device button.", MessageStyle::Stop, cmd3Select);
  if (IsNameOfAnotherRow(row))
    return Refuse("This Code already exists. Please select a Valid Code to Update.", MessageStyle::Stop, txt3Printer);
  if (row == 0)
    return Refuse("This Code does not exist in the table.  Please select a Valid Code to Update.", MessageStyle::Stop,
                  txt3Printer);
  return true;
}

bool Printers::IsNameOfAnotherRow(int row) const {
  const QString printer = txt3Printer->Text();
  if (row > 0 && grd3Printer->Text(row, Printer) == printer) return false;
  return grd3Printer->FindRow(printer, Printer) > 0;
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
  bool done = false;
  Procedure procedure("frmTabulon.Printers_Delete", this);
  procedure.OnFailure(DeleteFailureText).Run([&] {
    const QString printer = txt3Printer->Trimmed();
    if (printer.isEmpty()) {
      Refuse("Please choose a record to be Deleted", MessageStyle::Warning, txt3Printer);
      return;
    }
    if (grd3Printer->FindRow(printer, Printer) == 0) {
      Refuse("Please select a valid record from the table.", MessageStyle::Stop, txt3Printer);
      return;
    }
    if (Tell(Texts::DeleteQuestion, MessageStyle::Question) != MessageAnswer::Yes) {
      txt3Printer->setFocus();
      return;
    }
    // The table's name is misspelt in the failure line that log readers know.
    ExecuteInTransaction("DELETE FROM " + Sql::Table("ID_PRINTER") + " WHERE PRINTER =" + Sql::Plain(printer),
                         "***** SQL error on OSTANA.ID_PRIONTERS (DELETE) *****");
    LoadDataInGrid();
    Printers_Clear();
    Tell("Record Deleted", MessageStyle::Information);
    done = true;
  });
  return done;
}

bool Printers::Printers_Clear() {
  grd3Printer->SetRowQuietly(0);
  fields_.Clear();
  txt3Printer->setFocus();
  record().Settled();
  return true;
}
