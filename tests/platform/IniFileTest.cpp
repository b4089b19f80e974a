#include "platform/files/IniFile.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringConverter>
#include <QTemporaryDir>

#include "platform/FileSizeLimit.h"
#include "platform/files/IniText.h"

namespace {

class IniFileTest : public testing::Test {
 protected:
  QString Path(const QString& name = "Ostana.INI") const { return directory_.filePath(name); }

  QString Store(const QByteArray& bytes) const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(bytes), bytes.size());
    return Path();
  }

  QByteArray Bytes() const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  // Writes key "Key" of section "A" and gives back what the file holds then.
  QByteArray AfterWrite(const QByteArray& before, const QString& value) const {
    QString reason;
    EXPECT_TRUE(IniFile::WriteValue(Store(before), "A", "Key", value, &reason)) << reason.toStdString();
    return Bytes();
  }

 private:
  QTemporaryDir directory_;
};

bool IsReadable(const QString& path, QString* reason) {
  IniText text;
  return IniFile::Read(path, text, reason);
}

QByteArray Utf16(const QString& text, bool bigEndian) {
  QByteArray bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  QStringEncoder encoder(bigEndian ? QStringConverter::Utf16BE : QStringConverter::Utf16LE);
  bytes += encoder.encode(text);
  return bytes;
}

}  // namespace

TEST_F(IniFileTest, SectionAndKeyAreFoundInAnyLetterCase) {
  const QString path = Store("[Loan Policy]\nRenewal Date=Due Date\n");
  EXPECT_EQ(IniFile::ReadValue(path, "LOAN policy", "renewal DATE"), "Due Date");
}

