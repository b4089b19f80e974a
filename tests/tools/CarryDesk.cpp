#include "tools/CarryDesk.h"

#include <QFile>

#include "support/Texts.h"

void CarryDesk::SetUp() {
  ToolDesk::SetUp();
  UseDatabase();
  sample_ = std::make_unique<TestDatabase>(true);
  UseAsTestSite(sample_->Settings());
}

void CarryDesk::TearDown() {
  sample_.reset();
  ToolDesk::TearDown();
}

void CarryDesk::UseAsTestSite(const ConnectionSettings& settings) {
  WriteSettings(TestDatabase::IniSection(Client().Settings()) +
                TestDatabase::IniSection(settings).replace("[Database]", "[Database Test]"));
}

QString CarryDesk::Text(const QString& name) const {
  QFile file(Path(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}

void CarryDesk::Write(const QString& name, const QString& text) const {
  QFile file(Path(name));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text.toUtf8());
}

QString CarryDesk::Done(const QStringList& arguments, int exitCode) const {
  const Result result = Run(arguments);
  EXPECT_EQ(result.exitCode, exitCode) << arguments.join(' ').toStdString() << '\n'
                                       << result.out.toStdString() << result.err.toStdString();
  return result.out;
}

void CarryDesk::Edit(const QString& name, const QString& from, const QString& to) const {
  QString text = Text(name);
  ASSERT_TRUE(text.contains(from)) << from.toStdString();
  Write(name, text.replace(from, to));
}
