#pragma once

#include <QStringList>

#include "platform/ado/ConnectionSettings.h"
#include "schema/SchemaModel.h"

// The schema in the words of one engine. Table names bear the owner's prefix where one is given.
class SchemaStatements {
 public:
  SchemaStatements(Engine engine, QString ownerPrefix) : engine_(engine), owner_(std::move(ownerPrefix)) {}

  // CREATE TABLE with the columns of the languages behind all others.
  QString Create(const SchemaTable& table, const QStringList& languages) const;
  QString Drop(const SchemaTable& table) const;
  // The indexes of the schema, and one for each foreign key that no key of its table begins with: without it the engine
  // would read the whole table for every row that is deleted from the other one.
  QStringList CreateIndexes(const SchemaModel& model) const;
  QString AddColumn(const QString& table, const SchemaColumn& column) const;

 private:
  QString Name(const QString& column) const;
  QString Names(const QStringList& columns) const;
  QString Type(const SchemaColumn& column) const;
  QString Column(const SchemaColumn& column) const;
  QString Check(const SchemaColumn& column) const;
  QString Index(const SchemaIndex& index) const;
  QString Condition(const SchemaTable& table, const QStringList& key) const;

  Engine engine_;
  QString owner_;
};

// The column that holds `column` in a language: the same type, never required.
SchemaColumn InLanguage(const SchemaColumn& column, const QString& language);
