#include "editors/RateTable.h"

#include "core/ModuleState.h"
#include "core/OstanaFunctions.h"
#include "core/SqlText.h"

namespace {

const GridColumn Marker{"", 400};

std::vector<GridColumn> ExposureColumns(const QString& key, int rateTwips, int keyTwips) {
  return {Marker,
          {"Billing Rate", rateTwips},
          {key, keyTwips},
          Amount("Flat Fee", 750),
          Amount("Unit Size", 750),
          Amount("Free Exp.", 750),
          Amount("Per Exp.", 750)};
}

std::vector<GridColumn> SurchargeColumns(const QString& key) {
  return {Marker, {"Billing Rate", 6200}, {key, 3000}, Amount("Surcharge", 500)};
}

}  // namespace

const std::vector<RateTable>& RateTable::All() {
  static const std::vector<RateTable> tables = {
      {.caption = "Copyright Comply",
       .kind = RateKind::Copyright,
       .columns = {Marker, {"Code", 1000}, Amount("Surcharge", 2000), {"Description", 7520}},
       .table = "ID_COPYRIGHT_CMP",
       .billingList = "",
       .selChange = "grd7CopyRight_SelChange"},
      {.caption = "Delivery Method Rates",
       .kind = RateKind::Exposures,
       .columns = ExposureColumns("Delivery Method", 5500, 1500),
       .table = "ID_RATE_DELIVERY",
       .billingList = "ID_BILLING_RATE",
       .insertInto = "ID_RATE_DELIVERY (BILLING_RATE, DELIV_METHOD, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, "
                     "PER_EXPOSURE) ",
       .keyColumn = "DELIV_METHOD",
       .keyCaption = "Delivery Method:",
       .keyMissing = "Please select a Valid Delivery Method.",
       .listTable = "ID_DELIV_METHOD",
       .listFailure = "ID_DELIVERY_METHOD",
       .selChange = "grd7Delivery_SelChange"},
      {.caption = "Document Supply Rates",
       .kind = RateKind::Exposures,
       .columns = ExposureColumns("Document Supply", 4500, 2300),
       .table = "ID_RATE_SUPPLY",
       .billingList = "ID_BILLING_RATE",
       .insertInto = "ID_RATE_SUPPLY (BILLING_RATE, EXCEPTION_CODE, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, "
                     "PER_EXPOSURE) ",
       .keyColumn = "EXCEPTION_CODE",
       .keyCaption = "Supply Code:",
       .keyMissing = "Please select a Valid Supply Code.",
       .listTable = "ID_EXCEPTION_CODE",
       .listFailure = "ID_EXCEPTION_CODE",
       .listWhere = "WHERE    EXCEPTION_TYPE IN ('C', 'M', 'S')",
       .selChange = "grd7Supply_SelChange"},
      {.caption = "Output Format Rates",
       .kind = RateKind::Exposures,
       .columns = ExposureColumns("Output Format", 5500, 1500),
       .table = "ID_RATE_OUTPUT",
       .billingList = "ID_BILLING_RATE",
       .insertInto = "ID_RATE_OUTPUT (BILLING_RATE, OUTPUT_FORMAT, UNIT_SIZE, FLAT_FEE_UNIT, FREE_EXPOSURE, "
                     "PER_EXPOSURE) ",
       .keyColumn = "OUTPUT_FORMAT",
       .keyCaption = "Output Format:",
       .keyMissing = "Please select a Valid Output Format.",
       .listTable = "ID_OUTPUT_FORMAT",
       .listFailure = "ID_OUTPUT_FORMAT",
       .selChange = "grd7Output_SelChange",
       .nationalKeys = true,
       .keepsComma = true,
       .clearsOnDuplicate = true},
      {.caption = "Reject Code Rates",
       .kind = RateKind::Surcharge,
       .columns = SurchargeColumns("Reject Type"),
       .table = "ID_RATE_REJECT",
       .billingList = "ID_DBILLING_RATE",
       .insertInto = "ID_RATE_REJECT (BILLING_RATE, EXCEPTION_CODE, SURCHARGE)",
       .keyColumn = "EXCEPTION_CODE",
       .keyCaption = "Reject Code:",
       .keyMissing = "Please select a Valid Reject Code.",
       .listTable = "ID_EXCEPTION_CODE",
       .listFailure = "ID_EXCEPTION_CODE",
       .listWhere = "WHERE    EXCEPTION_TYPE IN ('B', 'L', 'R')",
       .selChange = "grd7Reject_SelChange"},
      {.caption = "Service Level Rates",
       .kind = RateKind::Surcharge,
       .columns = SurchargeColumns("Service Level"),
       .table = "ID_RATE_SERVICE",
       .billingList = "ID_BILLING_RATE",
       // The small letters reach the database.
       .insertInto = "ID_RATE_service (BILLING_RATE, SERVICE_LEVEL, SURCHARGE)",
       .keyColumn = "SERVICE_LEVEL",
       .keyCaption = "Service Level:",
       .keyMissing = "Please select a Valid service Level.",
       .listTable = "ID_SERVICE_LEVEL",
       .listFailure = "ID_SERVICE_LEVEL",
       .selChange = "grd7Service_SelChange"},
      {.caption = "Billing Rate Alias",
       .kind = RateKind::Alias,
       .columns = {Marker,
                   {"", 0, true},
                   {"Supplying Library", 2000},
                   {"Supplying Unit", 2000},
                   {"Requesting Library", 2000},
                   {"New Billing Rate", 2000}},
       .table = "ID_RATE_ALIAS",
       .billingList = "ID_BILLING_RATE",
       .keyCaption = "Supplying Unit:",
       .selChange = "grd7Alias_SelChange"},
  };
  return tables;
}

