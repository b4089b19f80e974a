#include "support/Walk.h"

#include <QFile>
#include <QScreen>
#include <QTabWidget>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/Screen.h"
#include "shell/Screens.h"
#include "support/Folders.h"

void Walk::SetUp() {
  SampleDesk::SetUp();
  for (const char* key :
       {"ServerAddress", "AssignCopyrightService", "FindSerialMethod_SoapAction", "FindSerialMethod_BarcodeParameter",
        "FindSerialMethod_ShelfmarkParameter", "RegisterMethod_SoapAction", "RegisterMethod_BarcodeParameter",
        "RegisterMethod_DetailParameter", "RegisterMethod_ItemParameter", "ConfirmMethod_SoapAction", "DebitService",
        "DebitAccountMethod_SoapAction", "RepliesService", "AddReplyMethod_SoapAction"})
    Setting("BL Web Services", key, "https://ws.example.org/");
  Setting("BL Web Services", "Use", "Y");
  Setting("Tables", "NumberOfRejectTables", "2");
  Setting("Tables", "AutoRejectField1", "CALL_NUMBER");
  Setting("Tables", "AutoRejectField2", "LIBRARY_SYMBOL");
}

void Walk::UseWording(const QString& file) {
  ASSERT_TRUE(QFile::copy(SourceFolder() + "/database/site/" + file, Folder() + "/" + file));
  Setting("System", "CustomConfigFile", file);
}

namespace {

// What a page or a dialog can show without a word being typed: the first of its tables, the first row of its list.
void Fill(QWidget& page) {
  for (const char* name :
       {"cmb0Tables", "cmb4Tables", "cmb7RateTable", "cmb8AccessGroup", "cmbAccessGroup", "cmbRegion"}) {
    auto* const list = page.findChild<CodeComboBox*>(name);
    if (list == nullptr || !list->isVisible() || list->currentIndex() > 0 || list->count() < 2) continue;
    const int services = list->IndexOfCode("ID_SERVICE_TYPE");
    list->SetIndex(services > 0 ? services : 1);
    Q_EMIT list->activated(list->currentIndex());
  }
  for (Grid* grid : page.findChildren<Grid*>())
    if (grid->isVisible() && grid->Row() == 0 && grid->Rows() > 1) grid->SetRow(1);
}

}  // namespace

void Walk::ThroughTabs(const Look& look) {
  if (Window() == nullptr) Start();
  // As large as the screen, less what a panel takes.
  Shell().resize(Shell().screen()->availableSize() - QSize(0, 52));
  auto* const tabs = Find<QTabWidget>("sstabtables");
  for (int index = 0; index < frmTabulon::TabCount; ++index) {
    SelectTab("sstabtables", index);
    const QString name = "tab-" + QString("%1").arg(index, 2, 10, QChar('0')) + "-" +
                         QString(tabs->tabText(index)).toLower().replace(' ', '-').replace('/', '-');
    QWidget* const page = Shell().Page(index);
    auto* const inner = page ? page->findChild<QTabWidget*>() : nullptr;
    if (!inner) {
      SCOPED_TRACE(name.toStdString());
      Fill(Shell());
      look(name, Shell());
    }
    for (int sub = 0; inner && sub < inner->count(); ++sub) {
      SelectTab(inner->objectName(), sub);
      const QString subName = name + "-" + QString::number(sub);
      SCOPED_TRACE(subName.toStdString());
      Fill(Shell());
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
    PutOnDisplay(*screen);
    screen->ShowModeless();
    screen->activateWindow();
    ASSERT_TRUE(screen->isVisible());
    auto* const inner = screen->findChild<QTabWidget*>();
    for (int sub = 0; inner && sub < inner->count(); ++sub) {
      inner->setCurrentIndex(sub);
      Fill(*screen);
      look(name + "-" + QString::number(sub), *screen);
    }
    if (!inner) {
      Fill(*screen);
      look(name, *screen);
    }
    if (gbRecordModified) Shell().LivePage()->CurrentRecord().Settled();
  }
}

void Walk::ThroughAll(const Look& look) {
  ThroughTabs(look);
  ThroughDialogs(look);
}
