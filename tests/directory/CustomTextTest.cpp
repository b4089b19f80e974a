// Custom texts: the file, its keys, the defaults of the lists.
#include <QAction>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "directory/LibraryDesk.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/files/IniFile.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Folders.h"

namespace {

class CustomTextTest : public LibraryDesk {
 protected:
  void SetUp() override {
    LibraryDesk::SetUp();
    Setting("System", "CustomConfigFile", "Library.cfg");
  }
  QString File() const { return Folder() + "/Library.cfg"; }
  void Write(const QString& text) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text.toUtf8());
  }
  QString Entry(const QString& name) { return Find<QAction>(name)->text(); }
};

const QString Shipped = SourceFolder() + "/database/site/";

TEST_F(CustomTextTest, EachKindOfKeyReachesItsControl) {
  Write(
      "[Billing Information]\nLIBRARY_ScreenName=Facturation\nLIBRARY_mnuFile=&Fichier\n"
      "LIBRARY_mnuOptionsUpdate=Modifier\nLIBRARY_pbUpdate=&Modifier\nLIBRARY_fraQuota=Contingent\n"
      "ID_LIBRARY.BILL_ADDRESS=Rue :\nLIBRARY_LibraryInactiveMessage=Inactive!\nLIBRARY_Found=Trouvées :\n");
  OpenLibrary("frmLibraryBillingInfo", South);
  EXPECT_EQ(Window()->windowTitle(), "Ostana - Facturation");
  EXPECT_EQ(Find<QMenu>("mnuFile")->title(), "&Fichier");
  EXPECT_EQ(Entry("mnuOptionsUpdate"), "Modifier");
  EXPECT_EQ(Text("cmdUpdate"), "&Modifier");
  EXPECT_EQ(Find<QGroupBox>("fraQuota")->title(), "Contingent");
  EXPECT_EQ(Text("lblStreet1"), "Rue :");
  EXPECT_EQ(Find<QWidget>("txtStreet1")->accessibleName(), "Rue :");
  EXPECT_EQ(Text("lblLibraryInactiveMessage"), "Inactive!");
  EXPECT_TRUE(IsShown("lblLibraryInactiveMessage"));
  EXPECT_EQ(Text("lblFound"), "Trouvées :");
  // What the file does not name keeps its own text.
  EXPECT_EQ(Text("lblCity"), "City:");
}

TEST_F(CustomTextTest, TipsAndOptionsOfTheStatisticalScreen) {
  Write(
      "[Statistical Information]\nID_LIBRARY.VORN_SYMBOLToolTip=Sigle chez VORN\nLIBRARY_optUseIFM_Yes=Oui\n"
      "LIBRARY_optAllowLocalToolTip=Permis\nLIBRARY_optAllowLocal_No=Non\n");
  OpenLibrary("frmLibraryStatisticalInfo");
  EXPECT_EQ(Find<QWidget>("txtVORNSymbol")->toolTip(), "Sigle chez VORN");
  EXPECT_EQ(Text("lblUseIFMRadio(0)"), "Oui");
  EXPECT_EQ(Find<QWidget>("optUseIFM(0)")->accessibleName(), "Oui");
  EXPECT_EQ(Find<QWidget>("optRapidAllowLocal(0)")->toolTip(), "Permis");
  EXPECT_EQ(Text("lblRapidAllowLocalRadio(1)"), "Non");
}

TEST_F(CustomTextTest, HeadingsOfTheSearchScreen) {
  Write(
      "[Library Search]\nView_ID_LIBRARY.CONTACT=Personne\nLIBRARY_FrameSimpleSearch=Simple\nLIBRARY_pbOk=D'accord\n");
  OpenLibrary("frmLibrarySearch");
  EXPECT_EQ(Cell("grdViewSearchResults", 0, 4), "Personne");
  EXPECT_EQ(Cell("grdViewSearchResults", 0, 5), "Zip/Postal Code");
  EXPECT_EQ(Find<QGroupBox>("fraSimpleSearch")->title(), "Simple");
  EXPECT_EQ(Text("cmdOK"), "D'accord");
}

