#include "core/ModuleState.h"

#include <QDirIterator>
#include <QRegularExpression>

#include "core/OstanaFunctions.h"
#include "core/WebServiceSettings.h"
#include "core/WorkFolder.h"
#include "platform/ado/Recordset.h"
#include "support/Folders.h"

namespace {

QString SourceText(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  return QString::fromUtf8(file.readAll());
}

}  // namespace

// Variables of the whole program, in whatever header of whatever room.
TEST(ModuleStateTest, EveryVariableIsReset) {
  const QString source = SourceFolder() + "/src";
  const QString reset = SourceText(source + "/core/ModuleState.cpp");
  static const QRegularExpression variable(
      "^inline (?!const |constexpr )(?:[^;=({<]|<[^;={]*>)*\\b(\\w+)(?: = [^;]+)?;",
      QRegularExpression::MultilineOption);
  int variables = 0;
  for (QDirIterator files(source, {"*.h", "*.cpp"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
    const QString path = files.next();
    for (auto match = variable.globalMatch(SourceText(path)); match.hasNext();) {
      const QString name = match.next().captured(1);
      EXPECT_TRUE(reset.contains(QRegularExpression("\\b" + name + "( =|\\.(clear|Reset)\\()")))
          << path.toStdString() << ": " << name.toStdString();
      ++variables;
    }
  }
  EXPECT_GE(variables, 35);
}

TEST(ModuleStateTest, ResetBringsTheInitialValuesBack) {
  gstrErrorMessage = "text";
  gstrDecimalSeparator = ",";
  gintDecimalSeparatorKey = 44;
  gcolLanguageCode << "FRE";
  Record record;
  record.Touched();
  gLiveRecord = [&record] { return &record; };
  gbISO18626SelectionMode = false;
  glngNCIPLibraryId = 5;
  gstrWebServiceName = "BL";
  gbUseWebService = true;
  gWebService.deliveredCode = "X";
  gLibraryMatches = {{1, "ONE"}};
  gbRequestAdded = true;
  ResetModuleState();
  EXPECT_TRUE(gstrErrorMessage.isEmpty());
  EXPECT_EQ(gstrDecimalSeparator, ".");
  EXPECT_EQ(gintDecimalSeparatorKey, 46);
  EXPECT_TRUE(gcolLanguageCode.isEmpty());
  EXPECT_FALSE(gbRecordModified);
  EXPECT_TRUE(gbISO18626SelectionMode);
  EXPECT_EQ(glngNCIPLibraryId, 0);
  EXPECT_TRUE(gstrWebServiceName.isEmpty());
  EXPECT_FALSE(gbUseWebService);
  EXPECT_EQ(gWebService.deliveredCode, "DEL");
  EXPECT_TRUE(gLibraryMatches.empty());
  EXPECT_FALSE(gbRequestAdded);
}

TEST(ModuleStateTest, CommonServicesAndRecordsetAreMadeNew) {
  gclsOF->SetLibraryId(7);
  const Recordset* const before = &*grsTable;
  EXPECT_EQ(before, &*grsTable);
  ResetModuleState();
  EXPECT_EQ(gclsOF->LibraryId(), 0);
  ResetModuleState();
}

TEST(ModuleStateTest, GuardsBringTheFormerValueBack) {
  {
    const SkipGridEvents outer;
    {
      const SkipGridEvents inner;
      EXPECT_TRUE(gbSkipGridEvents);
    }
    EXPECT_TRUE(gbSkipGridEvents);
  }
  EXPECT_FALSE(gbSkipGridEvents);
  {
    const FillingFields filling;
    EXPECT_TRUE(gbFillingFields);
  }
  EXPECT_FALSE(gbFillingFields);
}