TEST_F(IniFileTest, BlanksAroundNameAndValueAreDropped) {
  const QString path = Store("  [ A ]  \n  Key  =  some text  \n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), "some text");
}

TEST_F(IniFileTest, ValueInQuotesKeepsItsBlanks) {
  const QString path = Store("[A]\nKey=\"  text \"\nOne=\"\n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), "  text ");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "One"), "\"");
}

TEST_F(IniFileTest, ValueOfBlanksOnlyIsAValue) {
  const QString path = Store("[A]\nKey=   \nNone=\n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), "   ");
  EXPECT_TRUE(IniFile::ReadValue(path, "A", "None").isEmpty());
}

TEST_F(IniFileTest, CommentsAndLinesWithoutEqualsSignAreSkipped) {
  const QString path = Store("[A]\n; Key=1\n# Key=2\nKey\n=3\nKey=4;5#6\n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), "4;5#6");
  EXPECT_EQ(IniFile::Keys(path, "A"), QStringList{"Key"});
}

TEST_F(IniFileTest, ValueMayHoldAnEqualsSign) {
  EXPECT_EQ(IniFile::ReadValue(Store("[A]\nKey=a=b\n"), "A", "Key"), "a=b");
}

TEST_F(IniFileTest, KeyBelongsToItsSectionOnly) {
  const QString path = Store("Key=0\n[A]\nOther=1\n[B]\nKey=2\n");
  EXPECT_TRUE(IniFile::ReadValue(path, "A", "Key").isEmpty());
  EXPECT_EQ(IniFile::ReadValue(path, "B", "Key"), "2");
  EXPECT_EQ(IniFile::Sections(path), (QStringList{"A", "B"}));
}

TEST_F(IniFileTest, FirstOfTwoEqualKeysCounts) {
  EXPECT_EQ(IniFile::ReadValue(Store("[A]\nKey=1\nKey=2\n"), "A", "Key"), "1");
}

TEST_F(IniFileTest, SectionWithoutClosingBracketIsTaken) {
  EXPECT_EQ(IniFile::ReadValue(Store("[A\nKey=1\n"), "A", "Key"), "1");
}

TEST_F(IniFileTest, ValueIsCutToTheLongestLength) {
  const QString path = Store("[A]\nKey=" + QByteArray(600, 'x') + "\n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key").size(), 500);
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key", 7), "xxxxxxx");
  EXPECT_TRUE(IniFile::ReadValue(path, "A", "Key", -1).isEmpty());
}

TEST_F(IniFileTest, MissingFileSectionOrKeyGivesAnEmptyValue) {
  EXPECT_TRUE(IniFile::ReadValue(Path("absent.ini"), "A", "Key").isEmpty());
  const QString path = Store("[A]\n");
  EXPECT_TRUE(IniFile::ReadValue(path, "B", "Key").isEmpty());
  EXPECT_TRUE(IniFile::ReadValue(path, "A", "Key").isEmpty());
}

TEST_F(IniFileTest, ReadsEveryLineEnd) {
  const QString path = Store("[A]\r\nOne=1\rTwo=2\nThree=3");
  EXPECT_EQ(IniFile::Keys(path, "A"), (QStringList{"One", "Two", "Three"}));
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Three"), "3");
}

TEST_F(IniFileTest, ReadsEveryEncoding) {
  const QString text = QString::fromUtf8("[A]\r\nKey=Zürich\r\n");
  const QByteArray encodings[] = {text.toUtf8(), "\xEF\xBB\xBF" + text.toUtf8(), text.toLatin1(), Utf16(text, false),
                                  Utf16(text, true)};
  for (const QByteArray& bytes : encodings) {
    EXPECT_EQ(IniFile::ReadValue(Store(bytes), "A", "Key"), QString::fromUtf8("Zürich")) << bytes.toHex().data();
  }
}

TEST_F(IniFileTest, RandomBytesAreNoTextFile) {
  for (quint32 seed = 1; seed <= 20; ++seed) {
    QRandomGenerator random(seed);
    QByteArray bytes(65536, '\0');
    for (char& byte : bytes) byte = char(random.bounded(256));
    QString reason;
    EXPECT_FALSE(IsReadable(Store(bytes), &reason));
    EXPECT_EQ(reason, "The file '" + Path() + "' is not a text file.");
    EXPECT_TRUE(IniFile::ReadValue(Path(), "A", "Key").isEmpty());
    EXPECT_FALSE(IniFile::WriteValue(Path(), "A", "Key", "1", &reason));
    EXPECT_EQ(Bytes(), bytes);
  }
}

TEST_F(IniFileTest, FileOf50MegabytesIsRefused) {
  QFile file(Path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(50 * 1024 * 1024));
  file.close();
  QString reason;
  EXPECT_FALSE(IsReadable(Path(), &reason));
  EXPECT_EQ(reason, "The file '" + Path() + "' is larger than 16 MB and cannot be a settings file.");
  EXPECT_TRUE(IniFile::ReadValue(Path(), "A", "Key").isEmpty());
}

TEST_F(IniFileTest, LargestFileIsRead) {
  QByteArray bytes = "[A]\nKey=1\n";
  bytes.resize(16 * 1024 * 1024, ' ');
  EXPECT_EQ(IniFile::ReadValue(Store(bytes), "A", "Key"), "1");
  EXPECT_FALSE(IsReadable(Store(bytes + ' '), nullptr));
}

TEST_F(IniFileTest, OneLineWithoutEndIsRead) {
  const QString path = Store("[A]\nKey=" + QByteArray(8 * 1024 * 1024, 'x'));
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key").size(), IniFile::LongestValue);
  EXPECT_TRUE(IniFile::Sections(Store(QByteArray(8 * 1024 * 1024, 'x'))).isEmpty());
}

TEST_F(IniFileTest, MillionsOfEmptyLinesAreRead) {
  const QString path = Store(QByteArray(8 * 1024 * 1024, '\n') + "[A]\nKey=1");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), "1");
}

TEST_F(IniFileTest, AbsentFileAndDirectoryAreNotReadable) {
  QString reason;
  EXPECT_FALSE(IsReadable(Path("absent.ini"), &reason));
  EXPECT_EQ(reason, "The file '" + Path("absent.ini") + "' does not exist.");
  EXPECT_FALSE(IsReadable(QFileInfo(Path()).path(), &reason));
  EXPECT_TRUE(reason.endsWith("is not a file."));
  EXPECT_TRUE(IsReadable(Store(""), &reason));
}

TEST_F(IniFileTest, WritingChangesTheValueOnly) {
  EXPECT_EQ(AfterWrite("; first\r\n[B]\r\nKey=b\r\n\r\n[a]\r\n key =  old  \r\n# last", "new"),
            "; first\r\n[B]\r\nKey=b\r\n\r\n[a]\r\n key =  new\r\n# last");
}

TEST_F(IniFileTest, NewKeyStandsBehindTheLastOneOfItsSection) {
  EXPECT_EQ(AfterWrite("[A]\nOne=1\n\n; of B\n[B]\nKey=b\n", "new"), "[A]\nOne=1\nKey=new\n\n; of B\n[B]\nKey=b\n");
  EXPECT_EQ(AfterWrite("[A]\n[B]\n", "new"), "[A]\nKey=new\n[B]\n");
  EXPECT_EQ(AfterWrite("[A]\nOne=1\n[B]\n[A]\nTwo=2\n", "new"), "[A]\nOne=1\nKey=new\n[B]\n[A]\nTwo=2\n");
}

