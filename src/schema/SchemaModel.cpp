#include "schema/SchemaModel.h"

#include <algorithm>
#include <stdexcept>

#include "platform/ado/SqlTokens.h"
#include "schema/SqlScript.h"

namespace {

// Reads a schema file token by token; comments are kept, for they describe tables and mark columns.
class Parser {
 public:
  explicit Parser(const QString& text) : tokens_(Tokenize(text)) {}

  SchemaModel Parse() {
    SchemaModel model;
    while (SkipToStatement()) {
      Expect("CREATE");
      if (Accept("INDEX")) {
        model.indexes.push_back(Index());
      } else {
        Expect("TABLE");
        model.tables.push_back(Table());
      }
      Expect(";");
    }
    return model;
  }

 private:
  // Past blanks and comments; the comment lines directly above a statement become its description.
  bool SkipToStatement() {
    comment_.clear();
    for (; position_ < tokens_.size(); ++position_) {
      const SqlToken& token = tokens_[position_];
      if (token.kind == SqlToken::Comment) {
        comment_ = (comment_ + ' ' + token.text.mid(2)).simplified();
      } else if (token.kind != SqlToken::Blank) {
        return true;
      } else if (token.text.count(QLatin1Char('\n')) > 1) {
        comment_.clear();
      }
    }
    return false;
  }

  void SkipBlanks() {
    for (; position_ < tokens_.size(); ++position_) {
      const SqlToken& token = tokens_[position_];
      if (token.kind == SqlToken::Comment) {
        NoteMark(token.text);
      } else if (token.kind != SqlToken::Blank) {
        return;
      }
    }
  }

  void NoteMark(const QString& comment) {
    const QString mark = comment.mid(2).trimmed();
    if (marked_ && mark == u"language") marked_->language = true;
    if (table_ && !marked_ && mark == u"history") table_->history = true;
  }

  QString Next() {
    SkipBlanks();
    if (position_ >= tokens_.size()) throw std::runtime_error("The schema ends within a statement.");
    return tokens_[position_++].text;
  }

  bool Accept(const char* word) {
    SkipBlanks();
    if (position_ >= tokens_.size()) return false;
    if (tokens_[position_].text.compare(QLatin1String(word), Qt::CaseInsensitive) != 0) return false;
    ++position_;
    return true;
  }

  void Expect(const char* word) {
    if (Accept(word)) return;
    QString rest;
    for (size_t i = position_; i < tokens_.size() && rest.size() < 40; ++i) rest += tokens_[i].text;
    throw std::runtime_error(QStringLiteral("The schema has \"%1\" where %2 is expected.")
                                 .arg(rest.simplified(), QLatin1String(word))
                                 .toStdString());
  }

  QStringList Names() {
    QStringList names;
    Expect("(");
    do names += Next();
    while (Accept(","));
    Expect(")");
    return names;
  }

  SchemaIndex Index() {
    SchemaIndex index;
    index.name = Next();
    Expect("ON");
    index.table = Next();
    index.columns = Names();
    return index;
  }

  SchemaTable Table() {
    SchemaTable table;
    table.description = comment_;
    table.name = Next();
    Expect("(");
    table_ = &table;
    do Element(table);
    while (Accept(","));
    Expect(")");
    marked_ = nullptr;
    table_ = nullptr;
    return table;
  }

  void Element(SchemaTable& table) {
    if (Accept("PRIMARY")) {
      Expect("KEY");
      table.primaryKey = Names();
    } else if (Accept("UNIQUE")) {
      table.uniqueKeys.push_back(Names());
    } else if (Accept("FOREIGN")) {
      Expect("KEY");
      table.foreignKeys.push_back(ForeignKey());
    } else {
      Column(table);
    }
  }

  void Column(SchemaTable& table) {
    SchemaColumn column;
    column.name = Next();
    const QString type = Next().toUpper();
    if (type == u"VARCHAR" || type == u"NUMERIC") {
      column.type = type == u"VARCHAR" ? SchemaColumn::Text : SchemaColumn::Numeric;
      const QStringList sizes = Names();
      column.size = sizes.at(0).toInt();
      column.scale = sizes.value(1).toInt();
    } else if (type == u"TEXT") {
      column.type = SchemaColumn::Text;
    } else if (type == u"INTEGER" || type == u"IDENTITY") {
      column.type = SchemaColumn::Integer;
      column.identity = type == u"IDENTITY";
    } else if (type == u"DATE") {
      column.type = SchemaColumn::Date;
    } else if (type == u"TIMESTAMP") {
      column.type = SchemaColumn::TimeStamp;
    } else {
      throw std::runtime_error(QStringLiteral("The schema gives column %1.%2 the unknown type %3.")
                                   .arg(table.name, column.name, type)
                                   .toStdString());
    }
    if (Accept("NOT")) {
      Expect("NULL");
      column.required = true;
    }
    table.columns.push_back(column);
    marked_ = &table.columns.back();
  }

  SchemaForeignKey ForeignKey() {
    SchemaForeignKey key;
    key.columns = Names();
    Expect("REFERENCES");
    key.table = Next();
    key.references = Names();
    while (Accept("ON")) {
      const QString event = Next().toUpper();
      key.actions += (key.actions.isEmpty() ? "ON " : " ON ") + event + ' ' + Next().toUpper();
    }
    return key;
  }

  std::vector<SqlToken> tokens_;
  size_t position_ = 0;
  QString comment_;
  SchemaTable* table_ = nullptr;    // the table whose elements are read
  SchemaColumn* marked_ = nullptr;  // the column that a comment behind it speaks of
};

template <class Named>
const Named* FindNamed(const std::vector<Named>& all, const QString& name) {
  const auto found = std::find_if(all.begin(), all.end(),
                                  [&](const Named& one) { return one.name.compare(name, Qt::CaseInsensitive) == 0; });
  return found == all.end() ? nullptr : &*found;
}

const SchemaModel& Whole() {
  static const SchemaModel model = SchemaModel::Parse(SqlScript::Text("schema.sql"));
  return model;
}

SchemaModel Part(SchemaModel model, bool history) {
  std::erase_if(model.indexes, [&](const SchemaIndex& index) {
    const SchemaTable* const table = model.Find(index.table);
    return table && table->history != history;
  });
  std::erase_if(model.tables, [&](const SchemaTable& table) { return table.history != history; });
  return model;
}

}  // namespace

const SchemaColumn* SchemaTable::Find(const QString& column) const {
  return FindNamed(columns, column);
}

const SchemaTable* SchemaModel::Find(const QString& table) const {
  return FindNamed(tables, table);
}

SchemaModel SchemaModel::Parse(const QString& text) {
  return Parser(text).Parse();
}

const SchemaModel& SchemaModel::Get() {
  static const SchemaModel model = Part(Whole(), false);
  return model;
}

const SchemaModel& SchemaModel::History() {
  static const SchemaModel model = Part(Whole(), true);
  return model;
}

QString LanguageColumn(const QString& column, const QString& language) {
  return column + '_' + language;
}
