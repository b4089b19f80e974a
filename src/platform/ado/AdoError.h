#pragma once

#include <QString>
#include <exception>

// The error numbers that callers test. Every dialect maps its native codes to these.
namespace AdoNumber {
inline constexpr quint32 ConstraintBroken = 0x80040E2F;  // duplicate key, foreign key, NOT NULL, CHECK
inline constexpr quint32 TextRefused = 0x80040E14;       // syntax, unknown table or column, value of a wrong type
inline constexpr quint32 RowChanged = 0x80040E38;        // a row changed under the cursor
inline constexpr quint32 RowReferenced = 0x8004D013;     // older servers' number of a refused delete
inline constexpr quint32 ObjectClosed = 0x800A0E78;      // operation on a closed connection or recordset
inline constexpr quint32 ItemNotFound = 0x800A0CC1;      // a field name that the recordset does not have
inline constexpr quint32 NoCurrentRow = 0x800A0BCD;      // a value was read before the first or behind the last row
inline constexpr quint32 Busy = 0x80040E31;              // lock or time limit reached
inline constexpr quint32 Unspecified = 0x80004005;       // connection lost and everything else
}  // namespace AdoNumber

// A failure of the database layer. The description of a duplicate key holds the word "duplicate", that of a row that
// another table refers to the word "REFERENCE", whatever the engine calls them.
class AdoError : public std::exception {
 public:
  AdoError(quint32 number, QString description, QString source, bool connectionLost = false);

  quint32 Number() const { return number_; }
  // The number as error objects print it: a signed 32-bit decimal.
  QString NumberText() const { return QString::number(static_cast<qint32>(number_)); }
  const QString& Description() const { return description_; }
  const QString& Source() const { return source_; }
  // The statement as it was composed, secrets included; empty where none was at fault.
  const QString& Statement() const { return statement_; }
  AdoError Of(const QString& statement) const;
  // True when the server is gone; whether the statement took effect is then unknown.
  bool ConnectionLost() const { return connectionLost_; }
  // True for the numbers that say "the database refused the delete because the row is in use".
  bool RefusedByReference() const {
    return number_ == AdoNumber::RowReferenced || number_ == AdoNumber::ConstraintBroken;
  }
  const char* what() const noexcept override { return utf8_.constData(); }

 private:
  quint32 number_;
  QString description_;
  QString source_;
  QString statement_;
  bool connectionLost_;
  QByteArray utf8_;
};
