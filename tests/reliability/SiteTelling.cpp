#include "reliability/SiteTelling.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "schema/SchemaModel.h"
#include "shell/Screen.h"

namespace {

// --- The rows ---

bool IsBound(const SchemaTable& table, const QString& column) {
  const auto holds = [&](const QStringList& key) { return key.contains(column); };
  return holds(table.primaryKey) || std::any_of(table.uniqueKeys.begin(), table.uniqueKeys.end(), holds) ||
         std::any_of(table.foreignKeys.begin(), table.foreignKeys.end(),
                     [&](const SchemaForeignKey& key) { return key.columns.contains(column); });
}

bool IsText(const SchemaColumn* column) {
  return column != nullptr && column->type == SchemaColumn::Text;
}

// Of a table of codes: rows whose letters a language orders otherwise than their numbers.
QStringList RowsOfLetters(const SchemaTable& table) {
  if (table.primaryKey.size() != 1 || !table.foreignKeys.empty() || table.name == u"ID_USER") return {};
  const SchemaColumn* const key = table.Find(table.primaryKey.front());
  if (!IsText(key)) return {};
  QStringList columns, values;
  for (const SchemaColumn& column : table.columns) {
    const bool text = column.type == SchemaColumn::Text && column.size >= 4;
    if (column.name == key->name || (!column.required && !(column.language && text))) continue;
    if (!text) return {};
    columns += column.name;
    values += "N'%1b'";
  }
  QStringList statements;
  for (const char* letter : {"é", "z", "Ä", "a", "ß"})
    statements += ("INSERT INTO " + table.name + " (" + (QStringList(key->name) + columns).join(", ") + ") VALUES (" +
                   (QStringList("N'%1'") + values).join(", ") + ')')
                      .arg(letter);
  return statements;
}

// Half of the rows without a value, a part of the others with the same.
QStringList TiesOf(const SchemaTable& table) {
  if (table.primaryKey.isEmpty()) return {};
  const SchemaColumn* const key = table.Find(table.primaryKey.front());
  QStringList statements;
  for (const SchemaColumn& column : table.columns) {
    const bool description = column.type == SchemaColumn::Text && column.language;
    const bool sequence = column.type == SchemaColumn::Integer && column.name.endsWith("_SEQ");
    if ((!description && !sequence) || IsBound(table, column.name)) continue;
    const QString first = IsText(key) ? key->name + " < N'F'" : key->name + " % 3 = 0";
    const QString last = IsText(key) ? key->name + " >= N'P'" : key->name + " % 3 = 1";
    if (!column.required) statements += "UPDATE " + table.name + " SET " + column.name + " = NULL WHERE " + first;
    statements +=
        "UPDATE " + table.name + " SET " + column.name + (description ? " = N'Same' WHERE " : " = 1 WHERE ") + last;
  }
  return statements;
}

// --- What is to be seen ---

QString LineOf(const QWidget& control) {
  if (const auto* label = qobject_cast<const QLabel*>(&control)) return label->text();
  if (const auto* box = qobject_cast<const QLineEdit*>(&control)) return box->text();
  if (const auto* memo = qobject_cast<const QPlainTextEdit*>(&control)) return memo->toPlainText();
  if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
    return button->text() + (button->isEnabled() ? "" : " (off)") + (button->isChecked() ? " (chosen)" : "");
  return {};
}

QStringList LinesOf(const CodeComboBox& list) {
  QStringList lines{"shows " + list.Text()};
  for (int i = 0; i < list.Count(); ++i) lines += list.TextAt(i) + " = " + list.CodeAt(i);
  return lines;
}

QStringList LinesOf(const Grid& grid) {
  QStringList lines{"row " + QString::number(grid.Row())};
  for (int row = 0; row < grid.Rows(); ++row) {
    QStringList cells;
    for (int col = 0; col < grid.Cols(); ++col) cells += grid.Text(row, col);
    lines += cells.join(" | ");
  }
  return lines;
}

QStringList LinesOf(QWidget& window) {
  QStringList lines{window.windowTitle()};
  for (const QWidget* control : window.findChildren<QWidget*>()) {
    const QString name = control->objectName();
    if (name.isEmpty() || name.startsWith("qt_")) continue;
    QStringList own{LineOf(*control)};
    if (const auto* list = qobject_cast<const CodeComboBox*>(control)) own = LinesOf(*list);
    if (const auto* grid = qobject_cast<const Grid*>(control)) own = LinesOf(*grid);
    for (const QString& line : own) lines += name + ": " + line;
  }
  return lines;
}

// --- The walk ---

class Site : public Walk {
 public:
  Site(SiteRows rows, RowsLie lie) : rows_(rows), lie_(lie) {}
  void TestBody() override {}

