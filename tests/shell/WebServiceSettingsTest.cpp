#include "shell/WebServiceReading.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/files/WideTextFile.h"
#include "support/Desk.h"

namespace {

class WebServiceSettingsTest : public Desk {
 protected:
  void SetUp() override {
    Desk::SetUp();
    ASSERT_TRUE(gclsOF->LoadApplicationSettings("Tabulon", "", "admin", "secret")) << gclsOF->LastError().toStdString();
  }
  void Service(const QString& key, const QString& value) { Setting("BL Web Services", key, value); }
  void UpdateFile(const QString& key, const QString& value) { Setting("Create Update File", key, value); }
  // "Use" and every required key.
  void ConfigureAll() {
    Service("Use", "Y");
    Service("ServerAddress", "api.example.org");
    for (const QString& key : required) Service(key, "value of " + key);
  }
  // Entries of the log without date and time.
  QStringList Logged() const {
    QStringList entries;
    for (const QString& line : WideTextFile::ReadLines(LogFile())) entries << line.section("  * ", 1);
    return entries;
  }
  QString LogFile() const { return Folder() + "/Logs/Tabulon.log"; }
  static QString Gap(const QString& key) { return "The Web Service '" + key + "' setting has not been configured."; }

  const QStringList required{"AssignCopyrightService",
                             "FindSerialMethod_SoapAction",
                             "FindSerialMethod_BarcodeParameter",
                             "FindSerialMethod_ShelfmarkParameter",
                             "RegisterMethod_SoapAction",
                             "RegisterMethod_BarcodeParameter",
                             "RegisterMethod_DetailParameter",
                             "RegisterMethod_ItemParameter",
                             "ConfirmMethod_SoapAction",
                             "DebitService",
                             "DebitAccountMethod_SoapAction",
                             "RepliesService",
                             "AddReplyMethod_SoapAction"};
  const QString oneMissing =
      "One or more [BL Web Service] settings have not been configured.  See the application log for details.";
};

}  // namespace

TEST_F(WebServiceSettingsTest, UseOtherThanYReadsNothingMoreAndGoesOn) {
  Service("ServerAddress", "api.example.org");
  for (const QString& use : {QString(), QString("N"), QString("y"), QString("YES")}) {
    Service("Use", use);
    EXPECT_TRUE(ReadWebServiceSettings());
    EXPECT_FALSE(gbUseWebService);
    EXPECT_EQ(gstrWebServiceName, "BL");
    EXPECT_TRUE(gWebService.texts.isEmpty());
  }
  EXPECT_FALSE(ProcessEnded());
}

TEST_F(WebServiceSettingsTest, AllSettingsAreKept) {
  ConfigureAll();
  Service("ServerPort", "8080");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_TRUE(gbUseWebService);
  EXPECT_EQ(gstrWebServiceName, "BL");
  EXPECT_EQ(gWebService.texts["ServerAddress"], "api.example.org");
  EXPECT_EQ(gWebService.texts["ServerPort"], "8080");
  EXPECT_EQ(gWebService.texts["HTTPVersion"], "");
  for (const QString& key : required) EXPECT_EQ(gWebService.texts[key], "value of " + key);
  EXPECT_FALSE(ProcessEnded());
}

TEST_F(WebServiceSettingsTest, MissingServerAddressHasItsOwnMessage) {
  Service("Use", "Y");
  Prompt().Expect("The BL Web Service settings have not been configured.  See the application log for details.", 16);
  EXPECT_FALSE(ReadWebServiceSettings());
  EXPECT_TRUE(ProcessEnded());
  EXPECT_EQ(Logged(), QStringList{Gap("ServerAddress")});
}

TEST_F(WebServiceSettingsTest, AnyOtherMissingKeyEndsTheProgram) {
  ConfigureAll();
  Service("DebitService", "");
  Prompt().Expect(oneMissing, 16);
  EXPECT_FALSE(ReadWebServiceSettings());
  EXPECT_TRUE(ProcessEnded());
  EXPECT_EQ(Logged(), QStringList{Gap("DebitService")});
}

