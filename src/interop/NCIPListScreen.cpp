#include "interop/NCIPListScreen.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"

#include "interop/StatementReport.h"
#include "shell/Procedure.h"

NCIPListScreen::NCIPListScreen(const QString& formName, const QString& caption, Grid* grid, QWidget* parent)
    : Screen(formName, caption, parent), grid_(grid) {
  grid_->setParent(this);
  connect(grid_, &Grid::SelChange, this, &NCIPListScreen::Grid_SelChange);
  connect(cmdAdd, &QPushButton::clicked, this, &NCIPListScreen::cmdAdd_Click);
  connect(cmdUpdate, &QPushButton::clicked, this, &NCIPListScreen::cmdUpdate_Click);
  connect(cmdDelete, &QPushButton::clicked, this, &NCIPListScreen::cmdDelete_Click);
  connect(cmdClear, &QPushButton::clicked, this, &NCIPListScreen::cmdClear_Click);
  connect(cmdCancel, &QPushButton::clicked, this, [this] { Unload(); });
  connect(cmdClose, &QPushButton::clicked, this, &NCIPListScreen::cmdClose_Click);
}

void NCIPListScreen::Compose(QWidget* fields) {
  QVBoxLayout* const column = Form::Column(this, {fields, grid_});
  column->setStretch(1, 1);
  column->addLayout(Form::ButtonRow({cmdAdd, cmdUpdate, cmdDelete, cmdClear, cmdCancel, cmdClose}));
}

// --- Frames ---

void NCIPListScreen::Run(const QString& handler, const std::function<void()>& body) {
  Procedure(objectName() + "." + handler, this).OnFailure(Texts::NotifySupport).Run(body);
}

// --- Loading ---

void NCIPListScreen::Form_Load() {
  // Both lists log under the name of the first one.
  Procedure("frmNCIPStatusCodes.ReadOstanaInfo()", this)
      .OnFailure("An error has occurred loading the form.  Please Notify Support.")
      .Run([this] {
        Record::Reading reading(list_);
        reading.Replaces();
        grid_->Clear();
        ReadOstanaInfo();
        reading.Ended();
      });
  ApplyRights();
  if (list_.MayBeWritten() && grid_->Rows() > 1) SelectRow(1);
  KeyBox()->setFocus(Qt::OtherFocusReason);
}

// A list that was not read whole can be looked at and left, and nothing else.
void NCIPListScreen::ApplyRights() {
  const bool whole = list_.MayBeWritten();
  cmdAdd->setEnabled(whole && rights_.add);
  cmdUpdate->setEnabled(false);
  cmdDelete->setEnabled(whole && rights_.remove);
  cmdClear->setEnabled(whole && rights_.update && rights_.remove);
}

void NCIPListScreen::SelectRow(int row) {
  grid_->SetRowQuietly(row);
  ShowRow(row);
  cmdUpdate->setEnabled(list_.MayBeWritten() && rights_.update);
}

void NCIPListScreen::Grid_SelChange() {
  if (grid_->Row() > 0) SelectRow(grid_->Row());
}

// --- The list in memory ---

void NCIPListScreen::cmdAdd_Click() {
  Run("cmdAdd_Click", [this] {
    QStringList cells;
    if (!CellsOnScreen(cells, false)) return;
    if (grid_->FindRow(cells.front(), Key) > 0) {
      Refuse(this, DuplicateText(cells.front()), MessageStyle::Stop, KeyBox());
      return;
    }
    SelectRow(grid_->AddRow(cells));
    list_.Touched();
  });
}

// Another row may hold the same key already; the write on closing then fails.
void NCIPListScreen::cmdUpdate_Click() {
  Run("cmdUpdate_Click", [this] {
    const int row = grid_->Row();
    if (grid_->Rows() <= 1 || row < 1) {
      Tell(this, "There are currently no rows to Update.", MessageStyle::Stop);
      return;
    }
    QStringList cells;
    if (!CellsOnScreen(cells, true)) return;
    for (int index = 0; index < cells.size(); ++index) grid_->SetText(row, Key + index, cells[index]);
    list_.Touched();
  });
}

void NCIPListScreen::cmdDelete_Click() {
  const int row = grid_->Row();
  if (row < 1) {
    Refuse(this, "Please select a row to delete.", MessageStyle::Stop, grid_);
    return;
  }
  grid_->RemoveRow(row);
  EmptyControls();
  list_.Touched();
}

void NCIPListScreen::cmdClear_Click() {
  if (!Confirm(this, "Are you sure you wish to clear the screen?")) return;
  EmptyControls();
  ResetControls();
}

// --- Closing ---

void NCIPListScreen::cmdClose_Click() {
  if (!mbListChanged()) {
    Unload();
    return;
  }
  StatementReport report;
  if (report.Try([&] { Rewrite().Run(*grid_, list_); })) {
    Tell(this, "Settings updated.", MessageStyle::Information);
    Unload();
    return;
  }
  gclsOF->WriteLog(objectName() + ".cmdClose_Click", report.ErrorText(), "L");
  gclsOF->WriteLog(report.ErrorText(), {}, "S");
  // The words are those of the status codes on both lists.
  Tell(this, "Unable to update the NCIP Status Codes.\n\n" + report.ErrorText(), MessageStyle::Stop);
}
