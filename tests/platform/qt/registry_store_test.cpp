#include "platform/registry_store.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "platform/qt/drive.h"
#include "platform/qt/registry_qt.h"

namespace skyloft {
namespace {

constexpr std::uint32_t kUser = 0x80000001;
const std::string kKey = "Software\\Aerolume\\Skyloft\\Settings";

class RealStore : public ::testing::Test {
 protected:
  RealStore() {
    SetUpDrive(folder.path(), folder.path());
    SetUpStore(folder.path());
  }
  QByteArray Text() const {
    QFile file(folder.path() + "/registry.ini");
    file.open(QIODevice::ReadOnly);
    return file.readAll();
  }
  static void Write(const std::string& name, const RegistryValue& value) {
    StoreKey key = 0;
    ASSERT_EQ(CreateStoreKey(kUser, kKey, key), 0);
    ASSERT_EQ(SetStoreValue(key, name, value), 0);
    ASSERT_EQ(CloseStoreKey(key), 0);
    SyncStore();
  }
  static RegistryValue Read(const std::string& name, RegistryValue value) {
    StoreKey key = 0;
    EXPECT_EQ(OpenStoreKey(kUser, kKey, key), 0);
    EXPECT_EQ(QueryStoreValue(key, name, value), 0) << name;
    CloseStoreKey(key);
    return value;
  }
  QTemporaryDir folder;
};

TEST_F(RealStore, AValueStandsInTheSectionOfItsRoot) {
  Write("Top", std::string("300"));
  EXPECT_EQ(Text(), "[HKCU]\nSoftware\\Aerolume\\Skyloft\\Settings\\Top=300\n");
}

TEST_F(RealStore, OnlyItsOwnerCanReadIt) {
  for (const char* value : {"secret", "another"}) {
    Write("Top", std::string(value));
    const auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
    EXPECT_FALSE(QFile::permissions(folder.path() + "/registry.ini") & others);
  }
}

TEST_F(RealStore, ValuesOfAllKindsSurviveAReload) {
  const std::string hard = "a, b; \"c\" = %d\\e \xE9\x80 ";
  Write("Text", hard);
  Write("Empty", std::string());
  Write("Flag", true);
  Write("Number", std::int32_t{-12});
  SetUpStore(folder.path());
  EXPECT_EQ(std::get<std::string>(Read("Text", std::string())), hard);
  EXPECT_EQ(std::get<std::string>(Read("Empty", std::string("x"))), "");
  EXPECT_TRUE(std::get<bool>(Read("Flag", false)));
  EXPECT_EQ(std::get<std::int32_t>(Read("Number", std::int32_t{0})), -12);
}

TEST_F(RealStore, ATextOfAnyCharactersSurvivesAReload) {
  std::string all;
  const std::string missing = "\x81\x8D\x8F\x90\x9D";  // of windows-1252
  for (int c = 1; c < 256; ++c) {
    if (missing.find(static_cast<char>(c)) == missing.npos) all += static_cast<char>(c);
  }
  const std::string texts[] = {all,
                               std::string("a\0b", 3),
                               "@Invalid()",
                               "@",
                               "a,b",
                               " , ",
                               "\"",
                               "'",
                               "%41",
                               "\\x41",
                               "\x01"
                               "1",
                               "[x]",
                               ";",
                               "true",
                               std::string(20000, '&')};
  for (size_t i = 0; i < std::size(texts); ++i) Write("Title" + std::to_string(i), texts[i]);
  SetUpStore(folder.path());
  for (size_t i = 0; i < std::size(texts); ++i) {
    EXPECT_EQ(std::get<std::string>(Read("Title" + std::to_string(i), std::string())), texts[i]) << i;
  }
}

TEST_F(RealStore, AValueThatReadsBackAsAListIsJoined) {
  QFile file(folder.path() + "/registry.ini");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[HKCU]\nSoftware\\Aerolume\\Skyloft\\Settings\\Title=Lawrence, KS\n");
  file.close();
  SetUpStore(folder.path());
  EXPECT_EQ(std::get<std::string>(Read("Title", std::string())), "Lawrence, KS");
}

TEST_F(RealStore, AMissingKeyOrValueIsStatusTwo) {
  StoreKey key = 0;
  EXPECT_EQ(OpenStoreKey(kUser, kKey, key), kStoreMissing);
  Write("Top", std::string("1"));
  EXPECT_EQ(OpenStoreKey(kUser, kKey, key), 0);
  RegistryValue value = std::string("kept");
  EXPECT_EQ(QueryStoreValue(key, "Left", value), kStoreMissing);
  EXPECT_EQ(std::get<std::string>(value), "kept");
}

TEST_F(RealStore, AStoreOfNonsenseIsAnEmptyOne) {
  QFile file(folder.path() + "/registry.ini");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray("\x00\xff[[[\n=\n\n%zz", 12));
  file.close();
  SetUpStore(folder.path());
  StoreKey key = 0;
  EXPECT_EQ(OpenStoreKey(kUser, kKey, key), kStoreMissing);
}

TEST_F(RealStore, AProfileFileHasSectionsAndEntries) {
  WriteProfileText("C:\\some.ini", "section", "entry", "text");
  EXPECT_EQ(ReadProfileText("C:\\some.ini", "section", "entry", "default"), "text");
  EXPECT_EQ(ReadProfileText("C:\\some.ini", "section", "none", "default"), "default");
  QFile file(folder.path() + "/some.ini");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "[section]\nentry=text\n");
}

}  // namespace
}  // namespace skyloft
