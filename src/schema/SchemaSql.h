#pragma once

#include <QString>
#include <QStringList>

#include "platform/ado/Connection.h"

// Pieces of the tools' own statements.
namespace SchemaSql {

QString Table(const Connection& connection, const QString& name);    // owner prefix and name
QString Literal(const Connection& connection, const QString& text);  // N'...'
// The rows of a SELECT, each as the texts of its fields; NULL is a null text.
QList<QStringList> Rows(Connection& connection, const QString& sql);
// The first fields of all rows.
QStringList Values(Connection& connection, const QString& sql);

}  // namespace SchemaSql
