// The data files on the real disk, where nothing fails.
#include "platform/qt/data_files.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/desktop.h"

namespace mevracard {
namespace {

// A write must be whole, keep the permissions and lose no record that another program completed in
// between. A file that is missing for a reason does not come back unasked, and a directory in a
// file's place is refused and stays.
TEST(DataFiles, AreReplacedWholeOrNotAtAll) {
  const QTemporaryDir home;
  const DataFiles files(home.path(), {{"missing", "default"}});
  files.write("record", "one");
  QFile::setPermissions(home.filePath("record"),
                        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
  EXPECT_TRUE(files.exchange("record", "one", std::string(1'000'000, 'x')));
  EXPECT_FALSE(files.exchange("record", "one", "two"));
  EXPECT_EQ(files.read("record").size(), 1'000'000U);
  const auto permissions = QFile::permissions(home.filePath("record"));
  EXPECT_TRUE(permissions.testFlag(QFile::ReadGroup) && !permissions.testFlag(QFile::ReadOther));
  EXPECT_THROW((void)files.read("missing"), PlatformError);
  QDir(home.path()).mkdir("folder");
  EXPECT_THROW((void)files.read("folder"), PlatformError);
  EXPECT_THROW(files.write("folder", "one"), PlatformError);
  EXPECT_EQ(QDir(home.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 2);
}

}  // namespace
}  // namespace mevracard
