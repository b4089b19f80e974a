#include "platform/controls/TextBox.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextDocumentFragment>
#include <QToolTip>

#include "platform/Window.h"

namespace {

const QString Emoji = QString::fromUcs4(U"\U0001F4DA");

class TextBoxTest : public testing::Test {
 protected:
  TextBox* Make(int maxLength = 0) {
    box = window.Add(new TextBox(&window, "txtCode", maxLength));
    window.Add(new TextBox(&window, "txtNext"));
    window.Show();
    box->setFocus();
    return box;
  }

  void Paste(const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keySequence(box, QKeySequence::Paste);
  }

  void Commit(const QString& composed) {
    QInputMethodEvent event;
    event.setCommitString(composed);
    QApplication::sendEvent(box, &event);
  }

  Window window;
  TextBox* box = nullptr;
};

KeyPressFilter DigitsOnly() {
  return [](char16_t key) { return key == 8 || key == 13 || (key >= u'0' && key <= u'9') ? key : char16_t(0); };
}

TEST_F(TextBoxTest, CarriesItsName) {
  EXPECT_EQ(Make()->objectName(), "txtCode");
}

TEST_F(TextBoxTest, LimitStopsTyping) {
  QTest::keyClicks(Make(3), "abcd");
  EXPECT_EQ(box->Text(), "abc");
}

TEST_F(TextBoxTest, WithoutLimitTakesLongText) {
  const QString text(50000, u'x');
  Make()->SetText(text);
  EXPECT_EQ(box->Text(), text);
}

TEST_F(TextBoxTest, LimitMayComeLater) {
  EXPECT_EQ(Make()->MaxLength(), 0);
  box->SetMaxLength(2);
  EXPECT_EQ(box->MaxLength(), 2);
  QTest::keyClicks(box, "abc");
  EXPECT_EQ(box->Text(), "ab");
  box->SetMaxLength(0);
  QTest::keyClicks(box, "c");
  EXPECT_EQ(box->Text(), "abc");
}

TEST_F(TextBoxTest, LimitNeverHalvesASurrogatePair) {
  Make(3)->SetText("ab" + Emoji);
  EXPECT_EQ(box->Text(), "ab");
  Paste(Emoji);
  EXPECT_EQ(box->Text(), "ab");
  Commit(Emoji);
  EXPECT_EQ(box->Text(), "ab");
  box->SetText("a");
  QTest::keyClick(box, Qt::Key_End);
  Commit(Emoji);
  EXPECT_EQ(box->Text(), "a" + Emoji);
}

TEST_F(TextBoxTest, PasteReplacesTheSelectionWithinTheLimit) {
  Make(4)->SetText("abcd");
  box->selectAll();
  Paste("12345");
  EXPECT_EQ(box->Text(), "1234");
}

TEST_F(TextBoxTest, TypingIsChangeAndEditedFillingIsChangeOnly) {
  Make();
  QSignalSpy changed(box, &TextBox::Change), edited(box, &TextBox::Edited);
  box->SetText("AB");
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(edited.count(), 0);
  box->SetText("AB");
  EXPECT_EQ(changed.count(), 1);
  QTest::keyClicks(box, "C");
  EXPECT_EQ(changed.count(), 2);
  ASSERT_EQ(edited.count(), 1);
  EXPECT_EQ(edited.front().front().toString(), "ABC");
  Paste("D");
  EXPECT_EQ(edited.count(), 2);
}

TEST_F(TextBoxTest, FilterRefusesTypedCharacters) {
  Make()->SetKeyPress(DigitsOnly());
  QTest::keyClicks(box, "1a2b3");
  EXPECT_EQ(box->Text(), "123");
}

TEST_F(TextBoxTest, FilterMayEnterAnotherCharacter) {
  Make()->SetKeyPress([](char16_t key) { return key == u',' ? u'.' : key; });
  QTest::keyClicks(box, "1,5");
  EXPECT_EQ(box->Text(), "1.5");
}

TEST_F(TextBoxTest, FilterSeesOnlyPrintableKeysBackspaceAndEnter) {
  Make()->SetText("abc");
  std::vector<char16_t> seen;
  box->SetKeyPress([&](char16_t key) {
    seen.push_back(key);
    return char16_t(0);
  });
  for (const int key : {Qt::Key_Left, Qt::Key_Home, Qt::Key_End, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_F5})
    QTest::keyClick(box, static_cast<Qt::Key>(key));
  QTest::keySequence(box, QKeySequence::SelectAll);
  QTest::keySequence(box, QKeySequence::Copy);
  EXPECT_TRUE(seen.empty());
  QTest::keyClick(box, Qt::Key_Backspace);
  QTest::keyClick(box, Qt::Key_Return);
  QTest::keyClicks(box, "x");
  EXPECT_EQ(seen, (std::vector<char16_t>{8, 13, u'x'}));
  EXPECT_EQ(box->Text(), "abc");
}

TEST_F(TextBoxTest, ShortcutsAndDeleteWorkUnderAFilter) {
  Make()->SetKeyPress(DigitsOnly());
  box->SetText("12");
  QTest::keySequence(box, QKeySequence::SelectAll);
  QTest::keySequence(box, QKeySequence::Copy);
  EXPECT_EQ(QApplication::clipboard()->text(), "12");
  QTest::keyClick(box, Qt::Key_Delete);
  EXPECT_EQ(box->Text(), "");
}

TEST_F(TextBoxTest, PastedTextPassesTheFilter) {
  Make()->SetKeyPress(DigitsOnly());
  Paste("1a2-3");
  EXPECT_EQ(box->Text(), "123");
}

TEST_F(TextBoxTest, FilterOfPastedTextSeesWhatStandsInTheBoxAlready) {
  Make()->SetKeyPress([this](char16_t key) { return key == u'.' && box->Text().contains(u'.') ? char16_t(0) : key; });
  Paste("1.2.3");
  EXPECT_EQ(box->Text(), "1.23");
}

TEST_F(TextBoxTest, PasteMayPassUnfilteredToTheBoxesOwnCheck) {
  Make()->SetKeyPress(DigitsOnly(), true);
  Paste("a1");
  QTest::keyClicks(box, "b2");
  EXPECT_EQ(box->Text(), "a12");
}

TEST_F(TextBoxTest, ControlCharactersNeverEnterByPaste) {
  Make();
  Paste(QStringLiteral("a\u0001b\u0007\u001f") + QChar(0) + "c\x7f");
  EXPECT_EQ(box->Text(), "abc");
}

TEST_F(TextBoxTest, PastedLinesBecomeOne) {
  Make();
  Paste("\r\none\r\ntwo\tthree\n");
  EXPECT_EQ(box->Text(), "one two three");
}

TEST_F(TextBoxTest, PasteOfTheContextMenuIsFilteredAsWell) {
  Make()->SetKeyPress(DigitsOnly());
  QApplication::clipboard()->setText("x7\n");
  QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(2, 2), box->mapToGlobal(QPoint(2, 2)));
  QApplication::sendEvent(box, &event);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  const auto actions = menu->actions();
  const auto paste =
      std::find_if(actions.begin(), actions.end(), [](QAction* a) { return a->text().startsWith("&Paste"); });
  ASSERT_NE(paste, actions.end());
  (*paste)->trigger();
  menu->close();
  EXPECT_EQ(box->Text(), "7");
}

