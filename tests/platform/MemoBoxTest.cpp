#include "platform/controls/MemoBox.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QInputMethodEvent>
#include <QSignalSpy>

#include "platform/Window.h"
#include "platform/controls/TextBox.h"

namespace {

class MemoBoxTest : public testing::Test {
 protected:
  MemoBox* Make(int maxLength = 0) {
    memo = window.Add(new MemoBox(&window, "txtNote", maxLength));
    next = window.Add(new TextBox(&window, "txtNext"));
    window.Show();
    memo->setFocus();
    return memo;
  }

  void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keySequence(memo, QKeySequence::Paste);
  }

  Window window;
  MemoBox* memo = nullptr;
  TextBox* next = nullptr;
};

TEST_F(MemoBoxTest, LimitStopsTypingAndCountsALineEndOnce) {
  Make(4);
  QTest::keyClicks(memo, "ab");
  QTest::keyClick(memo, Qt::Key_Return);
  QTest::keyClicks(memo, "cd");
  EXPECT_EQ(memo->Text(), "ab\nc");
  QTest::keyClick(memo, Qt::Key_Return);
  EXPECT_EQ(memo->Text(), "ab\nc");
}

TEST_F(MemoBoxTest, EnterIsALineEndWithShiftToo) {
  Make(5);
  QTest::keyClicks(memo, "ab");
  QTest::keyClick(memo, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClick(memo, Qt::Key_Enter, Qt::ShiftModifier | Qt::KeypadModifier);
  QTest::keyClicks(memo, "c");
  EXPECT_EQ(memo->Text(), "ab\n\nc");
  QTest::keyClick(memo, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(memo->Text(), "ab\n\nc");
}

TEST_F(MemoBoxTest, LimitCutsWhatIsPasted) {
  Make(5);
  Paste("ab\r\ncdef");
  EXPECT_EQ(memo->Text(), "ab\ncd");
  memo->selectAll();
  Paste("1234567");
  EXPECT_EQ(memo->Text(), "12345");
}

TEST_F(MemoBoxTest, LimitNeverHalvesASurrogatePair) {
  Make(3);
  Paste("ab" + QString::fromUcs4(U"\U0001F4DA"));
  EXPECT_EQ(memo->Text(), "ab");
}

// A plain text edit gives a blank for it.
TEST_F(MemoBoxTest, TheNoBreakSpaceStaysWhatItIs) {
  const QString text = QString("Preis:%110%1€\nzweite%1Zeile").arg(QChar(QChar::Nbsp));
  Make()->SetText(text);
  EXPECT_EQ(memo->Text(), text);
  EXPECT_EQ(memo->Trimmed(), text);
  EXPECT_EQ(memo->TrimInPlace(), text);
  memo->clear();
  Paste(text);
  EXPECT_EQ(memo->Text(), text);
  QTest::keySequence(memo, QKeySequence::SelectAll);
  QTest::keySequence(memo, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), text);
}

TEST_F(MemoBoxTest, FillingWithTheTextOnShowIsNoChange) {
  const QString text = QString("a%1b").arg(QChar(QChar::Nbsp));
  Make()->SetText(text);
  const QSignalSpy change(memo, &MemoBox::Change);
  memo->SetText(text);
  EXPECT_EQ(change.count(), 0);
  memo->SetText("a b");
  EXPECT_EQ(change.count(), 1);
  EXPECT_EQ(memo->Text(), "a b");
}

TEST_F(MemoBoxTest, ALineSeparatorAndAParagraphSeparatorStay) {
  const QString text = QString("a%1b%2c").arg(QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator));
  Make()->SetText(text);
  EXPECT_EQ(memo->Text(), text);
  EXPECT_EQ(memo->toPlainText().count('\n'), 2);
}

TEST_F(MemoBoxTest, EachLineKeepsTheEndItWasFilledWith) {
  Make()->SetText("one\r\ntwo\nthree\rfour");
  EXPECT_EQ(memo->Text(), "one\r\ntwo\nthree\rfour");
  memo->moveCursor(QTextCursor::Start);
  QTest::keyClicks(memo, "x");
  EXPECT_EQ(memo->Text(), "xone\r\ntwo\nthree\rfour");
  memo->moveCursor(QTextCursor::End);
  QTest::keyClicks(memo, "y");
  EXPECT_EQ(memo->Text(), "xone\r\ntwo\nthree\rfoury");
  QTest::keyClick(memo, Qt::Key_Backspace);
  memo->moveCursor(QTextCursor::Start);
  QTest::keyClick(memo, Qt::Key_Delete);
  EXPECT_EQ(memo->Text(), "one\r\ntwo\nthree\rfour");
}

