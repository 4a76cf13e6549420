// The texts of the two data files: what is read from odd ones, and the statistics' arithmetic.
#include <gtest/gtest.h>

#include "app/program.h"
#include "platform/headless/headless_desktop.h"
#include "play/statistics.h"
#include "store/digit_code.h"
#include "store/settings.h"
#include "store/statistics.h"

namespace mevracard {
namespace {

std::string statistics(std::string_view digits, std::string_view rest = "") {
  return encodeDigits(digits) + std::string(rest) + "\r\n";
}

struct SettingsRow {
  std::string_view text;
  int player, computer, screen;  // screen 0: refused
};

// Reading is by position: each row breaks one assumption about what a settings file looks like.
// QUIRK-25 (anything but "1" is level 2), QUIRK-26 (two digits of the size are read).
TEST(Settings, AreReadByPosition) {
  using std::string_view_literals::operator""sv;
  for (const SettingsRow& row : {SettingsRow{"1/1/99\r\n", 1, 1, 99},
                                 {"2/1/85\r\n", 2, 1, 85},
                                 {"1/2/70", 1, 2, 70},
                                 {"0/1/85\r\n", 2, 1, 85},
                                 {"9/9/72", 2, 2, 72},
                                 {"1x1x99999", 1, 1, 99},
                                 {"85", 2, 2, 85},
                                 {"1/1/855\r\n", 1, 1, 85},
                                 {"1//100\r\n", 0, 0, 0},
                                 {"1/1/100\r\n", 0, 0, 0},
                                 {"1/1/69\r\n", 0, 0, 0},
                                 {"1/1/9\r\n", 0, 0, 0},
                                 {"9/9/42", 0, 0, 0},
                                 {"", 0, 0, 0},
                                 {"1", 0, 0, 0},
                                 {"abcdefgh", 0, 0, 0},
                                 {"\0\0\0\0\0\0\0"sv, 0, 0, 0},
                                 {"1/1/-9", 0, 0, 0}}) {
    SCOPED_TRACE(row.text);
    const auto settings = parseSettings(row.text);
    ASSERT_EQ(settings.has_value(), row.screen != 0);
    if (!settings) continue;
    EXPECT_EQ(settings->playerLevel, row.player);
    EXPECT_EQ(settings->computerLevel, row.computer);
    EXPECT_EQ(settings->tableSize, row.screen);
  }
  EXPECT_EQ(settingsText({2, std::nullopt}, 100), "2//100\r\n");
}

// Statistics of years are kept in this code, 000000 to 999999; another would read them wrongly.
TEST(DigitCode, StaysTheOneOfTheFiles) {
  constexpr std::array<std::string_view, 10> codes{
      "547153507498", "913036954439", "101523677278", "693915462419", "597037485781",
      "798199942583", "175991891121", "578722615385", "681046516429", "477296883875"};
  for (std::size_t digit = 0; digit < codes.size(); ++digit) {
    const std::string plain(6, static_cast<char>('0' + digit));
    EXPECT_EQ(encodeDigits(plain), codes[digit]);
    EXPECT_EQ(decodeDigits(codes[digit]), plain);
  }
  EXPECT_EQ(decodeDigits("no code here"), "");
  EXPECT_EQ(decodeDigits(encodeDigits("123456") + "99999999"), "123456");
}

TEST(Statistics, CountAndKeepWhatFollowsTheCounts) {
  EXPECT_EQ(withResult(statistics("000000"), GameResult::Won), statistics("001000"));
  EXPECT_EQ(withResult(statistics("009099", "tail"), GameResult::Lost),
            statistics("009100", "tail"));
  EXPECT_EQ(withoutResults(statistics("012345", "tail")), statistics("000000", "tail"));
  EXPECT_FALSE(countsAreFull(statistics("499499")));
  EXPECT_EQ(withResult(encodeDigits("000000") + "\n", GameResult::Won), statistics("001000"));
  const std::string much(8'000'000, 'z');
  EXPECT_EQ(withResult(statistics("000000", much), GameResult::Won), statistics("001000", much));
}

// QUIRK-28: at 999 games the counts begin again and the file holds the single digit 1, whoever
// won; the next reading takes that digit for both counts.
TEST(Statistics, StartAgainAt999) {
  const std::string full = statistics("500499", "tail");
  EXPECT_TRUE(countsAreFull(full));
  for (const GameResult result : {GameResult::Won, GameResult::Lost}) {
    EXPECT_EQ(withResult(full, result), encodeDigits("1") + "tail\r\n");
  }
  EXPECT_EQ(statisticsOf(statistics("1")).won, 1);
  EXPECT_EQ(statisticsOf(statistics("1")).lost, 1);
  EXPECT_EQ(statisticsOf(statistics("002000")).wonPercent, 100);
  EXPECT_EQ(statisticsOf(statistics("000002")).lostPercent, 100);
  EXPECT_EQ(withResult(statistics("1"), GameResult::Won), encodeDigits("0021") + "\r\n");
}

// another program's result that comes while the box of 999 games waits is the one that is added to,
// and full again it brings no second box.
TEST(Statistics, AddToWhatAnotherProgramWroteMeanwhile) {
  for (const auto& [meanwhile, after] :
       {std::pair{statistics("001002"), statistics("002002")},
        std::pair{statistics("501499"), encodeDigits("1") + "\r\n"}}) {
    int boxes = 0;
    HeadlessDesktop desktop([&, &other = meanwhile](std::string_view line) {
      if (!line.starts_with("> message")) return;
      ++boxes;
      desktop.world.files[std::string(statisticsFile)] = other;
    });
    desktop.world.files[std::string(statisticsFile)] = statistics("500499");
    MainWindow w(desktop);
    countResult(w, GameResult::Won);
    EXPECT_EQ(desktop.readFile(statisticsFile), after);
    EXPECT_EQ(boxes, 1);
  }
}

// A session's end counts a running game as lost, once and without a word; one that is over counts
// no more.
TEST(SystemEnd, IsALossOfARunningGame) {
  for (const int over : {0, 1}) {
    int messages = 0;
    HeadlessDesktop desktop(
        [&](std::string_view line) { messages += line.starts_with("> message"); });
    desktop.world.files[std::string(settingsFile)] = "2/1/80\r\n";
    desktop.world.files[std::string(statisticsFile)] = statistics("001002");
    Program program(desktop);
    program.start();
    program.window().game.ending.over = over;
    program.window().form.enabled = false;
    messages = 0;
    program.handle({EventKind::SystemEnd, &program.window().form, nullptr, nullptr, 0});
    EXPECT_EQ(statisticsOf(desktop.readFile(statisticsFile)).lost, 3 - over);
    EXPECT_EQ(messages, 0);
    EXPECT_FALSE(desktop.running());
  }
}

}  // namespace
}  // namespace mevracard
