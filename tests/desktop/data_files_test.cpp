// The data files on the real disk.
#include "platform/qt/data_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/desktop.h"

namespace mevracard {
namespace {

// A directory of one's own is made with the defaults; one that exists is taken as it is, or a file
// that is missing for a reason would come back unasked.
TEST(DataFiles, BeginWithTheDefaultsOnceOnly) {
  const QTemporaryDir home;
  const QString place = home.filePath("a/b");
  const std::vector<DefaultFile> defaults{{"wdx.sys", "1/1/99\r\n"}};
  EXPECT_EQ(DataFiles(place, defaults).read("wdx.sys"), "1/1/99\r\n");
  QFile::remove(place + "/wdx.sys");
  EXPECT_THROW((void)DataFiles(place, defaults).read("wdx.sys"), PlatformError);
}

// A write must be whole, keep the permissions, leave nothing beside the file, and lose no record
// that another program completed in between.
TEST(DataFiles, AreReplacedWholeOrNotAtAll) {
  const QTemporaryDir home;
  const DataFiles files(home.path(), {});
  files.write("record", "one");
  const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
  QFile::setPermissions(home.filePath("record"), permissions);
  EXPECT_TRUE(files.exchange("record", "one", std::string(1'000'000, 'x')));
  EXPECT_FALSE(files.exchange("record", "one", "two"));
  EXPECT_EQ(files.read("record").size(), 1'000'000U);
  EXPECT_TRUE((QFile::permissions(home.filePath("record")) & QFile::ReadGroup) != 0);
  EXPECT_TRUE((QFile::permissions(home.filePath("record")) & QFile::ReadOther) == 0);
  EXPECT_EQ(QDir(home.path()).entryList(QDir::Files).size(), 1);
}

// A directory in a file's place: refused with a reason, and still there.
TEST(DataFiles, RefuseADirectoryInAFilesPlace) {
  const QTemporaryDir home;
  QDir(home.path()).mkdir("record");
  const DataFiles files(home.path(), {});
  EXPECT_THROW((void)files.read("record"), PlatformError);
  EXPECT_THROW(files.write("record", "one"), PlatformError);
  EXPECT_TRUE(QDir(home.filePath("record")).exists());
}

}  // namespace
}  // namespace mevracard
