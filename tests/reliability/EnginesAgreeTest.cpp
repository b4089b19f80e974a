// The same site gives the same screens, and what is pressed stores the same rows, on every engine, whatever order of
// letters its database has of its own. Each run compares its engine with SQLite; that of SQLite compares with a file
// whose rows lie the other way round.
#include "reliability/SiteTelling.h"

namespace {

class ForNow {
 public:
  ForNow(const char* variable, const QString& value) : variable_(variable), before_(qgetenv(variable)) {
    qputenv(variable, value.toUtf8());
  }
  ~ForNow() { before_.isEmpty() ? qunsetenv(variable_) : qputenv(variable_, before_); }

 private:
  const char* variable_;
  QByteArray before_;
};

// A database whose own order of letters is that of German.
class GermanDatabase {
 public:
  GermanDatabase() : settings_(TestDatabase::FreshSettings({})) {
    ConnectionSettings maintenance = settings_;
    const bool postgreSql = settings_.engine == Engine::PostgreSql;
    maintenance.name = postgreSql ? "postgres" : "information_schema";
    Connection administrator(maintenance);
    administrator.Execute("CREATE DATABASE " + settings_.name +
                          (postgreSql ? " TEMPLATE template0 ENCODING 'UTF8' LOCALE_PROVIDER icu ICU_LOCALE 'de-DE'"
                                      : " CHARACTER SET utf8mb4 COLLATE utf8mb4_uca1400_german2_ai_ci"));
    TestDatabase::Fill(settings_, true);
  }
  ~GermanDatabase() { TestDatabase::Remove(settings_); }
  const QString& Name() const { return settings_.name; }

 private:
  ConnectionSettings settings_;
};

SiteTelling OnSqlite(SiteRows rows) {
  const ForNow engine("TABULON_TEST_ENGINE", "sqlite");
  return TellSite(rows);
}

void ExpectSame(const SiteTelling& one, const SiteTelling& other) {
  EXPECT_GT(one.places.size(), 60);
  EXPECT_EQ(one.places.keys(), other.places.keys());
  for (auto place = one.places.begin(); place != one.places.end(); ++place) {
    const QStringList there = other.places.value(place.key());
    QStringList onlyHere, onlyThere;
    for (qsizetype i = 0; i < std::max(place->size(), there.size()); ++i) {
      if (place->value(i) == there.value(i)) continue;
      onlyHere += place->value(i);
      onlyThere += there.value(i);
    }
    EXPECT_EQ(onlyHere.mid(0, 12).join('\n'), onlyThere.mid(0, 12).join('\n')) << "at " << place.key().toStdString();
  }
  // The digest of a password has salt of its own.
  EXPECT_EQ(Differences(one.stored, other.stored, "ID_USER"), QStringList());
}

SiteTelling OnThisEngine(SiteRows rows) {
  const bool sqlite = TestDatabase::TestEngine() == Engine::Sqlite;
  return TellSite(rows, sqlite ? RowsLie::TheOtherWayRound : RowsLie::AsEntered);
}

TEST(EnginesAgree, OnTheSampleSite) {
  ExpectSame(OnSqlite(SiteRows::Sample), OnThisEngine(SiteRows::Sample));
}

TEST(EnginesAgree, OnASiteOfTiesAndMissingValuesAndManyLetters) {
  ExpectSame(OnSqlite(SiteRows::Crowded), OnThisEngine(SiteRows::Crowded));
}

TEST(EnginesAgree, OnADatabaseWithTheOrderOfALanguage) {
  if (TestDatabase::TestEngine() == Engine::Sqlite) GTEST_SKIP() << "SQLite has no order of a language";
  const SiteTelling expected = OnSqlite(SiteRows::Crowded);
  const GermanDatabase database;
  const ForNow lent("TABULON_TEST_DATABASE", database.Name());
  ExpectSame(expected, TellSite(SiteRows::Crowded));
}

}  // namespace
