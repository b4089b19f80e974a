// Runs the program's own screens offscreen through one edit of a code table, says what it does and leaves pictures.
#include <QApplication>
#include <QDir>
#include <QTest>
#include <cstdio>

#include "Screens.h"
#include "core/ProcessEnd.h"
#include "platform/controls/CodeComboBox.h"
#include "platform/controls/Grid.h"
#include "platform/controls/TextBox.h"
#include "platform/desktop/TerminalPrompts.h"
#include "shell/frmTabulon.h"

namespace {

void Picture(QWidget& window, const QString& folder, const QString& name) {
  QApplication::processEvents();
  const QString path = QDir(folder).filePath(name);
  if (window.grab().save(path)) std::printf("  picture: %s\n", qPrintable(path));
}

int Tour(frmTabulon& window, const QString& folder) {
  auto* const tables = window.findChild<CodeComboBox*>("cmb0Tables");
  auto* const grid = window.findChild<Grid*>("grd0TableDesc");
  auto* const description = window.findChild<TextBox*>("txt0Description");
  if (!tables || !grid || !description) return 1;
  std::printf("Opening the table of library categories\n");
  tables->SetIndex(tables->IndexOfCode("ID_LIBRARY_CAT"));
  Q_EMIT tables->activated(tables->currentIndex());
  Picture(window, folder, "1-code-table.png");

  std::printf("Changing the description of the first row\n");
  const QString before = description->Text();
  description->setFocus();
  QTest::keyClick(description, Qt::Key_End);
  QTest::keyClicks(description, "!");
  Picture(window, folder, "2-typed.png");
  window.cmdUpdate_Click();
  const bool stored = grid->Text(1, 2) == before + "!";
  Picture(window, folder, "3-updated.png");

  std::printf("Putting it back\n");
  description->SetText(before);
  window.cmdUpdate_Click();
  std::printf(stored && grid->Text(1, 2) == before ? "Done: the row was written and written back.\n"
                                                   : "The row was not written; see the log.\n");
  return stored ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("Tabulon");
  const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
  TerminalPrompts prompts;
  SetPrompts(&prompts);
  RegisterDialogs();
  frmTabulon window("\"\" \"admin\" \"secret\"");
  RegisterTabs(window);
  window.Form_Initialize();
  window.resize(1180, 720);  // whatever the size of the screen that there is not
  window.show();
  window.Form_Activate();
  // Ends as the program itself does.
  EndProcess(Tour(window, folder));
  return 0;
}
