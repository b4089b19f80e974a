// The guide against the program: every screen and every page of the main screen has its page, and what the pages refer
// to is there.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTabWidget>

#include "core/Screens.h"
#include "support/Desk.h"

namespace {

QDir Guide() {
  return QDir(QString(TABULON_SOURCE_DIR) + "/docs/guide");
}

QString Page(const QString& name) {
  QFile file(Guide().filePath(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}

class GuideTest : public SampleDesk {};

TEST_F(GuideTest, EveryScreenHasItsPage) {
  Logon();
  for (const QString& name : RegisteredScreens()) EXPECT_TRUE(Guide().exists(name + ".md")) << name.toStdString();
}

TEST_F(GuideTest, EveryTabAndSubTabHasItsPage) {
  Start();
  auto* const tabs = Find<QTabWidget>("sstabtables");
  for (int index = 0; index < frmTabulon::TabCount; ++index) {
    SelectTab("sstabtables", index);
    const QString name = "frmTabulon-" + tabs->tabText(index).toLower().replace(' ', '-').replace('/', '-');
    QWidget* const page = Shell().Page(index);
    auto* const inner = page ? page->findChild<QTabWidget*>() : nullptr;
    QStringList pages;
    for (int sub = 0; inner && sub < inner->count(); ++sub) pages.append(name + "-" + QString::number(sub));
    if (!inner) pages.append(name);
    for (const QString& one : pages) EXPECT_TRUE(Guide().exists(one + ".md")) << one.toStdString();
  }
}

TEST_F(GuideTest, LinksAndPicturesLeadToFiles) {
  static const QRegularExpression link("\\]\\(([^)#]+)");
  for (const QString& name : Guide().entryList({"*.md"})) {
    const QString text = Page(name);
    EXPECT_TRUE(text.startsWith("# ")) << name.toStdString() << " has no title";
    for (auto found = link.globalMatch(text); found.hasNext();) {
      const QString target = found.next().captured(1);
      EXPECT_TRUE(Guide().exists(target)) << name.toStdString() << " refers to " << target.toStdString();
    }
  }
}

TEST_F(GuideTest, TheIndexLeadsToEveryPage) {
  const QString index = Page("index.md");
  for (const QString& name : Guide().entryList({"*.md"}))
    EXPECT_TRUE(name == "index.md" || name == "frmTabulon.md" || index.contains('(' + name + ')'))
        << name.toStdString();
}

}  // namespace