TEST_F(CustomTextTest, AMissingFileIsToldAndTheScreenOpens) {
  Prompt().ExpectTitled("Unable to find the Custom Configuration File:\n\n" + File() +
                            "\n\nCopy the Configuration File to the Ostana Installation Directory.\n\n"
                            "***************  Using Defaults  ***************",
                        MessageStyle::Warning, "Ostana - Login Information");
  OpenLibrary("frmLibraryLoginInfo", North);
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
  EXPECT_EQ(Text("lblUserID"), "User ID:");
}

TEST_F(CustomTextTest, TheSearchScreenTellsAMissingFileInItsOwnWords) {
  Prompt().Expect("Error accessing the 'LIBRARY.CFG' file in '" + Folder() +
                      "/'.\nMake sure the 'LIBRARY.CFG' file is in the application directory and try again.",
                  MessageStyle::Warning);
  OpenLibrary("frmLibrarySearch");
}

TEST_F(CustomTextTest, WithoutAFileNameNoFileIsLookedFor) {
  Setting("System", "CustomConfigFile", "");
  OpenLibrary("frmLibraryLoginInfo");
  OpenLibrary("frmLibrarySearch");
}

TEST_F(CustomTextTest, ALibraryCfgIsFoundWhateverItsLetters) {
  Write("[Login Information]\nLIBRARY_Language=Langue :\n");
  ASSERT_TRUE(QFile::rename(File(), Folder() + "/LIBRARY.CFG"));
  OpenLibrary("frmLibraryLoginInfo");
  EXPECT_EQ(Text("lblLanguage"), "Langue :");
}

TEST_F(CustomTextTest, AHiddenFileIsFound) {
  Setting("System", "CustomConfigFile", ".texts");
  QFile file(Folder() + "/.texts");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Login Information]\nLIBRARY_Language=Langue :\n");
  file.close();
  OpenLibrary("frmLibraryLoginInfo");
  EXPECT_EQ(Text("lblLanguage"), "Langue :");
}

TEST_F(CustomTextTest, BlanksOnlyAreAValueAnEmptyKeyIsNone) {
  Write("[Login Information]\nLIBRARY_Language=\"   \"\nID_LIBRARY.USER_LOGIN=\nID_LIBRARY.USER_PASSWORD=\" Code \"\n");
  OpenLibrary("frmLibraryLoginInfo");
  EXPECT_EQ(Text("lblLanguage"), "   ");
  EXPECT_EQ(Text("lblUserID"), "User ID:");
  EXPECT_EQ(Text("lblPassword"), "Code");
}

TEST_F(CustomTextTest, ABrokenFileGivesTheBuiltInTexts) {
  QFile file(File());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(5000, '\0') + "[Login Information" + QByteArray(5000, '\xff'));
  file.close();
  OpenLibrary("frmLibraryLoginInfo");
  EXPECT_EQ(Text("lblUserID"), "User ID:");
}

// --- Defaults ---

TEST_F(CustomTextTest, ADefaultInLowerCaseMatches) {
  Write(
      "[Library Registration]\nLIBRARY_Default_DELIV_METHOD_COPY=e\nLIBRARY_Default_DELIV_METHOD_LOAN=F\n"
      "LIBRARY_Default_MSG_METHOD=w\nLIBRARY_Default_FILE_FORMAT=j\nLIBRARY_Default_MSG_FORMAT=h\n");
  Begin();
  Open("frmLibraryRegistration");
  EXPECT_TRUE(Statements().contains("SELECT   DELIV_METHOD_DESC FROM ID_DELIV_METHOD WHERE    DELIV_METHOD = N'E'"));
  EXPECT_EQ(Find<CodeComboBox>("cmbDeliveryMethodCopy")->Code(), "E");
  EXPECT_EQ(Find<CodeComboBox>("cmbDeliveryMethodLoan")->Code(), "F");
  EXPECT_EQ(Find<CodeComboBox>("cboMsgMethod")->Code(), "W");
  EXPECT_EQ(Find<CodeComboBox>("cboFileFormat")->Code(), "J");
  EXPECT_EQ(Find<CodeComboBox>("cmbEmailMsgFormat")->Code(), "H");
  Choose("cmbDeliveryMethodCopy", "Mail");
  Click("cmdClear");
  EXPECT_EQ(Find<CodeComboBox>("cmbDeliveryMethodCopy")->Code(), "E");
}