const std::vector<RateValue>& RateTable::Values() const {
  static const std::vector<RateValue> none;
  static const std::vector<RateValue> exposures = {
      {"UNIT_SIZE", RateBox::UnitSize, 4, false},
      {"FLAT_FEE_UNIT", RateBox::FlatFee, 3, true},
      {"FREE_EXPOSURE", RateBox::FreeExposures, 5, false},
      {"PER_EXPOSURE", RateBox::PerExposure, 6, true},
  };
  static const std::vector<RateValue> surcharge = {{"SURCHARGE", RateBox::FlatFee, 3, true}};
  switch (kind) {
    case RateKind::Exposures:
      return exposures;
    case RateKind::Surcharge:
      return surcharge;
    case RateKind::Copyright:
    case RateKind::Alias:
      break;
  }
  return none;
}

namespace {

QString CodesAndDescriptions(const QString& codeColumn, const QString& table, const QString& where) {
  const QString description = codeColumn + "_DESC" + gclsOF->LanguageSuffix();
  return "SELECT   " + codeColumn + ", " + description + " FROM " + Sql::Table(table) +
         (where.isEmpty() ? QString() : " " + where) + " ORDER BY " + description;
}

QString WhereKeys(const RateTable& rate, const QString& billingRate, const QString& key, bool national) {
  const auto quoted = [national](const QString& code) { return national ? Sql::National(code) : Sql::Plain(code); };
  return "WHERE BILLING_RATE = " + quoted(billingRate) + " AND " + rate.keyColumn + " = " + quoted(key);
}

QString WhereKeys(const RateSql::AliasKey& key) {
  return "WHERE LIBRARY_ID = " + Sql::Number(key.requestingId) +
         " AND SUPPLIER_LIBRARY_ID = " + Sql::Number(key.supplyingId) + " AND SUPPLIER_CODE" +
         (key.unit.isEmpty() ? QString(" IS NULL") : " = " + Sql::Plain(key.unit));
}

// Columns of the statement before the numbers of a rate.
QStringList KeyColumns(const RateTable& rate) {
  return {"BILLING_RATE", rate.keyColumn};
}

}  // namespace

