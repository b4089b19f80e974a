#include "platform/controls/CodeComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

#include "platform/Window.h"
#include "platform/controls/TextBox.h"

namespace {

class CodeComboBoxTest : public testing::Test {
 protected:
  void SetUp() override {
    list = window.Add(new CodeComboBox(&window, "cmbRate"));
    next = window.Add(new TextBox(&window, "txtNext"));
  }

  void Show() {
    window.Show();
    list->setFocus();
  }

  void Fill() {
    list->AddNone();
    list->Add("Standard", "S");
    list->Add("Express", "E");
  }

  void Wheel() {
    QWheelEvent turn(QPointF(5, 5), list->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &turn);
  }

  Window window;
  CodeComboBox* list = nullptr;
  TextBox* next = nullptr;
};

TEST_F(CodeComboBoxTest, NeverPicksItsFirstEntryByItself) {
  Fill();
  Show();
  EXPECT_EQ(list->Index(), -1);
  EXPECT_EQ(list->Text(), "");
  EXPECT_TRUE(list->Code().isNull());
  EXPECT_FALSE(list->IsNone());
  EXPECT_TRUE(list->IsEmptyOrNone());
  list->Clear();
  list->Add("only", "O");
  EXPECT_EQ(list->Index(), -1);
}

TEST_F(CodeComboBoxTest, KeepsTheCodeBesideEachDescription) {
  Fill();
  EXPECT_EQ(list->Count(), 3);
  EXPECT_EQ(list->CodeOf("Express"), "E");
  EXPECT_EQ(list->DescriptionOf("S"), "Standard");
  EXPECT_TRUE(list->CodeOf("express").isNull());
  EXPECT_TRUE(list->DescriptionOf("X").isNull());
  EXPECT_EQ(list->CodeAt(2), "E");
  EXPECT_EQ(list->TextAt(1), "Standard");
  EXPECT_TRUE(list->CodeAt(9).isNull());
}

TEST_F(CodeComboBoxTest, ACodeThatIsNoEntryIsShownAndGivenBack) {
  Fill();
  list->Hold("X");
  EXPECT_TRUE(list->HoldsUnknown());
  EXPECT_EQ(list->Index(), -1);
  EXPECT_EQ(list->Text(), "X");
  EXPECT_EQ(list->Code(), "X");
  EXPECT_EQ(list->Chosen(), std::optional<QString>("X"));
  EXPECT_FALSE(list->IsEmptyOrNone());
  list->SetHint("Rate of the library");
  EXPECT_EQ(list->Code(), "X");
  list->SetCode("E");
  EXPECT_FALSE(list->HoldsUnknown());
  EXPECT_EQ(list->Code(), "E");
}

TEST_F(CodeComboBoxTest, AnEntryThatTheUserPicksOrAnEmptiedListEndsAHeldCode) {
  Fill();
  list->Hold("X");
  list->SetIndex(0);
  EXPECT_TRUE(list->Code().isNull());
  list->Hold("X");
  list->Clear();
  EXPECT_FALSE(list->HoldsUnknown());
  EXPECT_EQ(list->Chosen(), std::nullopt);
  list->Hold("X");
  Fill();
  EXPECT_EQ(list->Code(), "X");
}

TEST_F(CodeComboBoxTest, ANullCodeIsTheNoneEntryOrNothing) {
  list->Hold(QString());
  EXPECT_EQ(list->Chosen(), std::nullopt);
  Fill();
  list->Hold(QString());
  EXPECT_TRUE(list->IsNone());
  EXPECT_EQ(list->Chosen(), std::optional<QString>(QString()));
}

TEST_F(CodeComboBoxTest, ChoosesByCode) {
  Fill();
  EXPECT_TRUE(list->SetCode("E"));
  EXPECT_EQ(list->Text(), "Express");
  EXPECT_FALSE(list->SetCode("e"));
  EXPECT_EQ(list->Code(), "E");
  EXPECT_TRUE(list->SetCode(QString()));
  EXPECT_TRUE(list->IsNone());
  EXPECT_FALSE(list->SetCode(""));
}

TEST_F(CodeComboBoxTest, EqualDescriptionsWithDifferentCodesStayApart) {
  list->Add("Copy", "C1");
  list->Add("Copy", "C2");
  EXPECT_TRUE(list->SetCode("C2"));
  EXPECT_EQ(list->Index(), 1);
  EXPECT_EQ(list->Code(), "C2");
  EXPECT_EQ(list->Text(), "Copy");
  EXPECT_EQ(list->CodeOf("Copy"), "C1");
}

TEST_F(CodeComboBoxTest, WithoutACodeTheTextIsItsOwn) {
  list->Add("AAA");
  list->SetIndex(0);
  EXPECT_EQ(list->Code(), "AAA");
}

TEST_F(CodeComboBoxTest, NoneStandsForNullWhateverItsLetters) {
  list->AddNone("(None)");
  list->Add("x", "X");
  list->SetIndex(0);
  EXPECT_TRUE(list->IsNone());
  EXPECT_TRUE(list->Code().isNull());
  list->SetText("(NONE)");
  EXPECT_EQ(list->Index(), -1);
  EXPECT_TRUE(list->IsNone());
  list->SetText("x");
  EXPECT_FALSE(list->IsNone());
  EXPECT_FALSE(list->IsEmptyOrNone());
}

TEST_F(CodeComboBoxTest, ShowsATextThatIsNoEntry) {
  Fill();
  Show();
  list->SetIndex(1);
  const QImage entry = list->grab().toImage();
  list->SetText("");
  const QImage empty = list->grab().toImage();
  list->SetText("Gone rate");
  EXPECT_EQ(list->Text(), "Gone rate");
  EXPECT_EQ(list->Index(), -1);
  EXPECT_TRUE(list->Code().isNull());
  EXPECT_NE(list->grab().toImage(), entry);
  EXPECT_NE(list->grab().toImage(), empty);
  list->SetText("Express");
  EXPECT_EQ(list->Index(), 2);
}

TEST_F(CodeComboBoxTest, ChoosingByCodeEmitsNothing) {
  QSignalSpy click(list, &CodeComboBox::Click), changed(list, &QComboBox::currentIndexChanged);
  Fill();
  list->SetIndex(1);
  list->SetCode("E");
  list->SetText("Standard");
  list->SetText("?");
  list->SetIndex(99);
  EXPECT_EQ(list->Index(), -1);
  list->Clear();
  EXPECT_EQ(click.count(), 0);
  EXPECT_EQ(changed.count(), 0);
}

TEST_F(CodeComboBoxTest, KeysChooseAndEmitClick) {
  Fill();
  Show();
  QSignalSpy click(list, &CodeComboBox::Click);
  list->SetText("Gone rate");
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(list->Text(), "(none)");
  QTest::keyClick(list, Qt::Key_End);
  EXPECT_EQ(list->Code(), "E");
  QTest::keyClicks(list, "s");
  EXPECT_EQ(list->Code(), "S");
  EXPECT_EQ(click.count(), 3);
}

TEST_F(CodeComboBoxTest, PickingTheChosenEntryAgainEmitsClick) {
  Fill();
  Show();
  list->SetIndex(1);
  QSignalSpy click(list, &CodeComboBox::Click);
  list->showPopup();
  ASSERT_TRUE(QTest::qWaitFor([this] { return list->view()->isVisible(); }));
  QTest::keyClick(list->view(), Qt::Key_Return);
  EXPECT_EQ(click.count(), 1);
  EXPECT_EQ(list->Index(), 1);
}

TEST_F(CodeComboBoxTest, PickWithTheMouse) {
  Fill();
  Show();
  QSignalSpy click(list, &CodeComboBox::Click);
  list->showPopup();
  ASSERT_TRUE(QTest::qWaitFor([this] { return list->view()->isVisible(); }));
  QTest::qWait(QApplication::doubleClickInterval() + 50);  // an open list ignores the release that opened it
  const QPoint third = list->view()->visualRect(list->model()->index(2, 0)).center();
  QTest::mouseMove(list->view()->viewport(), third);
  QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, third);
  EXPECT_EQ(list->Code(), "E");
  EXPECT_EQ(click.count(), 1);
}

