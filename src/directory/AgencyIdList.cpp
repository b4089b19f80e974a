#include "directory/AgencyIdList.h"

#include <QApplication>
#include <QHBoxLayout>

#include "core/SqlText.h"
#include "platform/controls/FormLayout.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"

namespace {

constexpr int LongestAgencyId = 20;
// The number that the grid keeps beside a row tells whether it belongs to the list yet.
constexpr qint64 Saved = 0, New = 1;
const QString Failed = "An error occurred. Please Notify Support.";

}  // namespace

AgencyIdList::AgencyIdList(QWidget* parent, const Facts& facts, int columns)
    : QGroupBox(facts.caption, parent),
      grid_(new Grid(this, facts.grid, columns)),
      facts_(facts),
      cmdAdd_(Form::Button(this, facts.add, "Add")),
      cmdDelete_(Form::Button(this, facts.remove, "Delete")),
      fraNew_(new QWidget(this)),
      cmdSave_(Form::Button(fraNew_, facts.save, "Save")),
      cmdCancel_(Form::Button(fraNew_, facts.cancel, "Cancel")) {
  setObjectName(facts.frame);
  fraNew_->setObjectName(facts.newFrame);
  BuildControls();
  connect(cmdAdd_, &QPushButton::clicked, this, &AgencyIdList::Add_Click);
  connect(cmdDelete_, &QPushButton::clicked, this, &AgencyIdList::Delete_Click);
  connect(cmdSave_, &QPushButton::clicked, this, &AgencyIdList::Save_Click);
  connect(cmdCancel_, &QPushButton::clicked, this, &AgencyIdList::Cancel_Click);
  connect(grid_, &Grid::AfterEdit, this, &AgencyIdList::AfterEdit);
}

void AgencyIdList::BuildControls() {
  constexpr int LeastHeight = 84;  // pixels: the heading and two rows
  grid_->setAccessibleName(facts_.caption);
  grid_->SetColWidth(0, 255);
  grid_->setMinimumHeight(LeastHeight);
  auto* const row = new QHBoxLayout(fraNew_);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(cmdSave_);
  row->addWidget(cmdCancel_);
  QVBoxLayout* const column = Form::Column(this, {grid_});
  column->addLayout(Form::ButtonRow({cmdAdd_, cmdDelete_, nullptr}));
  column->addWidget(fraNew_, 0, Qt::AlignLeft);
  ShowNewRow(false);
}

void AgencyIdList::Run(const QWidget* button, const QString& failed, const std::function<void()>& body) {
  Procedure(window()->objectName() + "." + button->objectName() + "_Click", this).OnFailure(failed).Run(body);
}

// --- Rows ---

void AgencyIdList::Clear() {
  copy_.reset();
  grid_->Clear();
  ShowNewRow(false);
}

void AgencyIdList::Show(const Content& content) {
  Clear();
  for (const QStringList& row : content.rows) grid_->AddRow(row);
  copy_ = content.copy;
}

// Both statements go under the failure line of the first. The inserts are one text.
void AgencyIdList::Write(qint32 libraryId) const {
  QString inserts;
  const std::vector<int> rows = SavedRows();
  for (const int row : rows) inserts += "INSERT INTO " + Sql::Table(Table()) + " " + RowValues(row, libraryId) + "; ";
  gstrErrorMessage = "***** SQL error on " + Table() + " (Delete) *****";
  copy_.value().Replace([&] {
    Connection& connection = gclsOF->Connection();
    connection.Execute("DELETE FROM " + Sql::Table(Table()) + " WHERE LIBRARY_ID= " + Sql::Number(libraryId));
    if (!rows.empty()) connection.Execute(inserts, static_cast<int>(rows.size()));
  });
  gstrErrorMessage.clear();
}

QString AgencyIdList::SelectFailed(const QString& table) {
  return "***** SQL error on " + table + " (Select) *****";
}

std::vector<int> AgencyIdList::SavedRows() const {
  std::vector<int> rows;
  for (int row = 1; row < grid_->Rows(); ++row)
    if (grid_->RowData(row) == Saved) rows.push_back(row);
  return rows;
}