TEST_F(IniFileTest, NewSectionStandsAtTheEnd) {
  EXPECT_EQ(AfterWrite("[B]\r\nKey=b", "new"), "[B]\r\nKey=b\r\n\r\n[A]\r\nKey=new\r\n");
  EXPECT_EQ(AfterWrite("[B]\nKey=b\n", "new"), "[B]\nKey=b\n\n[A]\nKey=new\n");
}

TEST_F(IniFileTest, LastLineWithoutEndGetsOneBeforeANewKey) {
  EXPECT_EQ(AfterWrite("[A]\nOne=1", "new"), "[A]\nOne=1\nKey=new\n");
}

TEST_F(IniFileTest, MissingAndEmptyFilesAreBegun) {
  QString reason;
  ASSERT_TRUE(IniFile::WriteValue(Path(), "A", "Key", "new", &reason));
  EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Key"), "new");
  EXPECT_TRUE(AfterWrite("", "new").startsWith("[A]"));
}

TEST_F(IniFileTest, WritingKeepsTheEncoding) {
  const QString before = QString::fromUtf8("; Ärger\n[A]\nKey=ä\n"), after = QString::fromUtf8("; Ärger\n[A]\nKey=é\n");
  const QString value = QString::fromUtf8("é");
  EXPECT_EQ(AfterWrite(before.toUtf8(), value), after.toUtf8());
  EXPECT_EQ(AfterWrite("\xEF\xBB\xBF" + before.toUtf8(), value), "\xEF\xBB\xBF" + after.toUtf8());
  EXPECT_EQ(AfterWrite(before.toLatin1(), value), after.toLatin1());
  EXPECT_EQ(AfterWrite(Utf16(before, false), value), Utf16(after, false));
  EXPECT_EQ(AfterWrite(Utf16(before, true), value), Utf16(after, true));
}

TEST_F(IniFileTest, LetterThatTheEncodingLacksIsRefused) {
  const QByteArray before = QString::fromUtf8("[A]\nKey=ä\n").toLatin1();
  QString reason;
  EXPECT_FALSE(IniFile::WriteValue(Store(before), "A", "Key", QString::fromUtf8("☃"), &reason));
  EXPECT_TRUE(reason.contains("encoding")) << reason.toStdString();
  EXPECT_EQ(Bytes(), before);
}

TEST_F(IniFileTest, WrittenValuesReadBack) {
  const QStringList values{"",
                           " ",
                           "  both  ",
                           "\"quoted\"",
                           "\"",
                           "a=b",
                           "; no comment",
                           "[brace]",
                           "back\\slash",
                           "it's",
                           QString::fromUtf8("emoji 😀 ä عربي"),
                           "tab\tinside"};
  for (const QString& value : values) {
    AfterWrite("[A]\nOther=1\n", value);
    EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Key"), value);
    EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Other"), "1");
  }
}

TEST_F(IniFileTest, WhatWouldBreakTheFileIsRefused) {
  const QByteArray before = "[A]\nKey=1\n";
  const QString path = Store(before);
  struct {
    QString section, key, value;
  } const refused[] = {{"A", "Key", "1\nOther=2"}, {"A", "Key", QString(QChar(0))},
                       {"A", "a=b", "1"},          {"A", " ", "1"},
                       {"A", "[B]", "1"},          {"A", ";x", "1"},
                       {"A]", "Key", "1"},         {"", "Key", "1"}};
  for (const auto& entry : refused) {
    QString reason;
    EXPECT_FALSE(IniFile::WriteValue(path, entry.section, entry.key, entry.value, &reason));
    EXPECT_FALSE(reason.isEmpty());
    EXPECT_EQ(Bytes(), before);
  }
}

// --- What came out of fuzzing ---

TEST_F(IniFileTest, HalfALetterOfUtf16IsNoText) {
  for (const bool bigEndian : {false, true}) {
    const QByteArray before = Utf16("[A]\nKey=1\n", bigEndian) + 'x';
    QString reason;
    EXPECT_FALSE(IniFile::WriteValue(Store(before), "A", "Key", "2", &reason));
    EXPECT_EQ(reason, "The file '" + Path() + "' is not a text file.");
    EXPECT_EQ(Bytes(), before);
  }
}

