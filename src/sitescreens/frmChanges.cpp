#include "sitescreens/frmChanges.h"

#include <QMenu>
#include <algorithm>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/controls/GridExport.h"
#include "schema/History.h"
#include "shell/Editing.h"
#include "shell/GridSubject.h"
#include "shell/Messages.h"
#include "shell/Procedure.h"
#include "site/FormerState.h"
#include "site/SiteWords.h"
#include "site/Undo.h"

namespace {

// The record that the next window opens on.
struct RecordToShow {
  QString table;
  QString key;
};
std::optional<RecordToShow> recordToShow;

const QString Marked = QStringLiteral("*");

struct Heading {
  const char* caption;
  int twips = 900;
};

void Shape(Grid& grid, const std::vector<Heading>& headings) {
  grid.SetCols(int(headings.size()) + 1);
  grid.SetColWidth(0, 195);
  for (size_t i = 0; i < headings.size(); ++i) {
    grid.SetHeading(int(i) + 1, headings[i].caption);
    grid.SetColWidth(int(i) + 1, headings[i].twips);
  }
}

}  // namespace

frmChanges::frmChanges(QWidget* parent) : Screen("frmChanges", "Ostana - Changes", parent) {
  BuildControls();
  ConnectControls();
}

frmChanges::~frmChanges() = default;

void frmChanges::ShowRecord(const QString& table, const QString& key, QWidget* owner) {
  recordToShow = RecordToShow{table, key};
  frmChanges screen(owner);
  screen.ShowModal();
}

void frmChanges::AddEntry(Grid& grid, QMenu& menu) {
  const SchemaTable* const table = SchemaModel::Get().Find(GridSubject::Table(grid));
  bool recorded = false;
  Procedure::Try([&] { recorded = table && History::IsRecorded(*table) && gclsOF->Connection().HasHistory(); });
  if (!recorded) return;
  const auto key = GridSubject::Key(grid, grid.Row());
  menu.addSeparator();
  QAction* const entry = menu.addAction("C&hanges of this record...", &grid, [&grid, table, key] {
    Procedure("frmChanges.ChangesOfRecord", &grid).Run([&] {
      ShowRecord(table->name, History::KeyText(*key), grid.window());
    });
  });
  entry->setEnabled(key.has_value());
}

void frmChanges::BuildControls() {
  constexpr int LongestMoment = 23, LongestUser = 100, LongestText = 100;
  txtFrom = new TextBox(this, "txtFrom", LongestMoment);
  txtTo = new TextBox(this, "txtTo", LongestMoment);
  txtUser = new TextBox(this, "txtUser", LongestUser);
  txtText = new TextBox(this, "txtText", LongestText);
  cmbTable = new CodeComboBox(this, "cmbTable");
  for (TextBox* const moment : {txtFrom, txtTo}) moment->setPlaceholderText("yyyy-mm-dd hh:mm");
  cmdShow = Form::Button(this, "cmdShow", "&Show");
  cmdShow->setDefault(true);
  cmdAllRecords = Form::Button(this, "cmdAllRecords", "&All Records");
  cmdOlder = Form::Button(this, "cmdOlder", "&Older");
  cmdMark = Form::Button(this, "cmdMark", "&Mark");
  cmdUndo = Form::Button(this, "cmdUndo", "&Undo...");
  cmdSave = Form::Button(this, "cmdSave", "Save as CS&V...");
  cmdClose = Form::Button(this, "cmdClose", "&Close");
  lblRecord = Form::Label(this, "lblRecord", {});
  lblChanges = Form::Label(this, "lblChanges", {});
  grdTransactions = new Grid(this, "grdTransactions");
  grdChanges = new Grid(this, "grdChanges");
  Shape(*grdTransactions,
        {{"Number", 900}, {"Moment (UTC)", 2400}, {"User", 1500}, {"Program", 1500}, {"Changed", 4000}});
  Shape(*grdChanges, {{"Table", 2000}, {"Record", 2500}, {"Column", 2000}, {"Before", 2500}, {"After", 2500}});
  grdTransactions->setAccessibleName("Transactions");
  grdChanges->setAccessibleName("What the transaction changed");

  auto* const filters = new QWidget(this);
  Form::Rows rows(filters);
  rows.Add("lblFrom", "&From (UTC):", txtFrom);
  rows.Beside("lblTo", "&To (UTC):", txtTo);
  rows.Add("lblUser", "Us&er:", txtUser);
  rows.Beside("lblTable", "Ta&ble:", cmbTable);
  rows.Add("lblText", "Te&xt:", txtText, cmdShow);
  auto* const column = Form::Column(this, {filters, lblRecord});
  column->addWidget(grdTransactions, 3);
  column->addWidget(lblChanges);
  column->addWidget(grdChanges, 2);
  column->addLayout(Form::ButtonRow({cmdAllRecords, cmdOlder, cmdMark, nullptr, cmdUndo, cmdSave, cmdClose}));
}

