#include "platform/ado/Recordset.h"

#include <QHash>
#include <QSqlField>
#include <QSqlRecord>
#include <QVariant>
#include <map>

#include "platform/ado/ConnectionPrivate.h"
#include "platform/ado/DriverValues.h"
#include "platform/ado/RowStore.h"
#include "platform/ado/StatementWords.h"

namespace {

const QString OpenSource = QStringLiteral("Recordset.Open");
const QString UpdateSource = QStringLiteral("Recordset.Update");

bool IsNumber(const QString& text) {
  bool number = false;
  text.toDouble(&number);
  return number && text.trimmed() == text && !text.contains(u'n', Qt::CaseInsensitive);  // not "nan", "inf"
}

}  // namespace

struct Recordset::Private {
  Connection* connection = nullptr;  // null while closed
  QStringList tables;                // of the source
  std::vector<QString> names;        // upper case
  std::vector<int> driverTypes;
  QHash<QString, int> positions;
  RowStore rows;
  size_t current = 0;
  std::map<int, QString> pending;     // values set and not yet written, by position
  std::vector<ColumnInfo> catalogue;  // by position, read when first asked for

  void CheckOpen(const QString& source) const;
  void CheckRow(const QString& source) const;
  void TakeShape(const QSqlRecord& record);
  const ColumnInfo& Info(int index);
  ColumnInfo FindInfo(int index) const;
  void ReadRows(QSqlQuery& query);
  std::vector<ColumnInfo> ShapesOfEmbeddedEngine();
  QString Value(int index) const;
  QString Literal(int index, const QString& value);
  QString UpdateText();
};

void Recordset::Private::CheckOpen(const QString& source) const {
  if (!connection) throw AdoError(AdoNumber::ObjectClosed, QStringLiteral("The recordset is closed."), source);
}

void Recordset::Private::CheckRow(const QString& source) const {
  CheckOpen(source);
  if (current >= rows.Count()) {
    throw AdoError(AdoNumber::NoCurrentRow, QStringLiteral("The recordset has no current row."), source);
  }
}

void Recordset::Private::TakeShape(const QSqlRecord& record) {
  for (int i = 0; i < record.count(); ++i) {
    names.push_back(record.fieldName(i).toUpper());
    driverTypes.push_back(TypeOfDriver(record.field(i).metaType()));
    if (!positions.contains(names.back())) positions.insert(names.back(), i);
  }
}

ColumnInfo Recordset::Private::FindInfo(int index) const {
  for (const QString& table : tables) {
    for (const ColumnInfo& column : connection->Columns(table)) {
      if (column.name == names[size_t(index)]) return column;
    }
  }
  ColumnInfo unknown;
  unknown.name = names[size_t(index)];
  unknown.type = driverTypes[size_t(index)];
  return unknown;
}

const ColumnInfo& Recordset::Private::Info(int index) {
  CheckOpen(QStringLiteral("Field"));
  if (catalogue.empty()) {
    std::vector<ColumnInfo> found;
    for (int i = 0; i < int(names.size()); ++i) found.push_back(FindInfo(i));
    catalogue = std::move(found);
  }
  return catalogue[size_t(index)];
}

// The servers give every value in the shape of its column. SQLite keeps 1.50 as a binary number and a moment in a DATE
// column as it was written, so that its catalogue must tell what to read.
std::vector<ColumnInfo> Recordset::Private::ShapesOfEmbeddedEngine() {
  std::vector<ColumnInfo> shapes(names.size());
  if (connection->dialect().engine() != Engine::Sqlite) return shapes;
  for (size_t i = 0; i < names.size(); ++i) shapes[i] = Info(int(i));
  return shapes;
}

void Recordset::Private::ReadRows(QSqlQuery& query) {
  const int count = int(names.size());
  const std::vector<ColumnInfo> shapes = ShapesOfEmbeddedEngine();
  rows = RowStore(count);
  std::vector<QString> cells(names.size());
  while (query.next()) {
    for (int i = 0; i < count; ++i) cells[size_t(i)] = TextOf(query.value(i), shapes[size_t(i)]);
    rows.Add(cells);
  }
}

QString Recordset::Private::Value(int index) const {
  const auto changed = pending.find(index);
  return changed != pending.end() ? changed->second : rows.Text(current, index);
}

QString Recordset::Private::Literal(int index, const QString& value) {
  if (value.isNull()) return QStringLiteral("NULL");
  const QString quoted = u'\'' + connection->dialect().Escape(value) + u'\'';
  const int type = Info(index).type;
  if (type == AdoType::Integer || type == AdoType::Numeric) return IsNumber(value) ? value : quoted;
  return type == AdoType::Date || type == AdoType::TimeStamp ? quoted : u'N' + quoted;
}