int AgencyIdList::SavedRowWith(const QString& text, int col, int except) const {
  for (const int row : SavedRows())
    if (row != except && grid_->Text(row, col) == text) return row;
  return 0;
}

int AgencyIdList::NewRow() const {
  for (int row = 1; row < grid_->Rows(); ++row)
    if (grid_->RowData(row) == New) return row;
  return 0;
}

void AgencyIdList::ShowNewRow(bool shown) {
  cmdAdd_->setEnabled(!shown);
  cmdDelete_->setEnabled(!shown);
  fraNew_->setVisible(shown);
}

// --- Tests ---

QString AgencyIdList::LengthRefusal(const QString& id) {
  if (!id.isEmpty() && id.size() <= LongestAgencyId) return {};
  return "The Agency Id entered is not valid. The Agency Id must be between 1 and 20 characters in length.";
}

void AgencyIdList::Refuse(const QString& text, int row, int col) {
  ::Refuse(this, text, MessageStyle::Warning, grid_);
  grid_->EditCell(row, col);
}

void AgencyIdList::CellEdited(int row, int col) {
  grid_->SetText(row, col, grid_->Text(row, col).trimmed());
}

// --- Buttons ---

void AgencyIdList::Add_Click() {
  Run(cmdAdd_, facts_.addFailed, [this] {
    const int row = grid_->AddRow({});
    grid_->SetRowData(row, New);
    ShowNewRow(true);
    grid_->setFocus(Qt::OtherFocusReason);
    grid_->EditCell(row, 1);
  });
}

void AgencyIdList::Delete_Click() {
  Run(cmdDelete_, Failed, [this] {
    if (grid_->Row() == 0) return;
    grid_->RemoveRow(grid_->Row());
    Q_EMIT Changed();
  });
}

void AgencyIdList::Save_Click() {
  Run(cmdSave_, facts_.saveFailed, [this] {
    // An editor that is still open, as after a press of the key, hands its text over first.
    cmdSave_->setFocus(Qt::OtherFocusReason);
    const int row = NewRow();
    for (const Rule& rule : rules_) {
      const QString refusal = rule.refusal(row);
      if (!refusal.isEmpty()) return Refuse(refusal, row, rule.col);
    }
    grid_->SetRowData(row, Saved);
    ShowNewRow(false);
    cmdAdd_->setFocus(Qt::OtherFocusReason);
    Q_EMIT Changed();
  });
}

void AgencyIdList::Cancel_Click() {
  Run(cmdCancel_, Failed, [this] {
    cmdCancel_->setFocus(Qt::OtherFocusReason);
    grid_->RemoveRow(NewRow());
    ShowNewRow(false);
    cmdAdd_->setFocus(Qt::OtherFocusReason);
  });
}

// A text that was refused, or could not be tested, does not stay in its cell.
void AgencyIdList::AfterEdit(int row, int col, const QString& old) {
  QStringList before;
  for (int cell = 0; cell < grid_->Cols(); ++cell) before.append(cell == col ? old : grid_->Text(row, cell));
  const auto putBack = [&] {
    for (int cell = 0; cell < grid_->Cols(); ++cell) grid_->SetText(row, cell, before[cell]);
  };
  Procedure(window()->objectName() + "." + facts_.grid + "_AfterEdit", this)
      .OnFailure(Failed)
      .Finally(putBack)
      .Run([&] {
        CellEdited(row, col);
        // The buttons of a new row test for themselves, or drop the row.
        const bool isNew = grid_->RowData(row) == New;
        if (isNew && fraNew_->isAncestorOf(QApplication::focusWidget())) return;
        for (const Rule& rule : rules_) {
          if (rule.col != col) continue;
          const QString refusal = rule.refusal(row);
          if (refusal.isEmpty()) continue;
          putBack();
          return Refuse(refusal, row, col);
        }
        if (!isNew) Q_EMIT Changed();
      });
}