TEST_F(MemoBoxTest, ANewLineEndsAsTheTextsOwnLinesDo) {
  Make()->SetText("one\r\ntwo");
  memo->moveCursor(QTextCursor::End);
  QTest::keyClick(memo, Qt::Key_Return);
  QTest::keyClicks(memo, "three");
  EXPECT_EQ(memo->Text(), "one\r\ntwo\r\nthree");
  memo->SetText("one\ntwo");
  memo->moveCursor(QTextCursor::End);
  QTest::keyClick(memo, Qt::Key_Return);
  EXPECT_EQ(memo->Text(), "one\ntwo\n");
  memo->SetText({});
  QTest::keyClick(memo, Qt::Key_Return);
  EXPECT_EQ(memo->Text(), "\n");
}

TEST_F(MemoBoxTest, ALineTakenOutOfTheMiddleLeavesTheOthersAsTheyWere) {
  Make()->SetText("one\r\ntwo\r\nthree\nfour");
  QTextCursor cursor = memo->textCursor();
  cursor.setPosition(4);
  cursor.movePosition(QTextCursor::Down, QTextCursor::KeepAnchor);
  memo->setTextCursor(cursor);
  QTest::keyClick(memo, Qt::Key_Delete);
  EXPECT_EQ(memo->Text(), "one\r\nthree\nfour");
}

TEST_F(MemoBoxTest, TheLimitCountsLineEndsAsTheyAreStored) {
  Make(10)->SetText("one\r\ntwo");
  memo->moveCursor(QTextCursor::End);
  QTest::keyClick(memo, Qt::Key_Return);
  QTest::keyClicks(memo, "x");
  EXPECT_EQ(memo->Text(), "one\r\ntwo\r\n");
  memo->SetText("123456789");
  memo->moveCursor(QTextCursor::End);
  QTest::keyClick(memo, Qt::Key_Return);
  QTest::keyClicks(memo, "x");
  EXPECT_EQ(memo->Text(), "123456789\n");
}

TEST_F(MemoBoxTest, TypingReplacesASelectionInAFullBox) {
  Make(3)->SetText("abc");
  memo->selectAll();
  QTest::keyClicks(memo, "x");
  EXPECT_EQ(memo->Text(), "x");
}

TEST_F(MemoBoxTest, ControlCharactersNeverEnterByPasteTabsDo) {
  Make();
  Paste(QStringLiteral("a\u0002b\tc\u2028d") + QChar(0));
  EXPECT_EQ(memo->Text(), "ab\tc\nd");
}

TEST_F(MemoBoxTest, TabMovesTheFocus) {
  QTest::keyClick(Make(), Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
  EXPECT_EQ(memo->Text(), "");
}

TEST_F(MemoBoxTest, FillingByCodeIsChangeButNotEdited) {
  Make();
  QSignalSpy changed(memo, &MemoBox::Change), edited(memo, &MemoBox::Edited);
  memo->SetText("one\r\ntwo");
  EXPECT_EQ(memo->Text(), "one\r\ntwo");
  EXPECT_EQ(changed.count(), 1);
  memo->SetText("one\ntwo");
  EXPECT_EQ(memo->Text(), "one\ntwo");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(edited.count(), 0);
  QTest::keyClicks(memo, "x");
  EXPECT_EQ(edited.count(), 1);
  EXPECT_EQ(changed.count(), 2);
}

TEST_F(MemoBoxTest, KeyPressMayRefuseAKeyThatEntersText) {
  Make();
  int asked = 0;
  bool refuseAll = true;
  QObject::connect(memo, &MemoBox::KeyPress, memo, [&](bool& refuse) {
    ++asked;
    refuse = refuseAll;
  });
  QTest::keyClicks(memo, "a");
  QTest::keyClick(memo, Qt::Key_Return);
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(memo->Text(), "");
  QTest::keyClick(memo, Qt::Key_Left);
  EXPECT_EQ(asked, 2);
  refuseAll = false;
  QTest::keyClicks(memo, "a");
  EXPECT_EQ(asked, 3);
  EXPECT_EQ(memo->Text(), "a");
}

TEST_F(MemoBoxTest, ComposedTextKeepsTheLimit) {
  Make(3);
  QInputMethodEvent event;
  event.setCommitString("abcd");
  QApplication::sendEvent(memo, &event);
  EXPECT_EQ(memo->Text(), "abc");
}

TEST_F(MemoBoxTest, TrimsInPlace) {
  Make()->SetText("\n a \n");
  EXPECT_EQ(memo->TrimInPlace(), "a");
  EXPECT_EQ(memo->Text(), "a");
}

TEST_F(MemoBoxTest, GotFocusByTab) {
  Make();
  QSignalSpy got(memo, &MemoBox::GotFocus);
  next->setFocus();
  QTest::keyClick(next, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(got.count(), 1);
}

}  // namespace
