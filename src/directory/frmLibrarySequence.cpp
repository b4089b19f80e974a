#include "directory/frmLibrarySequence.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "directory/CustomText.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

frmLibrarySequence::frmLibrarySequence(QWidget* parent)
    : Screen("frmLibrarySequence", "Ostana -  Library Supplier Sequencing", parent) {
  BuildControls();
  connect(cmdUp, &QPushButton::clicked, this, [this] { MoveRow(-1); });
  connect(cmdDown, &QPushButton::clicked, this, [this] { MoveRow(+1); });
  connect(cmdSort, &QPushButton::clicked, this, &frmLibrarySequence::cmdSort_Click);
  connect(cmdSequence, &QPushButton::clicked, this, &frmLibrarySequence::cmdSequence_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
}

void frmLibrarySequence::BuildControls() {
  grdSupplierSequencing->setAccessibleName("Suppliers in the order in which they are tried");
  grdSupplierSequencing->SetHeading(SupplierCode, "Supplier Code");
  grdSupplierSequencing->SetHeading(Sequence, "Sequence");
  grdSupplierSequencing->SetHeading(Name, "Name");
  grdSupplierSequencing->SetColWidth(Marker, 255);
  grdSupplierSequencing->SetColWidth(SupplierCode, 2400);
  grdSupplierSequencing->SetColWidth(Sequence, 1200);
  grdSupplierSequencing->SetColWidth(Name, 5000);
  QVBoxLayout* const column = Form::Column(this, {});
  column->addWidget(grdSupplierSequencing, 1);
  column->addLayout(Form::ButtonRow({cmdUp, cmdDown, nullptr, cmdSort, cmdSequence, cmdClose}));
  resize(720, 480);
}

void frmLibrarySequence::Form_Load() {
  mbLoaded = false;
  if (!gclsOF->CustomConfigFile().isEmpty())
    LoadCustomText(*this, {"LoadLibrarySupplierSequencingText", "Library Supplier Sequencing", MissingCustomText}, {});
  mbLoaded = LoadSuppliers();
}

void frmLibrarySequence::Form_Activate() {
  if (!mbLoaded) {
    ShowMessage("An error has occurred.  Unable to load screen.\n\nIf the error persists Please Notify Support.",
                MessageStyle::Stop, Caption(), {}, this);
    return;
  }
  if (gclsOF->Tracing()) gclsOF->WriteLog("frmLibrarySequence - Loaded.", {}, "L");
}

bool frmLibrarySequence::LoadSuppliers() {
  return Procedure("frmLibrarySequence.LoadSuppliers", this)
      .OnFailure("An error has occurred loading the Supplier list.  Please Notify Support.")
      .Run([this] { ReadSuppliers(); });
}

void frmLibrarySequence::ReadSuppliers() {
  grdSupplierSequencing->Clear();
  ForEachRow("SELECT   SUPPLIER_CODE, LIBRARY_SEQ, LIBRARY FROM " + Sql::Table("ID_SUPPLIER") +
                 " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()) + " ORDER BY LIBRARY_SEQ",
             "***** SQL error on ID_SUPPLIER (Select) *****", [this](Recordset& rows) {
               grdSupplierSequencing->AddRow({Value(rows, 0), Value(rows, 1), Value(rows, 2)});
             });
  if (grdSupplierSequencing->Rows() > 1) grdSupplierSequencing->SetRow(1);
}

void frmLibrarySequence::MoveRow(int by) {
  const int from = grdSupplierSequencing->Row();
  const int to = from + by;
  if (from < 1 || to < 1 || to >= grdSupplierSequencing->Rows()) return;
  const QStringList cells = {grdSupplierSequencing->Text(from, SupplierCode),
                             grdSupplierSequencing->Text(from, Sequence), grdSupplierSequencing->Text(from, Name)};
  grdSupplierSequencing->RemoveRow(from);
  // The numbers stay as they are; only the place changes.
  grdSupplierSequencing->AddRow(cells, to < grdSupplierSequencing->Rows() ? to : 0);
  grdSupplierSequencing->SetRow(to);
  mbSequenceChanged = true;
}

void frmLibrarySequence::cmdSort_Click() {
  grdSupplierSequencing->Sort(Sequence, Qt::AscendingOrder, true);
  if (grdSupplierSequencing->Rows() > 1) grdSupplierSequencing->SetRow(1);
}

bool frmLibrarySequence::cmdSequence_Click() {
  return Procedure("frmSupplierRouting.cmdSequence", this)
      .OnFailure(
          "An error has occurred while attempting to sequence the Supplier(s).  If the error persists notify "
          "support.")
      .Run([this] {
        if (grdSupplierSequencing->Rows() < 2) {
          ShowMessage("There are no records to sequence.", MessageStyle::Warning, Caption(), {}, this);
          return;
        }
        Transaction transaction(gclsOF->Connection());
        for (int row = 1; row < grdSupplierSequencing->Rows(); ++row)
          Execute("UPDATE " + Sql::Table("ID_SUPPLIER") + " SET      LIBRARY_SEQ = " + Sql::Number(row) +
                      " WHERE    SUPPLIER_CODE = " + Sql::National(grdSupplierSequencing->Text(row, SupplierCode)) +
                      " AND      LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
                  "***** SQL error on ID_SUPPLIER (Update) *****");
        transaction.Commit();
        ReadSuppliers();
        mbSequenceChanged = false;
      });
}

bool frmLibrarySequence::Form_QueryUnload() {
  if (!mbSequenceChanged) return false;
  const int answer =
      ShowMessage("The sequence has been modified.\n\nWould you like update the sequence before exiting?",
                  MessageStyle::Question, Caption(), {}, this);
  // A save that failed keeps the screen and the order on it.
  return answer == MessageAnswer::Yes && !cmdSequence_Click();
}
