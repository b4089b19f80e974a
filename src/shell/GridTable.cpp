#include "shell/GridTable.h"

#include "shell/GridSubject.h"

#include <algorithm>
#include <optional>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"
#include "platform/controls/Grid.h"

GridColumn Amount(const QString& heading, int width) {
  return {heading, width, false, true};
}

namespace {

const GridColumn Marker{"", 400};

const std::vector<GridLayout>& Layouts() {
  static const std::vector<GridLayout> layouts = {
      {"0",
       "grd0TableDesc",
       {{"", 200},
        {"", 1770},
        {"Description", 5000},
        {"Delivery Type", 1300},
        {"Web", 800},
        {"Library Symbol", 1600},
        {"Default", 900},
        {"Library Id", 0, true}}},
      {"1",
       "grd1CoverInfo",
       {{"", 200},
        {"Request Type ", 1770},
        {"Header", 2000},
        {"Footer", 2000},
        {"Message 1", 2500},
        {"Message 2", 2500},
        {"", 0, true},
        {"", 0, true}}},
      {"3", "grd3Printer", {Marker, {"Printer Name", 2000}, {"Device", 5620}}},
      {"4", "grd4AutoReject", {Marker, {"Reject Field", 2500}, {"Reject Type", 6000}, {"", 0, true}}},
      {"5 a",
       "grd5aTable",
       {Marker, {"Code", 1000}, {"Description", 7400}, {"Active", 1000}, {"Print", 1000}, {"Patron", 1000, true}}},
      {"5 b",
       "grd5bTable",
       {Marker, {"Code", 1000}, {"Description", 6500}, {"Active", 1000}, {"Print", 1000}, {"Patron", 1000}}},
      {"5 c", "grd5cTable", {Marker, {"Code", 1000}, {"Description", 8500}, {"Active", 1000}}},
      {"5 d",
       "grd5dTable",
       {Marker,
        {"Library Symbol", 1800},
        {"Code", 700},
        {"ILS Code", 1800},
        {"Delivery Code", 1500},
        {"Description", 4000}}},
      {"7 copyright", "grd7Table", {Marker, {"Code", 1000}, Amount("Surcharge", 2000), {"Description", 7520}}},
      {"7 delivery",
       "grd7Table",
       {Marker,
        {"Billing Rate", 5500},
        {"Delivery Method", 1500},
        Amount("Flat Fee", 750),
        Amount("Unit Size", 750),
        Amount("Free Exp.", 750),
        Amount("Per Exp.", 750)}},
      {"7 supply",
       "grd7Table",
       {Marker,
        {"Billing Rate", 4500},
        {"Document Supply", 2300},
        Amount("Flat Fee", 750),
        Amount("Unit Size", 750),
        Amount("Free Exp.", 750),
        Amount("Per Exp.", 750)}},
      {"7 output",
       "grd7Table",
       {Marker,
        {"Billing Rate", 5500},
        {"Output Format", 1500},
        Amount("Flat Fee", 750),
        Amount("Unit Size", 750),
        Amount("Free Exp.", 750),
        Amount("Per Exp.", 750)}},
      {"7 reject", "grd7Table", {Marker, {"Billing Rate", 6200}, {"Reject Type", 3000}, Amount("Surcharge", 500)}},
      {"7 service", "grd7Table", {Marker, {"Billing Rate", 6200}, {"Service Level", 3000}, Amount("Surcharge", 500)}},
      {"7 alias",
       "grd7Table",
       {Marker,
        {"", 0, true},
        {"Supplying Library", 2000},
        {"Supplying Unit", 2000},
        {"Requesting Library", 2000},
        {"New Billing Rate", 2000}}},
      // Headings stand over what the statements put there: the description in column 2, the override's letter in 3.
      {"7 billing rates",
       "grd7BillingRate",
       {Marker, {"Code", 1000}, {"Description", 7020}, {"Invoice Flag Override", 1800}}},
      {"8 exceptions",
       "grd8Table",
       {Marker, {"Code", 1000}, {"Type", 1000}, {"Description", 6000}, Amount("Service Charge", 1500)}},
      {"8 process",
       "grd8Document",
       {Marker,
        {"Type", 750},
        {"Process", 750},
        {"Message", 3000},
        {"Reroute", 1190},
        {"Delivery", 1260},
        {"Exception Note", 3500}}},
      {"8 group", "grd8dTable", {Marker, {"Exception", 3000}, {"Description", 6000}}},
      {"8 iso", "grd8ISO", {Marker, {"Code", 1000}, {"Description", 3020}, {"ISO Reject Code", 5000}}},
      {"9",
       "grd9RequestType",
       {Marker,
        {"Code", 600},
        {"Description", 4000},
        {"Library Symbol", 2500},
        {"Customer ID", 2500},
        {"Invoice Flag", 1000},
        {"", 0, true}}},
      {"10 a", "grd10aTable", {Marker, {"Code", 1000}, {"Description", 8020}}},
      {"10 b", "grd10bTable", {Marker, {"Code", 1000}, {"Description", 6000}, {"Display", 1000}}},
  };
  return layouts;
}

// SELECT of all columns, the form of every statement here that reads one table as it stands.
std::function<QString()> AllColumns(const QString& table, const QString& orderBy = {}) {
  return [table, orderBy] {
    return "SELECT   * FROM " + Sql::Table(table) + (orderBy.isEmpty() ? QString() : " ORDER BY " + orderBy);
  };
}

// Rows of the grids that one statement fills column by column. Tabs whose rows need more than one statement fill their
// grid themselves.
const std::vector<GridRows>& RowSources() {
  static const std::vector<GridRows> sources = {
      {"3", AllColumns("ID_PRINTER"), "***** SQL error on OSTANA.ID_PRINTER (Select) *****", {"PRINTER", "DEVICE"}},
      {"5 a",
       AllColumns("ID_DELIV_METHOD", "DELIV_METHOD"),
       "***** SQL error on OSTANA.ID_DELIV_METHOD (Select) *****",
       {"DELIV_METHOD", "DELIV_METHOD_DESC+", "ACTIVE_FLAG", "PRINT_FLAG", "WEB_FLAG"}},
      {"5 b",
       AllColumns("ID_MSG_METHOD", "MSG_METHOD"),
       "***** SQL error on OSTANA.ID_MSG_METHOD (Select) *****",
       {"MSG_METHOD", "MSG_METHOD_DESC+", "ACTIVE_FLAG", "PRINT_FLAG", "WEB_FLAG"}},
      {"5 c",
       AllColumns("ID_REQ_METHOD", "REQ_METHOD"),
       "***** SQL error on OSTANA.ID_REQ_METHOD (Select) *****",
       {"REQ_METHOD", "REQ_METHOD_DESC+", "ACTIVE_FLAG"}},
      {"7 billing rates",
       AllColumns("ID_BILLING_RATE", "BILLING_RATE"),
       "***** SQL error on OSTANA.ID_BILLING_RATE (Select) *****",
       {"BILLING_RATE", "BILLING_RATE_DESC+", "INVOICE_FLAG_OVR"}},
      {"8 exceptions",
       AllColumns("ID_EXCEPTION_CODE", "EXCEPTION_CODE "),
       "***** SQL error on OSTANA.ID_EXCEPTION_CODE (Select) *****",
       {"EXCEPTION_CODE", "EXCEPTION_TYPE", "EXCEPTION_CODE_DESC+", "SERVICE_CHARGE"}},
      {"8 process",
       AllColumns("ID_EXCEPTION_PROCESS", "PROCESS_TYPE, EXCEPTION_CODE"),
       "***** SQL error on OSTANA.ID_EXCEPTION_PROCESS (Select) *****",
       {"EXCEPTION_CODE", "PROCESS_TYPE", "MESSAGE", "REROUTE", "DELIVERY", "EXCEPTION_NOTE"}},
      {"10 a",
       AllColumns("ID_STAT_LOCATION", "STAT_LOCATION_DESC"),
       "***** SQL error on ID_STAT_LOCATION (Select) *****",
       {"STAT_LOCATION", "STAT_LOCATION_DESC+"}},
      {"10 b",
       AllColumns("ID_STAT_FUNCTION", "STAT_FUNCTION_DESC"),
       "***** SQL error on OSTANA.ID_STAT_FUNCTION (Select) *****",
       {"STAT_FUNCTION", "STAT_FUNCTION_DESC+", "STAT_FUNCTION_DISP"}},
  };
  return sources;
}

template <class Row>
const Row* FindKey(const std::vector<Row>& table, const QString& key) {
  const auto found = std::find_if(table.begin(), table.end(), [&](const Row& row) { return row.key == key; });
  return found == table.end() ? nullptr : &*found;
}

QString ColumnName(const QString& field) {
  return field.endsWith(QLatin1Char('+')) ? field.chopped(1) + gclsOF->LanguageSuffix() : field;
}

}  // namespace

