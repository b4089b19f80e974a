// Every screen sends what the table says, and on a server not one round trip more: no look-up for each row of a list
// that the table does not show, no question of the driver's own.
//
//   TABULON_WRITE_STATEMENTS  a file to which what was sent is appended, as rows of SentStatementsTable.cpp
#include <QFile>
#include <QRegularExpression>
#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/clsAddRequest.h"
#include "platform/ado/SqlTokens.h"
#include "reliability/FarDesk.h"
#include "reliability/SentStatements.h"
#include "reliability/WritingScreens.h"
#include "shell/Screens.h"
#include "support/Folders.h"

namespace {

void AppendTo(const char* variable, const QString& line) {
  if (qEnvironmentVariableIsEmpty(variable)) return;
  QFile file(qEnvironmentVariable(variable));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
  file.write((line + '\n').toUtf8());
}

class StatementsTest : public FarDesk {
 protected:
  // Runs an action and compares.
  template <class Act>
  void Sends(const QString& screen, const QString& action, Act act) {
    SCOPED_TRACE((screen + ", " + action).toStdString());
    QStringList sent;
    const int before = HasNetwork() ? Proxy().RoundTrips() : 0;
    AfterEachStatement([&](const StatementRecord& record) { sent += SplitStatements(record.text); });
    act();
    AfterEachStatement({});
    const int trips = HasNetwork() ? Proxy().RoundTrips() - before : 0;
    Tell(screen, action, sent, trips);
    const Sent* const expected = FindSent(screen, action);
    EXPECT_EQ(InShort(sent), QString(expected ? expected->statements : ""));
    EXPECT_EQ(sent.size(), expected ? expected->count : 0);
    if (!HasNetwork()) return;
    const int beside = expected ? 2 * expected->transactions + expected->catalogue : 0;
    EXPECT_EQ(trips, sent.size() + beside);
  }

