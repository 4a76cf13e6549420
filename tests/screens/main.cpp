#include <QApplication>
#include <cstdlib>

#include <gtest/gtest.h>

#include "painting/offscreen.h"

// The width and height of the screen, in pixels.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (argc < 3) return 1;
  mevracard::useOffscreen({std::atoi(argv[1]), std::atoi(argv[2])});
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