namespace RateSql {

QString FailureLine(const QString& table, const QString& verb) {
  return "***** SQL error on OSTANA." + table + " (" + verb + ") *****";
}

QString BillingRateList() {
  return CodesAndDescriptions("BILLING_RATE", "ID_BILLING_RATE", {});
}

QString KeyList(const RateTable& rate) {
  return CodesAndDescriptions(rate.keyColumn, rate.listTable, rate.listWhere);
}

QString LibraryList() {
  return "SELECT LIBRARY_SYMBOL,LIBRARY_ID FROM  " + Sql::Table("ID_LIBRARY") +
         " WHERE (LIBRARY_TYPE IS Null OR (LIBRARY_TYPE <> N'P') AND (LIBRARY_TYPE <> N'Z'))"
         " ORDER BY LIBRARY_SYMBOL";
}

QString UnitList(qint32 libraryId) {
  return "SELECT   SUPPLIER_CODE FROM " + Sql::Table("ID_SUPPLIER") +
         " WHERE    LIBRARY_ID = " + Sql::Number(libraryId) + " ORDER BY SUPPLIER_CODE";
}

QString Select(const RateTable& rate) {
  QStringList columns = KeyColumns(rate);
  for (const RateValue& value : rate.Values()) columns.append(value.column);
  return "SELECT   " + columns.join(", ") + " FROM " + Sql::Table(rate.table) + " ORDER BY " +
         KeyColumns(rate).join(", ");
}

QString Insert(const RateTable& rate, const QString& billingRate, const QString& key, const QStringList& values) {
  const auto quoted = [&rate](const QString& code) {
    return rate.nationalKeys ? Sql::National(code) : Sql::Plain(code);
  };
  return "INSERT INTO " + Sql::Table(rate.insertInto) + " VALUES (" + quoted(billingRate) + ", " + quoted(key) + ", " +
         values.join(", ") + ")";
}

QString Update(const RateTable& rate, const QString& billingRate, const QString& key, const QStringList& values) {
  QStringList set;
  for (const RateValue& value : rate.Values()) set.append(value.column + " = " + values.at(set.size()));
  return "UPDATE " + Sql::Table(rate.table) + " SET " + set.join(", ") + " " + WhereKeys(rate, billingRate, key, true);
}

QString Delete(const RateTable& rate, const QString& billingRate, const QString& key) {
  return "DELETE FROM " + Sql::Table(rate.table) + " " + WhereKeys(rate, billingRate, key, rate.nationalKeys);
}

QStringList CopyrightColumns() {
  return {"COPYRIGHT_CMP", "COPYRIGHT_CMP_DESC" + gclsOF->LanguageSuffix(), "SURCHARGE"};
}

QString CopyrightSelect(const QStringList& columns) {
  return "SELECT   " + columns.join(", ") + " FROM " + Sql::Table("ID_COPYRIGHT_CMP") + " ORDER BY " + columns.at(0);
}

QString CopyrightInsert(const QString& code, const QString& description, const QString& surcharge) {
  const QString text = Sql::National(description);
  const Sql::LanguagePieces languages = Sql::LanguageColumns("COPYRIGHT_CMP_DESC_", text);
  return "INSERT INTO " + Sql::Table("ID_COPYRIGHT_CMP") + " (COPYRIGHT_CMP, COPYRIGHT_CMP_DESC" + languages.columns +
         ", SURCHARGE) VALUES (" + Sql::National(code) + ", " + text + languages.values + ", " + surcharge + ")";
}

QString CopyrightUpdate(const QStringList& columns, const QString& code, const QString& description,
                        const QString& surcharge) {
  return "UPDATE  " + Sql::Table("ID_COPYRIGHT_CMP") + " SET " + columns.at(1) + " = " +
         Sql::NationalOr(description, "NULL") + ", " + columns.at(2) + " = " + surcharge + " WHERE " + columns.at(0) +
         " = " + Sql::Plain(code);
}

QString CopyrightDelete(const QStringList& columns, const QString& code) {
  return "DELETE FROM " + Sql::Table("ID_COPYRIGHT_CMP") + " WHERE " + columns.at(0) + " = " + Sql::Plain(code);
}

QString AliasSelect() {
  return "SELECT   LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, BILLING_RATE FROM " + Sql::Table("ID_RATE_ALIAS") +
         " ORDER BY SUPPLIER_LIBRARY_ID, LIBRARY_ID, SUPPLIER_CODE";
}

QString AliasInsert(const AliasKey& key, const QString& billingRate) {
  return "INSERT INTO " + Sql::Table("ID_RATE_ALIAS") +
         " (LIBRARY_ID, SUPPLIER_LIBRARY_ID, SUPPLIER_CODE, BILLING_RATE) VALUES (" + Sql::Number(key.requestingId) +
         ", " + Sql::Number(key.supplyingId) + ", " + Sql::PlainOr(key.unit, "NULL") + ", " + Sql::Plain(billingRate) +
         ")";
}

QString AliasUpdate(const AliasKey& key, const QString& billingRate) {
  return "UPDATE " + Sql::Table("ID_RATE_ALIAS") + " SET BILLING_RATE = " + Sql::Plain(billingRate) + " " +
         WhereKeys(key);
}

QString AliasDelete(const AliasKey& key) {
  return "DELETE FROM " + Sql::Table("ID_RATE_ALIAS") + " " + WhereKeys(key);
}

}  // namespace RateSql
