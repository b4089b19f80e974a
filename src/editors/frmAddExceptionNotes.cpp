#include "editors/frmAddExceptionNotes.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "shell/Icons.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

const QString NoteRequired = "Exception note is a required field.";

QString WherePair() {
  return " WHERE EXCEPTION_CODE = " + Sql::Plain(gstrNotesExceptionCode) +
         " AND PROCESS_TYPE = " + Sql::Plain(gstrNotesProcessType);
}

}  // namespace

frmAddExceptionNotes::frmAddExceptionNotes(QWidget* parent)
    : Screen("frmAddExceptionNotes", "Ostana - Add Exception Notes", parent) {
  BuildControls();
  ConnectControls();
}

void frmAddExceptionNotes::BuildControls() {
  txtExceptionCode->setReadOnly(true);
  txtExceptionCode->setFocusPolicy(Qt::ClickFocus);
  txtExceptionCode->setFixedWidth(Form::FieldWidth(txtExceptionCode, 5));
  txtExceptionNote->SetLines(4);
  cmdUp->setIcon(OwnIcon("up"));
  cmdDown->setIcon(OwnIcon("down"));
  for (QPushButton* button : {cmdUp, cmdDown}) {
    button->setAccessibleName(button->toolTip());
    button->setMinimumWidth(0);
  }
  grdExceptionNote->setAccessibleName("Exception notes");
  grdExceptionNote->SetHeading(Note, "Exception Note");
  grdExceptionNote->SetColWidth(Marker, 400);
  // The order of the rows is the order of the notes: no heading sorts them.
  grdExceptionNote->horizontalHeader()->setSectionsClickable(false);

  auto* const fields = new QWidget(this);
  Form::Rows rows(fields);
  rows.Add("lblExceptionCode", "Exception Code:", txtExceptionCode);
  rows.Add("lblExceptionNote", "Exception N&ote:", txtExceptionNote);
  auto* const order = new QVBoxLayout;
  order->addStretch();
  order->addWidget(cmdUp);
  order->addWidget(cmdDown);
  order->addStretch();
  auto* const list = new QHBoxLayout;
  list->addWidget(grdExceptionNote, 1);
  list->addLayout(order);
  Form::Require({txtExceptionNote});
  QVBoxLayout* const column = Form::Column(this, {fields});
  column->addLayout(list, 1);
  column->addWidget(
      Form::Label(this, "lblDefaultNote", "The first Exception Note in the list will be used as the default."));
  column->addLayout(Form::ButtonRow({cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdCancel, cmdClose}));
  resize(720, 520);
}

void frmAddExceptionNotes::ConnectControls() {
  connect(grdExceptionNote, &Grid::SelChange, this, &frmAddExceptionNotes::ShowNote);
  connect(grdExceptionNote, &Grid::CellClick, this, &frmAddExceptionNotes::ShowNote);
  connect(cmdUp, &QPushButton::clicked, this, [this] { Move(-1); });
  connect(cmdDown, &QPushButton::clicked, this, [this] { Move(1); });
  connect(cmdAdd, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdDelete_Click);
  connect(cmdClear, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdClear_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdCancel_Click);
  connect(cmdClose, &QPushButton::clicked, this, &frmAddExceptionNotes::cmdClose_Click);
}

void frmAddExceptionNotes::Form_Load() {
  rights_ = gclsOF->Rights();
  txtExceptionCode->SetText(gstrNotesExceptionCode);
  gbSaveExceptionNotes = false;
  PopulateFields();
  ShowButtons();
  txtExceptionNote->setFocus();
}

void frmAddExceptionNotes::PopulateFields() {
  Procedure procedure("frmAddExceptionNotes.PopulateFields", this);
  procedure.Run([this] {
    Record::Reading reading(list_);
    reading.Replaces();
    grdExceptionNote->Clear();
    ForEachRow(
        "SELECT EXCEPTION_NOTE FROM " + Sql::Table("ID_EXCEPTION_NOTE") + WherePair() + " ORDER BY EXCEPTION_NOTE_SEQ ",
        "***** SQL ERROR ON ID_EXCEPTION_NOTE (SELECT) *****",
        [this](Recordset& notes) { grdExceptionNote->AddRow({Value(notes, 0)}); });
    reading.Ended();
  });
}

void frmAddExceptionNotes::ShowButtons() {
  cmdAdd->setEnabled(rights_.add && list_.MayBeWritten());
  cmdDelete->setEnabled(rights_.remove && list_.MayBeWritten());
  for (QPushButton* button : {cmdUpdate, cmdUp, cmdDown}) button->setEnabled(rights_.update && list_.MayBeWritten());
}

void frmAddExceptionNotes::Refuse(const QString& text) {
  Tell(this, text, MessageStyle::Stop);
}

int frmAddExceptionNotes::RowOfNote(const QString& note) const {
  const auto plain = [](QString text) { return text.replace("\r\n", "\n").replace('\r', '\n'); };
  for (int row = 1; row < grdExceptionNote->Rows(); ++row)
    if (plain(grdExceptionNote->Text(row, Note)) == plain(note)) return row;
  return 0;
}

