#include "schema/SchemaSql.h"

#include "platform/ado/Dialect.h"
#include "platform/ado/Recordset.h"

QString SchemaSql::Table(const Connection& connection, const QString& name) {
  return connection.Settings().ownerPrefix + name;
}

QString SchemaSql::Literal(const Connection& connection, const QString& text) {
  return "N'" + connection.dialect().Escape(text) + "'";
}

QList<QStringList> SchemaSql::Rows(Connection& connection, const QString& sql) {
  QList<QStringList> all;
  Recordset rows;
  for (rows.Open(connection, sql); !rows.EOF_(); rows.MoveNext()) {
    QStringList row;
    for (int field = 0; field < rows.FieldCount(); ++field) row += rows.Fields(field).Value();
    all += row;
  }
  return all;
}

QStringList SchemaSql::Values(Connection& connection, const QString& sql) {
  QStringList values;
  for (const QStringList& row : Rows(connection, sql)) values += row.value(0);
  return values;
}
