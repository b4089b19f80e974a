#include "ManyLibraries.h"

#include <algorithm>
#include <array>

namespace {

constexpr int RowsAStatement = 500;

constexpr std::array Places = {"LEEDS", "TORONTO", "LYON", "BERLIN", "OSAKA", "PERTH",
                               "LIMA",  "BERGEN",  "CORK", "PORTO",  "GHENT"};
constexpr std::array Kinds = {"UNIVERSITY",           "COLLEGE", "CITY COUNCIL",  "HOSPITAL",
                              "INSTITUTE OF SCIENCE", "MUSEUM",  "STATE ARCHIVES"};
constexpr std::array Names = {"MAIN LIBRARY", "LAW LIBRARY", "MEDICAL LIBRARY", "READING ROOM", "INTERLIBRARY LOANS"};
constexpr std::array People = {"Ann Reed", "Ben Cole", "Chloe Martin", "Dieter Vogel", "Emi Sato", "Fatima Khan"};

// One row, made of lists whose lengths have no common factor, so that every mixture occurs.
QString Row(int number) {
  const auto index = static_cast<size_t>(number);
  const auto pick = [index](const auto& list) { return QString(list[index % list.size()]); };
  return QString("(%1, '%2', 'LIB%3', '%4 %5 %6', '%7', '%8', '%9', ")
             .arg(ManyLibraries::FirstId + number)
             .arg(number % 50 == 0 ? 'N' : 'Y')
             .arg(number, 6, 10, QChar('0'))
             .arg(pick(Places), pick(Kinds))
             .arg(number / 10)
             .arg(pick(Names), pick(People), pick(Places)) +
         QString("'P%1', 'M', 'P', 'M', 'T', 0, 1.0)").arg(number % 10000, 5, 10, QChar('0'));
}

}  // namespace

void ManyLibraries::Add(Connection& connection, int count) {
  Transaction transaction(connection);
  for (int first = 1; first <= count; first += RowsAStatement) {
    QStringList rows;
    for (int number = first; number < std::min(first + RowsAStatement, count + 1); ++number) rows.append(Row(number));
    connection.Execute(
        "INSERT INTO ID_LIBRARY (LIBRARY_ID, LIBRARY_ACTIVE, LIBRARY_SYMBOL, INSTITUTION_NAME, LIBRARY, CONTACT, "
        "PRIME_CITY, PRIME_POST_ZIPCODE, DELIV_METHOD_COPY, FILE_FORMAT, MSG_METHOD, MSG_FORMAT, REQUESTS_PROCESSED, "
        "WEIGHTING_FACTOR) VALUES " +
        rows.join(", "));
  }
  transaction.Commit();
}