TEST_F(CustomTextTest, ADefaultOfBlanksIsNone) {
  Write(
      "[Billing Information]\nLIBRARY_Default_BILLING_TYPE=\"  \"\nLIBRARY_Default_QUOTA_TOTAL=\"  \"\n"
      "[Statistical Information]\nLIBRARY_Default_LIBRARY_CAT=\"  \"\nLIBRARY_Default_MAX_COST=\"  \"\n");
  OpenLibrary("frmLibraryBillingInfo");
  EXPECT_EQ(Find<CodeComboBox>("cboBillingType")->Code(), "");
  EXPECT_EQ(Text("txtQTotal"), "");
  OpenLibrary("frmLibraryStatisticalInfo");
  EXPECT_EQ(Text("txtMaximumCost"), "");
}

TEST_F(CustomTextTest, ADeactivatedDefaultWarnsOnceWithItsDescriptionAndIsForgotten) {
  Another("UPDATE ID_DELIV_METHOD SET ACTIVE_FLAG = NULL WHERE DELIV_METHOD = 'E'");
  Write("[Library Registration]\nLIBRARY_Default_DELIV_METHOD_COPY=E\n");
  Prompt().Expect("Warning: The Default Delivery Method Copy *E-mail* has not been registered and cannot be set.",
                  MessageStyle::Warning);
  OpenLibrary("frmLibraryRegistration");
  EXPECT_EQ(Find<CodeComboBox>("cmbDeliveryMethodCopy")->Code(), "M");
  Click("cmdClear");
  EXPECT_EQ(Find<CodeComboBox>("cmbDeliveryMethodCopy")->Code(), "M");
  // Until the screen is loaded again.
  Prompt().ExpectStart("Warning: The Default Delivery Method Copy *", MessageStyle::Warning);
  OpenLibrary("frmLibraryRegistration");
}

TEST_F(CustomTextTest, DefaultsWhoseRowIsGoneWarnWithTheirCode) {
  Write(
      "[Library Registration]\nLIBRARY_Default_DELIV_METHOD_COPY=1\nLIBRARY_Default_DELIV_METHOD_LOAN=2\n"
      "LIBRARY_Default_MSG_METHOD=3\nLIBRARY_Default_FILE_FORMAT=4\nLIBRARY_Default_MSG_FORMAT=5\n"
      "[Statistical Information]\nLIBRARY_Default_STATS_CAT_LIB1=1\nLIBRARY_Default_STATS_CAT_LIB2=2\n"
      "LIBRARY_Default_STATS_CAT_LIB3=3\nLIBRARY_Default_LIBRARY_CAT=4\nLIBRARY_Default_LIBRARY_TYPE=5\n"
      "LIBRARY_Default_LOAN_CODE=6\n"
      "[Billing Information]\nLIBRARY_Default_BILLING_TYPE=1\nLIBRARY_Default_BILLING_RATE=2\n"
      "LIBRARY_Default_CURRENCY_CODE=3\nLIBRARY_Default_CREDIT_CARD=4\n");
  const auto warn = [this](const QString& start, const QString& code) {
    Prompt().Expect(start + code + "* has not been registered and cannot be set.", MessageStyle::Warning);
  };
  warn("Warning: The Default Delivery Method Copy *", "1");
  warn("Warning: The Default Delivery Method Loan *", "2");
  warn("Warning: The Default Messaging Method *", "3");
  warn("Warning: The Default File Format *", "4");
  OpenLibrary("frmLibraryRegistration");
  warn("Warning: The Default Stats Category 1 *", "1");
  warn("Warning: The Default Stats Category 2 *", "2");
  warn("Warning: The Default Stats Category 3 *", "3");
  warn("Warning: The Default Category *", "4");
  warn("Warning: The Default Library Type *", "5");
  warn("Warning: The Default Loan Code *", "6");
  OpenLibrary("frmLibraryStatisticalInfo");
  warn("Warning: The Default Billing Type *", "1");
  warn("Warning: The Default Billing Rate *", "2");
  warn("Warning: The Default Currency Code *", "3");
  warn("Warning: The Default Credit Card Type *", "4");
  OpenLibrary("frmLibraryBillingInfo");
}

