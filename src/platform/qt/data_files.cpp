#include "platform/qt/data_files.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

#include "platform/desktop.h"
#include "platform/qt/directory_lock.h"

namespace mevracard {

namespace {

QString toName(std::string_view name) {
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

bool writeBytes(QFileDevice& file, std::string_view text) {
  const auto size = static_cast<qint64>(text.size());
  return file.write(text.data(), size) == size;
}

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

/// Makes a new directory beside and gives it its name when it is complete, so that no other program
/// ever finds it half filled.
void makeDirectory(const QString& directory, const std::vector<DefaultFile>& defaults) {
  const QFileInfo info(directory);
  QDir().mkpath(info.path());
  QTemporaryDir made(directory);
  if (!made.isValid()) return;
  for (const DefaultFile& content : defaults) {
    QFile file(made.filePath(QString::fromStdString(content.name)));
    if (!file.open(QIODevice::WriteOnly) || !writeBytes(file, content.text)) return;
  }
  if (QDir().rename(made.path(), directory)) made.setAutoRemove(false);
}

}  // namespace

DataFiles::DataFiles(const QString& directory, const std::vector<DefaultFile>& defaults)
    : directory_(QDir::cleanPath(directory)) {
  // Should this fail, the first read or write says so.
  if (!QFileInfo::exists(directory_)) makeDirectory(directory_, defaults);
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
  QSaveFile file(path);
  const bool written = file.open(QIODevice::WriteOnly) && writeBytes(file, text) && file.commit();
  if (!written) throw PlatformError(file.errorString().toStdString());
}

void DataFiles::write(std::string_view name, std::string_view text) const {
  try {
    const DirectoryLock lock(directory_);
    replace(name, text);
    lock.flush();
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
    lock.flush();
    return true;
  } catch (const PlatformError& error) {
    throw fileError(name, " cannot be written: ", error.what());
  }
}

}  // namespace mevracard
