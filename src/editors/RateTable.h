#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "shell/GridTable.h"

// The seven rate tables of the tab "Invoicing" as data: what each is called, which inputs it shows, where its second
// key comes from and how its statements read. One grid and one set of controls serve them all.

// Which inputs a rate table needs.
enum class RateKind {
  Copyright,  // code, description, surcharge
  Exposures,  // billing rate and second key with four numbers
  Surcharge,  // billing rate and second key with one number
  Alias       // two libraries, an optional unit, the billing rate that replaces the usual one
};

// The boxes that hold the numbers of a rate.
enum class RateBox { FlatFee, UnitSize, FreeExposures, PerExposure };

// One number of a rate: its column, its box, the column of grd7Table that shows it.
struct RateValue {
  QString column;
  RateBox box;
  int gridColumn;
  bool money;
};

struct RateTable {
  QString caption;  // entry of cmb7RateTable
  RateKind kind = RateKind::Copyright;
  std::vector<GridColumn> columns;  // of grd7Table
  QString table;                    // as failure lines name it
  QString billingList;              // the table of the billing rates as its failure line names it
  QString insertInto = {};          // table and columns of the INSERT
  QString keyColumn = {};           // the key beside BILLING_RATE
  QString keyCaption = {};          // label of its list
  QString keyMissing = {};          // told when nothing is chosen from the list
  QString listTable = {};           // where the list comes from ...
  QString listFailure = {};         // ... as its failure line names it
  QString listWhere = {};           // ... and which of its rows belong to this table
  QString selChange;                // log name of the selection's handler
  bool nationalKeys = false;        // INSERT and DELETE write the keys as N'...'; UPDATE always does
  bool keepsComma = false;          // INSERT sends money as typed, whatever the decimal separator is
  bool clearsOnDuplicate = false;

  // In the order of the table of rates behind "(none)".
  static const std::vector<RateTable>& All();
  // In the order of the statements; empty for the first and the last table.
  const std::vector<RateValue>& Values() const;
};

// Their statements and failure lines. Values come as SQL text unless said otherwise.
namespace RateSql {

// "***** SQL error on OSTANA.<table> (<verb>) *****"
QString FailureLine(const QString& table, const QString& verb);

// Lists: code first, then the description in the working language.
QString BillingRateList();
QString KeyList(const RateTable& rate);
// Symbol and id of the libraries, without the rows that are patrons or no actual libraries.
QString LibraryList();
QString UnitList(qint32 libraryId);

// The five tables priced by billing rate; the keys are codes, unquoted.
QString Select(const RateTable& rate);
QString Insert(const RateTable& rate, const QString& billingRate, const QString& key, const QStringList& values);
QString Update(const RateTable& rate, const QString& billingRate, const QString& key, const QStringList& values);
QString Delete(const RateTable& rate, const QString& billingRate, const QString& key);

// Copyright Comply. The three columns are named by the load: code, description in the language of the load, surcharge.
QStringList CopyrightColumns();
QString CopyrightSelect(const QStringList& columns);
QString CopyrightInsert(const QString& code, const QString& description, const QString& surcharge);
QString CopyrightUpdate(const QStringList& columns, const QString& code, const QString& description,
                        const QString& surcharge);
QString CopyrightDelete(const QStringList& columns, const QString& code);

// Billing Rate Alias. An empty unit is NULL.
struct AliasKey {
  qint32 requestingId = 0;
  qint32 supplyingId = 0;
  QString unit;
};
QString AliasSelect();
QString AliasInsert(const AliasKey& key, const QString& billingRate);
QString AliasUpdate(const AliasKey& key, const QString& billingRate);
QString AliasDelete(const AliasKey& key);

}  // namespace RateSql
