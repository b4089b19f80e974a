#pragma once

#include <QString>
#include <QStringList>
#include <vector>

// What a table is to the recording of changes.
struct RecordedColumn {
  QString name;
  bool secret = false;  // recorded as changed, never with its value
};

struct RecordedTable {
  // Rows of another table that go, or take another key, with a row of this one.
  struct Cascade {
    std::vector<RecordedTable> child;  // one; a vector, for the type is not whole here
    QStringList columns;               // of the child
    QStringList references;            // of this table
    bool onDelete = false;
    bool onUpdate = false;
  };

  QString name;  // without the owner
  std::vector<RecordedColumn> columns;
  QStringList key;                   // all columns where nothing tells rows apart; none where the table has one row
  std::vector<QStringList> uniques;  // sets of columns of which the engine allows no two equal rows
  std::vector<Cascade> cascades;
};

// A trigger or routine of the recording. Its name ends in a digest of its text, so that one of another version, or of a
// table that has got columns since, is told by its name.
struct RecordingObject {
  QString name;
  QString table;  // empty for a routine
  QString text;   // the definition, in the engine's own words
};

// How one engine records changes: in the transaction that makes them, whoever makes them, by triggers that write
// ID_HISTORY_TRANSACTION and ID_HISTORY_CHANGE. One class for each engine, no state.
//
// A change is written with the key that the row has, its kind (I, U, D) and its values as a JSON object by column, or
// an array of such objects: all of a row that came or went, where those that are NULL may be left out, and at least
// those that differ of a row that was changed. Values are texts; true stands for one that is secret, in a row that was
// changed for one that differs. A key that changes is one row gone and one come.
class Recording {
 public:
  virtual ~Recording() = default;

  // Between the values of a key; a value that is NULL.
  static constexpr char16_t KeySeparator = 0x1f;
  static constexpr char16_t KeyNull = 0x1e;

  // Column types: a number that the engine counts up by itself, a text without limit.
  virtual QString IdentityType() const = 0;
  virtual QString LongTextType() const = 0;
  // The present moment in UTC as "yyyy-MM-dd hh:mm:ss.zzz".
  virtual QString Moment() const = 0;

  // What the triggers call, to be made before them.
  virtual std::vector<RecordingObject> Routines(const QString& ownerPrefix) const = 0;
  virtual std::vector<RecordingObject> Triggers(const RecordedTable& table, const QString& ownerPrefix) const = 0;
  // SELECTs of the recording's objects that are there: rows of name and table; the table is empty for a routine.
  virtual QStringList Present() const = 0;
  virtual QString Drop(const RecordingObject& object, const QString& ownerPrefix) const = 0;

  // Tells the session who is at work. Run once in a session, and only where there are tables of the history.
  virtual QStringList Told(const QString& user, const QString& program) const = 0;
  // Run before each transaction of a session that was told its user, where triggers cannot see the transaction they run
  // in and no server has to be asked; empty elsewhere.
  virtual QString UnitMark() const { return {}; }

 protected:
  static QString Literal(const QString& text);
  // An object named "TH_TABLE_kind_digest", or "HISTORY_kind_digest" for a routine; %NAME% in the text is its name.
  static RecordingObject Named(const QString& table, const QString& kind, QString text);
};

// The words of which triggers are made where the engine has no function for a whole row.
class RecordingWords : public Recording {
 protected:
  virtual QString Text(const QString& value) const = 0;    // a value as text
  virtual QString Quoted(const QString& value) const = 0;  // a value that is not NULL as a JSON string
  virtual QString Differs(const QString& one, const QString& other) const = 0;  // NULL is a value like others
  virtual QString Joined(const QStringList& parts) const = 0;
  virtual QString Sign(char16_t code) const = 0;
  virtual QString Behind(const QString& text) const = 0;  // the text without its first sign

  // A row by the name it has in a trigger, closing point included ("NEW."); some columns may take other expressions.
  struct RowWords {
    QString row;
    QStringList columns = {};
    QStringList others = {};
    QString Of(const QString& column) const;
  };
  QString Key(const RecordedTable& table, const RowWords& row) const;
  QString Values(const RecordedTable& table, const RowWords& row) const;
  // Of the columns that differ, the values in `shown`.
  QString Differences(const RecordedTable& table, const QString& shown, const QString& one, const QString& other) const;
  QString AnyDiffers(const QStringList& columns, const QString& one, const QString& other) const;
  static QStringList Names(const RecordedTable& table);

 private:
  // ,"NAME":value
  QString Member(const RecordedColumn& column, const QString& value) const;
  QString Object(const QStringList& members) const;
};
