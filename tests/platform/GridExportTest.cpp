// What leaves a grid as CSV, as PDF and to a printer.
#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QPaintEngine>
#include <QPdfWriter>
#include <QTemporaryDir>

#include "platform/FileSizeLimit.h"
#include "platform/Window.h"
#include "platform/controls/Grid.h"
#include "platform/controls/GridExport.h"
#include "platform/controls/GridPaper.h"
#include "platform/desktop/Prompts.h"

namespace {

// Answers from a list of one; the message is kept.
class Answers : public PromptService {
 public:
  Answers() : before_(SetPrompts(this)) {}
  ~Answers() override { SetPrompts(before_); }
  int ShowMessage(const MessageRequest& request) override {
    message = request.text;
    return MessageAnswer::Ok;
  }
  std::optional<QString> OpenFile(const FileRequest&) override { return {}; }
  std::optional<QString> SaveFile(const FileRequest& request) override {
    filter = request.filter;
    offered = request.directory;
    return file;
  }
  std::optional<QString> ChoosePrinter(QWidget*) override {
    askedForPrinter = true;
    return {};
  }
  QStringList PrinterNames() override { return printers; }
  void Beep() override {}

  std::optional<QString> file;
  QStringList printers;
  QString message, filter, offered;
  bool askedForPrinter = false;

 private:
  PromptService* before_;
};

class GridExportTest : public testing::Test {
 protected:
  void SetUp() override {
    grid = window.Add(new Grid(&window, "grdAgency", 4));
    grid->SetHeading(1, "Code");
    grid->SetHeading(2, "Name, long");
    grid->SetHeading(3, "Secret");
    grid->AddRow({"A", "alpha", "s1"});
    grid->AddRow({"B", "say \"beta\"", "s2"});
    grid->AddRow({"C", "two\nlines", "s3"});
    grid->AddRow({"D", QString::fromUtf8("été, 漢字"), "s4"});
    grid->HideCol(3, true);
  }
  QByteArray Saved(const QString& path) {
    QFile read(path);
    EXPECT_TRUE(read.open(QIODevice::ReadOnly));
    return read.readAll();
  }

  Answers answers;
  QTemporaryDir folder;
  Window window;
  Grid* grid = nullptr;
};

TEST_F(GridExportTest, CsvHasAMarkHeadingsQuotesAndLineEnds) {
  EXPECT_EQ(QString::fromUtf8(GridExport::Csv(*grid)).remove(QChar(0xFEFF)),
            QString::fromUtf8("Code,\"Name, long\"\r\nA,alpha\r\nB,\"say \"\"beta\"\"\"\r\nC,\"two\nlines\"\r\n"
                              "D,\"été, 漢字\"\r\n"));
  EXPECT_TRUE(GridExport::Csv(*grid).startsWith("\xEF\xBB\xBF"));
}

TEST_F(GridExportTest, CsvHoldsWhatIsOnScreenInItsOrder) {
  grid->Sort(1, Qt::DescendingOrder);
  grid->SetFilter("a");
  EXPECT_EQ(GridExport::Csv(*grid).mid(3), "Code,\"Name, long\"\r\nB,\"say \"\"beta\"\"\"\r\nA,alpha\r\n");
}

TEST_F(GridExportTest, CsvIsWrittenToTheFileThatIsNamed) {
  answers.file = folder.filePath("rows.csv");
  GridExport::AskAndSaveCsv(*grid);
  EXPECT_EQ(Saved(*answers.file), GridExport::Csv(*grid));
  EXPECT_EQ(answers.filter, "*.csv");
  EXPECT_EQ(answers.message, QString());
}

TEST_F(GridExportTest, AFileNameIsOffered) {
  grid->setAccessibleName("Item types: A/B");
  GridExport::AskAndSaveCsv(*grid);
  EXPECT_TRUE(answers.offered.endsWith("/Item types_ A_B.csv")) << answers.offered.toStdString();
  GridExport::AskAndSavePdf(*grid);
  EXPECT_TRUE(answers.offered.endsWith("/Item types_ A_B.pdf")) << answers.offered.toStdString();
}

TEST_F(GridExportTest, WhereNumbersHaveACommaASemicolonStandsBetweenCells) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  grid->AddRow({"a;b", "4,50", ""});
  EXPECT_TRUE(GridExport::Csv(*grid).endsWith("\r\n\"a;b\";4,50\r\n"));
  QLocale::setDefault(before);
}

