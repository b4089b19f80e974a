#include "tools/ToolDesk.h"

#include <QFile>
#include <QProcess>

#include "platform/ado/Recordset.h"
#include "support/Folders.h"

void ToolDesk::SetUp() {
  ASSERT_TRUE(folder_.isValid());
}

void ToolDesk::TearDown() {
  client_.reset();
  if (!database_ && !settings_.name.isEmpty()) TestDatabase::Remove(settings_);
  database_.reset();
}

ToolDesk::Result ToolDesk::Run(const QStringList& arguments, const QString& input) const {
  QProcess tool;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("OSTANA_HOME", folder_.path());
  tool.setProcessEnvironment(environment);
  tool.setWorkingDirectory(folder_.path());
  tool.start(BuildFolder() + "/tabulon-db", arguments);
  if (!tool.waitForStarted()) {
    ADD_FAILURE() << "tabulon-db did not start: " << tool.errorString().toStdString();
    return {};
  }
  tool.write(input.toUtf8());
  tool.closeWriteChannel();
  EXPECT_TRUE(tool.waitForFinished(120000)) << "tabulon-db did not end";
  EXPECT_EQ(tool.exitStatus(), QProcess::NormalExit);
  return {tool.exitCode(), QString::fromUtf8(tool.readAllStandardOutput()),
          QString::fromUtf8(tool.readAllStandardError())};
}

void ToolDesk::WriteSettings(const QString& text) const {
  QFile file(folder_.filePath("Ostana.ini"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.toUtf8());
}

void ToolDesk::UseDatabase() {
  database_ = std::make_unique<TestDatabase>();
  settings_ = database_->Settings();
  WriteSettings(database_->IniSection());
}

const ConnectionSettings& ToolDesk::UseFreshDatabase() {
  settings_ = TestDatabase::FreshSettings(folder_.path());
  WriteSettings(TestDatabase::IniSection(settings_));
  return settings_;
}

Connection& ToolDesk::Client() {
  if (!client_) client_ = std::make_unique<Connection>(settings_);
  client_->EnsureOpen();
  return *client_;
}

QString ToolDesk::Ask(const QString& sql) {
  Recordset rows;
  rows.Open(Client(), sql);
  if (rows.EOF_()) return "(none)";
  return rows.Fields(0).IsNull() ? "(null)" : rows.Fields(0).Value();
}

int ToolDesk::Count(const QString& table, const QString& where) {
  return Ask("SELECT COUNT(*) FROM " + table + (where.isEmpty() ? QString() : " WHERE " + where)).toInt();
}

void ToolDesk::Execute(const QString& sql) {
  Client().Execute(sql);
}
