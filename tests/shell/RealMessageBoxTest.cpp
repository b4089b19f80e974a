// Where the caret stands when a real message box has been answered. The other tests answer by a script that opens no
// box, so that the window never loses the focus; a person's window does, and gets it back.
#include <QApplication>
#include <QMessageBox>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "platform/desktop/Prompts.h"
#include "shell/Screen.h"
#include "support/Desk.h"

namespace {

// Presses OK or Yes on each message box that comes up.
class Answering : public QObject {
 public:
  Answering() { qApp->installEventFilter(this); }
  const QStringList& Texts() const { return texts_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const box = qobject_cast<QMessageBox*>(watched);
    if (!box || event->type() != QEvent::Show) return false;
    texts_ += box->text();
    // Behind the show, in the loop of the box.
    QMetaObject::invokeMethod(
        box, [box] { box->defaultButton()->click(); }, Qt::QueuedConnection);
    return false;
  }

 private:
  QStringList texts_;
};

class RealMessageBoxTest : public SampleDesk {
 protected:
  void SetUp() override {
    SampleDesk::SetUp();
    SetPrompts(nullptr);
  }
  // A press that is answered by one box with that text; what has the focus when the window is active again.
  QString FocusAfter(const QString& button, const QString& text) {
    const Answering answering;
    Click(button);
    EXPECT_EQ(answering.Texts(), QStringList(text));
    // Offscreen nobody gives the focus back to the window; a window manager does.
    Window()->activateWindow();
    QApplication::setActiveWindow(Window());
    QApplication::processEvents();
    const QWidget* const focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString("nothing");
  }
  void OpenOfLibrary(const QString& form) {
    Logon();
    glngNCIPLibraryId = 10000000;
    gclsOF->SetLibraryId(10000000);
    gclsOF->SetCallingFunction("Library Registration");
    Open(form);
  }
};

// The request type is for reading and passes the focus on.
TEST_F(RealMessageBoxTest, CoverPages) {
  Start();
  SelectTab("sstabtables", frmTabulon::CoverPagesTab);
  EXPECT_EQ(FocusAfter("cmdUpdate", "Nothing has been changed"), "txt1Header");
}

TEST_F(RealMessageBoxTest, Departments) {
  Start();
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  SelectRow("grd2Department", 1);
  EXPECT_EQ(FocusAfter("cmdUpdate", "Nothing has been changed."), "txt2Department");
}

TEST_F(RealMessageBoxTest, Printers) {
  Start();
  SelectTab("sstabtables", frmTabulon::PrintersTab);
  SelectRow("grd3Printer", 1);
  EXPECT_EQ(FocusAfter("cmdUpdate", "Nothing has been changed"), "txt3Printer");
}

TEST_F(RealMessageBoxTest, LibraryRegistration) {
  OpenOfLibrary("frmLibraryRegistration");
  Type("txtLibrarySymbol", "%");
  EXPECT_EQ(FocusAfter("cmdSearch", "Search string too broad. Please enter a valid search criteria."),
            "txtLibrarySymbol");
  EXPECT_EQ(Find<TextBox>("txtLibrarySymbol")->selectedText(), "%");
}

TEST_F(RealMessageBoxTest, NcipStatusCodes) {
  OpenOfLibrary("frmNCIPStatusCodes");
  Click("cmdClear");
  EXPECT_EQ(FocusAfter("cmdAdd", "NCIP Status Code is a required field."), "txtNCIPStatusCode");
}

TEST_F(RealMessageBoxTest, GeneralMessages) {
  Logon();
  Open("frmGeneralMessages");
  Click("cmdClear");
  EXPECT_EQ(FocusAfter("cmdAdd", "Code is a required field."), "txtCode");
}

}  // namespace
