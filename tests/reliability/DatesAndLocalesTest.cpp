// What is stored does not depend on the machine's time zone, decimal sign or letters.
#include <QLocale>
#include <clocale>
#include <ctime>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "reliability/WritingScreens.h"
#include "shell/NumericFields.h"

namespace {

class DatesAndLocalesTest : public ReliabilityDesk {
 protected:
  void SetUp() override {
    zone_ = qgetenv("TZ");
    ReliabilityDesk::SetUp();
  }
  void TearDown() override {
    ReliabilityDesk::TearDown();
    QLocale::setDefault(QLocale::c());
    SetDecimalSeparator();
    zone_.isEmpty() ? qunsetenv("TZ") : qputenv("TZ", zone_);
    tzset();
  }
  static void GoTo(const char* zone) {
    qputenv("TZ", zone);
    tzset();
  }
  static void Speak(const char* locale) {
    QLocale::setDefault(QLocale(locale));
    SetDecimalSeparator();
  }
  QString Stamp() {
    return Ask("SELECT LAST_MODIFIED FROM ID_LIBRARY WHERE LIBRARY_ID = " + QString::number(Auenfels));
  }
  void StampAt(const QDateTime& moment) {
    Clock::Set([moment] { return moment; });
    OpenLibraryScreen("frmLibraryBillingInfo");
    Type("txtCity", moment.toString("hhmmss"));
    Click("cmdUpdate");
  }
  QStringList Columns(const QString& sql) {
    QStringList values;
    Recordset rows;
    rows.Open(Database().OtherClient(), sql);
    for (int column = 0; column < rows.FieldCount(); ++column) values += rows.Fields(column).Value();
    return values;
  }

  QByteArray zone_;
};

TEST_F(DatesAndLocalesTest, TheHoursAroundBothClockChangesAreStoredAsTheClockShowed) {
  GoTo("Europe/Berlin");
  for (const char* const time : {"2024-03-31 01:59:59", "2024-03-31 03:00:00", "2024-10-27 01:59:59",
                                 "2024-10-27 02:30:00", "2024-10-27 03:00:00"}) {
    StampAt(QDateTime::fromString(time, "yyyy-MM-dd hh:mm:ss"));
    EXPECT_EQ(Stamp(), QString(time));
  }
}

// Another program, in another zone, stored an hour that this machine's clock leaps over.
TEST_F(DatesAndLocalesTest, AnHourThatTheClockLeapsOverIsReadAsItStands) {
  GoTo("Europe/Berlin");
  Another(
      "UPDATE ID_LIBRARY SET LAST_MODIFIED = '2024-03-31 02:30:00', QUOTA_RESET_DATE = '2024-03-31' WHERE LIBRARY_ID "
      "= " +
      QString::number(Auenfels));
  EXPECT_EQ(Stamp(), "2024-03-31 02:30:00");
  OpenLibraryScreen("frmLibraryBillingInfo");
  Type("txtCity", "x");
  Click("cmdUpdate");
  EXPECT_EQ(Ask("SELECT QUOTA_RESET_DATE FROM ID_LIBRARY WHERE LIBRARY_ID = " + QString::number(Auenfels)),
            "2024-03-31");
}

TEST_F(DatesAndLocalesTest, ADecimalCommaOnScreenIsAPointInTheTable) {
  Speak("de_DE");
  OpenDialog("frmItemType");
  SelectRow("grdItemType", 1);
  const QString code = Text("txtItemType");
  Type("txtCharge", "12,5");
  Click("cmdUpdate");
  EXPECT_TRUE(Said().Success()) << Said().Transcript().toStdString();
  EXPECT_EQ(Columns("SELECT ITEM_CHARGE FROM ID_ITEM_TYPE WHERE ITEM_TYPE = '" + code + "'"), QStringList("12.50"));
}

// In Turkish the capital of "i" is a dotted letter. Qt's own upper-casing knows no locale, so that a code is the same
// code everywhere; this holds it to that.
TEST_F(DatesAndLocalesTest, CodesAreTheSameInTurkish) {
  const char* const before = std::setlocale(LC_ALL, nullptr);
  const std::string kept = before ? before : "C";
  std::setlocale(LC_ALL, "tr_TR.UTF-8");  // where the machine has it; QLocale is set in any case
  Speak("tr_TR");
  EXPECT_EQ(QString("iı").toUpper(), "II");
  EXPECT_EQ(QChar(u'i').toUpper(), QChar(u'I'));
  OpenDialog("frmGeneralMessages");
  Type("txtCode", "i");
  EXPECT_EQ(Text("txtCode"), "I");
  Open("frmServiceCode");
  Type("txtServiceCode", "ini");
  EXPECT_EQ(Text("txtServiceCode"), "INI");
  EXPECT_EQ(Ask("SELECT library_symbol FROM id_library WHERE library_id = " + QString::number(Auenfels)), "DE-AUE");
  std::setlocale(LC_ALL, kept.c_str());
}

// "ﬁ" is one letter, its capitals are two: what is typed next stands behind both.
TEST_F(DatesAndLocalesTest, ALigatureInCapitalsKeepsTheOrderOfWhatIsTyped) {
  OpenLibraryScreen("frmNCIPStatusCodes");
  Type("txtNCIPStatusCode", "ﬁx");
  EXPECT_EQ(Text("txtNCIPStatusCode"), "FIX");
}

TEST_F(DatesAndLocalesTest, AWholeEditStoresTheSameUnderEveryLocale) {
  QStringList stored;
  for (const char* const locale : {"C", "de_DE", "tr_TR", "ar_EG"}) {
    Speak(locale);
    OpenDialog("frmCurrencyCodes");
    SelectRow("grdCurrencyCode", 2);
    const QString code = Text("txtCurrencyCode");
    Another("UPDATE ID_CURRENCY_CODE SET CURRENCY_COUNTRY = 'before' WHERE CURRENCY_CODE = '" + code + "'");
    Type("txtCountry", "izmir");
    Click("cmdUpdate");
    EXPECT_TRUE(Said().Success()) << locale << Said().Transcript().toStdString();
    const QStringList row = Columns("SELECT * FROM ID_CURRENCY_CODE WHERE CURRENCY_CODE = '" + code + "'");
    EXPECT_TRUE(row.contains("izmir"));
    if (stored.isEmpty()) stored = row;
    EXPECT_EQ(row, stored) << locale;
    Said().Forget();
    Click("cmdClose");
  }
}

}  // namespace
