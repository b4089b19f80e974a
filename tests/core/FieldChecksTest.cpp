#include "core/FieldChecks.h"

#include <gtest/gtest.h>

namespace {

using Check = bool (*)(const QString&, QString&);

void ExpectAccepted(Check check, const QStringList& values) {
  for (const QString& value : values) {
    QString reason;
    EXPECT_TRUE(check(value, reason)) << value.toStdString() << ": " << reason.toStdString();
    EXPECT_TRUE(reason.isEmpty());
  }
}

void ExpectRefused(Check check, const QStringList& values) {
  for (const QString& value : values) {
    QString reason;
    EXPECT_FALSE(check(value, reason)) << value.toStdString();
    EXPECT_FALSE(reason.isEmpty()) << value.toStdString();
  }
}

const QString Label63 = QString(63, 'a');

}  // namespace

TEST(EmailAddress, OrdinaryAddressesPass) {
  ExpectAccepted(FieldChecks::IsEmailAddress,
                 {"ill@library.example.org", " ill@example.org ", "first.last+ill@example.org", "o'brien@example.org",
                  QString::fromUtf8("müller@bücherei.example"), QString::fromUtf8("图书@例子.测试"),
                  QString(64, 'x') + "@example.org", "a@1library.example"});
}

TEST(EmailAddress, BrokenAddressesAreRefused) {
  ExpectRefused(FieldChecks::IsEmailAddress, {"",
                                              " ",
                                              "library",
                                              "@example.org",
                                              "ill@",
                                              "ill@localhost",
                                              "a@b@example.org",
                                              "a b@example.org",
                                              "ill@exam ple.org",
                                              ".ill@example.org",
                                              "ill.@example.org",
                                              "i..ll@example.org",
                                              "ill@.example.org",
                                              "ill@example..org",
                                              "ill@example.org.",
                                              "ill@-example.org",
                                              "ill@example.123",
                                              "<ill@example.org>",
                                              "a@example.org;b@example.org",
                                              "a@example.org,b@example.org",
                                              "i\nll@example.org",
                                              QString("i") + QChar(0) + "ll@example.org",
                                              QString(65, 'x') + "@example.org"});
}

TEST(NetworkAddress, FourNumbersPass) {
  ExpectAccepted(FieldChecks::IsNetworkAddress,
                 {"192.168.1.2", "0.0.0.0", "255.255.255.255", "10.0.0.1:210", "10.0.0.1:0", " 10.0.0.1:65535 "});
}

TEST(NetworkAddress, BrokenNumbersAreRefused) {
  ExpectRefused(FieldChecks::IsNetworkAddress, {"256.1.1.1", "1.2.3", "1.2.3.4.5", "010.1.1.1", "1.2.3.1000", "12345",
                                                "1.2.3.4.", "1..2.3", "1.2.3.-4", "0x1.2.3.4"});
}

TEST(NetworkAddress, IPv6PassesBareAndInBrackets) {
  ExpectAccepted(FieldChecks::IsNetworkAddress,
                 {"::1", "2001:db8::8a2e:370:7334", "[::1]", "[2001:db8::1]:8080", "::ffff:192.0.2.1", "[::]:0"});
}

TEST(NetworkAddress, BrokenIPv6IsRefused) {
  ExpectRefused(FieldChecks::IsNetworkAddress, {"1::2::3", "[::1", "[::1]x", "[::1]:", "[::1]:x", "[::1]:65536", "[]",
                                                "[1.2.3.4]", "[host]:1", "fe80::1%eth0", "2001:db8::g", "::1]",
                                                "[v7.::1]", "[[::1]]", "[::1 ]", "1:2:3:4:5:6:7:8:9", "::1/64"});
}

TEST(NetworkAddress, HostNamesPass) {
  ExpectAccepted(
      FieldChecks::IsNetworkAddress,
      {"localhost", "ariel.library.example.org", "ariel.example.org.", "ARIEL-2.example.org:422", "ill_pc.local",
       QString::fromUtf8("bücherei.example"), QString::fromUtf8("例子.测试:8080"), Label63 + ".example", "3com.example",
       Label63 + '.' + Label63 + '.' + Label63 + '.' + QString(61, 'b')});
}

TEST(NetworkAddress, BrokenHostNamesAreRefused) {
  ExpectRefused(FieldChecks::IsNetworkAddress, {"",
                                                " ",
                                                ".",
                                                "a..b",
                                                ".example.org",
                                                "-a.example",
                                                "a-.example",
                                                "ho st",
                                                "host/path",
                                                "user@host",
                                                "host?",
                                                "a,b",
                                                "http://example.org",
                                                Label63 + "a.example",
                                                "host;",
                                                "it's",
                                                Label63 + '.' + Label63 + '.' + Label63 + '.' + QString(62, 'b'),
                                                QString("ho\u200Bst"),
                                                QString("host") + QChar(0),
                                                QString("ho\tst"),
                                                QString::fromUtf8("😀 .example")});
}

TEST(NetworkAddress, PortIsANumberUpTo65535) {
  ExpectRefused(FieldChecks::IsNetworkAddress, {"host:", "host:65536", "host:-1", "host:+1", "host:1a", "host:000080",
                                                ":80", "host: 80", "host:80 80", QString::fromUtf8("host:٨٠")});
}

TEST(FaxNumber, UsualWritingsPass) {
  ExpectAccepted(FieldChecks::IsFaxNumber, {"(613) 555-0123", "+49 30 1234567", "6135550123", "030/123.45", " 123 "});
}

TEST(FaxNumber, OthersAreRefused) {
  ExpectRefused(FieldChecks::IsFaxNumber, {"", "  ", "12", "()-", "555-CALL", "1+2345", "++123", "123\n456",
                                           QString(26, '1'), QString::fromUtf8("١٢٣٤"), "123;456"});
}