TEST_F(GridExportTest, AFileThatCannotBeWrittenIsTold) {
  answers.file = folder.filePath("no such folder/rows.csv");
  GridExport::AskAndSaveCsv(*grid);
  EXPECT_TRUE(answers.message.startsWith("The file " + *answers.file + " could not be written."));
  answers.message.clear();
  answers.file = folder.filePath("no such folder/rows.pdf");
  GridExport::AskAndSavePdf(*grid);
  EXPECT_TRUE(answers.message.startsWith("The file " + *answers.file + " could not be written.\n\n"));
}

TEST_F(GridExportTest, CancelledExportsDoNothing) {
  GridExport::AskAndSaveCsv(*grid);
  GridExport::AskAndSavePdf(*grid);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
  EXPECT_EQ(answers.message, QString());
}

TEST_F(GridExportTest, PdfIsAFileOfPages) {
  for (int i = 0; i < 300; ++i) grid->AddRow({QString::number(i), "row", ""});
  answers.file = folder.filePath("rows.pdf");
  GridExport::AskAndSavePdf(*grid);
  const QByteArray pdf = Saved(*answers.file);
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_GT(pdf.count("/Type /Page\n"), 3);
  EXPECT_LT(pdf.count("/Type /Page\n"), 30);
}

TEST_F(GridExportTest, APdfThatBreaksOffLeavesTheOldFile) {
  answers.file = folder.filePath("rows.pdf");
  {
    QFile old(*answers.file);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("the old file");
  }
  for (int i = 0; i < 3000; ++i) grid->AddRow({QString::number(i), "row", ""});
  {
    const FileSizeLimit full(4096);
    GridExport::AskAndSavePdf(*grid);
  }
  EXPECT_TRUE(answers.message.startsWith("The file " + *answers.file + " could not be written."));
  EXPECT_EQ(Saved(*answers.file), "the old file");
}

// What a printer is told, with all texts that are drawn and where.
class Drawing : public QPdfWriter {
 public:
  struct Text {
    QString text;
    QRectF place;
    int page;
    QFont font;
  };
  Drawing() : QPdfWriter(&Nowhere()), engine_(*this) { setResolution(72); }
  bool newPage() override {
    ++page;
    return true;
  }
  QPaintEngine* paintEngine() const override { return &engine_; }
  QStringList TextsOf(int number) const {
    QStringList found;
    for (const Text& text : texts)
      if (text.page == number) found.append(text.text);
    return found;
  }

  std::vector<Text> texts;
  int page = 1;

 private:
  static QBuffer& Nowhere() {
    static QBuffer nowhere;
    return nowhere;
  }
  class Engine : public QPaintEngine {
   public:
    explicit Engine(Drawing& drawing) : QPaintEngine(AllFeatures), drawing_(drawing) {}
    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}
    void drawPath(const QPainterPath&) override {}
    void drawPolygon(const QPointF*, int, PolygonDrawMode) override {}
    void drawTextItem(const QPointF& at, const QTextItem& item) override {
      drawing_.texts.push_back(
          {item.text(), QRectF(at, QSizeF(item.width(), item.ascent())), drawing_.page, item.font()});
    }
    Type type() const override { return User; }

   private:
    Drawing& drawing_;
  };
  mutable Engine engine_;
};

TEST_F(GridExportTest, PaperSaysWhereItComesFromAndWhichPageOfHowManyItIs) {
  GridPaper::SetOrigin([] { return QString("Tabulon - Auenfels - admin - 2026-01-03 09:00"); });
  for (int i = 0; i < 200; ++i) grid->AddRow({QString::number(i), "row", ""});
  Drawing drawing;
  ASSERT_TRUE(GridPaper::Print(*grid, "Agencies", drawing));
  ASSERT_GE(drawing.page, 3);
  for (int page = 1; page <= drawing.page; ++page) {
    const QStringList texts = drawing.TextsOf(page);
    EXPECT_TRUE(texts.contains("Agencies"));
    EXPECT_TRUE(texts.contains("Code")) << "the headings stand on each page";
    EXPECT_TRUE(texts.contains("Tabulon - Auenfels - admin - 2026-01-03 09:00"));
    EXPECT_TRUE(texts.contains(QString("%1 / %2").arg(page).arg(drawing.page)));
  }
  GridPaper::SetOrigin({});
}

