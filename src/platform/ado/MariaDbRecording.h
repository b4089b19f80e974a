#pragma once

#include "platform/ado/Recording.h"

// MariaDB's triggers see no transaction. A session of ours numbers its own as it begins them; those of others are told
// apart by the session's count of BEGIN, COMMIT and ROLLBACK, read once for each statement. Rows that a foreign key
// takes along run no triggers of their own: those of the row that they refer to record them.
class MariaDbRecording : public RecordingWords {
 public:
  QString IdentityType() const override { return QStringLiteral("INTEGER AUTO_INCREMENT"); }
  QString LongTextType() const override { return QStringLiteral("LONGTEXT"); }
  QString Moment() const override { return QStringLiteral("LEFT(CAST(UTC_TIMESTAMP(3) AS CHAR), 23)"); }
  std::vector<RecordingObject> Routines(const QString&) const override { return {}; }
  std::vector<RecordingObject> Triggers(const RecordedTable& table, const QString& ownerPrefix) const override;
  QStringList Present() const override;
  QString Drop(const RecordingObject& object, const QString& ownerPrefix) const override;
  QStringList Told(const QString& user, const QString& program) const override;

 protected:
  QString Text(const QString& value) const override { return "CAST(" + value + " AS CHAR)"; }
  QString Quoted(const QString& value) const override { return "JSON_QUOTE(CAST(" + value + " AS CHAR))"; }
  QString Differs(const QString& one, const QString& other) const override {
    return "NOT (" + one + " <=> " + other + ')';
  }
  QString Joined(const QStringList& parts) const override { return "CONCAT(" + parts.join(", ") + ')'; }
  QString Sign(char16_t code) const override { return QStringLiteral("CHAR(%1 USING utf8mb4)").arg(int(code)); }
  QString Behind(const QString& text) const override { return "SUBSTR(" + text + ", 2)"; }

 private:
  QString Carried(const RecordedTable& table, bool removed) const;
};
