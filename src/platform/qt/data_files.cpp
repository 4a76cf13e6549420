#include "platform/qt/data_files.h"

#include <QDir>
#include <QFileInfo>
#include <cstdio>
#include <filesystem>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/desktop.h"
#include "platform/qt/directory_lock.h"
#include "platform/qt/whole_file.h"

namespace mevracard {

namespace {

QString toName(std::string_view name) {
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

std::string toPath(const QString& path) { return QFile::encodeName(path).toStdString(); }

/// Something that is no plain file would be waited for, or silently replaced.
void demandPlainFile(const QString& path) {
  const QFileInfo info(path);
  if (info.isDir()) throw PlatformError("Is a directory");
  if (info.exists() && !info.isFile()) throw PlatformError("Is not a file");
}

std::string bytesOf(const QString& path) {
  demandPlainFile(path);
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) throw PlatformError(file.errorString().toStdString());
  const QByteArray bytes = file.readAll();
  if (file.error() != QFile::NoError) throw PlatformError(file.errorString().toStdString());
  return bytes.toStdString();
}

PlatformError fileError(std::string_view name, const char* what, const std::string& reason) {
  return PlatformError(std::string(name) + what + reason);
}

/// Takes away no file but the program's own.
void removeMade(const std::string& directory, const std::vector<DefaultFile>& files) {
  for (const DefaultFile& file : files) ::unlink((directory + "/" + file.name).c_str());
  ::rmdir(directory.c_str());
}

}  // namespace

DataFiles::DataFiles(const QString& directory, std::vector<DefaultFile> defaults)
    : directory_(QDir::cleanPath(QDir(directory).absolutePath())), defaults_(std::move(defaults)) {
  try {
    makeDirectory();
    const DirectoryLock lock(directory_);
    for (const DefaultFile& file : defaults_) {
      ::unlink(beside(toPath(pathOf(file.name))).c_str());
    }
  } catch (const PlatformError&) {  // NOLINT(bugprone-empty-catch)
  }
}

/// Fills a new directory beside and gives it its name when it is complete, so that no other program
/// ever finds it half filled. Of several that start at once one makes it and the others wait.
void DataFiles::makeDirectory() const {
  if (QFileInfo::exists(directory_)) return;
  const QString parent = QFileInfo(directory_).path();
  std::error_code failure;
  std::filesystem::create_directories(toPath(parent), failure);
  if (failure) throw PlatformError(failure.message());
  const DirectoryLock lock(parent);
  if (QFileInfo::exists(directory_)) return;
  const std::string made = beside(toPath(directory_));
  removeMade(made, defaults_);
  try {
    demand(::mkdir(made.c_str(), 0700) == 0);
    for (const DefaultFile& file : defaults_) makeFile(made + "/" + file.name, file.text);
    DirectoryLock(QFile::decodeName(made.c_str())).sync();
    demand(std::rename(made.c_str(), toPath(directory_).c_str()) == 0);
  } catch (const PlatformError&) {
    removeMade(made, defaults_);
    throw;
  }
}

QString DataFiles::pathOf(std::string_view name) const {
  return QDir(directory_).filePath(toName(name));
}

std::string DataFiles::read(std::string_view name) const {
  try {
    return bytesOf(pathOf(name));
  } catch (const PlatformError& error) {
    throw fileError(name, " cannot be read: ", error.what());
  }
}

void DataFiles::replace(std::string_view name, std::string_view text) const {
  const QString path = pathOf(name);
  demandPlainFile(path);
  const QFileInfo old(path);
  if (old.exists() && !old.isWritable()) throw PlatformError("Permission denied");
  replaceFile(toPath(path), text);
}

void DataFiles::write(std::string_view name, std::string_view text) const {
  try {
    makeDirectory();
    const DirectoryLock lock(directory_);
    replace(name, text);
    lock.sync();
  } catch (const PlatformError& error) {
    throw fileError(name, " cannot be written: ", error.what());
  }
}

bool DataFiles::exchange(std::string_view name, std::string_view expected,
                         std::string_view text) const {
  try {
    const DirectoryLock lock(directory_);
    if (bytesOf(pathOf(name)) != expected) return false;
    replace(name, text);
    lock.sync();
    return true;
  } catch (const PlatformError& error) {
    throw fileError(name, " cannot be written: ", error.what());
  }
}

}  // namespace mevracard
