// Walks through every screen and tab, leaves a picture of each in the light and the dark palette, and compares the
// names of its controls with the form's data sheet in tests/gallery/sheets: a name that is missing, too many or given
// twice fails. TABULON_WRITE_SHEETS=1 writes the sheets anew. scripts/gallery takes the pictures at other scales, on a
// large screen and in another wording: TABULON_GALLERY names the folder they go to, TABULON_GALLERY_WORDING a custom
// text file, TABULON_GALLERY_FONT a size in points.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPalette>
#include <QScreen>
#include <QTest>

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "shell/frmLogon.h"
#include "support/Folders.h"
#include "support/Palettes.h"
#include "support/Walk.h"

namespace {

// Names of all controls of a form that a data sheet lists, sorted, each with its kind.
QStringList SheetOf(const QWidget& form) {
  QStringList names;
  for (const QObject* object : form.findChildren<QObject*>()) {
    const QString name = object->objectName();
    const QString kind = object->metaObject()->className();
    // Parts that the toolkit adds to its own widgets.
    if (name.isEmpty() || name.startsWith("qt_") || name.startsWith("_q_") || kind.startsWith("QAbstract") ||
        kind.startsWith("QWidgetLine") || name == "ScrollLeftButton" || name == "ScrollRightButton")
      continue;
    names.append(name + " " + kind);
  }
  names.sort();
  return names;
}

class GalleryTest : public Walk {
 protected:
  void SetUp() override {
    Walk::SetUp();
    light_ = QApplication::palette();
    const QString wording = qEnvironmentVariable("TABULON_GALLERY_WORDING");
    if (!wording.isEmpty()) UseWording(wording);
    if (const int points = qEnvironmentVariableIntValue("TABULON_GALLERY_FONT"); points > 0) {
      QFont font = QApplication::font();
      font.setPointSize(points);
      QApplication::setFont(font);
    }
  }
  void TearDown() override {
    QApplication::setPalette(light_);
    Walk::TearDown();
  }

  void Both(const QString& name, QWidget* window = nullptr) {
    const QString path = folder_ + name;
    QApplication::setPalette(light_);
    Picture(path, window);
    QApplication::setPalette(Palettes::Of(Palettes::Dark));
    Picture(path + "-dark", window);
    QApplication::setPalette(light_);
  }

  // The database of a test has another name each time; equal screens give equal pictures.
  void NameTheDatabase() {
    auto* const status = Find<QLabel>("lblStatus");
    status->setText(status->text().replace(gclsOF->Connection().Settings().name, "ostana.db"));
  }

  void CompareSheet(const QWidget& form, const QString& sheet) {
    const QString path = SourceFolder() + "/tests/gallery/sheets/" + sheet + ".txt";
    const QStringList names = SheetOf(form);
    for (int index = 1; index < names.size(); ++index)
      EXPECT_NE(names[index].section(' ', 0, 0), names[index - 1].section(' ', 0, 0)) << "a name given twice";
    if (qEnvironmentVariableIntValue("TABULON_WRITE_SHEETS") == 1) {
      QFile file(path);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write((names.join('\n') + '\n').toUtf8());
      return;
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    const QStringList listed = QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
    for (const QString& name : listed) EXPECT_TRUE(names.contains(name)) << "missing: " << name.toStdString();
    for (const QString& name : names) EXPECT_TRUE(listed.contains(name)) << "too many: " << name.toStdString();
  }

 private:
  const QString folder_ = qEnvironmentVariable("TABULON_GALLERY") + "/";
  QPalette light_;
};

TEST_F(GalleryTest, EveryTabAndSubTabOfTheMainScreen) {
  Start();
  NameTheDatabase();
  ThroughTabs([this](const QString& place, QWidget&) { Both(place); });
  CompareSheet(Shell(), "frmTabulon");
}

TEST_F(GalleryTest, EveryDialog) {
  QString compared;
  ThroughDialogs([&](const QString& place, QWidget& screen) {
    const QSize room = screen.screen()->availableSize() - QSize(0, 32);
    EXPECT_LE(screen.width(), room.width());
    EXPECT_LE(screen.height(), room.height());
    Both(place);
    if (std::exchange(compared, screen.objectName()) != compared) CompareSheet(screen, compared);
  });
}

// What a walk through screens as they open does not meet.
TEST_F(GalleryTest, WhatShowsOnlyInUse) {
  Start();
  NameTheDatabase();
  SelectTab("sstabtables", frmTabulon::DepartmentsTab);
  Find<Grid>("grd2Department")->OpenFinder(Grid::Seek::Filter);
  QTest::keyClicks(Find<TextBox>("qt_grid_find"), "build");
  Both("grid-filter");

  Open("frmLibrarySearch");
  Type("txtInstitution", "u");
  Click("cmdSearch");
  EXPECT_GT(Rows("grdViewSearchResults"), 1);
  Both("frmLibrarySearch-results");
}

// The one window that opens before there is a database.
TEST_F(GalleryTest, TheLogon) {
  frmLogon logon;
  logon.findChild<TextBox*>("txtUser")->SetText("admin");
  logon.show();
  Both("frmLogon", &logon);
  CompareSheet(logon, "frmLogon");
}

}  // namespace
