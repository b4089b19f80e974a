#include "platform/controls/CodeComboBox.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTextDocumentFragment>
#include <QToolTip>
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

// --- Keys ---

TEST_F(CodeComboBoxTest, KeysWithControlAreTheWindows) {
  auto* const tabs = window.Add(new QTabWidget(&window));
  tabs->addTab(list, "first");
  tabs->addTab(new QWidget, "second");
  Fill();
  Show();
  QTest::keyClick(list, Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs->currentIndex(), 1);
  tabs->setCurrentIndex(0);
  list->SetIndex(1);
  list->setFocus();
  QTest::keyClick(list, Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(list->Index(), 1);
}

TEST_F(CodeComboBoxTest, ArrowsOpenTheListWhereThatIsAskedFor) {
  Fill();
  list->SetIndex(0);
  Show();
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(list->Index(), 1);
  list->OpenByArrows();
  QSignalSpy picked(list, &CodeComboBox::Click);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_TRUE(list->view()->isVisible());
  EXPECT_EQ(list->Index(), 1);
  EXPECT_EQ(picked.count(), 0);
  QTest::keyClick(list->view(), Qt::Key_Down);
  QTest::keyClick(list->view(), Qt::Key_Return);
  EXPECT_EQ(list->Index(), 2);
  EXPECT_EQ(picked.count(), 1);
}

TEST_F(CodeComboBoxTest, TypingInALongOpenListLeavesWhatHoldsTheText) {
  list->AddNone();
  for (int entry = 1; entry <= 30; ++entry) list->Add(QStringLiteral("Table %1").arg(entry), QString::number(entry));
  list->Add(QString::fromUtf8("Universités"), "U");
  list->Add("Patron categories of university", "P");
  Show();
  auto* const view = qobject_cast<QListView*>(list->view());
  const auto shown = [&] {
    QStringList entries;
    for (int row = 0; row < list->Count(); ++row)
      if (!view->isRowHidden(row)) entries.append(list->TextAt(row));
    return entries;
  };
  list->showPopup();
  QTest::keyClicks(view, "universit");
  EXPECT_EQ(shown(), QStringList({QString::fromUtf8("Universités"), "Patron categories of university"}));
  EXPECT_EQ(view->currentIndex().row(), list->IndexOfCode("U"));
  auto* const text = view->parentWidget()->findChild<QLabel*>("qt_choice_filter");
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(), "universit");
  QTest::keyClicks(view, "y");
  EXPECT_EQ(shown(), QStringList("Patron categories of university"));
  QTest::keyClick(view, Qt::Key_Backspace);
  EXPECT_EQ(shown().size(), 2);
  QTest::keyClick(view, Qt::Key_Escape);
  EXPECT_EQ(shown().size(), 33);
  EXPECT_TRUE(view->isVisible()) << "the first Escape takes the text away, the second closes the list";
  QTest::keyClicks(view, "gories");
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_EQ(list->Code(), "P");
  EXPECT_FALSE(view->isVisible());
  list->showPopup();
  EXPECT_EQ(shown().size(), 33) << "the next time the list is whole";
}

TEST_F(CodeComboBoxTest, ATipTellsTheWholeEntryThatIsCut) {
  Fill();
  list->Add("Requests of other libraries that came by mail and by telephone", "R");
  list->setFixedWidth(90);
  Show();
  const auto tip = [this] {
    QToolTip::showText(QPoint(1, 1), "another");
    const QPoint middle = list->rect().center();
    QHelpEvent help(QEvent::ToolTip, middle, list->mapToGlobal(middle));
    QApplication::sendEvent(list, &help);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
  };
  list->SetCode("R");
  EXPECT_EQ(tip(), "Requests of other libraries that came by mail and by telephone");
  list->SetCode("S");
  EXPECT_FALSE(tip().contains("Standard"));
}

}  // namespace
