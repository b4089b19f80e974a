#pragma once

#include <QString>

class clsRequestInfo;

// Enters the words of titles, authors and call number of a request into the keyword tables. Runs after the request is
// committed: a failure is told and changes nothing of the request.
void UpdateKeywordTables(const QString& requestNumber, const clsRequestInfo& info);
