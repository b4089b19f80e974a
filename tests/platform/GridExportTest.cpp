// What leaves a grid as CSV, as PDF and to a printer.
#include <gtest/gtest.h>

#include <QFile>
#include <QPrinter>
#include <QTemporaryDir>

#include "platform/FileSizeLimit.h"
#include "platform/Window.h"
#include "platform/controls/Grid.h"
#include "platform/controls/GridExport.h"
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
  QString message, filter;
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
