#pragma once

#include <QString>

// What may stand in the address fields of the system. Each test answers True, or False with a sentence for the user.
// Blanks around the value do not count.
namespace FieldChecks {

// One address: a local part of at most 64 characters without blanks and quotes, "@", and a host name with a point.
// Letters of all languages pass in both.
bool IsEmailAddress(const QString& value, QString& reason);

// A host with an optional ":port" (0 to 65535). The host is
//   - four numbers from 0 to 255 without leading zeros (which some systems read as octal), or
//   - an IPv6 address, in square brackets where a port follows, or
//   - a name of labels joined by points: letters of all languages, digits, "-" and "_", no "-" at an end of a label, 63
//     characters a label and 253 in all as the name service writes them; one closing point passes. A name whose last
//     label is a number is taken for an unfinished numeric address and refused.
bool IsNetworkAddress(const QString& value, QString& reason);

// At most 25 characters: digits, at least three, blanks and "()-./", with "+" in front at the most.
bool IsFaxNumber(const QString& value, QString& reason);

}  // namespace FieldChecks