TEST_F(CodeComboBoxTest, WheelChoosesOnlyWithTheFocus) {
  Fill();
  Show();
  list->SetIndex(0);
  next->setFocus();
  Wheel();
  EXPECT_EQ(list->Index(), 0);
  EXPECT_TRUE(next->hasFocus());
  list->setFocus();
  Wheel();
  EXPECT_EQ(list->Index(), 1);
}

TEST_F(CodeComboBoxTest, LongListKeepsEveryCode) {
  for (int i = 0; i < 20000; ++i) list->Add(QStringLiteral("Library %1").arg(i), QString::number(i));
  EXPECT_EQ(list->Count(), 20000);
  EXPECT_TRUE(list->SetCode("19999"));
  EXPECT_EQ(list->Text(), "Library 19999");
  Show();
  list->showPopup();
  EXPECT_TRUE(list->view()->isVisible());
  EXPECT_TRUE(list->view()->verticalScrollBar()->isVisible());
  EXPECT_LT(list->view()->height(), 600);
  EXPECT_GE(list->view()->parentWidget()->height(), list->view()->height());
  EXPECT_LE(list->view()->parentWidget()->height(), list->view()->height() + 4);  // no arrows to scroll by
  list->hidePopup();
}

TEST_F(CodeComboBoxTest, OpenListIsAsWideAsItsEntries) {
  list->Add(QString(40, u'W'));
  Show();
  list->showPopup();
  EXPECT_GE(list->view()->width(), list->fontMetrics().horizontalAdvance(QString(40, u'W')));
  list->hidePopup();
}

TEST_F(CodeComboBoxTest, GotFocusByTab) {
  Show();
  next->setFocus();
  QSignalSpy got(list, &CodeComboBox::GotFocus);
  QTest::keyClick(next, Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(got.count(), 1);
}

}  // namespace
