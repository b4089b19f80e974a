#include <QFile>

#include "support/Texts.h"
#include "tools/ToolDesk.h"

namespace {

class UsageTest : public ToolDesk {};

TEST_F(UsageTest, EveryCommandHasHelp) {
  for (const QStringList& command :
       {QStringList{}, QStringList{"create"}, QStringList{"check"}, QStringList{"add-language"}, QStringList{"user"},
        QStringList{"user", "add"}, QStringList{"user", "password"}, QStringList{"user", "rights"},
        QStringList{"user", "remove"}, QStringList{"user", "list"}, QStringList{"export"}, QStringList{"compare"},
        QStringList{"apply"}}) {
    const Result help = Run(command + QStringList{"--help"});
    EXPECT_EQ(help.exitCode, 0) << command.join(' ').toStdString();
    EXPECT_TRUE(help.out.startsWith("Usage: tabulon-db")) << help.out.toStdString();
    EXPECT_TRUE(help.out.contains(command.join(' ')));
    for (const QString& line : help.out.split('\n')) EXPECT_LE(line.size(), 120) << line.toStdString();
  }
}

TEST_F(UsageTest, WhatIsNotUnderstoodEndsWithStatusTwo) {
  for (const QStringList& arguments : {QStringList{}, QStringList{"destroy"}, QStringList{"check", "now"},
                                       QStringList{"check", "--fast"}, QStringList{"user"}, QStringList{"user", "sing"},
                                       QStringList{"user", "add"}, QStringList{"create", "--site"}}) {
    const Result refused = Run(arguments);
    EXPECT_EQ(refused.exitCode, 2) << arguments.join(' ').toStdString();
    EXPECT_FALSE(refused.err.isEmpty());
    EXPECT_TRUE(refused.out.isEmpty());
  }
}

TEST_F(UsageTest, TheVersionIsTold) {
  EXPECT_TRUE(Run({"--version"}).out.startsWith("tabulon-db 1."));
}

TEST_F(UsageTest, WithoutSettingsItSaysWhereTheyBelong) {
  const Result refused = Run({"check"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("The settings file 'Ostana.INI' was not found")) << refused.err.toStdString();
}

TEST_F(UsageTest, SettingsThatCannotBeUsedAreTold) {
  WriteSettings("[Database]\nEngine=ABACUS\nName=x\n");
  const Result refused = Run({"check"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("Write SQLITE, POSTGRESQL, MARIADB or SQLSERVER.")) << refused.err.toStdString();
}

TEST_F(UsageTest, AnotherSiteHasItsOwnSection) {
  UseDatabase();
  QFile file(Folder() + "/Ostana.ini");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray section = file.readAll();
  file.close();
  WriteSettings("[Database]\nEngine=SQLITE\nName=none.db\n" +
                QString::fromUtf8(section).replace("[Database]", "[Database North]"));
  EXPECT_EQ(Run({"check"}).exitCode, 1);
  EXPECT_EQ(Run({"check", "--site", "North"}).exitCode, 0);
  EXPECT_EQ(Run({"--site", "north", "check"}).exitCode, 0);
  const Result refused = Run({"check", "--site", "South"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_TRUE(refused.err.contains("has no section [Database South]")) << refused.err.toStdString();
}

}  // namespace