QString Recordset::Private::UpdateText() {
  QString changes;
  for (const auto& [index, value] : pending) {
    changes += (changes.isEmpty() ? QLatin1String() : QLatin1String(", ")) + names[size_t(index)] +
               QLatin1String(" = ") + Literal(index, value);
  }
  QString unchanged;
  for (int i = 0; i < int(names.size()); ++i) {
    const QString before = rows.Text(current, i);
    unchanged += (unchanged.isEmpty() ? QLatin1String(" WHERE ") : QLatin1String(" AND ")) + names[size_t(i)] +
                 (before.isNull() ? QStringLiteral(" IS NULL") : QLatin1String(" = ") + Literal(i, before));
  }
  return QLatin1String("UPDATE ") + connection->Settings().ownerPrefix + tables.front() + QLatin1String(" SET ") +
         changes + unchanged;
}

// --- Field ---

const QString& Field::Name() const {
  return owner_->d_->names[size_t(index_)];
}

QString Field::Value() const {
  owner_->d_->CheckRow(QStringLiteral("Field.Value"));
  return owner_->d_->Value(index_);
}

bool Field::IsNull() const {
  return Value().isNull();
}

int Field::Type() const {
  return owner_->d_->Info(index_).type;
}

int Field::DefinedSize() const {
  return owner_->d_->Info(index_).definedSize;
}

// --- Recordset ---

Recordset::Recordset() : d_(std::make_unique<Private>()) {}

Recordset::~Recordset() = default;

void Recordset::Open(Connection& connection, const QString& source) {
  Source = source;
  Open(connection);
}

void Recordset::Open(Connection& connection) {
  Close();
  Connection::Private& session = *connection.d_;
  auto opened = std::make_unique<Private>();
  session.Observed(Source, 1, OpenSource, [&]() -> qint64 {
    if (!StatementWords::IsSelect(Source)) {
      throw AdoError(AdoNumber::TextRefused, QStringLiteral("The source of a recordset must be a SELECT."), OpenSource);
    }
    opened->connection = &connection;
    opened->tables = StatementWords::TablesOfSelect(Source);
    QSqlQuery query = session.session.Run(StatementWords::WithTop(Source, MaxRecords), OpenSource);
    opened->TakeShape(Session::Shape(query));
    opened->ReadRows(query);
    session.session.CheckEnd(query, OpenSource);
    return -1;
  });
  d_ = std::move(opened);
}

void Recordset::Close() {
  d_ = std::make_unique<Private>();
}

bool Recordset::IsOpen() const {
  return d_->connection != nullptr;
}

bool Recordset::EOF_() const {
  d_->CheckOpen(QStringLiteral("Recordset.EOF"));
  return d_->current >= d_->rows.Count();
}

void Recordset::MoveFirst() {
  d_->CheckOpen(QStringLiteral("Recordset.MoveFirst"));
  Update();
  d_->current = 0;
}

void Recordset::MoveLast() {
  d_->CheckOpen(QStringLiteral("Recordset.MoveLast"));
  Update();
  d_->current = d_->rows.Count() == 0 ? 0 : d_->rows.Count() - 1;
}

void Recordset::MoveNext() {
  d_->CheckRow(QStringLiteral("Recordset.MoveNext"));
  Update();
  ++d_->current;
}

qint64 Recordset::RecordCount() const {
  d_->CheckOpen(QStringLiteral("Recordset.RecordCount"));
  return qint64(d_->rows.Count());
}

int Recordset::FieldCount() const {
  return int(d_->names.size());
}

Field Recordset::Fields(int position) const {
  d_->CheckOpen(QStringLiteral("Recordset.Fields"));
  if (position < 0 || position >= FieldCount()) {
    throw AdoError(AdoNumber::ItemNotFound, QStringLiteral("The recordset has no field %1.").arg(position),
                   QStringLiteral("Recordset.Fields"));
  }
  return {this, position};
}

Field Recordset::Fields(const QString& name) const {
  d_->CheckOpen(QStringLiteral("Recordset.Fields"));
  const auto position = d_->positions.constFind(name.toUpper());
  if (position == d_->positions.constEnd()) {
    throw AdoError(AdoNumber::ItemNotFound, QStringLiteral("The recordset has no field \"%1\".").arg(name),
                   QStringLiteral("Recordset.Fields"));
  }
  return {this, *position};
}

bool Recordset::HasField(const QString& name) const {
  return d_->positions.contains(name.toUpper());
}

void Recordset::SetValue(const QString& name, const QString& value) {
  d_->CheckRow(UpdateSource);
  if (LockType != Pessimistic || d_->tables.size() != 1) {
    throw AdoError(AdoNumber::Unspecified,
                   QStringLiteral("Only a recordset of one table with a pessimistic lock can be changed."),
                   UpdateSource);
  }
  d_->pending[Fields(name).index_] = value;
}

void Recordset::Update() {
  if (d_->pending.empty()) return;
  d_->CheckRow(UpdateSource);
  if (d_->connection->Execute(d_->UpdateText()) == 0) {
    throw AdoError(AdoNumber::RowChanged,
                   QStringLiteral("The row was changed or deleted by another user since it was read."), UpdateSource);
  }
  std::vector<QString> cells;
  for (int i = 0; i < FieldCount(); ++i) cells.push_back(d_->Value(i));
  d_->rows.Replace(d_->current, cells);
  d_->pending.clear();
}

void Recordset::CancelUpdate() {
  d_->pending.clear();
}
