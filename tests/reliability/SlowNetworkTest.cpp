// The program on a line that takes 50 ms for each round trip: it works as on a fast one, and what it sends is what it
// has to send. No case asserts a duration; the seconds that stand in docs/engines.md are recorded as properties
// (--gtest_output=xml:FILE writes them out).
#include <QElapsedTimer>
#include <set>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/ado/Recordset.h"
#include "reliability/FarDesk.h"
#include "reliability/SentStatements.h"
#include "reliability/WritingScreens.h"

namespace {

constexpr std::chrono::milliseconds FarAway{50};

class SlowNetworkTest : public FarDesk {
 protected:
  void SetUp() override {
    FarDesk::SetUp();
    if (!HasNetwork()) GTEST_SKIP() << "a file has no network";
  }

  // Runs a step at the distance and records how many round trips and milliseconds it took.
  template <class Step>
  int Far(const char* name, Step step) {
    const int before = Proxy().RoundTrips();
    Proxy().SetDelay(FarAway);
    QElapsedTimer timer;
    timer.start();
    step();
    const qint64 took = timer.elapsed();
    Proxy().SetDelay({});
    const int trips = Proxy().RoundTrips() - before;
    RecordProperty(std::string(name) + ".trips", trips);
    RecordProperty(std::string(name) + ".milliseconds", int(took));
    return trips;
  }
};

TEST_F(SlowNetworkTest, AStatementIsOneRoundTrip) {
  Connection connection(Proxy().Settings());
  connection.Open();
  const auto trips = [&](const char* sql) { return Far("statement", [&] { connection.Execute(sql); }); };
  EXPECT_EQ(trips("UPDATE ID_PRINTER SET DEVICE = 'one' WHERE PRINTER = 'none'"), 1);
  EXPECT_EQ(trips("INSERT INTO ID_PRINTER (PRINTER, DEVICE) VALUES ('far', 'away')"), 1);
  EXPECT_EQ(Far("transaction",
                [&] {
                  Transaction transaction(connection);
                  connection.Execute("UPDATE ID_PRINTER SET DEVICE = 'two' WHERE PRINTER = 'far'");
                  transaction.Commit();
                }),
            3);
  EXPECT_EQ(Ask("SELECT DEVICE FROM ID_PRINTER WHERE PRINTER = 'far'"), "two");
}

TEST_F(SlowNetworkTest, AnAnswerOfManyRowsIsOneRoundTrip) {
  Connection connection(Proxy().Settings());
  connection.Open();
  Recordset rows;
  EXPECT_EQ(Far("rows", [&] { rows.Open(connection, "SELECT * FROM ID_LIBRARY ORDER BY LIBRARY_ID"); }), 1);
  EXPECT_GT(rows.RecordCount(), 20);
  EXPECT_EQ(Far("reading",
                [&] {
                  for (; !rows.EOF_(); rows.MoveNext())
                    for (int i = 0; i < rows.FieldCount(); ++i) EXPECT_FALSE(rows.Fields(i).Name().isEmpty());
                }),
            0);
}

TEST_F(SlowNetworkTest, ALongStatementIsOneRoundTrip) {
  Connection connection(Proxy().Settings());
  connection.Open();
  const QString text(300000, QChar(0x00E9));  // in many pieces on its way
  const QString update = "UPDATE ID_PRINTER SET DEVICE = 'long' WHERE PRINTER = '" + text + "'";
  EXPECT_EQ(Far("long", [&] { connection.Execute(update); }), 1);
}

TEST_F(SlowNetworkTest, TheProgramStartsLoadsATabAndStoresARecord) {
  Far("start", [&] { EnterTab(frmTabulon::CodeTablesTab); });
  EXPECT_FALSE(ProcessEnded());
  EXPECT_EQ(Proxy().Sessions(), 1);
  Far("tab", [&] { EnterTab(frmTabulon::PrintersTab); });
  ASSERT_GT(Rows("grd3Printer"), 1);
  SelectRow("grd3Printer", 1);
  const QString printer = Text("txt3Printer");
  Type("txt3Printer", "Far away");
  EXPECT_EQ(Far("store", [&] { Click("cmdUpdate"); }), 3) << "begin, the update, commit";
  EXPECT_TRUE(Said().Success()) << Said().Transcript().toStdString();
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = 'Far away'"), 1);
  EXPECT_EQ(Count("ID_PRINTER", "PRINTER = '" + printer + "'"), 0);
}

// The actions that send most, and a few of the usual ones.
class FarActionTest : public SlowNetworkTest, public testing::WithParamInterface<ScreenAction> {
 public:
  static std::vector<ScreenAction> Some() {
    static const std::set<std::string> names{
        "CodeTables_Update",     "Departments_Add",         "LoanPolicies_Add",
        "ExceptionNotes_Update", "ISOServiceLevels_Update", "LibraryRegistration_Add",
        "LibraryContact_Update", "NCIPStatusCodes_Update",  "AliasRates_Add"};
    std::vector<ScreenAction> some;
    for (const ScreenAction& action : ScreenActions())
      if (names.contains(action.Name())) some.push_back(action);
    return some;
  }
};

TEST_P(FarActionTest, Works) {
  const auto& [screen, action] = GetParam();
  action.prepare(*this, 1);
  Said().Forget();
  const TableContents before = ContentsOf(Database().OtherClient(), screen->table);
  const Sent* const sent = FindSent(screen->name, action.name);
  ASSERT_TRUE(sent);
  EXPECT_EQ(Far("action", [&] { action.press(*this); }), sent->count + 2 * sent->transactions + sent->catalogue);
  EXPECT_FALSE(Said().Refusal()) << Said().Transcript().toStdString();
  EXPECT_FALSE(before == ContentsOf(Database().OtherClient(), screen->table));
}

INSTANTIATE_TEST_SUITE_P(Screens, FarActionTest, testing::ValuesIn(FarActionTest::Some()),
                         [](const auto& action) { return action.param.Name(); });

TEST_F(SlowNetworkTest, ALineThatIsCutIsALostConnection) {
  Connection connection(Proxy().Settings());
  connection.Open();
  Proxy().CutAll();
  const QString update = "UPDATE ID_PRINTER SET DEVICE = 'cut' WHERE PRINTER = 'none'";
  try {
    connection.Execute(update);
    ADD_FAILURE() << "the statement went through";
  } catch (const AdoError& error) {
    EXPECT_TRUE(error.ConnectionLost()) << error.Description().toStdString();
  }
  EXPECT_EQ(connection.Execute(update), 0);
  EXPECT_EQ(Proxy().Sessions(), 2);
}

}  // namespace
