// The guide against the program: F1 opens a page on every screen, tab and sub-tab, the page shows the screen's picture,
// and what the pages refer to is there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QUrl>
#include <algorithm>

#include "shell/HelpWindow.h"
#include "shell/Screens.h"
#include "support/Folders.h"
#include "support/Walk.h"

namespace {

QDir Guide() {
  return QDir(SourceFolder() + "/docs/guide");
}

QString Page(const QString& name) {
  QFile file(Guide().filePath(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return QString::fromUtf8(file.readAll());
}

// All texts in the sources, each run of them put together as the compiler does, blanks made one.
QString WordsOfTheProgram() {
  static const QRegularExpression seam("\"\\s*\"");
  QDirIterator sources(SourceFolder() + "/src", {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
  QString words;
  while (sources.hasNext()) {
    QFile file(sources.next());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    words += QString::fromUtf8(file.readAll()).remove(seam).replace("\\n", " ").remove('&').simplified();
  }
  return words;
}

class GuideTest : public Walk {
 protected:
  void SetUp() override {
    Walk::SetUp();
    qputenv("OSTANA_GUIDE", Guide().path().toLocal8Bit());
  }
  void TearDown() override {
    qunsetenv("OSTANA_GUIDE");
    Walk::TearDown();
  }

  // The page that F1 opens in the window. A page that is missing would be told, which fails the case.
  static QString F1(QWidget& window) {
    QApplication::setActiveWindow(&window);
    QTest::keyClick(&window, Qt::Key_F1);
    for (QWidget* widget : QApplication::allWidgets())
      if (const auto* const guide = qobject_cast<HelpWindow*>(widget)) return QFileInfo(guide->File()).fileName();
    return {};
  }
};

TEST_F(GuideTest, F1OnEveryTabAndSubTabOpensItsPage) {
  QStringList pages;
  ThroughTabs([&](const QString& place, QWidget& window) {
    // tab-05-delivery-messaging-2
    const QString page = "frmTabulon-" + place.section('-', 2) + ".md";
    EXPECT_EQ(F1(window), page);
    EXPECT_TRUE(Page(page).contains("(pictures/" + place + ".png)")) << page.toStdString();
    pages.append(page);
  });
  EXPECT_EQ(pages.removeDuplicates(), 0);
  EXPECT_EQ(pages.size(), 20) << "tabs and sub-tabs of the main screen";
}

TEST_F(GuideTest, F1OnEveryDialogOpensItsPage) {
  ThroughDialogs([&](const QString& place, QWidget& window) {
    const QString page = window.objectName() + ".md";
    EXPECT_EQ(F1(window), page);
    // Forms of other programs are empty here, and so would be their pictures.
    const QList<QWidget*> parts = window.findChildren<QWidget*>();
    if (std::none_of(parts.begin(), parts.end(), [](const QWidget* part) { return part->isVisible(); })) return;
    EXPECT_TRUE(Page(page).contains("(pictures/" + place + ".png)"))
        << page.toStdString() << " without " << place.toStdString();
  });
}

// What every list can do is told once, and every page of a screen with a list leads there.
TEST_F(GuideTest, PagesOfScreensWithAListTellWhatListsCanDo) {
  EXPECT_TRUE(Page("frmTabulon.md").contains("\n## Lists\n"));
  QStringList pages;
  ThroughAll([&](const QString& place, QWidget& window) {
    const QList<Grid*> grids = window.findChildren<Grid*>();
    if (std::none_of(grids.begin(), grids.end(), [](const Grid* grid) { return grid->isVisible(); })) return;
    const bool isTab = window.objectName() == "frmTabulon";
    pages.append((isTab ? "frmTabulon-" + place.section('-', 2) : window.objectName()) + ".md");
  });
  pages.removeDuplicates();
  EXPECT_GT(pages.size(), 20);
  for (const QString& page : pages) EXPECT_TRUE(Page(page).contains("](frmTabulon.md#lists)")) << page.toStdString();
}

// Between quotation marks stands what the program says; *a word like this* stands for what differs.
TEST_F(GuideTest, WhatItQuotesIsWhatTheProgramSays) {
  static const QRegularExpression quoted("\"([^\"]+)\""), ends("(?<=[.?!]) |\\*[^*]*\\*|\\.\\.\\.");
  const QString words = WordsOfTheProgram();
  int sentences = 0;
  for (const QString& name : Guide().entryList({"*.md"})) {
    const QString text = Page(name).replace("\n> ", " ").simplified();
    for (auto found = quoted.globalMatch(text); found.hasNext();) {
      for (const QString& sentence : found.next().captured(1).split(ends)) {
        if (sentence.trimmed().size() < 3) continue;
        ++sentences;
        EXPECT_TRUE(words.contains(sentence.trimmed())) << name.toStdString() << ": " << sentence.toStdString();
      }
    }
  }
  EXPECT_GT(sentences, 300);
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
