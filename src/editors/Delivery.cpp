#include "editors/Delivery.h"

#include <QSignalBlocker>
#include <utility>

#include "core/ModuleState.h"
#include "editors/MethodPage.h"
#include "editors/MethodTables.h"
#include "editors/PickupLocations.h"
#include "platform/controls/FormLayout.h"
#include "shell/Procedure.h"
#include "shell/frmTabulon.h"

Delivery::Delivery(frmTabulon& shell)
    : TabPage(shell),
      pages_{new MethodPage(shell, DeliveryMethods()), new MethodPage(shell, MessagingMethods()),
             new MethodPage(shell, RequestMethods()), new PickupLocations(shell)} {
  sstab5Delivery->setObjectName("sstab5Delivery");
  const char* const captions[] = {"Delivery Method", "Messaging Method", "Request Method", "Pickup Location"};
  for (size_t at = 0; at < pages_.size(); ++at) sstab5Delivery->addTab(pages_[at], captions[at]);
  Form::Column(this, {sstab5Delivery});
  connect(sstab5Delivery, &QTabWidget::currentChanged, this, &Delivery::sstab5Delivery_Click);
}

void Delivery::sstab5Delivery_Click() {
  subTabClicked_ = true;
  Delivery_Tab();
  gbSkipGridEvents = false;
}

void Delivery::Delivery_Tab() {
  Procedure procedure("frmTabulon.Delivery_Tab", this);
  procedure.Run([this] {
    if (!std::exchange(subTabClicked_, false)) {
      const QSignalBlocker once(sstab5Delivery);  // what the event would load is loaded below
      sstab5Delivery->setCurrentIndex(0);
    }
    shell().buttonState();
    Front().Enter();
    shell().EnableButtons(gstrButtonMode);
  });
}
