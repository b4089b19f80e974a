#include <gtest/gtest.h>

#include <random>

#include "schema/ExportText.h"
#include "support/Texts.h"

namespace {

TableContent Printers(std::vector<Row> rows) {
  const SchemaTable& table = *SchemaModel::Get().Find("ID_PRINTER");
  return {&table, table.columns, std::move(rows)};
}

const QString Head = ExportText::FirstLine + "\ntable ID_PRINTER\n  column PRINTER\n  column DEVICE\n";

QString Refusal(const QString& text) {
  try {
    ExportText::Parse(text.toUtf8());
  } catch (const std::runtime_error& error) {
    return QString::fromUtf8(error.what());
  }
  return "(none)";
}

// The device of the only row, written and read again.
Cell Again(const Cell& device) {
  const auto tables = ExportText::Parse(ExportText::Write({Printers({{QString("P"), device}})}));
  return tables.at(0).rows.at(0).at(1);
}

TEST(ExportTextTest, ARowIsABlockWithALineForEachValue) {
  EXPECT_EQ(QString::fromUtf8(ExportText::Write({Printers({{QString("P1"), QString("")}, {QString("P2"), {}}})})),
            "Tabulon settings, format 1\n"
            "# Written by tabulon-db export; tabulon-db compare and tabulon-db apply read it.\n\n"
            "table ID_PRINTER\n  column PRINTER\n  column DEVICE\n"
            "  row\n    PRINTER \"P1\"\n    DEVICE \"\"\n"
            "  row\n    PRINTER \"P2\"\n    DEVICE NULL\n\nend\n");
}

TEST(ExportTextTest, NullAndTheEmptyTextAreTwoThings) {
  EXPECT_FALSE(Again(std::nullopt).has_value());
  EXPECT_EQ(Again(QString("")), Cell(QString("")));
  EXPECT_EQ(Again(QString("NULL")), Cell(QString("NULL")));
}

TEST(ExportTextTest, ATextOfSeveralLinesHasALineForEach) {
  const QByteArray text = ExportText::Write({Printers({{QString("P"), QString("one\r\ntwo\n\nfour")}})});
  EXPECT_TRUE(text.contains("    DEVICE \"one\\r\\n\"\n      \"two\\n\"\n      \"\\n\"\n      \"four\"\n"))
      << text.toStdString();
}

TEST(ExportTextTest, AnyTextComesBackAsItWas) {
  for (const char* text : {"'", "\"", "\\", "\\n", "a\tb", "\n", "\r\n", "\n\n", "x\n", " blank ", "# no comment",
                           "end", "'; DROP TABLE ID_PRINTER; --", "Straße, naïve, 漢字, 😀, ğİı",
                           "\u2028\u00a0\ufeff\u202e", "e\u0301", "\u007f\u0001", "\\u{41}", "\ufffd"})
    EXPECT_EQ(Again(QString::fromUtf8(text)), Cell(QString::fromUtf8(text))) << text;
  EXPECT_EQ(Again(QString(QChar(0))), Cell(QString(QChar(0))));
  EXPECT_EQ(Again(QString(QChar(0xd800))), Cell(QString(QChar(0xd800))));
}

TEST(ExportTextTest, RandomTextsComeBackAsTheyWere) {
  std::mt19937 random(20);
  for (int round = 0; round < 2000; ++round) {
    QString text;
    for (auto length = random() % 20; length > 0; --length)
      text += random() % 2 ? QChar(char16_t(random() % 128)) : QChar(char16_t(random() % 65536));
    ASSERT_EQ(Again(text), Cell(text)) << text.toUtf8().toHex().toStdString();
  }
}

TEST(ExportTextTest, TheFileIsPrintableAndHasNoOtherLineEnds) {
  QString all;
  for (int code = 0; code < 0x300; ++code) all += QChar(char16_t(code));
  for (const char& c : ExportText::Write({Printers({{QString("P"), all}})}))
    EXPECT_TRUE(c == '\n' || static_cast<unsigned char>(c) >= 0x20);
}

TEST(ExportTextTest, LineEndsOfAnotherSystemMakeNoDifference) {
  const QByteArray text = ExportText::Write({Printers({{QString("P"), QString("a\nb")}})});
  const auto tables = ExportText::Parse("\xef\xbb\xbf" + QByteArray(text).replace("\n", "\r\n"));
  EXPECT_EQ(ExportText::Write(tables), text);
}

TEST(ExportTextTest, RowsAndColumnsMayBeWrittenInAnyOrder) {
  const auto tables = ExportText::Parse((ExportText::FirstLine +
                                         "\ntable ID_PRINTER\ncolumn DEVICE\ncolumn PRINTER\nrow\nPRINTER \"b\"\n"
                                         "DEVICE NULL\nrow\nDEVICE NULL\nPRINTER \"a\"\ntable ID_USER\n"
                                         "column USER_ID\nend")
                                            .toUtf8());
  ASSERT_EQ(tables.size(), 2u);
  EXPECT_EQ(tables[0].table->name, "ID_USER");
  EXPECT_EQ(tables[1].columns[0].name, "PRINTER");
  EXPECT_EQ(tables[1].rows[0][0], Cell(QString("a")));
  EXPECT_EQ(tables[1].rows[1][0], Cell(QString("b")));
}

TEST(ExportTextTest, NumbersAndDatesTakeTheirOneForm) {
  const SchemaColumn price{"P", SchemaColumn::Numeric, 6, 2};
  const SchemaColumn count{"C", SchemaColumn::Integer};
  const SchemaColumn day{"D", SchemaColumn::Date};
  const SchemaColumn moment{"M", SchemaColumn::TimeStamp};
  EXPECT_EQ(Content::Canonical(price, "5"), Cell(QString("5.00")));
  EXPECT_EQ(Content::Canonical(price, "007.5000"), Cell(QString("7.50")));
  EXPECT_EQ(Content::Canonical(price, "-0.00"), Cell(QString("0.00")));
  EXPECT_EQ(Content::Canonical(price, "-0.5"), Cell(QString("-0.50")));
  EXPECT_EQ(Content::Canonical(count, "12"), Cell(QString("12")));
  EXPECT_EQ(Content::Canonical(day, "2024-02-29"), Cell(QString("2024-02-29")));
  EXPECT_EQ(Content::Canonical(moment, "2024-03-31T02:30"), Cell(QString("2024-03-31 02:30:00")));
  for (const char* wrong : {"", "1,5", "1.234", "1e3", "+1", "0x10", "1;", "one"})
    EXPECT_FALSE(Content::Canonical(price, wrong)) << wrong;
  EXPECT_FALSE(Content::Canonical(count, "1.5"));
  for (const char* wrong : {"2023-02-29", "29.02.2024", "2024-01-01 10:00:00", "NULL"})
    EXPECT_FALSE(Content::Canonical(day, wrong)) << wrong;
  for (const char* wrong : {"2024-01-01", "2024-01-01 25:00:00", "2024-01-01'10:00:00"})
    EXPECT_FALSE(Content::Canonical(moment, wrong)) << wrong;
}

TEST(ExportTextTest, WhatCannotBeUnderstoodIsRefusedWithItsLine) {
  const QString row = Head + "row\nPRINTER \"a\"\nDEVICE ";
  EXPECT_TRUE(Refusal("").contains("holds no settings"));
  EXPECT_TRUE(Refusal("Tabulon settings, format 2\nend").startsWith("Line 1: The file does not begin with"));
  EXPECT_TRUE(Refusal(Head).contains("before its line \"end\""));
  EXPECT_TRUE(Refusal(row + "\"x\"\nend\nrow").contains("behind the line \"end\""));
  EXPECT_TRUE(Refusal(row + "x\nend").startsWith("Line 7: A text is expected here"));
  EXPECT_TRUE(Refusal(row + "\"x\nend").startsWith("Line 7:"));
  EXPECT_TRUE(Refusal(row + "\"x\\\"\nend").contains("single backslash"));
  EXPECT_TRUE(Refusal(row + "\"x\"y\"\nend").contains("written \\\""));
  EXPECT_TRUE(Refusal(row + "\"\\q\"\nend").contains("Behind a backslash"));
  EXPECT_TRUE(Refusal(row + "\"\\u{110000}\"\nend").contains("Behind a backslash"));
  EXPECT_TRUE(Refusal(row + "NULL\n\"more\"\nend").contains("belongs to no column"));
  EXPECT_TRUE(Refusal(row + "NULL\nDEVICE NULL\nend").contains("two values of DEVICE"));
  EXPECT_TRUE(Refusal(row + "NULL\nCOLOUR NULL\nend").contains("\"COLOUR\" cannot be understood here"));
  EXPECT_TRUE(Refusal(row + "NULL\n<<<<<<< HEAD\nend").startsWith("Line 8: \"<<<<<<<\""));
  EXPECT_TRUE(Refusal(Head + "row\nPRINTER \"a\"\nend").contains("no value of DEVICE"));
  EXPECT_TRUE(
      Refusal(row + "NULL\nrow\nPRINTER \"a\"\nDEVICE \"b\"\nend").contains("two rows of the key PRINTER \"a\""));
  EXPECT_TRUE(Refusal(Head + "column COLOUR\nend").contains("has no column \"COLOUR\""));
  EXPECT_TRUE(Refusal(Head + "column DEVICE\nend").contains("twice"));
  EXPECT_TRUE(Refusal(Head + "table ID_PRINTER\ncolumn PRINTER\nend").contains("stands in the file twice"));
  EXPECT_TRUE(Refusal(ExportText::FirstLine + "\ntable ID_NONE\nend").contains("no table \"ID_NONE\""));
  EXPECT_TRUE(Refusal(ExportText::FirstLine + "\ntable ID_PRINTER\ncolumn DEVICE\nrow\nDEVICE \"x\"\nend")
                  .contains("without the column PRINTER of its key"));
  EXPECT_TRUE(Refusal(ExportText::FirstLine + "\ntable ID_EVENT\ncolumn EVENT_ID\nrow\nEVENT_ID 1 OR 1\nend")
                  .contains("no value"));
}

TEST(ExportTextTest, AFileOfAnotherEncodingIsRefused) {
  EXPECT_THROW(ExportText::Parse((Head + "row\nPRINTER \"").toUtf8() + "\xe9\"\nDEVICE NULL\nend"), std::runtime_error);
}

}  // namespace