TEST_F(IniFileTest, ASecondMarkBelongsToTheText) {
  const QByteArray mark = "\xEF\xBB\xBF";
  EXPECT_EQ(AfterWrite(mark + mark + "\n[A]\nKey=1\n", "2"), mark + mark + "\n[A]\nKey=2\n");
  const QString text = QChar(QChar::ByteOrderMark) + QString("\n[A]\nKey=%1\n");
  EXPECT_EQ(AfterWrite(Utf16(text.arg(1), true), "2"), Utf16(text.arg(2), true));
}

TEST_F(IniFileTest, HalfACharacterIsRefused) {
  const QByteArray before = "[A]\nKey=1\n";
  QString reason;
  EXPECT_FALSE(IniFile::WriteValue(Store(before), "A", "Key", QString("x") + QChar(0xD83D), &reason));
  EXPECT_FALSE(reason.isEmpty());
  EXPECT_EQ(Bytes(), before);
}

TEST_F(IniFileTest, ACutLeavesNoHalfCharacter) {
  const QString path = Store("[A]\nKey=" + QByteArray(499, 'x') + QString::fromUtf8("😀").toUtf8() + "y\n");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key"), QString(499, 'x'));
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Key", 501), QString(499, 'x') + QString::fromUtf8("😀"));
}

// The one byte that was no UTF-8 goes with the old value; the others must not turn into another letter.
TEST_F(IniFileTest, LettersStayThemselvesWhenTheEncodingCanNoLongerBeTold) {
  AfterWrite("[A]\nKey=\xE4\nOther=\xC3\xA9\n", "plain");
  EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Other"), QString::fromLatin1("\xC3\xA9"));
  EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Key"), "plain");
}

TEST_F(IniFileTest, AnEmptyValueBehindBlanksIsEmpty) {
  EXPECT_EQ(AfterWrite("[A]\nKey =  old\n", ""), "[A]\nKey =  \"\"\n");
  EXPECT_TRUE(IniFile::ReadValue(Path(), "A", "Key").isEmpty());
  EXPECT_EQ(AfterWrite("[A]\nKey=old\n", ""), "[A]\nKey=\n");
}

TEST_F(IniFileTest, NamesAreListedByTheLettersThatTheyAreFoundBy) {
  const QString path = Store(QString::fromUtf8("[A]\nStraße=1\nSTRASSE=2\nstrasse=3\n").toUtf8());
  EXPECT_EQ(IniFile::ReadValue(path, "A", QString::fromUtf8("straße")), "1");
  EXPECT_EQ(IniFile::ReadValue(path, "A", "Strasse"), "2");
  EXPECT_EQ(IniFile::Keys(path, "A"), (QStringList{QString::fromUtf8("Straße"), "STRASSE"}));
}

TEST_F(IniFileTest, WritingKeepsPermissions) {
  Store("[A]\nKey=1\n");
  const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
  ASSERT_TRUE(QFile::setPermissions(Path(), permissions));
  ASSERT_TRUE(IniFile::WriteValue(Path(), "A", "Key", "2", nullptr));
  const auto mask = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther;
  EXPECT_EQ(QFile::permissions(Path()) & mask, permissions);
}

#ifndef Q_OS_WIN
TEST_F(IniFileTest, WritingThroughALinkKeepsTheLink) {
  Store("[A]\nKey=1\n");
  ASSERT_TRUE(QFile::link(Path(), Path("link.ini")));
  ASSERT_TRUE(IniFile::WriteValue(Path("link.ini"), "A", "Key", "2", nullptr));
  EXPECT_TRUE(QFileInfo(Path("link.ini")).isSymLink());
  EXPECT_EQ(IniFile::ReadValue(Path(), "A", "Key"), "2");
}

TEST_F(IniFileTest, FullDiskLeavesTheOldFile) {
  const QByteArray before = "[A]\nKey=1\n" + QByteArray(4000, ';');
  Store(before);
  QString reason;
  {
    const FileSizeLimit limit(1024);
    EXPECT_FALSE(IniFile::WriteValue(Path(), "A", "Key", "2", &reason));
  }
  EXPECT_TRUE(reason.startsWith("The file '" + Path() + "' cannot be written: ")) << reason.toStdString();
  EXPECT_EQ(Bytes(), before);
}
#endif

TEST_F(IniFileTest, MissingDirectoryIsToldOnWriting) {
  QString reason;
  EXPECT_FALSE(IniFile::WriteValue(Path("absent/Ostana.INI"), "A", "Key", "1", &reason));
  EXPECT_FALSE(reason.isEmpty());
}