void frmChanges::ConnectControls() {
  connect(cmdShow, &QPushButton::clicked, this, &frmChanges::cmdShow_Click);
  connect(cmdAllRecords, &QPushButton::clicked, this, &frmChanges::cmdAllRecords_Click);
  connect(cmdOlder, &QPushButton::clicked, this, &frmChanges::cmdOlder_Click);
  connect(cmdMark, &QPushButton::clicked, this, &frmChanges::cmdMark_Click);
  connect(cmdUndo, &QPushButton::clicked, this, &frmChanges::cmdUndo_Click);
  connect(cmdSave, &QPushButton::clicked, this, &frmChanges::cmdSave_Click);
  connect(cmdClose, &QPushButton::clicked, this, [this] { Unload(); });
  connect(grdTransactions, &Grid::SelChange, this, &frmChanges::grdTransactions_SelChange);
}

void frmChanges::Form_Load() {
  Procedure("frmChanges.Form_Load", this).Run([this] {
    Connection& connection = gclsOF->Connection();
    words_ = std::make_unique<SiteWords>(connection);
    FillTables();
    if (recordToShow) {
      filter_.tables = QStringList{recordToShow->table};
      filter_.key = recordToShow->key;
      cmbTable->SetCode(recordToShow->table);
      recordToShow.reset();
    }
    if (connection.HasHistory()) {
      ShowFirst();
      return;
    }
    lblRecord->setText(
        "This site does not record changes. An administrator switches it on with tabulon-db history on.");
    for (QWidget* const control :
         std::initializer_list<QWidget*>{cmdShow, cmdAllRecords, cmdOlder, cmdMark, cmdUndo, cmdSave})
      control->setEnabled(false);
  });
}

void frmChanges::FillTables() {
  cmbTable->AddNone("(all)");
  std::vector<std::pair<QString, QString>> tables;
  for (const SchemaTable* table : History::Tables()) tables.emplace_back(SiteWords::Table(*table), table->name);
  std::sort(tables.begin(), tables.end(),
            [](const auto& one, const auto& other) { return one.first.localeAwareCompare(other.first) < 0; });
  for (const auto& [words, name] : tables) cmbTable->Add(words, name);
  cmbTable->SetIndex(0);
}

// --- Looking ---

bool frmChanges::ReadFilter() {
  for (TextBox* const box : {txtFrom, txtTo})
    if (!box->TrimInPlace().isEmpty() && !FormerState::Moment(box->Text()))
      return Refuse(this, "The moment is not valid.  It is written as 2024-01-31 or 2024-01-31 17:00.",
                    MessageStyle::Warning, box);
  filter_.from = txtFrom->Text();
  filter_.to = txtTo->Text();
  filter_.user = txtUser->TrimInPlace();
  filter_.text = txtText->TrimInPlace();
  const QString table = cmbTable->Code();
  // A record is one of its table.
  if (filter_.key && !filter_.tables.contains(table)) filter_.key.reset();
  filter_.tables = table.isNull() ? QStringList() : QStringList{table};
  return true;
}

void frmChanges::ShowFirst() {
  filter_.before = 0;
  shown_.clear();
  grdTransactions->Clear();
  grdChanges->Clear();
  lblChanges->clear();
  lblRecord->setVisible(filter_.key.has_value());
  cmdAllRecords->setEnabled(filter_.key.has_value());
  if (filter_.key) {
    const SchemaTable& table = *SchemaModel::Get().Find(filter_.tables.front());
    lblRecord->setText("Record: " + SiteWords::Table(table) + ", " + words_->Row(table, *filter_.key));
  }
  Append(HistoryList::Read(gclsOF->Connection(), filter_));
  if (grdTransactions->Rows() > 1) grdTransactions->SetRow(1);
}