TEST_F(GridExportTest, HeadingsOnPaperBreakBetweenWordsOnly) {
  const QStringList headings = {"NCIP Department", "Delivery Select Copy", "Professors allowed to renew",
                                "Responsibility"};
  grid->SetCols(25);
  QStringList cells;
  for (int col = 1; col < 25; ++col) {
    grid->SetHeading(col, headings[col % 4]);
    cells.append(col % 2 == 0 ? "Y" : "a rather long text in a cell");
  }
  grid->AddRow(cells);
  Drawing drawing;
  ASSERT_TRUE(GridPaper::Print(*grid, "Profiles", drawing));
  EXPECT_EQ(drawing.pageLayout().orientation(), QPageLayout::Landscape);
  const QStringList words = headings.join(' ').split(' ');
  for (const Drawing::Text& text : drawing.texts) {
    if (!text.font.bold() || text.text == "Profiles") continue;
    for (const QString& word : text.text.trimmed().split(' ')) EXPECT_TRUE(words.contains(word)) << word.toStdString();
  }
}

TEST_F(GridExportTest, NarrowTablesStandOnPortraitPaperAndNumbersToTheRight) {
  grid->SetCols(7);
  for (int col = 1; col < 7; ++col) grid->SetHeading(col, QString("Col %1").arg(col));
  grid->AlignRight(2);
  grid->AddRow({"a", "9", "c", "d", "e", "f"});
  grid->AddRow({"a", "12345678", "c", "d", "e", "f"});
  Drawing drawing;
  ASSERT_TRUE(GridPaper::Print(*grid, "Rates", drawing));
  EXPECT_EQ(drawing.pageLayout().orientation(), QPageLayout::Portrait);
  const auto place = [&](const QString& what) {
    for (const Drawing::Text& text : drawing.texts)
      if (text.text == what) return text.place;
    ADD_FAILURE() << what.toStdString();
    return QRectF();
  };
  EXPECT_NEAR(place("9").right(), place("12345678").right(), 1);
  EXPECT_LT(place("Col 6").right(), 400) << "as wide as what they hold";
}

TEST_F(GridExportTest, APageHoldsNoMoreThanFitsAndOneRowIsOnePage) {
  grid->SetFilter("alpha");
  answers.file = folder.filePath("one.pdf");
  GridExport::AskAndSavePdf(*grid);
  EXPECT_EQ(Saved(*answers.file).count("/Type /Page\n"), 1);
}

#ifndef Q_OS_WIN
TEST_F(GridExportTest, AFullDiskLeavesTheOldPdfAndIsSaid) {
  answers.file = folder.filePath("rows.pdf");
  QFile old(*answers.file);
  ASSERT_TRUE(old.open(QIODevice::WriteOnly));
  old.write(QByteArray(8000, 'o'));
  old.close();
  {
    const FileSizeLimit limit(512);
    GridExport::AskAndSavePdf(*grid);
  }
  EXPECT_TRUE(answers.message.contains("could not be written.\n\n")) << answers.message.toStdString();
  ASSERT_TRUE(old.open(QIODevice::ReadOnly));
  EXPECT_EQ(old.readAll(), QByteArray(8000, 'o'));
}
#endif

TEST_F(GridExportTest, WithoutAPrinterThatIsSaid) {
  GridExport::AskAndPrint(*grid);
  EXPECT_EQ(answers.message, "No printer is installed on this machine.");
  EXPECT_FALSE(answers.askedForPrinter);
  answers.printers = {"Office"};
  answers.message.clear();
  GridExport::AskAndPrint(*grid);
  EXPECT_TRUE(answers.askedForPrinter);
  EXPECT_EQ(answers.message, QString());
}

}  // namespace
