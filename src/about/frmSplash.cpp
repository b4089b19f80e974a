#include "about/frmSplash.h"

#include <QPainter>

#include "about/Manifest.h"
#include "shell/Procedure.h"

frmSplash::frmSplash(QWidget* parent) : Screen("frmSplash", "Ostana", parent) {
  setWindowFlag(Qt::FramelessWindowHint);
  BuildControls();
  connect(Timer1, &QTimer::timeout, this, &frmSplash::Timer1_Timer);
}

void frmSplash::BuildControls() {
  auto* const title = Form::Label(this, "lblTitle", "Tabulon");
  QFont large = title->font();
  large.setPointSizeF(large.pointSizeF() * 2.6);
  large.setBold(true);
  title->setFont(large);
  auto* const subtitle = Form::Label(this, "lblSubtitle", "Ostana System Maintenance");
  txtHide->setObjectName("txtHide");
  txtHide->setAccessibleName("Start screen");
  txtHide->setReadOnly(true);
  txtHide->setFixedSize(1, 1);
  txtHide->setFrame(false);
  QVBoxLayout* const column = Form::Column(this, {title, subtitle});
  column->setContentsMargins(36, 32, 36, 24);
  column->addStretch();
  column->addWidget(lblVersion);
  column->addWidget(lblRights);
  column->addWidget(txtHide);
  resize(460, 240);
}

void frmSplash::paintEvent(QPaintEvent* event) {
  Screen::paintEvent(event);
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.fillRect(0, 0, 8, height(), palette().color(QPalette::Highlight));
}

void frmSplash::Form_Load() {
  Procedure procedure("frmSplash.Form_Load");
  procedure.Step([this] {
    const QString version = Manifest::Value("Vendor-Version");
    lblVersion->setText(version);
    lblVersion->setVisible(!version.isEmpty());
  });
  procedure.Step([this] { lblRights->setText(Manifest::RightsLine()); });
  txtHide->setFocus();
  Timer1->start(ShownFor);
}

void frmSplash::Timer1_Timer() {
  Timer1->stop();
  hide();
  Unload();
}
