#include "platform/files/data_files.h"

#include <cstdio>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "platform/desktop.h"
#include "platform/files/directory_lock.h"
#include "platform/files/whole_file.h"

namespace mevracard {

namespace {

namespace fs = std::filesystem;

constexpr const char* notWritten = " cannot be written: ";

bool isThere(const fs::path& path) {
  std::error_code unknown;
  return fs::exists(path, unknown);
}

PlatformError fileError(std::string_view name, const char* what, const std::string& reason) {
  return PlatformError(std::string(name) + what + reason);
}

/// Takes away no file but the program's own.
void removeMade(const fs::path& directory, const std::vector<DefaultFile>& files) {
  for (const DefaultFile& file : files) ::unlink((directory / file.name).c_str());
  ::rmdir(directory.c_str());
}

}  // namespace

DataFiles::DataFiles(const fs::path& directory, std::vector<DefaultFile> defaults)
    : directory_(fs::absolute(directory / ".").lexically_normal().parent_path()),
      defaults_(std::move(defaults)),
      promised_(!isThere(directory_)) {
  if (promised_) return;
  try {
    const DirectoryLock lock(directory_);
    for (const DefaultFile& file : defaults_) ::unlink(beside(directory_ / file.name).c_str());
  } catch (const PlatformError&) {  // NOLINT(bugprone-empty-catch)
  }
}

/// Fills a new directory beside and gives it its name when it is complete, so that no other program
/// ever finds it half filled. Of several that start at once one makes it and the others wait.
void DataFiles::makeDirectory() const {
  if (isThere(directory_)) return;
  std::error_code failure;
  fs::create_directories(directory_.parent_path(), failure);
  if (failure) throw PlatformError(failure.message());
  const DirectoryLock lock(directory_.parent_path());
  if (isThere(directory_)) return;
  const fs::path made = beside(directory_);
  removeMade(made, defaults_);
  try {
    demand(::mkdir(made.c_str(), 0700) == 0);
    for (const DefaultFile& file : defaults_) makeFile(made / file.name, file.text);
    DirectoryLock(made).sync();
    demand(std::rename(made.c_str(), directory_.c_str()) == 0);
  } catch (const PlatformError&) {
    removeMade(made, defaults_);
    throw;
  }
}

void DataFiles::complete() {
  promised_ = false;
  try {
    makeDirectory();
  } catch (const PlatformError& error) {
    std::string failures;
    for (const DefaultFile& file : defaults_) {
      if (!failures.empty()) failures += '\n';
      failures += fileError(file.name, notWritten, error.what()).what();
    }
    throw PlatformError(failures);
  }
}

std::string DataFiles::read(std::string_view name) const {
  try {
    if (promised_ && !isThere(directory_)) {
      for (const DefaultFile& file : defaults_) {
        if (file.name == name) return file.text;
      }
    }
    return readFile(directory_ / name);
  } catch (const PlatformError& error) {
    throw fileError(name, " cannot be read: ", error.what());
  }
}

void DataFiles::write(std::string_view name, std::string_view text) const {
  try {
    makeDirectory();
    const DirectoryLock lock(directory_);
    replaceFile(directory_ / name, text);
    lock.sync();
  } catch (const PlatformError& error) {
    throw fileError(name, notWritten, error.what());
  }
}

bool DataFiles::exchange(std::string_view name, std::string_view expected,
                         std::string_view text) const {
  try {
    if (promised_) makeDirectory();
    const DirectoryLock lock(directory_);
    if (readFile(directory_ / name) != expected) return false;
    replaceFile(directory_ / name, text);
    lock.sync();
    return true;
  } catch (const PlatformError& error) {
    throw fileError(name, notWritten, error.what());
  }
}

}  // namespace mevracard
