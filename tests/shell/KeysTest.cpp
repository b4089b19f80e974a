// The keys of a day's work: tabs, records, commands, and what is not stored.
#include <QAction>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

class KeysTest : public SampleDesk {
 protected:
  // A key as a person strikes it: where the focus is.
  void Strike(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QApplication::setActiveWindow(Window());
    QWidget* const focus = Window()->focusWidget();
    QTest::keyClick(focus == nullptr ? Window() : focus, key, modifiers);
  }
  int Tab() { return Shell().Tab(); }
  void EnterMethods() {
    Start();
    SelectTab("sstabtables", frmTabulon::DeliveryTab);
    Find<TextBox>("txt5aDescription")->setFocus();
  }
  bool IsMarked(const QString& field) { return Find<QWidget>(field)->property("unsaved").toBool(); }
};

TEST_F(KeysTest, ControlPageKeysTurnTheMainTabs) {
  Start();
  for (int turn = 1; turn <= frmTabulon::TabCount; ++turn) {
    Strike(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Tab(), turn % frmTabulon::TabCount);
  }
  Strike(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Tab(), frmTabulon::MiscellaneousTab);
}

TEST_F(KeysTest, ControlTabGoesThroughAllTabsAndSubTabsAndComesRound) {
  Start();
  QStringList places;
  for (int turn = 0; turn < 60; ++turn) {
    auto* const inner = Shell().Page(Tab()) ? Shell().Page(Tab())->findChild<QTabWidget*>() : nullptr;
    places.append(QString("%1 %2").arg(Tab()).arg(inner ? inner->currentIndex() : 0));
    Strike(Qt::Key_Tab, Qt::ControlModifier);
    QWidget* const focus = Shell().focusWidget();
    ASSERT_NE(focus, nullptr);
    EXPECT_TRUE(Shell().Page(Tab())->isAncestorOf(focus))
        << places.last().toStdString() << " then " << focus->objectName().toStdString();
    EXPECT_NE(focus->focusPolicy(), Qt::NoFocus);
  }
  EXPECT_EQ(QSet<QString>(places.begin(), places.end()).size(), 20) << places.join(", ").toStdString();
}

TEST_F(KeysTest, AFieldThatMayNotBeLeftKeepsTheTab) {
  Start();
  SelectTab("sstabtables", frmTabulon::InvoicingTab);
  ChooseAt("cmb7RateTable", 1);
  Type("txt7Surcharge", "100000");
  Prompt().ExpectStart("Surcharge", 16);
  Strike(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), frmTabulon::InvoicingTab);
  EXPECT_EQ(Focus(), "txt7Surcharge");
}