TEST_F(CustomTextTest, BillingAndStatisticalDefaultsFillAnEmptyScreen) {
  Write(
      "[Statistical Information]\nLIBRARY_Default_LIBRARY_TYPE=u\nLIBRARY_Default_MAX_COST=50.00\n"
      "LIBRARY_Default_MAX_DAYS=28\n[Billing Information]\nLIBRARY_Default_BILLING_TYPE=c\n"
      "LIBRARY_Default_QUOTA_TOTAL=200\n");
  OpenLibrary("frmLibraryStatisticalInfo");
  EXPECT_EQ(Find<CodeComboBox>("cboLibraryType")->Code(), "U");
  EXPECT_EQ(Text("txtMaximumCost"), "50.00");
  EXPECT_EQ(Text("txtMaximumDays"), "28");
  OpenLibrary("frmLibraryBillingInfo");
  EXPECT_EQ(Find<CodeComboBox>("cboBillingType")->Code(), "C");
  EXPECT_EQ(Text("txtQTotal"), "200");
  Type("txtQTotal", "5");
  Click("cmdClear");
  EXPECT_EQ(Text("txtQTotal"), "200");
  OpenLibrary("frmLibraryBillingInfo", North);
  EXPECT_EQ(Text("txtQTotal"), "");
  EXPECT_EQ(Text("cboBillingType"), "(None)");
}

TEST_F(CustomTextTest, ADefaultIsDescribedInTheWorkingLanguage) {
  Another("UPDATE ID_DELIV_METHOD SET ACTIVE_FLAG = NULL, DELIV_METHOD_DESC_FRE = 'Courriel' WHERE DELIV_METHOD = 'E'");
  Write("[Library Registration]\nLIBRARY_Default_DELIV_METHOD_LOAN=E\n");
  Begin();
  gclsOF->SetLanguageSuffix("_FRE");
  Prompt().Expect("Warning: The Default Delivery Method Loan *Courriel* has not been registered and cannot be set.",
                  MessageStyle::Warning);
  Open("frmLibraryRegistration");
}

TEST_F(CustomTextTest, AFailedLookUpIsLoggedUnderTheReadersName) {
  Another("ALTER TABLE ID_MSG_METHOD RENAME COLUMN MSG_METHOD TO MOVED");
  Write("[Library Registration]\nLIBRARY_Default_MSG_METHOD=E\n");
  Prompt().Expect("An error has occurred.  Please Notify Support.", MessageStyle::Stop);
  Prompt().Expect("An error has occurred loading the drop down lists.  Please Notify Support.", MessageStyle::Stop);
  OpenLibrary("frmLibraryRegistration", North);
  EXPECT_TRUE(LogHolds("* LoadLibraryRegistrationInfoText"));
  EXPECT_TRUE(LogHolds("***** SQL error on ID_BILLING_TYPE (Select) *****"));
  EXPECT_EQ(Text("txtInstitution"), "NORTH COLLEGE");
}

// --- The files that are shipped ---

const std::pair<const char*, const char*> Sections[] = {
    {"frmLibraryRegistration", "Library Registration"}, {"frmLibraryContactInfo", "Contact Information"},
    {"frmLibraryLoginInfo", "Login Information"},       {"frmLibraryStatisticalInfo", "Statistical Information"},
    {"frmLibraryBillingInfo", "Billing Information"},   {"frmLibrarySearch", "Library Search"}};

TEST_F(CustomTextTest, BothShippedFilesHaveTheSameKeys) {
  for (const auto& [form, section] : Sections) {
    const QStringList english = IniFile::Keys(Shipped + "LIBRARY.CFG", section);
    EXPECT_GT(english.size(), 15) << section;
    EXPECT_EQ(english, IniFile::Keys(Shipped + "LIBRARY.FRE.CFG", section)) << section;
  }
  EXPECT_TRUE(IniFile::Sections(Shipped + "LIBRARY.CFG").contains("Library Supplier Sequencing"));
}

// The text that marks a key of the shipped file.
QString Mark(const QString& key) {
  return "Mark of " + key;
}

