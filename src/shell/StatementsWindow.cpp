#include "shell/StatementsWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>

#include "core/Clock.h"
#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SecretMask.h"
#include "platform/controls/FormLayout.h"
#include "platform/controls/Grid.h"
#include "platform/controls/MemoBox.h"
#include "shell/Beside.h"
#include "shell/GridTable.h"
#include "shell/Procedure.h"
#include "shell/WindowMemory.h"

namespace {

enum Column { Time = 1, Milliseconds, Rows, Screen, Event, Statement };

// The screen and the event of a log name such as "frmTabulon.cmdAdd_Click"; a name without a form is an event of the
// window in front.
std::pair<QString, QString> ComesFrom() {
  const QString running = Procedure::Running();
  const qsizetype point = running.indexOf(u'.');
  if (point > 0) return {running.left(point), running.mid(point + 1)};
  const QWidget* const front = QApplication::activeWindow();
  return {front == nullptr ? QString() : front->objectName(), running};
}

}  // namespace

StatementsWindow::StatementsWindow()
    : grdStatements_(new Grid(this, "grdStatements")), txtStatement_(new MemoBox(this, "txtStatement")) {
  setObjectName("winStatements");
  setWindowTitle("Ostana - Statements");
  BuildControls();
  resize(900, 520);
  WindowMemory::Restore(*this);
}

void StatementsWindow::BuildControls() {
  ShapeGrid(*grdStatements_, {"",
                              "grdStatements",
                              {{"", 200},
                               {"Time", 1300},
                               Amount("ms", 500),
                               Amount("Rows", 600),
                               {"Screen", 1700},
                               {"Procedure", 2300},
                               {"Statement", 6000}}});
  grdStatements_->setAccessibleName("Statements");
  txtStatement_->setReadOnly(true);
  txtStatement_->setAccessibleName("Statement");
  auto* const both = new QSplitter(Qt::Vertical);
  both->addWidget(grdStatements_);
  both->addWidget(txtStatement_);
  both->setStretchFactor(0, 3);
  both->setStretchFactor(1, 1);
  QPushButton* const copy = Form::Button(this, "cmdCopy", "C&opy");
  QPushButton* const clear = Form::Button(this, "cmdClear", "Clea&r");
  QPushButton* const close = Form::Button(this, "cmdClose", "&Close");
  QVBoxLayout* const column = Form::Column(this);
  column->addWidget(both, 1);
  column->addLayout(Form::ButtonRow({nullptr, copy, clear, close}));
  connect(grdStatements_, &Grid::SelChange, this,
          [this] { txtStatement_->SetText(grdStatements_->Text(grdStatements_->Row(), Statement)); });
  connect(copy, &QPushButton::clicked, this, &StatementsWindow::Copy);
  connect(clear, &QPushButton::clicked, this, [this] {
    grdStatements_->Clear();
    txtStatement_->SetText({});
  });
  connect(close, &QPushButton::clicked, this, &QWidget::close);
}

void StatementsWindow::Open(QWidget* owner) {
  static QPointer<StatementsWindow> window;
  if (window.isNull()) window = new StatementsWindow;
  Beside::Show(*window, owner);
}

void StatementsWindow::OpenByF12(QWidget& window) {
  auto* const key = new QShortcut(Qt::Key_F12, &window);
  connect(key, &QShortcut::activated, &window, [&window] { Open(&window); });
}

void StatementsWindow::Listen() {
  if (observer_ != 0) return;
  Procedure::Try([this] {
    observer_ = gclsOF->Connection().AddObserver([this](const StatementRecord& statement) { Add(statement); });
  });
}

void StatementsWindow::StopListening() {
  if (observer_ == 0) return;
  Procedure::Try([this] { gclsOF->Connection().RemoveObserver(observer_); });
  observer_ = 0;
}

void StatementsWindow::Add(const StatementRecord& statement) {
  const auto [screen, event] = ComesFrom();
  const QString rows = statement.failed             ? QStringLiteral("failed")
                       : statement.affectedRows < 0 ? QStringLiteral("-")
                                                    : QString::number(statement.affectedRows);
  grdStatements_->AddRow({Clock::Now().toString("hh:mm:ss.zzz"), QString::number(statement.milliseconds), rows, screen,
                          event, MaskSecrets(statement.text)},
                         1);
  while (grdStatements_->Rows() - 1 > Most) grdStatements_->RemoveRow(grdStatements_->Rows() - 1);
}

// The statement of the row; all that the filter leaves where none is current.
void StatementsWindow::Copy() const {
  QStringList statements;
  for (int row = 1; row < grdStatements_->Rows(); ++row) {
    const bool meant = grdStatements_->Row() == 0 ? !grdStatements_->RowHidden(row) : row == grdStatements_->Row();
    if (meant) statements.append(grdStatements_->Text(row, Statement));
  }
  QApplication::clipboard()->setText(statements.join(u'\n'));
}

void StatementsWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Listen();
}

// Going over to another owner hides and shows it again: what came before stays.
void StatementsWindow::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous()) StopListening();
}

void StatementsWindow::closeEvent(QCloseEvent* event) {
  WindowMemory::Remember(*this);
  QWidget::closeEvent(event);
}

void StatementsWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QWidget::keyPressEvent(event);
}
