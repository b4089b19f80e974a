#include <algorithm>
#include <stdexcept>

#include "schema/ExportText.h"

namespace {

class Parser {
 public:
  std::vector<TableContent> Parse(const QByteArray& text) {
    QString whole = QString::fromUtf8(text);
    if (whole.startsWith(QChar(0xfeff))) whole.remove(0, 1);
    if (whole.contains(QChar(QChar::ReplacementCharacter)))
      throw std::runtime_error("The file is not written in UTF-8, or has been damaged.");
    for (const QString& line : whole.split('\n')) {
      ++line_;
      Line(line.trimmed());
    }
    if (!header_) Fail("The file holds no settings of Tabulon.");
    if (!ended_) Fail("The file ends before its line \"end\": a part of it is missing.");
    return Ordered();
  }

 private:
  [[noreturn]] void Fail(const QString& reason) const {
    throw std::runtime_error(QStringLiteral("Line %1: %2").arg(line_).arg(reason).toStdString());
  }

  void Line(const QString& line) {
    if (line.isEmpty() || line.startsWith('#')) return;
    const QString word = line.section(' ', 0, 0);
    const QString rest = line.mid(word.size()).trimmed();
    if (!header_) {
      ReadHeader(line);
    } else if (ended_) {
      Fail("Nothing may stand behind the line \"end\".");
    } else if (line == u"end") {
      EndTable();
      ended_ = true;
    } else if (word == u"table") {
      EndTable();
      BeginTable(rest);
    } else if (word == u"column" && current_.table) {
      AddColumn(rest);
    } else if (line == u"row" && current_.table) {
      BeginRow();
    } else if (line.startsWith('"')) {
      Continue(line);
    } else {
      AddValue(word, rest);
    }
  }

  void ReadHeader(const QString& line) {
    if (line != ExportText::FirstLine)
      Fail("The file does not begin with \"" + ExportText::FirstLine + "\", or another version wrote it.");
    header_ = true;
  }

  void BeginTable(const QString& name) {
    const SchemaTable* const table = SchemaModel::Get().Find(name);
    if (!table) Fail("There is no table \"" + name + "\".");
    const bool again = std::any_of(tables_.begin(), tables_.end(),
                                   [&](const TableContent& content) { return content.table == table; });
    if (again) Fail("The table " + name + " stands in the file twice.");
    current_ = TableContent{table, {}, {}};
  }

  void AddColumn(const QString& name) {
    if (inRow_) Fail("The columns of a table stand before its rows.");
    const std::vector<SchemaColumn> known = Content::KnownColumns(*current_.table, {name});
    if (known.empty()) Fail("The table " + current_.table->name + " has no column \"" + name + "\".");
    if (current_.Position(name) >= 0) Fail("The column " + name + " stands here twice.");
    current_.columns.push_back(known.front());
  }

  void BeginRow() {
    EndRow();
    for (const QString& key : Content::RowKey(*current_.table).value_or(QStringList()))
      if (current_.Position(key) < 0)
        Fail("The table " + current_.table->name + " stands here without the column " + key + " of its key.");
    inRow_ = true;
    current_.rows.emplace_back(current_.columns.size());
    given_.assign(current_.columns.size(), false);
  }

  void AddValue(const QString& name, const QString& written) {
    const int position = inRow_ ? current_.Position(name) : -1;
    if (position < 0) Fail("\"" + name + "\" cannot be understood here.");
    const size_t index = static_cast<size_t>(position);
    if (given_[index]) Fail("The row has two values of " + name + '.');
    given_[index] = true;
    Cell& cell = current_.rows.back()[index];
    cell = Value(current_.columns[index], written);
    text_ = written.startsWith('"') ? &cell : nullptr;
  }

  Cell Value(const SchemaColumn& column, const QString& written) {
    if (written == ExportText::NullWord) return std::nullopt;
    if (column.type == SchemaColumn::Text) return Unquoted(written);
    const Cell value = Content::Canonical(column, written);
    if (!value) Fail("\"" + written + "\" is no value of the column " + column.name + '.');
    return value;
  }

