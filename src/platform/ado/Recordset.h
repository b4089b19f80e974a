#pragma once

#include <QString>
#include <memory>

#include "platform/ado/Connection.h"

// ADO type numbers of columns.
namespace AdoType {
inline constexpr int Integer = 3, Numeric = 131, Date = 133, TimeStamp = 135;
inline constexpr int Char = 129, WChar = 130, VarChar = 200, VarWChar = 202;
}  // namespace AdoType

// A column as the database's catalogue declares it.
struct ColumnInfo {
  QString name;         // upper case
  int type = 0;         // AdoType
  int definedSize = 0;  // characters of a text column, digits of a number; 0 when unknown
  int scale = 0;        // digits behind the decimal point
  bool nullable = true;
};

class Recordset;

// One column of the current row. Valid as long as its recordset.
class Field {
 public:
  const QString& Name() const;
  // The value as text; a null QString stands for NULL. Dates are "yyyy-MM-dd" or "yyyy-MM-dd hh:mm:ss", numbers carry
  // a "." and the scale of their column.
  QString Value() const;
  bool IsNull() const;
  int Type() const;         // AdoType, from the catalogue when the source reads a single table
  int DefinedSize() const;  // as ColumnInfo::definedSize

 private:
  friend class Recordset;
  Field(const Recordset* owner, int index) : owner_(owner), index_(index) {}
  const Recordset* owner_;
  int index_;
};

// The rows of one SELECT, held in memory: the statement is finished when Open returns, so that another one can run.
class Recordset {
 public:
  // CursorType 3 static, 1 keyset. LockType 1 read only, 2 pessimistic. CursorLocation 3 client.
  enum { Keyset = 1, Static = 3, ReadOnly = 1, Pessimistic = 2, Client = 3 };

  Recordset();
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  QString Source;
  int CursorType = Static;
  int LockType = ReadOnly;
  int CursorLocation = Client;
  int MaxRecords = 0;  // rows read at the most; 0 reads all

  // Reopens the connection when it is closed, runs Source and stands on the first row. An open recordset is closed
  // first.
  void Open(Connection& connection);
  void Open(Connection& connection, const QString& source);
  void Close();
  bool IsOpen() const;

  bool EOF_() const;
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  qint64 RecordCount() const;

  int FieldCount() const;
  Field Fields(int position) const;
  // Letter case does not count. An unknown name is an AdoError.
  Field Fields(const QString& name) const;
  bool HasField(const QString& name) const;

  // Pessimistic recordsets of one table only. Update writes the changed fields where all fields of the row still hold
  // what was read, and fails with AdoNumber::RowChanged otherwise.
  void SetValue(const QString& name, const QString& value);
  void Update();
  void CancelUpdate();

 private:
  friend class Field;
  struct Private;
  std::unique_ptr<Private> d_;
};
