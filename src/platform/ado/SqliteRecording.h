#pragma once

#include "platform/ado/Recording.h"

// SQLite's triggers know neither user nor transaction, and what they call must be there in every program that opens the
// file. So they write a transaction without a user for each statement; a session that was told its user has a trigger
// of its own, in its temporary database, which puts one with the user in its place for each unit that the session
// marks. The engine compiles the triggers with each statement, which takes longer than running them: they are short.
class SqliteRecording : public RecordingWords {
 public:
  QString IdentityType() const override { return QStringLiteral("INTEGER"); }
  QString LongTextType() const override { return QStringLiteral("TEXT"); }
  QString Moment() const override { return QStringLiteral("strftime('%Y-%m-%d %H:%M:%f', 'now')"); }
  std::vector<RecordingObject> Routines(const QString& ownerPrefix) const override;
  std::vector<RecordingObject> Triggers(const RecordedTable& table, const QString& ownerPrefix) const override;
  QStringList Present() const override;
  QString Drop(const RecordingObject& object, const QString& ownerPrefix) const override;
  QStringList Told(const QString& user, const QString& program) const override;
  QString UnitMark() const override;

 protected:
  QString Text(const QString& value) const override { return "CAST(" + value + " AS TEXT)"; }
  QString Quoted(const QString& value) const override { return "json_quote(CAST(" + value + " AS TEXT))"; }
  QString Differs(const QString& one, const QString& other) const override { return one + " IS NOT " + other; }
  QString Joined(const QStringList& parts) const override { return '(' + parts.join(" || ") + ')'; }
  QString Sign(char16_t code) const override { return QStringLiteral("char(%1)").arg(int(code)); }
  QString Behind(const QString& text) const override { return "substr(" + text + ", 2)"; }

 private:
  // The columns as JSON: an object, or an array of several where a function takes no more arguments.
  QString Image(const RecordedTable& table, const QStringList& columns, const RowWords& row) const;
  QString Changed(const RecordedTable& table, const QStringList& columns) const;
  QString Replaced(const RecordedTable& table, const QString& but) const;
  std::vector<RecordingObject> OfReplacing(const RecordedTable& table) const;
};