  SiteTelling Tell() {
    Walk::SetUp();
    Clock::Set([] { return QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)); });
    if (rows_ == SiteRows::Crowded) Crowd();
    if (lie_ == RowsLie::TheOtherWayRound) TurnRound();
    {
      Answers answers;
      ThroughAll([&](const QString& place, QWidget& window) { Take(place, answers, window); });
      Search("frmLibraryRegistration", "txtLibrarySymbol", "de-%", answers);
      Search("frmLibraryRegistration", "txtLibrarySymbol", "%É%", answers);
      for (const char* words : {"UNIVERSITÉ", "ü", "straße", "e", "STADT"})
        Search("frmLibrarySearch", "txtInstitution", words, answers);
      Open("frmLibrarySequence");
      Click("cmdSequence");
      Take("stored sequence", answers, *Window());
      telling_.stored = ContentsOf(Database().OtherClient());
      Window()->close();
    }
    Walk::TearDown();
    return std::move(telling_);
  }

 private:
  void Crowd() {
    for (const SchemaTable& table : SchemaModel::Get().tables) {
      for (const QString& statement : RowsOfLetters(table) + TiesOf(table)) Another(statement);
    }
    const QString library = Ask("SELECT MIN(LIBRARY_ID) FROM ID_SUPPLIER");
    Another("UPDATE ID_LIBRARY SET INSTITUTION_NAME = N'Université X' WHERE LIBRARY_ID = " + library);
    Another("UPDATE ID_LIBRARY SET INSTITUTION_NAME = N'UNIVERSITE Straße' WHERE LIBRARY_ID = " + library + " + 1");
    Another("UPDATE ID_LIBRARY SET LIBRARY = NULL WHERE LIBRARY_ID = " + library + " + 2");
    Another("UPDATE ID_LIBRARY SET LIBRARY_SYMBOL = N'éx' WHERE LIBRARY_ID = " + library + " + 3");
  }

  void TurnRound() {
    Another("PRAGMA foreign_keys=OFF");
    for (const SchemaTable& table : SchemaModel::Get().tables) {
      Another("CREATE TEMP TABLE turned AS SELECT * FROM " + table.name + " ORDER BY rowid DESC");
      Another("DELETE FROM " + table.name);
      Another("INSERT INTO " + table.name + " SELECT * FROM turned ORDER BY rowid");
      Another("DROP TABLE turned");
    }
  }

  void Take(const QString& place, Answers& answers, QWidget& window) {
    QStringList& lines = telling_.places[place];
    lines = LinesOf(window);
    // The one thing that is meant to differ: where the site is.
    for (QString& line : lines) line.replace(Database().Settings().name, "DATABASE").replace(Folder(), "FOLDER");
    for (const Answers::Said& said : answers.All()) lines += "said: " + said.text;
    answers.Forget();
  }

  void Search(const QString& form, const QString& box, const QString& words, Answers& answers) {
    gclsOF->SetLibraryId(0);
    gclsOF->SetCallingFunction("Library Registration");
    Open(form);
    Type(box, words);
    Click("cmdSearch");
    Take(form + " for " + words, answers, *Window());
    gbRecordModified = false;
  }

  SiteRows rows_;
  RowsLie lie_;
  SiteTelling telling_;
};

}  // namespace

SiteTelling TellSite(SiteRows rows, RowsLie lie) {
  return Site(rows, lie).Tell();
}