void frmChanges::Append(std::vector<HistoryTransaction> transactions) {
  cmdOlder->setEnabled(int(transactions.size()) == filter_.most);
  for (HistoryTransaction& transaction : transactions) {
    grdTransactions->AddRow({QString::number(transaction.id), transaction.moment, transaction.user, transaction.program,
                             Summary(transaction)});
    shown_.push_back(std::move(transaction));
  }
  cmdUndo->setEnabled(!shown_.empty());
  cmdMark->setEnabled(!shown_.empty());
  cmdSave->setEnabled(!shown_.empty());
}

QString frmChanges::Summary(const HistoryTransaction& transaction) {
  QStringList tables;
  for (const HistoryChange& change : transaction.changes)
    if (const QString table = SiteWords::Table(*change.table); !tables.contains(table)) tables += table;
  const qsizetype rows = qsizetype(transaction.changes.size());
  return tables.join(", ") + (rows > 1 ? QStringLiteral(" (%1 rows)").arg(rows) : QString());
}

std::vector<QStringList> frmChanges::RowsOf(const HistoryChange& change) {
  const QString table = SiteWords::Table(*change.table), record = words_->Row(*change.table, change.key);
  // A row that went shows what it held, one that came what it holds.
  HistoryValues columns = change.before;
  columns.insert(change.after.begin(), change.after.end());
  const auto value = [&](const HistoryValues& values, const QString& name) {
    const auto found = values.find(name);
    return found == values.end() ? QString() : words_->Value(*change.table, name, found->second);
  };
  static const QStringList kinds{"added", {}, "removed"};
  std::vector<QStringList> rows;
  for (const auto& [name, unused] : columns)
    rows.push_back(
        {table, record, SiteWords::Column(*change.table, name), value(change.before, name), value(change.after, name)});
  if (rows.empty()) rows.push_back({table, record, {}, {}, {}});
  if (!kinds[change.kind].isEmpty()) rows.front()[1] += " (" + kinds[change.kind] + ')';
  return rows;
}

const HistoryTransaction* frmChanges::Chosen() const {
  const int number = grdTransactions->Text(grdTransactions->Row(), Number).toInt();
  const auto found =
      std::find_if(shown_.begin(), shown_.end(), [&](const HistoryTransaction& each) { return each.id == number; });
  return grdTransactions->Row() == 0 || found == shown_.end() ? nullptr : &*found;
}

void frmChanges::grdTransactions_SelChange() {
  Procedure("frmChanges.grdTransactions_SelChange", this).Run([this] {
    grdChanges->Clear();
    lblChanges->clear();
    const HistoryTransaction* const transaction = Chosen();
    if (!transaction) return;
    for (const HistoryChange& change : transaction->changes)
      for (const QStringList& row : RowsOf(change)) grdChanges->AddRow(row);
  });
}

void frmChanges::cmdShow_Click() {
  Procedure("frmChanges.cmdShow_Click", this).Run([this] {
    if (ReadFilter()) ShowFirst();
  });
}

void frmChanges::cmdAllRecords_Click() {
  Procedure("frmChanges.cmdAllRecords_Click", this).Run([this] {
    filter_.key.reset();
    filter_.tables.clear();
    cmbTable->SetIndex(0);
    if (ReadFilter()) ShowFirst();
  });
}

void frmChanges::cmdOlder_Click() {
  Procedure("frmChanges.cmdOlder_Click", this).Run([this] {
    if (shown_.empty()) return;
    filter_.before = shown_.back().id;
    Append(HistoryList::Read(gclsOF->Connection(), filter_));
  });
}

