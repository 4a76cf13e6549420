#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/files/default_file.h"

namespace mevracard {

/// What the program needs of the machine before there is a desktop.
struct DesktopSetup {
  char** argv = nullptr;
  /// Directory of the data files; empty for the user's local application data.
  std::string dataDirectory;
  std::vector<DefaultFile> defaultFiles;
};

/// Runs a program on the real desktop: `program` gets the desktop and, once its windows stand,
/// calls the loop that it gets with it, which returns when the program has ended. Gives the exit
/// status; 1 with one line on standard error if there is no display or an error escapes.
int runOnDesktop(const DesktopSetup& setup,
                 const std::function<void(Desktop&, const std::function<void()>& loop)>& program);

}  // namespace mevracard
