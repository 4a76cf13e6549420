#include "app/program.h"
#include "platform/qt/run.h"
#include "store/settings.h"
#include "store/statistics.h"

int main(int /*argc*/, char** argv) {
  using namespace mevracard;
  const DesktopSetup setup{argv,
                           MEVRACARD_DATA_DIR,
                           {{std::string(settingsFile), defaultSettingsText()},
                            {std::string(statisticsFile), emptyStatisticsText()}}};
  return runOnDesktop(setup, [](Desktop& desktop, const std::function<void()>& loop) {
    Program program(desktop);
    program.start();
    loop();
  });
}