TEST_F(TextBoxTest, DroppedTextPassesTheFilter) {
  Make()->SetKeyPress(DigitsOnly());
  QMimeData data;
  data.setText("4x2");
  QDragEnterEvent enter(QPoint(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box, &enter);
  QDropEvent drop(QPointF(3, 3), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(box, &drop);
  EXPECT_EQ(box->Text(), "42");
}

TEST_F(TextBoxTest, ComposedTextPassesTheFilter) {
  Make()->SetKeyPress(DigitsOnly());
  Commit("4x2");
  EXPECT_EQ(box->Text(), "42");
}

TEST_F(TextBoxTest, NothingIsPastedIntoAReadOnlyBox) {
  Make()->setReadOnly(true);
  Paste("abc");
  EXPECT_EQ(box->Text(), "");
}

TEST_F(TextBoxTest, UpperCaseAsTypedAndPasted) {
  Make()->UpperCaseAsTyped();
  QTest::keyClicks(box, "ab");
  Paste(QStringLiteral("c\u00e4\u00df"));
  EXPECT_EQ(box->Text(), QStringLiteral("ABC\u00c4\u00df"));
}

TEST_F(TextBoxTest, TypedEmojiIsOneCharacterForTheFilter) {
  Make()->SetKeyPress([](char16_t key) { return QChar::isHighSurrogate(key) ? char16_t(0) : key; });
  Commit("a" + Emoji + "b");
  EXPECT_EQ(box->Text(), "ab");
}

TEST_F(TextBoxTest, UndoTakesBackWhatWasTyped) {
  Make()->UpperCaseAsTyped();
  QTest::keyClicks(box, "abc");
  QTest::keySequence(box, QKeySequence::Undo);
  EXPECT_EQ(box->Text(), "");
}

TEST_F(TextBoxTest, TrimsInPlace) {
  Make()->SetText("  ab c ");
  EXPECT_EQ(box->Trimmed(), "ab c");
  EXPECT_EQ(box->Text(), "  ab c ");
  EXPECT_EQ(box->TrimInPlace(), "ab c");
  EXPECT_EQ(box->Text(), "ab c");
  box->SetText(" x ");
  EXPECT_EQ(box->TrimUpperInPlace(), "X");
  EXPECT_EQ(box->Text(), "X");
}

// What is returned is what a statement sends: never more than a person sees in the box.
TEST_F(TextBoxTest, CapitalsThatAreLongerThanTheBoxAreCutInTheAnswerToo) {
  Make(3)->SetText("a\u00dfb");
  EXPECT_EQ(box->TrimUpperInPlace(), "ASS");
  EXPECT_EQ(box->Text(), "ASS");
}

TEST_F(TextBoxTest, EnterRunsTheActionAndGoesNoFurther) {
  QDialog dialog;
  auto* layout = new QVBoxLayout(&dialog);
  auto* find = new TextBox(&dialog, "txtFind");
  auto* ok = new QPushButton("OK", &dialog);
  layout->addWidget(find);
  layout->addWidget(ok);
  ok->setDefault(true);
  QSignalSpy pressed(ok, &QPushButton::clicked);
  int runs = 0;
  find->SetEnterAction([&] { ++runs; });
  dialog.show();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  find->setFocus();
  QTest::keyClick(find, Qt::Key_Return);
  QTest::keyClick(find, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(runs, 2);
  EXPECT_EQ(pressed.count(), 0);
  find->SetEnterAction({});
  QTest::keyClick(find, Qt::Key_Return);
  EXPECT_EQ(pressed.count(), 1);
}

TEST_F(TextBoxTest, SelectsAllOnFocusByTabClickAndCode) {
  Make()->SetText("abc");
  box->SelectAllOnFocus();
  auto* next = window.findChild<TextBox*>("txtNext");
  next->setFocus();
  box->setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(box->selectedText(), "abc");
  next->setFocus();
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(box->selectedText(), "abc");
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_EQ(box->selectedText(), "");
  next->setFocus();
  QTest::keyClick(next, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(box->selectedText(), "abc");
}

TEST_F(TextBoxTest, GotFocusComesFromControlsNotFromMessageBoxes) {
  Make();
  auto* next = window.findChild<TextBox*>("txtNext");
  QSignalSpy got(box, &TextBox::GotFocus);
  next->setFocus();
  QTest::keyClick(next, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(got.count(), 1);
  AnswerNextBox(QMessageBox::Ok);
  QMessageBox(QMessageBox::NoIcon, "", "text", QMessageBox::Ok, &window).exec();
  window.Activate();
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(got.count(), 1);
}

// Qt takes it and the sign behind it for one letter; stored, that would be another text.
TEST_F(TextBoxTest, CapitalsLeaveHalfOfAPairAlone) {
  Make();
  const QString half = QString("a") + QChar(0xd9aa) + "x";
  box->SetText(half);
  EXPECT_EQ(box->TrimUpperInPlace(), QString("A") + QChar(0xd9aa) + "X");
  box->SetText(QString::fromUcs4(U"stra\u00dfe \U00010428"));
  EXPECT_EQ(box->TrimUpperInPlace(), QString::fromUcs4(U"STRASSE \U00010400"));
}

TEST_F(TextBoxTest, IsAsWideAsItsLimitCallsFor) {
  const TextBox code(nullptr, "a", 3), name(nullptr, "b", 40), address(nullptr, "c", 100), note(nullptr, "d", 500);
  EXPECT_LT(code.sizeHint().width() * 3, name.sizeHint().width());
  EXPECT_LT(name.sizeHint().width(), address.sizeHint().width());
  EXPECT_EQ(address.sizeHint().width(), note.sizeHint().width());
  EXPECT_LT(note.sizeHint().width(), 640);
  EXPECT_GE(code.sizeHint().width(), code.fontMetrics().horizontalAdvance("WWW") + 8);
}

// --- What a person sees of a long text ---

TEST_F(TextBoxTest, ABoxWithoutTheFocusShowsTheBeginningOfItsText) {
  Make()->setFixedWidth(60);
  auto* const next = window.findChild<TextBox*>("txtNext");
  next->setFocus();
  box->SetText("https://ncip.auenfels.example.org/service");
  EXPECT_EQ(box->cursorPosition(), 0);
  box->setFocus();
  QTest::keyClick(box, Qt::Key_End);
  QTest::keyClicks(box, "/v2");
  EXPECT_TRUE(box->Text().endsWith("/v2"));
  next->setFocus();
  EXPECT_EQ(box->cursorPosition(), 0);
}

TEST_F(TextBoxTest, ATipTellsTheWholeTextAndTheRule) {
  Make(80)->setFixedWidth(60);
  const auto tip = [this] {
    QToolTip::showText(QPoint(1, 1), "another");
    const QPoint middle = box->rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, box->mapToGlobal(middle));
    QApplication::sendEvent(box, &help);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  };
  box->SetText("x");
  EXPECT_EQ(tip(), "up to 80 characters");
  box->SetText("https://ncip.auenfels.example.org/service");
  EXPECT_EQ(tip(), "https://ncip.auenfels.example.org/service\nup to 80 characters");
  box->UpperCaseAsTyped();
  box->SetMaxLength(1);
  EXPECT_EQ(tip(), "1 character, capitals");
  box->setToolTip("The symbol of the library");
  box->SetRule("0.00 to 99.99");
  EXPECT_EQ(tip(), "The symbol of the library\n0.00 to 99.99");
  box->setReadOnly(true);
  EXPECT_EQ(tip(), "The symbol of the library");
}

TEST_F(TextBoxTest, ARefusedKeySaysWhyAtTheBox) {
  Make(10)->SetKeyPress(DigitsOnly());
  box->SetRule("digits");
  QTest::keyClicks(box, "4");
  EXPECT_FALSE(box->property("refused").toBool());
  QTest::keyClicks(box, ",");
  EXPECT_TRUE(box->property("refused").toBool());
  EXPECT_EQ(QToolTip::text(), "digits");
  auto* const edge = box->findChild<QWidget*>("qt_edge");
  ASSERT_NE(edge, nullptr);
  EXPECT_TRUE(edge->isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !box->property("refused").toBool(); }));
  EXPECT_FALSE(edge->isVisible());
}

TEST_F(TextBoxTest, WhatIsNotStoredHasAnEdge) {
  Make(10);
  auto* const edge = box->findChild<QWidget*>("qt_edge");
  const auto left = [this] { return window.grab().toImage().pixelColor(box->geometry().topLeft() + QPoint(1, 8)); };
  box->setProperty("unsaved", true);
  EXPECT_TRUE(edge->isVisible());
  EXPECT_EQ(edge->geometry(), box->rect());
  EXPECT_EQ(left(), box->palette().color(QPalette::Highlight));
  QTest::mouseClick(box, Qt::LeftButton);
  EXPECT_TRUE(box->hasFocus()) << "the edge takes no click away";
  window.findChild<TextBox*>("txtNext")->setFocus();
  box->setProperty("unsaved", false);
  EXPECT_FALSE(edge->isVisible());
}

}  // namespace
