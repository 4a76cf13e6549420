#include <QApplication>

#include <gtest/gtest.h>

#include "painting/offscreen.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  bool isGiven = false;
  const double ratio = qEnvironmentVariable("QT_SCALE_FACTOR").toDouble(&isGiven);
  mevracard::useOffscreen(QSize(1366, 768) * (isGiven ? ratio : 1));
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
