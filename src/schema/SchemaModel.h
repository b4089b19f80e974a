#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// The tables that the system needs, as database/schema.sql declares them.

struct SchemaColumn {
  enum Type { Text, Integer, Numeric, Date, TimeStamp };

  QString name;
  Type type = Text;
  int size = 0;   // characters of a text, 0 without limit; digits of a Numeric
  int scale = 0;  // digits behind the decimal point
  bool required = false;
  bool identity = false;  // an Integer that the engine counts up by itself
  bool language = false;  // one more column for each language of the site, see LanguageColumn
};

struct SchemaForeignKey {
  QStringList columns;
  QString table;
  QStringList references;
  QString actions;  // "ON DELETE CASCADE ON UPDATE CASCADE" or empty
};

struct SchemaTable {
  QString name;
  QString description;
  bool history = false;  // one of those that "tabulon-db history on" makes
  std::vector<SchemaColumn> columns;
  QStringList primaryKey;  // empty where the table has none
  std::vector<QStringList> uniqueKeys;
  std::vector<SchemaForeignKey> foreignKeys;

  const SchemaColumn* Find(const QString& column) const;  // nullptr when there is none
};

struct SchemaIndex {
  QString name;
  QString table;
  QStringList columns;
};

struct SchemaModel {
  std::vector<SchemaTable> tables;  // referenced ones before those that refer to them
  std::vector<SchemaIndex> indexes;

  const SchemaTable* Find(const QString& table) const;

  // Reads the text of a schema file. std::runtime_error with the place where it cannot be understood.
  static SchemaModel Parse(const QString& text);
  // The tables of every site, of the schema that the tools carry with them.
  static const SchemaModel& Get();
  // Those of the history of changes.
  static const SchemaModel& History();
};

// Name of the column that holds `column` in a language: base name, "_" and the code.
QString LanguageColumn(const QString& column, const QString& language);