TEST_F(KeysTest, ControlDownGoesToTheNextRecordInTheSameField) {
  EnterMethods();
  ASSERT_GT(Rows("grd5aTable"), 3);
  EXPECT_EQ(Row("grd5aTable"), 1);
  Strike(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(Row("grd5aTable"), 2);
  EXPECT_EQ(Focus(), "txt5aDescription");
  EXPECT_EQ(Text("txt5aDescription"), Cell("grd5aTable", 2, 2));
  EXPECT_EQ(Find<TextBox>("txt5aDescription")->selectedText(), Text("txt5aDescription"));
  Strike(Qt::Key_Up, Qt::ControlModifier);
  Strike(Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(Row("grd5aTable"), 1) << "before the first one there is none";
}

TEST_F(KeysTest, ControlSStoresAndStaysInTheField) {
  EnterMethods();
  Strike(Qt::Key_Down, Qt::ControlModifier);
  const QString code = Text("txt5aCode");
  QTest::keyClicks(Find<TextBox>("txt5aDescription"), "by drone");
  Prompt().Expect("Record Updated", 64);
  Strike(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC FROM ID_DELIV_METHOD WHERE DELIV_METHOD = '" + code + "'"), "by drone");
}

TEST_F(KeysTest, ControlShiftSAddsAndControlNEmpties) {
  EnterMethods();
  Strike(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(Text("txt5aCode"), "");
  Type("txt5aCode", "Q");
  Type("txt5aDescription", "by drone");
  Prompt().Expect("Record Added", 64);
  Strike(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Count("ID_DELIV_METHOD", "DELIV_METHOD = 'Q'"), 1);
}

TEST_F(KeysTest, KeysOfCommandsThatAreOffDoNothing) {
  TakeAway("ADD_FLAG");
  EnterMethods();
  Type("txt5aCode", "Q");
  Type("txt5aDescription", "by drone");
  Strike(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Count("ID_DELIV_METHOD", "DELIV_METHOD = 'Q'"), 0);
}

TEST_F(KeysTest, TheMenuTellsTheKeys) {
  Start();
  EXPECT_EQ(Find<QAction>("mnuOptionsUpdate")->shortcut(), QKeySequence("Ctrl+S"));
  EXPECT_EQ(Find<QAction>("mnuOptionsAdd")->shortcut(), QKeySequence("Ctrl+Shift+S"));
  EXPECT_EQ(Find<QAction>("mnuOptionsClear")->shortcut(), QKeySequence("Ctrl+N"));
  EXPECT_TRUE(Find<QAction>("mnuOptionsDelete")->shortcut().isEmpty());
  EXPECT_EQ(Find<QAction>("mnuSiteReadAgain")->shortcut(), QKeySequence("F5"));
}

TEST_F(KeysTest, F5ReadsAgainWhatAnotherClientChanged) {
  EnterMethods();
  Another("INSERT INTO ID_DELIV_METHOD (DELIV_METHOD, DELIV_METHOD_DESC) VALUES ('Q', 'by drone')");
  const int before = Rows("grd5aTable");
  Strike(Qt::Key_F5);
  EXPECT_EQ(Rows("grd5aTable"), before + 1);
}

TEST_F(KeysTest, F5AsksForAChangedRecord) {
  EnterMethods();
  const QString code = Text("txt5aCode");
  Append("txt5aDescription", "2");
  const QString typed = Text("txt5aDescription");
  Prompt().ExpectStart("A record has been modified.", 36, MessageAnswer::Yes);
  Prompt().Expect("Record Updated", 64);
  Strike(Qt::Key_F5);
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC FROM ID_DELIV_METHOD WHERE DELIV_METHOD = '" + code + "'"), typed);
  Find<TextBox>("txt5aDescription")->setFocus();
  Append("txt5aDescription", "3");
  Prompt().ExpectStart("A record has been modified.", 36, MessageAnswer::No);
  Strike(Qt::Key_F5);
  EXPECT_EQ(Ask("SELECT DELIV_METHOD_DESC FROM ID_DELIV_METHOD WHERE DELIV_METHOD = '" + code + "'"), typed);
  EXPECT_FALSE(IsMarked("txt5aDescription"));
}

TEST_F(KeysTest, WhatIsNotStoredIsSeenAndEscapeGivesItBack) {
  EnterMethods();
  const QString stored = Text("txt5aDescription");
  EXPECT_FALSE(IsMarked("txt5aDescription"));
  EXPECT_EQ(Text("lblModified"), "");
  Append("txt5aDescription", "x");
  EXPECT_TRUE(IsMarked("txt5aDescription"));
  EXPECT_FALSE(IsMarked("txt5aCode"));
  EXPECT_EQ(Text("lblModified"), "Modified");
  EXPECT_TRUE(Find<QPushButton>("cmdUpdate")->isDefault());
  // As stored again by hand: all of it goes.
  Strike(Qt::Key_Backspace);
  EXPECT_FALSE(IsMarked("txt5aDescription"));
  EXPECT_EQ(Text("lblModified"), "");
  EXPECT_FALSE(Find<QPushButton>("cmdUpdate")->isDefault());
  Append("txt5aDescription", "xyz");
  Strike(Qt::Key_Escape);
  EXPECT_EQ(Text("txt5aDescription"), stored);
  EXPECT_FALSE(IsMarked("txt5aDescription"));
  EXPECT_FALSE(ProcessEnded());
}

TEST_F(KeysTest, MarksGoWithTheRecord) {
  EnterMethods();
  Append("txt5aDescription", "x");
  EXPECT_TRUE(IsMarked("txt5aDescription"));
  SelectRow("grd5aTable", 2);
  EXPECT_FALSE(IsMarked("txt5aDescription"));
  Append("txt5aDescription", "y");
  Prompt().Expect("Record Updated", 64);
  Click("cmdUpdate");
  EXPECT_FALSE(IsMarked("txt5aDescription"));
  EXPECT_EQ(Text("lblModified"), "");
}

TEST_F(KeysTest, EnterInTheListLeadsToTheFirstField) {
  EnterMethods();
  auto* const list = Find<Grid>("grd5aTable");
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_F2}) {
    list->setFocus();
    Strike(key);
    EXPECT_EQ(Focus(), "txt5aCode");
  }
}

TEST_F(KeysTest, TheToolbarFindsInTheListInUse) {
  EnterMethods();
  const QString second = Cell("grd5aTable", 2, 1);
  auto* const field = Find<TextBox>("txtFind");
  field->setFocus();
  QTest::keyClicks(field, second);
  EXPECT_EQ(Find<Grid>("grd5aTable")->FoundRow(), 2);
  Strike(Qt::Key_Return);
  EXPECT_EQ(Row("grd5aTable"), 2);
  EXPECT_EQ(Focus(), "txtFind") << "who looks for the next match is not done yet";
  Strike(Qt::Key_Escape);
  EXPECT_EQ(field->Text(), "");
  EXPECT_EQ(Focus(), "grd5aTable");
  EXPECT_TRUE(Find<Grid>("grd5aTable")->Sought().isEmpty());
}

TEST_F(KeysTest, TheStatusBarCountsTheRows) {
  EnterMethods();
  QApplication::processEvents();
  const int rows = Rows("grd5aTable") - 1;
  EXPECT_EQ(Text("lblRows"), QString("%1 rows").arg(rows));
  Find<Grid>("grd5aTable")->SetFilter(Cell("grd5aTable", 1, 2));
  QApplication::processEvents();
  EXPECT_EQ(Text("lblRows"), QString("1 of %1 rows").arg(rows));
}

TEST_F(KeysTest, TheToolbarKeepsItsHeightAndOffersWhatTheButtonsOffer) {
  Start();
  auto* const bar = Find<QWidget>("tlbButtons");
  const int height = bar->height();
  for (int tab = 0; tab < frmTabulon::TabCount; ++tab) {
    SelectTab("sstabtables", tab);
    QApplication::processEvents();
    EXPECT_EQ(bar->height(), height) << tab;
    for (const auto& [button, tool] :
         {std::pair("cmdAdd", "Add"), std::pair("cmdUpdate", "Update"), std::pair("cmdDelete", "Delete")}) {
      QAction* shown = nullptr;
      for (QAction* action : bar->actions())
        if (action->text().remove('&') == tool) shown = action;
      ASSERT_NE(shown, nullptr) << tool;
      EXPECT_EQ(shown->isVisible(), Find<QWidget>(button)->isVisible()) << tab << tool;
      // A hidden action counts as off.
      if (!shown->isVisible()) continue;
      EXPECT_EQ(shown->isEnabled(), Find<QWidget>(button)->isEnabled()) << tab << tool;
    }
  }
}

}  // namespace
