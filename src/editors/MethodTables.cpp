#include "editors/MethodTables.h"

namespace {

enum Flag : size_t { ActiveFlag, PrintFlag, DisplayFlag };

}  // namespace

const MethodTable& DeliveryMethods() {
  static const MethodTable methods{
      .gridKey = "5 a",
      .grid = "grd5aTable",
      .codeBox = "txt5aCode",
      .descriptionBox = "txt5aDescription",
      .descriptionLimit = 20,
      .accessibleName = "Delivery methods",
      .table = "ID_DELIV_METHOD",
      .codeColumn = "DELIV_METHOD",
      .flags = {{"fra5aActive", "opt5aActive", "Active:", "ACTIVE_FLAG"},
                {"fra5aPrint", "opt5aPrint", "Print:", "PRINT_FLAG"},
                {"fra5aDisplay", "opt5aDisplay", "Display for Patron:", "WEB_FLAG"}},
      .updateOrder = {DisplayFlag, ActiveFlag, PrintFlag},
      .updateYes = "N'Y'",
      .updateNo = "N'N'",  // the only table that keeps a "no"
      .mailIsAlwaysActive = true,
      .buttonMode = "A",
  };
  return methods;
}

const MethodTable& MessagingMethods() {
  static const MethodTable methods{
      .gridKey = "5 b",
      .grid = "grd5bTable",
      .codeBox = "txt5bCode",
      .descriptionBox = "txt5bDescription",
      .descriptionLimit = 20,
      .accessibleName = "Messaging methods",
      .table = "ID_MSG_METHOD",
      .codeColumn = "MSG_METHOD",
      .flags = {{"fra5bActive", "opt5bActive", "Active:", "ACTIVE_FLAG"},
                {"fra5bPrint", "opt5bPrint", "Print:", "PRINT_FLAG"},
                {"fra5bDisplay", "opt5bDisplay", "Display for Patron:", "WEB_FLAG"}},
      .updateOrder = {DisplayFlag, ActiveFlag, PrintFlag},
      .updateYes = "'Y'",  // without the N
      .updateNo = "NULL",
      .mailIsAlwaysActive = true,
      .buttonMode = {},
  };
  return methods;
}

const MethodTable& RequestMethods() {
  static const MethodTable methods{
      .gridKey = "5 c",
      .grid = "grd5cTable",
      .codeBox = "txt5cCode",
      .descriptionBox = "txt5cDescription",
      .descriptionLimit = 50,
      .accessibleName = "Request methods",
      .table = "ID_REQ_METHOD",
      .codeColumn = "REQ_METHOD",
      .flags = {{"fra5cActive", "opt5cActive", "Active:", "ACTIVE_FLAG"}},
      .updateOrder = {ActiveFlag},
      .updateYes = "N'Y'",
      .updateNo = "NULL",
      .mailIsAlwaysActive = false,
      .buttonMode = {},
  };
  return methods;
}
