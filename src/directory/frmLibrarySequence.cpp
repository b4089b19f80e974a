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
    Tell(this, "An error has occurred.  Unable to load screen.\n\nIf the error persists Please Notify Support.",
         MessageStyle::Stop);
    return;
  }
  if (gclsOF->Tracing()) gclsOF->WriteLog("frmLibrarySequence - Loaded.", {}, "L");
}

bool frmLibrarySequence::LoadSuppliers() {
  const bool read =
      Procedure("frmLibrarySequence.LoadSuppliers", this)
          .OnFailure("An error has occurred loading the Supplier list.  Please Notify Support.")
          .Run([this] {
            std::vector<QStringList> rows;
            suppliers_ = WorkingCopy([&rows] {
              ForEachRow("SELECT   SUPPLIER_CODE, LIBRARY_SEQ, LIBRARY FROM " + Sql::Table("ID_SUPPLIER") +
                             " WHERE    LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()) + " ORDER BY LIBRARY_SEQ",
                         "***** SQL error on ID_SUPPLIER (Select) *****", [&rows](Recordset& row) {
                           rows.push_back({Value(row, 0), Value(row, 1), Value(row, 2)});
                         });
            });
            grdSupplierSequencing->Clear();
            for (const QStringList& row : rows) grdSupplierSequencing->AddRow(row);
            if (!rows.empty()) grdSupplierSequencing->SetRow(1);
          });
  for (QPushButton* button : {cmdUp, cmdDown, cmdSort, cmdSequence}) button->setEnabled(suppliers_.has_value());
  return read;
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
  if (grdSupplierSequencing->Rows() < 2) {
    Tell(this, "There are no records to sequence.", MessageStyle::Warning);
    return true;
  }
  const bool saved = Procedure("frmSupplierRouting.cmdSequence", this)
                         .OnFailure(
                             "An error has occurred while attempting to sequence the Supplier(s).  If the error "
                             "persists notify support.")
                         .Run([this] { suppliers_.value().Replace([this] { WriteNumbers(); }); });
  if (!saved) return false;
  mbSequenceChanged = false;
  // The order is stored, whether or not it can be read again.
  for (int row = 1; row < grdSupplierSequencing->Rows(); ++row)
    grdSupplierSequencing->SetText(row, Sequence, QString::number(row));
  LoadSuppliers();
  return true;
}

void frmLibrarySequence::WriteNumbers() {
  for (int row = 1; row < grdSupplierSequencing->Rows(); ++row)
    Execute("UPDATE " + Sql::Table("ID_SUPPLIER") + " SET      LIBRARY_SEQ = " + Sql::Number(row) +
                " WHERE    SUPPLIER_CODE = " + Sql::National(grdSupplierSequencing->Text(row, SupplierCode)) +
                " AND      LIBRARY_ID = " + Sql::Number(gclsOF->LibraryId()),
            "***** SQL error on ID_SUPPLIER (Update) *****");
}

bool frmLibrarySequence::Form_QueryUnload() {
  // A save that failed keeps the screen and the order on it.
  return mbSequenceChanged &&
         Confirm(this, "The sequence has been modified.\n\nWould you like update the sequence before exiting?") &&
         !cmdSequence_Click();
}
