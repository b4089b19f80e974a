#pragma once

#include <QString>
#include <functional>

class QMenu;
class QWidget;

// The user's guide: one page for each screen, named as its form ("frmLoans"), and one for each tab of the main screen
// ("frmTabulon-code-tables"), or each page of such a tab ("frmTabulon-invoicing-1"). Pages are HTML where the guide was
// installed, Markdown where it was not built.
namespace Help {

// The folder named by OSTANA_GUIDE; else share/doc/tabulon/guide beside the program's bin folder, the folder guide
// beside the program, docs/guide of a source tree in which it was built.
QString PageFile(const QString& page);
// The name of a tab's page, by its caption: letters and digits in small letters, the rest one dash.
QString TabPageName(const QString& form, const QString& tabCaption);

// Opens the page in the window of the guide, which stays beside the work; a page that is missing is told with the
// owner's caption.
void OpenHelp(const QString& page, QWidget* owner);
// F1 in this window opens the page that `page` names at that moment.
void OpenByF1(QWidget& window, std::function<QString()> page);
// An entry of the window's help menu that does the same, for those who do not know the key.
void AddEntry(QMenu& menu, QWidget& window, std::function<QString()> page);

}  // namespace Help
