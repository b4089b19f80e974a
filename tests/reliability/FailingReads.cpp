#include "reliability/FailingReads.h"

#include "platform/ado/MariaDbDialect.h"
#include "platform/ado/PostgreSqlDialect.h"
#include "platform/ado/SqliteDialect.h"
#include "platform/ado/StatementWords.h"
#include "support/TestDatabase.h"

namespace {

template <class Own>
class FailingDialect : public Own {
 public:
  explicit FailingDialect(const FailingReads& reads) : reads_(reads) {}
  QString Carry(const QString& statement, const ConnectionSettings& settings) const override {
    return Own::Carry(reads_.InPlaceOf(statement), settings);
  }

 private:
  const FailingReads& reads_;
};

std::unique_ptr<Dialect> DialectOf(Engine engine, const FailingReads& reads) {
  switch (engine) {
    case Engine::PostgreSql:
      return std::make_unique<FailingDialect<PostgreSqlDialect>>(reads);
    case Engine::MariaDb:
      return std::make_unique<FailingDialect<MariaDbDialect>>(reads);
    case Engine::Sqlite:
    case Engine::SqlServer:
      break;
  }
  return std::make_unique<FailingDialect<SqliteDialect>>(reads);
}

}  // namespace

FailingReads::FailingReads() : dialect_(DialectOf(TestDatabase::TestEngine(), *this)) {
  Dialect::Replace(TestDatabase::TestEngine(), dialect_.get());
}

FailingReads::~FailingReads() {
  Dialect::Replace(TestDatabase::TestEngine(), nullptr);
}

void FailingReads::Count(int failing, std::function<void(const QString&)> beforeWriting) {
  failing_ = failing;
  beforeWriting_ = std::move(beforeWriting);
  reads_ = 0;
  wrote_ = false;
  sent_.clear();
}

QString FailingReads::InPlaceOf(const QString& statement) const {
  sent_ += statement;
  if (StatementWords::IsModification(statement)) {
    if (beforeWriting_) beforeWriting_(statement);
    wrote_ = true;
  }
  if (!StatementWords::IsSelect(statement) || ++reads_ != failing_) return statement;
  return "SELECT * FROM ID_TABLE_THAT_IS_GONE";
}
