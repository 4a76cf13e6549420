#include <QApplication>

#include <gtest/gtest.h>

#include "painting/offscreen.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  mevracard::useOffscreen({1366, 768});
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