 private:
  static void Tell(const QString& screen, const QString& action, const QStringList& sent, int trips) {
    if (sent.isEmpty()) return;
    AppendTo("TABULON_WRITE_STATEMENTS", QString("      {\"%1\", \"%2\", %6, \"%3\", %4, %5},")
                                             .arg(screen, action, InShort(sent))
                                             .arg((trips - sent.size()) / 2)
                                             .arg((trips - sent.size()) % 2)
                                             .arg(sent.size()));
  }
};

// --- Actions ---

class ActionStatementsTest : public StatementsTest, public testing::WithParamInterface<ScreenAction> {};

TEST_P(ActionStatementsTest, AreThoseOfTheTable) {
  const auto& [screen, action] = GetParam();
  EXPECT_TRUE(FindSent(screen->name, action.name)) << "the table has no row for this action";
  action.prepare(*this, 1);
  Said().Forget();
  Sends(screen->name, action.name, [&] { action.press(*this); });
  EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Screens, ActionStatementsTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

// Not one more where changes are recorded.
class RecordedStatementsTest : public ActionStatementsTest {
 protected:
  bool WithHistory() const override { return true; }
};

TEST_P(RecordedStatementsTest, AreThoseOfTheTable) {
  const auto& [screen, action] = GetParam();
  action.prepare(*this, 1);
  Said().Forget();
  Sends(screen->name, action.name, [&] { action.press(*this); });
}

INSTANTIATE_TEST_SUITE_P(Screens, RecordedStatementsTest, testing::ValuesIn(ScreenActions()),
                         [](const auto& action) { return action.param.Name(); });

// --- Opening and moving about ---

class OpeningStatementsTest : public StatementsTest {
 protected:
  // The second row of each grid in view.
  void RowsOf(const QString& place) {
    for (Grid* grid : Window()->findChildren<Grid*>()) {
      if (!grid->isVisible() || grid->Rows() < 3) continue;
      Sends(place, "row of " + grid->objectName(), [&] { SelectRow(grid->objectName(), 2); });
    }
  }
  // The tables that are read differently, and a plain one of the many.
  static bool IsOfInterest(const CodeComboBox& list, int entry) {
    static const QStringList tables{"ID_LIBRARY_CAT", "ID_SERVICE_TYPE", "ID_ACK_STATEMENT", "ID_CATALOG_CODE"};
    return list.objectName() != u"cmb0Tables" || tables.contains(list.CodeAt(entry));
  }
  // Every entry of a list of tables; one of a list that only narrows a grid.
  void Choices(const QString& place, const QWidget& page) {
    static const QRegularExpression tables("^(cmb0Tables|cmb4Tables|cmb7RateTable)$");
    static const QRegularExpression filters("^(cmb8AccessGroup|cmbShowDepartments|cmb5dSelectLibrarySymbol)$");
    for (const auto* list : page.findChildren<CodeComboBox*>(tables)) {
      for (int entry = 0; list->isVisible() && entry < list->Count(); ++entry)
        if (IsOfInterest(*list, entry))
          Sends(place, "choose " + list->TextAt(entry), [&] { ChooseAt(list->objectName(), entry); });
    }
    for (const auto* list : page.findChildren<CodeComboBox*>(filters))
      if (list->isVisible())
        Sends(place, "choose from " + list->objectName(), [&] { ChooseAt(list->objectName(), 1); });
  }
};

TEST_F(OpeningStatementsTest, OfTheTabs) {
  EnterTab(frmTabulon::CodeTablesTab);
  auto* const tabs = Find<QTabWidget>("sstabtables");
  for (int index = 0; index < tabs->count(); ++index) {
    const QString name = tabs->tabText(index);
    Sends(name, "open", [&] { SelectTab("sstabtables", index); });
    QWidget* const page = Shell().Page(index);
    auto* const inner = page ? page->findChild<QTabWidget*>() : nullptr;
    for (int sub = 0; sub < (inner ? inner->count() : 1); ++sub) {
      const QString place = inner ? name + ", " + inner->tabText(sub).remove('&') : name;
      if (sub > 0) Sends(place, "open", [&] { SelectTab(inner->objectName(), sub); });
      RowsOf(place);
      if (page) Choices(place, *page);
    }
  }
}

TEST_F(OpeningStatementsTest, OfTheDialogs) {
  Logon();
  for (const QString& name : RegisteredScreens()) {
    gclsOF->SetLibraryId(Auenfels);
    glngNCIPLibraryId = glngFoundLibraryId = Auenfels;
    gstrCoverRequestType = "REG";
    gstrNotesExceptionCode = "BIB";
    gstrNotesProcessType = "SEA";
    Sends(name, "open", [&] { Open(name); });
    RowsOf(name);
    auto* const inner = Window()->findChild<QTabWidget*>();
    for (int sub = 1; inner && sub < inner->count(); ++sub) {
      const QString place = name + ", " + inner->tabText(sub).remove('&');
      Sends(place, "open", [&] { inner->setCurrentIndex(sub); });
      RowsOf(place);
    }
    if (gbRecordModified) Shell().LivePage()->CurrentRecord().Settled();
  }
}

TEST_F(OpeningStatementsTest, OfALanguage) {
  EnterTab(frmTabulon::CodeTablesTab);
  ChooseCode("cmb0Tables", "ID_LANGUAGE_CODE");
  Sends("Code Tables", "choose a language", [&] { ChooseCode("cmb0CurrentLanguage", "FRE"); });
}

TEST_F(OpeningStatementsTest, OfASearch) {
  OpenLibraryScreen("frmLibraryRegistration", 0);
  Type("txtLibrarySymbol", "DE-AUE");
  Sends("frmLibraryRegistration", "search a symbol", [&] { Click("cmdSearch"); });
  EXPECT_EQ(Text("txtLibrarySymbol"), "DE-AUE");
  Type("txtLibrarySymbol", "DE-%");
  Sends("frmLibraryRegistration", "search a pattern", [&] { Click("cmdSearch"); });
  ASSERT_GT(Find<CodeComboBox>("cmbLibrarySymbol")->Count(), 2);
  Sends("frmLibraryRegistration", "choose a match", [&] { ChooseAt("cmbLibrarySymbol", 1); });
  OpenDialog("frmLibrarySearch");
  Type("txtInstitution", "U");
  Sends("frmLibrarySearch", "search", [&] { Click("cmdSearch"); });
  ASSERT_GT(Rows("grdViewSearchResults"), 2);
}

TEST_F(OpeningStatementsTest, OfARequest) {
  OpenLibraryScreen("frmLibraryRegistration");
  gclsRequestInfo->CmdOkCliked = gclsAddRequest->CmdOkCliked = true;
  gclsRequestInfo->PublicationType = "B";
  gclsRequestInfo->ServiceType = "L";
  gclsRequestInfo->ServiceLevel = "X";
  gclsRequestInfo->RequestSource = "M";
  gclsRequestInfo->Title = "Three Words Here";
  gclsRequestInfo->Author = "Moss, Ada";
  gclsRequestInfo->CallNumber = "AB 12";
  gstrRequestType = "REG";
  Sends("Request", "place", [&] { EXPECT_TRUE(gclsAddRequest->UpdateOstanaTables()); });
}

// --- The table ---

TEST(SentStatements, HasOneRowForEachAction) {
  QSet<QString> seen;
  for (const Sent& sent : SentStatements()) {
    const QString name = QString(sent.screen) + ", " + sent.action;
    EXPECT_FALSE(seen.contains(name)) << name.toStdString();
    seen.insert(name);
  }
}

TEST(SentStatements, StandInTheDocument) {
  QFile file(SourceFolder() + "/docs/engines.md");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString document = QString::fromUtf8(file.readAll());
  for (const Sent& sent : SentStatements())
    EXPECT_TRUE(document.contains('\n' + DocumentLine(sent) + '\n')) << "missing: " << DocumentLine(sent).toStdString();
}

}  // namespace