void frmChanges::cmdSave_Click() {
  Procedure("frmChanges.cmdSave_Click", this).Run([this] {
    Grid all(nullptr, "grdAllChanges");
    Shape(all, {{"Number"},
                {"Moment (UTC)"},
                {"User"},
                {"Program"},
                {"Table"},
                {"Record"},
                {"Column"},
                {"Before"},
                {"After"}});
    for (const HistoryTransaction& transaction : shown_)
      for (const HistoryChange& change : transaction.changes)
        for (const QStringList& row : RowsOf(change))
          all.AddRow(
              QStringList{QString::number(transaction.id), transaction.moment, transaction.user, transaction.program} +
              row);
    GridExport::AskAndSaveCsv(all);
  });
}

// --- Undoing ---

void frmChanges::cmdMark_Click() {
  const int row = grdTransactions->Row();
  if (row == 0) return;
  grdTransactions->SetText(row, TransactionMarker,
                           grdTransactions->Text(row, TransactionMarker).isEmpty() ? Marked : QString());
}

// The marked transactions; without any, the one in hand.
std::vector<int> frmChanges::ToBeUndone() const {
  std::vector<int> ids;
  for (int row = 1; row < grdTransactions->Rows(); ++row)
    if (!grdTransactions->Text(row, TransactionMarker).isEmpty())
      ids.push_back(grdTransactions->Text(row, Number).toInt());
  if (const HistoryTransaction* const chosen = Chosen(); ids.empty() && chosen) ids.push_back(chosen->id);
  return ids;
}

void frmChanges::ShowPlan(const Undo& undo) {
  grdChanges->Clear();
  lblChanges->setText("What would be written:");
  for (const HistoryChange& change : undo.AsChanges())
    for (const QStringList& row : RowsOf(change)) grdChanges->AddRow(row);
}

bool frmChanges::MayWrite(const Undo& undo) {
  const FunctionRights& rights = gclsOF->Rights();
  for (const HistoryChange& change : undo.AsChanges()) {
    const bool may = change.kind == HistoryChange::Added     ? rights.add
                     : change.kind == HistoryChange::Changed ? rights.update
                                                             : rights.remove;
    if (may && change.table->name != u"ID_USER_FUNCTION") continue;
    Tell(this, Texts::NoAccess, MessageStyle::Stop);
    return false;
  }
  return true;
}

void frmChanges::cmdUndo_Click() {
  Procedure("frmChanges.cmdUndo_Click", this)
      .OnFailure([](const AdoError& error) { return error.Description() + "\nNothing was changed."; })
      .Run([this] {
        const std::vector<int> ids = ToBeUndone();
        if (ids.empty()) return;
        bool keepSecrets = false;
        if (!MayBeUndone(ids, keepSecrets)) return;
        const Undo plan(gclsOF->Connection(), ids, keepSecrets);
        ShowPlan(plan);
        if (!MayWrite(plan) ||
            !Confirm(
                this,
                QStringLiteral("%1 rows would be written as the list shows.\n\nUndo the changes?").arg(plan.Rows())))
          return grdTransactions_SelChange();
        Write(ids, keepSecrets, plan.Lines());
        filter_.before = 0;
        ShowFirst();
      });
}

// Asks whether the rest is wanted where passwords and card data cannot come back.
bool frmChanges::MayBeUndone(const std::vector<int>& ids, bool& keepSecrets) {
  const Undo undo(gclsOF->Connection(), ids, false);
  if (undo.Refusals().isEmpty()) return true;
  const Undo rest(gclsOF->Connection(), ids, true);
  if (!rest.Refusals().isEmpty()) {
    Tell(this, rest.Refusals().join('\n'), MessageStyle::Warning);
    return false;
  }
  keepSecrets = Confirm(this, undo.Refusals().join('\n') + "\n\nUndo the rest?");
  return keepSecrets;
}

void frmChanges::Write(const std::vector<int>& ids, bool keepSecrets, const QStringList& planned) {
  Transaction transaction(gclsOF->Connection());
  Undo undo(gclsOF->Connection(), ids, keepSecrets);
  // Somebody else can have changed them while the question stood.
  if (!undo.Refusals().isEmpty() || undo.Lines() != planned)
    throw AdoError(
        AdoNumber::RowChanged,
        undo.Refusals().isEmpty() ? QStringLiteral("The rows have changed meanwhile.") : undo.Refusals().join('\n'),
        "frmChanges.Write");
  undo.Run();
  transaction.Commit();
}
