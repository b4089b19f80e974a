// Pictures of the library screens in the states a user meets, in the light and the dark palette: empty, filled,
// inactive, pending. (Several matches are pictured where they are tested.) No password and no card code is on them.
#include <QApplication>
#include <QPalette>

#include "directory/LibraryDesk.h"
#include "shell/Screen.h"

namespace {

class LibraryPicturesTest : public LibraryDesk, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    const QMap<QString, QString> values{{"PRIME_CITY", "'Leeds'"},
                                        {"PRIME_COUNTRY", "'United Kingdom'"},
                                        {"TIMEZONE", "'GMT Standard Time'"},
                                        {"DELIV_METHOD_COPY", "'E'"},
                                        {"DELIV_EMAIL", "'copies@north.example.org'"},
                                        {"DELIV_FAX", "'(613) 555-0100'"},
                                        {"MSG_FAX", "'0044 20 7946 0000'"},
                                        {"INTERNET_ARIEL", "'ariel.north.example.org'"},
                                        {"USER_LOGIN", "'north'"},
                                        {"LANGUAGE_CODE", "'FRE'"},
                                        {"VORN_SYMBOL", "'NORTH'"},
                                        {"VORN_USE_IFM", "'Y'"},
                                        {"VORN_IFM_MAX_COST", "25"},
                                        {"RAPID_CODE", "'NRT'"},
                                        {"RAPID_BRANCH_NAME", "'Main Library'"},
                                        {"LIBRARY_TYPE", "'U'"},
                                        {"LOAN_CODE", "'N'"},
                                        {"MAX_COST", "50"},
                                        {"DATE_ENTERED", "'2024-03-05 14:05:06'"},
                                        {"BILL_ADDRESS1", "'3 Bank Street'"},
                                        {"BILL_CITY", "'Leeds'"},
                                        {"BILLING_TYPE", "'C'"},
                                        {"REQUESTS_PROCESSED", "12"},
                                        {"WEIGHTING_FACTOR", "1.5"},
                                        {"QUOTA_TOTAL", "1000"},
                                        {"QUOTA_FILLED", "211"}};
    for (auto value = values.begin(); value != values.end(); ++value) SetColumn(North, value.key(), value.value());
    Another("INSERT INTO ID_SUPPLIER (LIBRARY_ID, SUPPLIER_CODE) VALUES (101, 'S1')");
  }
  void TearDown() override {
    QApplication::setPalette(light_);
    LibraryDesk::TearDown();
  }
  void Show(const QString& state, qint32 id) {
    OpenLibrary(GetParam(), id);
    EXPECT_LE(Window()->width(), 1280);
    EXPECT_LE(Window()->height(), 800);
    Picture("library-" + QString(GetParam()) + "-" + state);
  }
  static QPalette Dark() {
    QPalette dark(QColor(49, 54, 59));
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    return dark;
  }

 private:
  const QPalette light_ = QApplication::palette();
};
INSTANTIATE_TEST_SUITE_P(Screens, LibraryPicturesTest,
                         testing::Values("frmLibraryRegistration", "frmLibraryLoginInfo", "frmLibraryStatisticalInfo",
                                         "frmLibraryBillingInfo"),
                         [](const testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

TEST_P(LibraryPicturesTest, InEveryState) {
  Show("empty", 0);
  Show("filled", North);
  Show("inactive", South);
  SetColumn(North, "LIBRARY_ACTIVE", "'P'");
  Show("pending", North);
  QApplication::setPalette(Dark());
  Show("pending-dark", North);
}

}  // namespace