void frmAddExceptionNotes::ShowNote() {
  const int row = grdExceptionNote->Row();
  if (row > 0) txtExceptionNote->SetText(grdExceptionNote->Text(row, Note));
}

// --- The list in the grid ---

void frmAddExceptionNotes::cmdAdd_Click() {
  Procedure procedure("frmAddExceptionNotes.cmdAdd_Click", this);
  procedure.Run([this] {
    const QString note = txtExceptionNote->Trimmed();
    if (note.isEmpty()) return Refuse(NoteRequired);
    if (RowOfNote(note) > 0) return Refuse("The Exception Note '" + note + "' has already been added.");
    grdExceptionNote->AddRow({note});
    gbSaveExceptionNotes = true;
  });
}

void frmAddExceptionNotes::cmdUpdate_Click() {
  Procedure procedure("frmAddExceptionNotes.cmdUpdate_Click", this);
  procedure.OnFailure("An error has occurred while attempting to update the Exception notes.").Run([this] {
    if (grdExceptionNote->Rows() == 1) return Refuse("There are currently no rows to Update.");
    const int row = grdExceptionNote->Row();
    if (row == 0) return Refuse("Please select a row to update.");
    const QString note = txtExceptionNote->Trimmed();
    if (note.isEmpty()) return Refuse(NoteRequired);
    grdExceptionNote->SetText(row, Note, note);
    gbSaveExceptionNotes = true;
  });
}

void frmAddExceptionNotes::cmdDelete_Click() {
  Procedure procedure("frmAddExceptionNotes.cmdDelete_Click", this);
  procedure.OnFailure("An error has occurred while attempting to delete a record.").Run([this] {
    const int row = grdExceptionNote->Row();
    if (row == 0) return Refuse("Please select a row to delete.");
    grdExceptionNote->RemoveRow(row);
    gbSaveExceptionNotes = true;
  });
}

void frmAddExceptionNotes::cmdClear_Click() {
  Procedure procedure("frmAddExceptionNotes.cmdClear_Click", this);
  procedure.Run([this] {
    if (Confirm(this, "Are you sure you wish to clear the screen?")) txtExceptionNote->SetText({});
  });
}

void frmAddExceptionNotes::Move(int by) {
  const int row = grdExceptionNote->Row(), neighbour = row + by;
  if (row == 0 || neighbour < 1 || neighbour >= grdExceptionNote->Rows()) return;
  const QString note = grdExceptionNote->Text(row, Note);
  grdExceptionNote->SetText(row, Note, grdExceptionNote->Text(neighbour, Note));
  grdExceptionNote->SetText(neighbour, Note, note);
  grdExceptionNote->SetRowQuietly(neighbour);
  gbSaveExceptionNotes = true;
}

// --- Leaving ---

void frmAddExceptionNotes::cmdCancel_Click() {
  gbSaveExceptionNotes = false;
  Unload();
}

void frmAddExceptionNotes::cmdClose_Click() {
  Procedure procedure("frmAddExceptionNotes.cmdClose_Click", this);
  procedure.OnFailure(Texts::NotifySupport + "\n\nUnable to update the Exception notes.");
  // A list that could not be stored stays on screen.
  if (procedure.Run([this] {
        if (gbSaveExceptionNotes && list_.MayBeWritten()) SaveNotes();
      }))
    Unload();
}

void frmAddExceptionNotes::SaveNotes() {
  Transaction transaction(gclsOF->Connection());
  Execute("DELETE FROM " + Sql::Table("ID_EXCEPTION_NOTE") + WherePair(),
          "***** SQL error on ID_EXCEPTION_NOTE (Delete) *****");
  QString first = "Null";
  for (int row = 1; row < grdExceptionNote->Rows(); ++row) {
    const QString note = Sql::Plain(grdExceptionNote->Text(row, Note).trimmed());
    if (row == 1) first = note;
    Execute("INSERT INTO " + Sql::Table("ID_EXCEPTION_NOTE") +
                " (EXCEPTION_CODE, PROCESS_TYPE, EXCEPTION_NOTE_SEQ, EXCEPTION_NOTE) VALUES(" +
                Sql::Plain(gstrNotesExceptionCode) + ", " + Sql::Plain(gstrNotesProcessType) + ", " +
                Sql::Plain(QString::number(row)) + ", " + note + ")",
            "***** SQL error on ID_EXCEPTION_NOTE (Insert) *****");
  }
  Execute("UPDATE " + Sql::Table("ID_EXCEPTION_PROCESS") + " SET EXCEPTION_NOTE = " + first + WherePair(),
          "***** SQL error on ID_EXCEPTION_PROCESS (Update) *****");
  transaction.Commit();
  gbSaveExceptionNotes = false;
  Tell(this, "Settings updated.", MessageStyle::Information);
}