TEST_F(WebServiceSettingsTest, LogListsAllGapsInOrder) {
  Service("Use", "Y");
  Service("ServerAddress", "api.example.org");
  Prompt().Expect(oneMissing, 16);
  EXPECT_FALSE(ReadWebServiceSettings());
  QStringList gaps;
  for (const QString& key : required) gaps << Gap(key);
  EXPECT_EQ(Logged(), gaps);
}

TEST_F(WebServiceSettingsTest, UpdateFileKeysAreReadBeforeTheProgramEnds) {
  ConfigureAll();
  Service("RepliesService", "");
  UpdateFile("SkipRequestType_1", "REG");
  Prompt().Expect(oneMissing, 16);
  EXPECT_FALSE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.skipRequestTypes, "~REG~");
}

TEST_F(WebServiceSettingsTest, MissingFileIsToldLoggedAndEndsTheProgram) {
  ASSERT_TRUE(QFile::remove(SettingsFile()));
  const QString message = "Error accessing the 'Ostana.ini' file in '" + gclsOF->ApplicationPath() +
                          "'.\n\nMake sure the 'Ostana.ini' file is in the application directory and try again.";
  Prompt().Expect("Terminating Application: " + message, 16);
  EXPECT_FALSE(ReadWebServiceSettings());
  EXPECT_TRUE(ProcessEnded());
  EXPECT_TRUE(gstrWebServiceName.isEmpty());
  const QStringList lines = WideTextFile::ReadLines(LogFile());
  ASSERT_EQ(lines.size(), 4);
  EXPECT_TRUE(lines[0].endsWith("  * " + message.section('\n', 0, 0)));
  EXPECT_EQ(lines[2], QString(26, ' ') + message.section('\n', 2));  // below its entry, like every further line
  EXPECT_TRUE(lines[3].startsWith("**** Version: "));
}

TEST_F(WebServiceSettingsTest, FeeIsACurrencyAmountOfAtLeastACent) {
  const struct {
    const char* text;
    double fee;
  } fees[] = {{"0.01", 0.01}, {"0.009", 300}, {"", 300}, {"abc", 300}, {"-5", 300}, {"12.50", 12.5}, {"0", 300}};
  ConfigureAll();
  for (const auto& entry : fees) {
    Service("MaximumCopyrightFee", entry.text);
    EXPECT_TRUE(ReadWebServiceSettings());
    EXPECT_DOUBLE_EQ(gWebService.maximumCopyrightFee, entry.fee) << entry.text;
  }
}

TEST_F(WebServiceSettingsTest, EmptyDeliveredCodeBecomesDel) {
  ConfigureAll();
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.deliveredCode, "DEL");
  Service("DeliveredCode", "OUT");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.deliveredCode, "OUT");
}

TEST_F(WebServiceSettingsTest, OnlyNKeepsIfmRequests) {
  ConfigureAll();
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_TRUE(gWebService.gbSkipIFM);
  UpdateFile("SkipIFM", "N");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_FALSE(gWebService.gbSkipIFM);
  UpdateFile("SkipIFM", "Y");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_TRUE(gWebService.gbSkipIFM);
}

TEST_F(WebServiceSettingsTest, EmptyFirstSkipKeyGivesTheBareList) {
  ConfigureAll();
  UpdateFile("SkipRequestType_2", "ILL");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.skipRequestTypes, "~");
  EXPECT_EQ(gWebService.skipCustomerCodes, "~");
}

TEST_F(WebServiceSettingsTest, FirstEmptySkipKeyEndsTheList) {
  ConfigureAll();
  UpdateFile("SkipRequestType_1", "REG");
  UpdateFile("SkipRequestType_2", "ILL");
  UpdateFile("SkipRequestType_4", "NOT");
  UpdateFile("SkipCustomerCode_1", "12-345");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.skipRequestTypes, "~REG~ILL~");
  EXPECT_EQ(gWebService.skipCustomerCodes, "~12-345~");
}

TEST_F(WebServiceSettingsTest, FiftySkipKeysAreTheLimit) {
  ConfigureAll();
  for (int number = 1; number <= 51; ++number) UpdateFile("SkipCustomerCode_" + QString::number(number), "C");
  EXPECT_TRUE(ReadWebServiceSettings());
  EXPECT_EQ(gWebService.skipCustomerCodes.count('C'), 50);
}
