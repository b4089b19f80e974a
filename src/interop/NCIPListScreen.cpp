#include "interop/NCIPListScreen.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "interop/StatementReport.h"
#include "shell/Messages.h"
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

int NCIPListScreen::Tell(const QString& text, int style) {
  return ShowMessage(text, style, Caption(), {}, this);
}

bool NCIPListScreen::Refuse(const QString& text, QWidget* focus) {
  Tell(text, MessageStyle::Stop);
  focus->setFocus(Qt::OtherFocusReason);
  return false;
}

// --- Loading ---

void NCIPListScreen::Form_Load() {
  // Both lists log under the name of the first one.
  Procedure("frmNCIPStatusCodes.ReadOstanaInfo()", this)
      .OnFailure("An error has occurred loading the form.  Please Notify Support.")
      .Run([this] {
        grid_->Clear();
        cmdUpdate->setEnabled(false);
        ReadOstanaInfo();
        if (grid_->Rows() > 1) SelectRow(1);
        mbListChanged = false;
      });
  KeyBox()->setFocus(Qt::OtherFocusReason);
}

void NCIPListScreen::SelectRow(int row) {
  grid_->SetRowQuietly(row);
  ShowRow(row);
  cmdUpdate->setEnabled(true);
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
      Refuse(DuplicateText(cells.front()), KeyBox());
      return;
    }
    SelectRow(grid_->AddRow(cells));
    mbListChanged = true;
  });
}

// Another row may hold the same key already; the write on closing then fails.
void NCIPListScreen::cmdUpdate_Click() {
  Run("cmdUpdate_Click", [this] {
    const int row = grid_->Row();
    if (grid_->Rows() <= 1 || row < 1) {
      Tell("There are currently no rows to Update.", MessageStyle::Stop);
      return;
    }
    QStringList cells;
    if (!CellsOnScreen(cells, true)) return;
    for (int index = 0; index < cells.size(); ++index) grid_->SetText(row, Key + index, cells[index]);
    mbListChanged = true;
  });
}

void NCIPListScreen::cmdDelete_Click() {
  const int row = grid_->Row();
  if (row < 1) {
    Refuse("Please select a row to delete.", grid_);
    return;
  }
  grid_->RemoveRow(row);
  EmptyControls();
  mbListChanged = true;
}

void NCIPListScreen::cmdClear_Click() {
  if (Tell("Are you sure you wish to clear the screen?", MessageStyle::Question) != MessageAnswer::Yes) return;
  EmptyControls();
  ResetControls();
}

// --- Closing ---

void NCIPListScreen::cmdClose_Click() {
  if (!mbListChanged) {
    Unload();
    return;
  }
  StatementReport report;
  if (report.Try([&] { Rewrite().Run(*grid_, report); })) {
    Tell("Settings updated.", MessageStyle::Information);
    Unload();
    return;
  }
  gclsOF->WriteLog(objectName() + ".cmdClose_Click", report.ErrorText(), "L");
  gclsOF->WriteLog(report.ErrorText(), {}, "S");
  // The words are those of the status codes on both lists.
  Tell("Unable to update the NCIP Status Codes.\n\n" + report.ErrorText(), MessageStyle::Stop);
}
