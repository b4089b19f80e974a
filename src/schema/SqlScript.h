#pragma once

#include <QString>
#include <QStringList>

// The SQL texts that the tools carry with them: schema.sql, reference.sql, sample.sql.
namespace SqlScript {

QString Text(const QString& name);

// The statements of a text, without comments.
QStringList Statements(const QString& text);

}  // namespace SqlScript
