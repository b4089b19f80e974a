#include "platform/ado/SqlTokens.h"

#include "ado/AdoTest.h"

namespace {

QStringList Literals(const QString& sql) {
  QStringList literals;
  for (const SqlToken& token : Tokenize(sql)) {
    if (token.kind == SqlToken::Literal || token.kind == SqlToken::NationalLiteral) literals += token.text;
  }
  return literals;
}

std::vector<SqlToken::Kind> Kinds(const QString& sql) {
  std::vector<SqlToken::Kind> kinds;
  for (const SqlToken& token : Tokenize(sql)) kinds.push_back(token.kind);
  return kinds;
}

TEST(SqlTokens, JoinedTokensGiveTheTextBack) {
  for (const QString& text :
       {QString(), QString("SELECT   * FROM ID_A\tWHERE A='x''y' AND B=N'z';\n"), QString("'open"), QString("[a]]b]"),
        QString("a--b\nc/*d*/e/*f"), QString("1.5e3 0x1F .5 -1"), QString("N'a'N'b' n'c' NN'd'"),
        QString("\u00e9 \U0001f600"), QString("a") + QChar(u'\0') + "'b"}) {
    EXPECT_EQ(Join(Tokenize(text)), text);
  }
}

TEST(SqlTokens, KindsOfTokens) {
  using enum SqlToken::Kind;
  EXPECT_EQ(Kinds("SELECT TOP 1"), (std::vector{Word, Blank, Word, Blank, Number}));
  EXPECT_EQ(Kinds("N'a''b'"), (std::vector{NationalLiteral}));
  EXPECT_EQ(Kinds("NAN'a'"), (std::vector{Word, Literal}));
  EXPECT_EQ(Kinds("a.[b c];\"d\""), (std::vector{Word, Symbol, QuotedName, Semicolon, QuotedName}));
  EXPECT_EQ(Kinds("-1--x"), (std::vector{Symbol, Number, Comment}));
  EXPECT_EQ(Kinds("'a"), (std::vector{Unclosed}));
  EXPECT_EQ(Kinds("/* a"), (std::vector{Unclosed}));
}

TEST(SqlTokens, ABackslashEndsNoLiteral) {
  EXPECT_EQ(Literals(R"(A = 'C:\' AND B = 'x\''y')"), QStringList({R"('C:\')", R"('x\''y')"}));
}

TEST(SqlTokens, SplitsOnlyOutsideOfLiterals) {
  EXPECT_EQ(SplitStatements("INSERT INTO A VALUES('x; y'); DELETE FROM B ;; "),
            QStringList({"INSERT INTO A VALUES('x; y')", "DELETE FROM B"}));
  EXPECT_EQ(SplitStatements(" ; ;"), QStringList());
  EXPECT_EQ(SplitStatements("A [x;y] \"p;q\"; B"), QStringList({"A [x;y] \"p;q\"", "B"}));
}

TEST(SqlTokens, AsManyStatementsAsWereJoined) {
  const QStringList values{"a", "it''s", "x; DELETE FROM ID_A", "-- no", "/* no", "N''y''", "[z", "\"", "\\", "TOP 1"};
  QString text;
  for (const QString& value : values) text += "INSERT INTO ID_A VALUES(N'" + value + "'); ";
  EXPECT_EQ(SplitStatements(text).size(), values.size());
  EXPECT_EQ(Literals(text).size(), values.size());
  EXPECT_EQ(WhyRefused(text, int(values.size())), "");
}

TEST(SqlTokens, RefusesWhatMayNotBeSent) {
  EXPECT_TRUE(WhyRefused("SELECT 1 -- x", 1).contains("comment"));
  EXPECT_TRUE(WhyRefused("SELECT 1 /* x */", 1).contains("comment"));
  EXPECT_TRUE(WhyRefused("SELECT 1 # x", 1).contains("comment"));
  EXPECT_TRUE(WhyRefused("SELECT 'x", 1).contains("not closed"));
  EXPECT_TRUE(WhyRefused("SELECT \"x", 1).contains("not closed"));
  EXPECT_TRUE(WhyRefused("SELECT 1; SELECT 2", 1).contains("2 statements where 1"));
  EXPECT_TRUE(WhyRefused(QString("SELECT '") + QChar(u'\0') + "'", 1).contains("U+0000"));
  EXPECT_TRUE(WhyRefused(QString("SELECT '") + QChar(u'\xd83d') + "'", 1).contains("half"));
  EXPECT_TRUE(WhyRefused("", 1).contains("empty"));
  EXPECT_TRUE(WhyRefused(" ; ", 1).contains("empty"));
}

// PostgreSQL's dollar quotes and escape literals, MariaDB's backticks: text behind them would be read otherwise there.
TEST(SqlTokens, RefusesQuotesOfSingleEngines) {
  EXPECT_FALSE(WhyRefused("SELECT $$'$$, 'x'", 1).isEmpty());
  EXPECT_FALSE(WhyRefused("SELECT 1$$'$$, 'x'", 1).isEmpty());
  EXPECT_FALSE(WhyRefused("SELECT `'`", 1).isEmpty());
  EXPECT_EQ(WhyRefused("SELECT A$1 FROM ID_A", 1), "");
  EXPECT_FALSE(WhyRefused("SELECT E'\\'; DELETE FROM ID_A; '", 9).isEmpty());
  EXPECT_EQ(WhyRefused("SELECT '$$ ` E''x'' -- /* ;'", 1), "");
}

TEST(SqlTokens, AcceptsOrdinaryStatements) {
  EXPECT_EQ(WhyRefused("SELECT   * FROM ID_A WHERE N = -1 AND T LIKE'%x%' ;", 1), "");
  EXPECT_EQ(WhyRefused("DELETE FROM ID_A; INSERT INTO ID_A VALUES(1); ", 2), "");
}

}  // namespace
