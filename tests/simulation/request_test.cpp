// What mevracard-simulate reads.
#include "simulate/request.h"

#include <sstream>

#include <gtest/gtest.h>

namespace mevracard::simulate {
namespace {

std::string complaintAbout(const std::string& text) {
  std::istringstream in(text);
  try {
    (void)readRequest(in);
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "";
}

TEST(Request, TakesWordsInAnyOrderAndTheLastOfTwo) {
  std::istringstream in(
      "\n  # a comment\nplayer greedy\r\nseed 18446744073709551615\ngames 5\nlevel 1\nlevel 2");
  const Request request = readRequest(in);
  EXPECT_EQ(request.games, 5);
  EXPECT_EQ(request.level, 2);
  EXPECT_EQ(request.seed, UINT64_MAX);
  EXPECT_EQ(request.player, Style::Greedy);
}

// A faulty line must not play something else than was asked for.
TEST(Request, NamesTheFaultyLine) {
  for (const std::string line :
       {"games", "games 0", "games -1", "games 1x", "games 1 2", "games 100000001", "level 3",
        "level one", "seed 18446744073709551616", "seed 1.5", "player", "player best", "game 1"}) {
    EXPECT_EQ(complaintAbout("# first\n" + line + "\n").substr(0, 8), "line 2: ") << line;
  }
}

}  // namespace
}  // namespace mevracard::simulate