// All texts a screen shows or can show: captions, tool tips, titles, headings, entries of menus.
QStringList ShownTexts(const Screen& screen) {
  QStringList texts{screen.windowTitle().remove("Ostana - ")};
  for (const QWidget* widget : screen.findChildren<QWidget*>()) {
    texts << widget->toolTip() << widget->property("text").toString() << widget->property("title").toString();
    if (const auto* const grid = qobject_cast<const Grid*>(widget))
      for (int col = 1; col < grid->Cols(); ++col) texts << grid->Text(0, col);
  }
  for (const QAction* entry : screen.findChildren<QAction*>()) texts << entry->text();
  return texts;
}

// Each key of the shipped file is read: a marked value shows on the screen, or is a default that is asked for.
TEST_F(CustomTextTest, EveryShippedKeyIsReadByItsScreen) {
  for (const auto& [form, section] : Sections) {
    QStringList keys = IniFile::Keys(Shipped + "LIBRARY.CFG", section);
    keys.removeIf([](const QString& key) { return key.startsWith("LIBRARY_Default_"); });
    QString file = QString("[%1]\n").arg(section);
    for (const QString& key : keys) file += key + '=' + Mark(key) + '\n';
    Write(file);
    Begin();
    const std::unique_ptr<Screen> screen = MakeScreen(form, nullptr);
    screen->ShowModeless();
    const QStringList texts = ShownTexts(*screen);
    for (const QString& key : keys) EXPECT_TRUE(texts.contains(Mark(key))) << form << " " << qPrintable(key);
  }
}

// What a form shows and tells in tips, a line for each text with the name of its control.
QStringList TextsOf(const QWidget& form) {
  QStringList texts{"title: " + form.windowTitle()};
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    const QString name = widget->objectName();
    if (name.isEmpty() || name.startsWith("qt_")) continue;
    const bool isCaption = qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget);
    if (isCaption) texts << name + ": " + widget->property("text").toString();
    if (const auto* const frame = qobject_cast<const QGroupBox*>(widget)) texts << name + ": " + frame->title();
    if (const auto* const menu = qobject_cast<const QMenu*>(widget)) texts << name + ": " + menu->title();
    if (!widget->toolTip().isEmpty()) texts << name + " tip: " + widget->toolTip();
    if (const auto* const grid = qobject_cast<const Grid*>(widget))
      for (int col = 1; col < grid->Cols(); ++col) texts << name + ": " + grid->Text(0, col);
  }
  for (const QAction* entry : form.findChildren<QAction*>())
    if (!entry->objectName().isEmpty()) texts << entry->objectName() + ": " + entry->text();
  return texts;
}

// The file is where a site begins to write its own texts: it must say what is there.
TEST_F(CustomTextTest, TheShippedFileHoldsTheBuiltInTexts) {
  for (const auto& [form, section] : Sections) {
    Setting("System", "CustomConfigFile", "");
    OpenLibrary(form);
    const QStringList builtIn = TextsOf(*Window());
    EXPECT_GT(builtIn.size(), 15) << form;
    Setting("System", "CustomConfigFile", "Library.cfg");
    QFile::remove(File());
    ASSERT_TRUE(QFile::copy(Shipped + "LIBRARY.CFG", File()));
    OpenLibrary(form);
    const QStringList shipped = TextsOf(*Window());
    for (const QString& text : builtIn)
      EXPECT_TRUE(shipped.contains(text)) << form << " without the file has " << text.toStdString();
    for (const QString& text : shipped)
      EXPECT_TRUE(builtIn.contains(text)) << form << " with the file has " << text.toStdString();
  }
}

TEST_F(CustomTextTest, TheFrenchFileTurnsTheScreensFrench) {
  ASSERT_TRUE(QFile::copy(Shipped + "LIBRARY.FRE.CFG", File()));
  for (const auto& [form, section] : Sections) {
    OpenLibrary(form);
    EXPECT_EQ(Window()->windowTitle(),
              "Ostana - " + IniFile::ReadValue(Shipped + "LIBRARY.FRE.CFG", section, "LIBRARY_ScreenName"));
    Picture("library-french-" + QString(form));
  }
}

}  // namespace
