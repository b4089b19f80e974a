// The manual pages and docs/administration.md against what the programs know: commands, options, keys of the settings,
// variables of the environment.
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <map>
#include <set>

#include "platform/files/IniFile.h"
#include "support/Folders.h"
#include "tools/ToolDesk.h"

namespace {

QString Source(const QString& path) {
  QFile file(SourceFolder() + '/' + path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll());
}

QStringList AllMatches(const QString& text, const QString& pattern) {
  QStringList found;
  const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
  for (auto match = expression.globalMatch(text); match.hasNext();) found.append(match.next().captured(1));
  return found;
}

// A manual page as it is read: without requests, fonts and escaped hyphens.
QString Manual(const QString& name) {
  QString text = Source("packaging/man/" + name);
  text.replace(QRegularExpression("\\\\f[BIRP]"), "").replace("\\-", "-").remove('"');
  return text;
}

class DocumentsTest : public ToolDesk {
 protected:
  // Each command as it is called, "user add" for one, with the options of its own help text.
  std::map<QString, QStringList> Commands() const {
    std::map<QString, QStringList> commands;
    for (const QString& name : Names({})) {
      const QStringList actions = name == "user" || name == "history" ? Names({name}) : QStringList();
      for (const QString& action : actions) commands[name + ' ' + action] = Options({name, action});
      if (actions.isEmpty()) commands[name] = Options({name});
    }
    return commands;
  }

 private:
  QStringList Names(const QStringList& command) const {
    return AllMatches(Run(command + QStringList{"--help"}).out, "^  ([a-z][a-z-]+)  ");
  }
  // Those that every command has are told once.
  QStringList Options(const QStringList& command) const {
    QStringList options = AllMatches(Run(command + QStringList{"--help"}).out, "^  (?:-\\w, )?(--[a-z-]+)");
    EXPECT_EQ(options.removeAll("--help"), 1);
    EXPECT_EQ(options.removeAll("--site"), 1);
    return options;
  }
};

TEST_F(DocumentsTest, EveryCommandAndOptionIsInTheManual) {
  const QString manual = Manual("tabulon-db.1");
  const auto commands = Commands();
  EXPECT_EQ(commands.size(), 18U);
  for (const auto& [command, options] : commands) {
    // The entry from its tag to the next one.
    const QRegularExpression entry(
        "^\\.TP\\n(?:\\.[A-Z]+ )?" + command + "\\b(.*?)(?=^\\.TP|^\\.SH|^\\.PP)",
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = entry.match(manual);
    ASSERT_TRUE(match.hasMatch()) << command.toStdString();
    for (const QString& option : options)
      EXPECT_TRUE(match.captured(1).contains(option)) << command.toStdString() << " " << option.toStdString();
  }
  for (const char* common : {"--site", "--help", "--version"}) EXPECT_TRUE(manual.contains(common)) << common;
}

TEST_F(DocumentsTest, EveryCommandAndOptionIsInAdministration) {
  const QString text = Source("docs/administration.md");
  for (const auto& [command, options] : Commands()) {
    const QString row = AllMatches(text, "^\\| `(" + command + "\\b[^`]*)`").value(0);
    EXPECT_FALSE(row.isEmpty()) << command.toStdString();
    for (const QString& option : options)
      EXPECT_TRUE(row.contains(option)) << command.toStdString() << " " << option.toStdString();
  }
  for (const char* common : {"--site", "--help", "--version"}) EXPECT_TRUE(text.contains(common)) << common;
}

TEST_F(DocumentsTest, EveryArgumentOfTheProgramIsTold) {
  const QString usage = Source("src/main.cpp").section("Usage: Tabulon", 1).section("return true", 0, 0);
  const QStringList arguments = AllMatches(usage, "^ *\"  ([a-z-]+) ");
  EXPECT_GE(arguments.size(), 6);
  const QString manual = Manual("Tabulon.1"), text = Source("docs/administration.md");
  for (const QString& argument : arguments) {
    EXPECT_TRUE(manual.contains(QRegularExpression("^\\.[BI] " + argument + '$', QRegularExpression::MultilineOption)))
        << argument.toStdString();
    EXPECT_TRUE(text.contains(argument)) << argument.toStdString();
  }
}

TEST_F(DocumentsTest, EveryKeyOfTheSettingsIsToldAndStandsInTheSample) {
  const QString text = Source("docs/administration.md").section("\n## The settings file", 1).section("\n## ", 0, 0);
  const QString sample = SourceFolder() + "/database/site/Ostana.ini";
  std::set<QString> known;
  for (const QString& section : IniFile::Sections(sample)) {
    EXPECT_TRUE(text.contains('[' + section + ']')) << section.toStdString();
    for (QString key : IniFile::Keys(sample, section)) {
      known.insert(key);
      key.replace(QRegularExpression("\\d+$"), "1");  // numbered ones are told by their first
      EXPECT_TRUE(text.contains('`' + key + '`')) << section.toStdString() << " " << key.toStdString();
    }
  }
  const QString told = text.section("\n### MANIFEST.ini", 0, 0);
  for (const QString& row : AllMatches(told, "^\\|(?: `\\[[^|]*\\|)? ?((?:`[^`]+`,? ?)+)"))
    for (const QString& key : AllMatches(row, "`([A-Za-z][^`\\[]*)`"))
      EXPECT_TRUE(known.count(key) == 1) << "not in the sample: " << key.toStdString();
}

TEST_F(DocumentsTest, EveryVariableOfTheEnvironmentIsTold) {
  const QString text = Source("docs/administration.md"), manual = Manual("Tabulon.1");
  QDirIterator sources(SourceFolder() + "/src", {"*.cpp"}, QDir::Files, QDirIterator::Subdirectories);
  std::set<QString> variables;
  while (sources.hasNext()) {
    QFile file(sources.next());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    for (const QString& name : AllMatches(QString::fromUtf8(file.readAll()), "qEnvironmentVariable\\w*\\(\"(\\w+)\""))
      variables.insert(name);
  }
  EXPECT_EQ(variables.count("OSTANA_HOME"), 1U);
  for (const QString& name : variables) {
    EXPECT_TRUE(text.contains('`' + name + '`')) << name.toStdString();
    EXPECT_TRUE(manual.contains(name)) << name.toStdString();
  }
}

}  // namespace
