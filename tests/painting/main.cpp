#include <QApplication>
#include <cstdlib>

#include <gtest/gtest.h>

#include "painting/offscreen.h"

// The width and height of the screen in pixels, or none for a usual one.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  bool isGiven = false;
  const double ratio = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isGiven);
  const QSize usual = QSize(1366, 768) * (isGiven ? ratio : 1);
  mevracard::useOffscreen(argc < 3 ? usual : QSize(std::atoi(argv[1]), std::atoi(argv[2])));
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
