#include "support/Walk.h"

#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/Screen.h"
#include "core/Screens.h"

void Walk::SetUp() {
  SampleDesk::SetUp();
  for (const char* key :
       {"ServerAddress", "AssignCopyrightService", "FindSerialMethod_SoapAction", "FindSerialMethod_BarcodeParameter",
        "FindSerialMethod_ShelfmarkParameter", "RegisterMethod_SoapAction", "RegisterMethod_BarcodeParameter",
        "RegisterMethod_DetailParameter", "RegisterMethod_ItemParameter", "ConfirmMethod_SoapAction", "DebitService",
        "DebitAccountMethod_SoapAction", "RepliesService", "AddReplyMethod_SoapAction"})
    Setting("BL Web Services", key, "https://ws.example.org/");
  Setting("BL Web Services", "Use", "Y");
}

void Walk::ThroughTabs(const Look& look) {
  if (Window() == nullptr) Start();
  Shell().resize(1280, 780);
  auto* const tabs = Find<QTabWidget>("sstabtables");
  for (int index = 0; index < frmTabulon::TabCount; ++index) {
    SelectTab("sstabtables", index);
    const QString name = "tab-" + QString("%1").arg(index, 2, 10, QChar('0')) + "-" +
                         QString(tabs->tabText(index)).toLower().replace(' ', '-').replace('/', '-');
    if (index == 0) ChooseAt("cmb0Tables", Find<CodeComboBox>("cmb0Tables")->IndexOfCode("ID_SERVICE_TYPE"));
    QWidget* const page = Shell().Page(index);
    auto* const inner = page ? page->findChild<QTabWidget*>() : nullptr;
    if (!inner) {
      SCOPED_TRACE(name.toStdString());
      look(name, Shell());
    }
    for (int sub = 0; inner && sub < inner->count(); ++sub) {
      SelectTab(inner->objectName(), sub);
      const QString subName = name + "-" + QString::number(sub);
      SCOPED_TRACE(subName.toStdString());
      look(subName, Shell());
    }
  }
}

void Walk::ThroughDialogs(const Look& look) {
  if (Window() == nullptr) Logon();
  // Dialogs of one library show a real one.
  const qint32 library = Ask("SELECT MIN(LIBRARY_ID) FROM ID_SUPPLIER").toInt();
  ASSERT_GT(library, 0);
  for (const QString& name : RegisteredScreens()) {
    SCOPED_TRACE(name.toStdString());
    gclsOF->SetLibraryId(library);
    glngNCIPLibraryId = library;
    glngFoundLibraryId = library;
    gstrCoverRequestType = Ask("SELECT MIN(REQUEST_TYPE) FROM ID_COVER_INFO");
    const std::unique_ptr<Screen> screen = MakeScreen(name, nullptr);
    screen->ShowModeless();
    screen->activateWindow();
    ASSERT_TRUE(screen->isVisible());
    auto* const inner = screen->findChild<QTabWidget*>();
    for (int sub = 0; inner && sub < inner->count(); ++sub) {
      inner->setCurrentIndex(sub);
      look(name + "-" + QString::number(sub), *screen);
    }
    if (!inner) look(name, *screen);
    gbRecordModified = false;
  }
}

void Walk::ThroughAll(const Look& look) {
  ThroughTabs(look);
  ThroughDialogs(look);
}