const GridLayout* FindGridLayout(const QString& key) {
  return FindKey(Layouts(), key);
}
const GridRows* FindGridRows(const QString& key) {
  return FindKey(RowSources(), key);
}

void ShapeGrid(Grid& grid, const GridLayout& layout) {
  const SkipGridEvents skip;
  grid.Clear();
  grid.SetCols(static_cast<int>(layout.columns.size()));
  for (int col = 0; col < grid.Cols(); ++col) {
    const GridColumn& column = layout.columns[static_cast<size_t>(col)];
    grid.SetHeading(col, column.heading);
    grid.HideCol(col, column.hidden);
    grid.AlignRight(col, column.amount);
    if (column.width > 0) grid.SetColWidth(col, column.width);
  }
}

namespace {

// A load in one piece, ended on every path.
class GridLoad {
 public:
  GridLoad(Grid& grid, qint64 expected) : grid_(grid) {
    grid_.Clear();
    grid_.BeginLoad(static_cast<int>(expected));
  }
  ~GridLoad() { grid_.EndLoad(); }
  GridLoad(const GridLoad&) = delete;
  GridLoad& operator=(const GridLoad&) = delete;

 private:
  Grid& grid_;
};

}  // namespace

void FillGridFrom(Grid& grid, Recordset& rows, const std::vector<QString>& fields) {
  const SkipGridEvents skip;
  GridSubject::Set(grid, rows.Source, fields);
  std::vector<std::optional<Field>> columns;
  for (const QString& field : fields)
    columns.push_back(field.isEmpty() ? std::nullopt : std::optional<Field>(rows.Fields(field)));
  const GridLoad load(grid, rows.RecordCount());
  QStringList cells(static_cast<qsizetype>(columns.size()));
  for (; !rows.EOF_(); rows.MoveNext()) {
    for (size_t at = 0; at < columns.size(); ++at)
      if (columns[at]) cells[static_cast<qsizetype>(at)] = gclsOF->FieldValue(*columns[at]);
    grid.LoadRow(cells);
  }
}

void FillGrid(Grid& grid, const GridRows& rows) {
  std::vector<QString> names;
  for (const QString& field : rows.fields) names.push_back(ColumnName(field));
  grid.Clear();
  OpenRows(*grsTable, rows.statement(), rows.failureLine);
  FillGridFrom(grid, *grsTable, names);
  grsTable->Close();
}

void FillGrid(Grid& grid, const QString& statement, const QString& failureLine,
              const std::function<QStringList(Recordset&)>& cells) {
  const SkipGridEvents skip;
  grid.Clear();
  OpenRows(*grsTable, statement, failureLine);
  {
    const GridLoad load(grid, grsTable->RecordCount());
    for (; !grsTable->EOF_(); grsTable->MoveNext()) grid.LoadRow(cells(*grsTable));
  }
  grsTable->Close();
}
