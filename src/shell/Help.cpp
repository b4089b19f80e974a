#include "shell/Help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QPointer>
#include <QShortcut>

#include "platform/controls/FormLayout.h"
#include "shell/Beside.h"
#include "shell/HelpWindow.h"
#include "shell/Icons.h"
#include "shell/Messages.h"

namespace {

// One for the program; it goes with it.
HelpWindow& Guide() {
  static QPointer<HelpWindow> guide;
  if (guide.isNull()) guide = new HelpWindow;
  return *guide;
}

QStringList Folders() {
  if (const QString named = qEnvironmentVariable("OSTANA_GUIDE"); !named.isEmpty()) return {named};
  const QDir program(QCoreApplication::applicationDirPath());
  return {program.filePath("../share/doc/tabulon/guide"), program.filePath("guide"),
          program.filePath("../../docs/guide")};
}

}  // namespace

namespace Help {

QString PageFile(const QString& page) {
  for (const QString& folder : Folders()) {
    for (const char* ending : {".html", ".md"}) {
      const QFileInfo file(QDir(folder).filePath(page + QLatin1String(ending)));
      if (file.isFile()) return file.canonicalFilePath();
    }
  }
  return {};
}

QString TabPageName(const QString& form, const QString& tabCaption) {
  QString name = form + QLatin1Char('-');
  for (const QChar letter : tabCaption.toLower()) {
    if (letter.isLetterOrNumber())
      name += letter;
    else if (!name.endsWith(QLatin1Char('-')) && letter != QLatin1Char('&'))
      name += QLatin1Char('-');
  }
  return name;
}

void OpenHelp(const QString& page, QWidget* owner) {
  const QString caption = owner ? owner->window()->windowTitle() : QString();
  const QString file = PageFile(page);
  if (file.isEmpty()) {
    ShowMessage("The guide has no page " + page + " on this machine.", MessageStyle::Warning, caption, {}, owner);
    return;
  }
  Guide().Open(file);
  Beside::Show(Guide(), owner);
}

void OpenByF1(QWidget& window, std::function<QString()> page) {
  auto* const key = new QShortcut(Qt::Key_F1, &window);
  QObject::connect(key, &QShortcut::activated, &window, [&window, page] { OpenHelp(page(), &window); });
}

void AddEntry(QMenu& menu, QWidget& window, std::function<QString()> page) {
  // The key is only told: it is the window's shortcut already.
  QAction* const entry = Form::MenuEntry(&menu, "mnuHelpGuide", "&Guide\tF1");
  entry->setIcon(OwnIcon("help"));
  QObject::connect(entry, &QAction::triggered, &window, [&window, page] { OpenHelp(page(), &window); });
  menu.addSeparator();
}

}  // namespace Help