  void Continue(const QString& line) {
    if (!text_) Fail("A text stands here that belongs to no column.");
    *text_ = text_->value() + Unquoted(line);
  }

  QString Unquoted(const QString& written) const {
    if (written.size() < 2 || !written.startsWith('"') || !written.endsWith('"'))
      Fail("A text is expected here, between two quotation marks.");
    QString text(QLatin1String(""));
    const qsizetype end = written.size() - 1;
    for (qsizetype i = 1; i < end; ++i) {
      if (written.at(i) == u'"') Fail("A quotation mark within a text is written \\\".");
      if (written.at(i) == u'\\') {
        text += Unescaped(written, i, end);
      } else {
        text += written.at(i);
      }
    }
    return text;
  }

  // Stands on the backslash; afterwards on the last character that belongs to it.
  QChar Unescaped(const QString& written, qsizetype& i, qsizetype end) const {
    if (++i >= end) Fail("A text ends with a single backslash, or without its quotation mark.");
    const QChar c = written.at(i);
    if (c == u'"' || c == u'\\') return c;
    if (c == u'n') return u'\n';
    if (c == u'r') return u'\r';
    if (c == u't') return u'\t';
    const qsizetype close = written.indexOf('}', i);
    bool number = false;
    const ushort code = c == u'u' && written.mid(i + 1, 1) == u"{" && close < end
                            ? written.mid(i + 2, close - i - 2).toUShort(&number, 16)
                            : ushort(0);
    if (!number) Fail("Behind a backslash stands one of \" \\ n r t and u{...}.");
    i = close;
    return QChar(code);
  }

  void EndRow() {
    if (!inRow_) return;
    for (size_t i = 0; i < given_.size(); ++i)
      if (!given_[i]) Fail("The row before has no value of " + current_.columns[i].name + '.');
    inRow_ = false;
    text_ = nullptr;
  }

  void EndTable() {
    if (!current_.table) return;
    EndRow();
    if (current_.columns.empty()) Fail("The table " + current_.table->name + " stands in the file without columns.");
    Arrange(current_);
    tables_.push_back(std::move(current_));
    current_ = {};
  }

  // Columns and rows in their order, however somebody has edited them.
  void Arrange(TableContent& content) const {
    QStringList names;
    for (const SchemaColumn& column : content.columns) names += column.name;
    TableContent arranged{content.table, Content::KnownColumns(*content.table, names), {}};
    for (const Row& row : content.rows) {
      Row cells;
      for (const SchemaColumn& column : arranged.columns)
        cells.push_back(row[static_cast<size_t>(content.Position(column.name))]);
      arranged.rows.push_back(std::move(cells));
    }
    Content::Sort(arranged);
    RefuseTwice(arranged);
    content = std::move(arranged);
  }

  void RefuseTwice(const TableContent& content) const {
    const QStringList& key = content.table->primaryKey;
    if (key.isEmpty()) return;
    for (size_t i = 1; i < content.rows.size(); ++i) {
      QStringList named;
      for (const QString& name : key) {
        const size_t position = static_cast<size_t>(content.Position(name));
        if (content.rows[i][position] != content.rows[i - 1][position]) break;
        named += name + ' ' + ExportText::ValueText(content.columns[position], content.rows[i][position]);
      }
      if (named.size() == key.size()) Fail("The table before has two rows of the key " + named.join(", ") + '.');
    }
  }

  std::vector<TableContent> Ordered() {
    std::sort(tables_.begin(), tables_.end(),
              [](const TableContent& left, const TableContent& right) { return left.table < right.table; });
    return std::move(tables_);
  }

  int line_ = 0;
  bool header_ = false;
  bool ended_ = false;
  bool inRow_ = false;
  std::vector<TableContent> tables_;
  TableContent current_;
  std::vector<bool> given_;  // which columns of the row have their value
  Cell* text_ = nullptr;     // the text that the next line may continue
};

}  // namespace

std::vector<TableContent> ExportText::Parse(const QByteArray& text) {
  return Parser().Parse(text);
}
