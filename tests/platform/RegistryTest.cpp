#include "platform/desktop/Registry.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#ifndef Q_OS_WIN

namespace {

class RegistryTest : public testing::Test {
 protected:
  void SetUp() override { qputenv("OSTANA_REGISTRY", folder.path().toLocal8Bit()); }
  void TearDown() override { qunsetenv("OSTANA_REGISTRY"); }

  void Write(const QByteArray& text, const char* name = "registry.ini") {
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }

  QTemporaryDir folder;
  QString value = "untouched";
};

using Registry::GetKeyValue;
using Registry::Root;

TEST_F(RegistryTest, WithoutATreeNothingIsFound) {
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "SOFTWARE\\Ostana", "Edition", value));
  EXPECT_EQ(value, "untouched");
}

TEST_F(RegistryTest, TextOfAKeyPath) {
  Write("[SOFTWARE\\Ostana\\7.1]\r\nEdition=Consortium\r\nVersion = 7.1.4 \r\nEmpty=\r\n");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "SOFTWARE\\Ostana\\7.1", "Edition", value));
  EXPECT_EQ(value, "Consortium");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "software\\ostana\\7.1", "version", value));
  EXPECT_EQ(value, "7.1.4");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "SOFTWARE\\Ostana\\7.1", "Empty", value));
  EXPECT_EQ(value, "");
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "SOFTWARE\\Ostana", "Edition", value));
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "SOFTWARE\\Ostana\\7.1", "Missing", value));
  EXPECT_EQ(value, "");
}

TEST_F(RegistryTest, DoubleWordIsHexadecimalText) {
  Write("[Key]\nCount=dword:0000002a\nZero=dword:00000000\nWrong=dword:xyz\n");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "Key", "Count", value));
  EXPECT_EQ(value, "&h2A");
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "Key", "Wrong", value));
  EXPECT_EQ(value, "&h2A");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "Key", "Zero", value));
  EXPECT_EQ(value, "&h0");
}

TEST_F(RegistryTest, OtherTypesAreRefused) {
  Write("[Key]\nBinary=hex:01,02\nExpand=hex(2):25,00\n");
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "Key", "Binary", value));
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "Key", "Expand", value));
  EXPECT_EQ(value, "untouched");
}

TEST_F(RegistryTest, RootsAreTreesOfTheirOwn) {
  Write("[Key]\nWho=machine\n");
  Write("[Key]\nWho=user\n", "registry-user.ini");
  EXPECT_TRUE(GetKeyValue(Root::CurrentUser, "Key", "Who", value));
  EXPECT_EQ(value, "user");
  EXPECT_TRUE(GetKeyValue(Root::LocalMachine, "Key", "Who", value));
  EXPECT_EQ(value, "machine");
}

TEST_F(RegistryTest, UnreadableTreeIsFalse) {
  Write(QByteArray(1000, '\x7f') + "[[[=");
  EXPECT_FALSE(GetKeyValue(Root::LocalMachine, "Key", "Who", value));
  EXPECT_EQ(value, "untouched");
}

}  // namespace

#endif
