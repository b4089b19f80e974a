#pragma once

#include "platform/ado/Recording.h"

// SQL Server runs one trigger for all rows of a statement, which pairs the rows before and after by their key.
class SqlServerRecording : public RecordingWords {
 public:
  QString IdentityType() const override { return QStringLiteral("INTEGER IDENTITY(1,1)"); }
  QString LongTextType() const override { return QStringLiteral("NVARCHAR(MAX)"); }
  QString Moment() const override { return QStringLiteral("CONVERT(NVARCHAR(23), SYSUTCDATETIME(), 121)"); }
  std::vector<RecordingObject> Routines(const QString& ownerPrefix) const override;
  std::vector<RecordingObject> Triggers(const RecordedTable& table, const QString& ownerPrefix) const override;
  QStringList Present() const override;
  QString Drop(const RecordingObject& object, const QString& ownerPrefix) const override;
  QStringList Told(const QString& user, const QString& program) const override;

 protected:
  // 121 is the form "yyyy-mm-dd hh:mi:ss".
  QString Text(const QString& value) const override { return "CONVERT(NVARCHAR(MAX), " + value + ", 121)"; }
  QString Quoted(const QString& value) const override {
    return "CONCAT('\"', STRING_ESCAPE(" + Text(value) + ", 'json'), '\"')";
  }
  QString Differs(const QString& one, const QString& other) const override {
    return "NOT EXISTS (SELECT " + one + " INTERSECT SELECT " + other + ')';
  }
  QString Joined(const QStringList& parts) const override { return "CONCAT(" + parts.join(", ") + ')'; }
  QString Sign(char16_t code) const override { return QStringLiteral("NCHAR(%1)").arg(int(code)); }
  QString Behind(const QString& text) const override { return "STUFF(" + text + ", 1, 1, '')"; }
};
