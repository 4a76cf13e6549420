// The data files on the real disk: while nothing fails, while the disk fails, and while the program
// is killed.
#include <csignal>
#include <cstdlib>
#include <random>
#include <set>
#include <stdexcept>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "files/disk_desktop.h"
#include "testing/failing_calls.h"

namespace mevracard {
namespace {

namespace fs = std::filesystem;

const std::string defaultSettings = defaultSettingsText();

/// A directory of the test's own, and the game's below it.
class Home {
 public:
  Home() {
    if (::mkdtemp(root_.data()) == nullptr) throw std::runtime_error("no directory for the test");
  }
  ~Home() { fs::remove_all(root_); }
  Home(const Home&) = delete;
  Home& operator=(const Home&) = delete;

  [[nodiscard]] fs::path root() const { return root_; }
  [[nodiscard]] fs::path game() const { return root() / "mevracard"; }
  [[nodiscard]] fs::path settings() const { return game() / settingsFile; }
  [[nodiscard]] fs::path statistics() const { return game() / statisticsFile; }

  void fill(const std::string& settingsText, const std::string& statisticsText) const {
    fs::create_directory(game());
    std::ofstream(settings(), std::ios::binary) << settingsText;
    std::ofstream(statistics(), std::ios::binary) << statisticsText;
  }

 private:
  std::string root_ = (fs::temp_directory_path() / "mevracard-test.XXXXXX").string();
};

// A write must be whole, keep the permissions and lose no result that another program completed in
// between. A file that is missing for a reason does not come back unasked, and what is no plain
// file is refused and stays.
TEST(DataFiles, AreReplacedWholeOrNotAtAll) {
  const Home home;
  fs::create_directory(home.game());
  const DataFiles files(home.game(), {{"missing", "default"}});
  files.write("record", "one");
  constexpr auto permissions =
      fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  fs::permissions(home.game() / "record", permissions);
  EXPECT_TRUE(files.exchange("record", "one", std::string(1'000'000, 'x')));
  EXPECT_FALSE(files.exchange("record", "one", "two"));
  EXPECT_EQ(files.read("record").size(), 1'000'000U);
  EXPECT_EQ(fs::status(home.game() / "record").permissions(), permissions);
  EXPECT_THROW((void)files.read("missing"), PlatformError);
  fs::create_directory(home.game() / "folder");
  ASSERT_EQ(::mkfifo((home.game() / "pipe").c_str(), 0600), 0);
  for (const char* name : {"folder", "pipe"}) {
    EXPECT_THROW((void)files.read(name), PlatformError);
    EXPECT_THROW(files.write(name, "one"), PlatformError);
  }
  EXPECT_EQ(entriesIn(home.game()), 3);
  // A folder that somebody removes while the game runs is made anew, with all that leads to it.
  const DataFiles gone(home.root() / "not" / "there", {});
  gone.write("record", "one");
  EXPECT_EQ(gone.read("record"), "one");
}

struct Hindrance {
  const char* call;
  int error;
  bool passes;
};

// What goes by is waited for, once; what does not is told, and not tried for ever.
TEST(DataFiles, WaitForWhatPasses) {
  const Home home;
  fs::create_directory(home.game());
  const DataFiles files(home.game(), {});
  files.write("record", "one");
  for (const Hindrance& h : {Hindrance{"flock", EWOULDBLOCK, true},
                             {"flock", EINTR, true},
                             {"flock", ENOLCK, false},
                             {"read", EINTR, true},
                             {"read", EIO, false},
                             {"write", EINTR, true}}) {
    SCOPED_TRACE(std::string(h.call) + " " + std::to_string(h.error));
    const FailingCalls failing(h.call, 1, false, h.error);
    bool done = false;
    try {
      done = files.exchange("record", "one", "one");
    } catch (const PlatformError&) {
      done = false;
    }
    EXPECT_EQ(done, h.passes);
    EXPECT_TRUE(failing.happened());
  }
}

struct Situation {
  const char* name;
  std::string settings, statistics;        ///< before; both empty: a first start
  std::string newSettings, newStatistics;  ///< as they are written
  void (*act)(Program&);                   ///< null: what is looked at is the start itself
  bool told;                               ///< whether the rule has a message for a failure
  int syncs;                               ///< what has to lie on the disk, each file and its name
};

const std::string someGames = withResult(emptyStatisticsText(), GameResult::Won);

const Situation situations[] = {
    {"level change", "2/1/80\r\n", someGames, "1/1/80\r\n", someGames,
     [](Program& p) {
       p.handle({EventKind::Menu, &p.window().form, nullptr, &p.window().menu.playerLevel1, 0});
     },
     true, 2},
    {"result", "2/1/80\r\n", someGames, "2/1/80\r\n", withResult(someGames, GameResult::Lost),
     [](Program& p) {
       p.handle({EventKind::SystemEnd, &p.window().form, nullptr, nullptr, 0});
     },
     false, 2},
    {"files anew", "torn", someGames, defaultSettings, emptyStatisticsText(), nullptr, true, 4},
    {"first start", "", "", defaultSettings, emptyStatisticsText(), nullptr, true, 3},
};

/// Whether a call failed at all: the last round of each kind goes through undisturbed.
bool playWithFailure(const Situation& situation, const char* call, int first, bool onwards) {
  const Home home;
  const bool firstStart = situation.settings.empty();
  if (!firstStart) home.fill(situation.settings, situation.statistics);
  int errors = 0;
  bool happened = false;
  const auto sink = [&errors](std::string_view line) { errors += line.starts_with("> error"); };
  if (situation.act != nullptr) {
    DiskDesktop desktop(home.game(), sink);
    Program program(desktop);
    program.start();
    const FailingCalls failing(call, first, onwards);
    situation.act(program);
    happened = failing.happened();
  } else {
    const FailingCalls failing(call, first, onwards);
    DiskDesktop desktop(home.game(), sink);
    Program program(desktop);
    program.start();
    happened = failing.happened();
  }
  const std::string settings = bytesOf(home.settings());
  const std::string statistics = bytesOf(home.statistics());
  EXPECT_TRUE(settings == situation.settings || settings == situation.newSettings) << settings;
  EXPECT_TRUE(statistics == situation.statistics || statistics == situation.newStatistics)
      << statistics;
  const bool written = settings == situation.newSettings && statistics == situation.newStatistics;
  EXPECT_TRUE(happened || written);
  EXPECT_LE(errors, 1);
  EXPECT_TRUE(situation.told || errors == 0);
  EXPECT_TRUE(written || !situation.told || errors == 1);
  if (firstStart && written) {
    EXPECT_EQ(fs::status(home.game()).permissions(), fs::perms::owner_all);
  }
  const int files =
      fs::exists(home.game()) ? (settings.empty() ? 0 : 1) + (statistics.empty() ? 0 : 1) : 0;
  EXPECT_EQ(entriesIn(home.game()), files);
  EXPECT_EQ(entriesIn(home.root()), fs::exists(home.game()) ? 1 : 0);
  return happened;
}

// The disk must not keep the player from a first look: until the opening's box has been closed
// nothing is written, and all of it then, before anything of the game is.
TEST(DataFiles, AreMadeAfterTheOpening) {
  const Home home;
  int before = 0;
  DiskDesktop desktop(home.game(), [&](std::string_view line) {
    before += line.starts_with("> message") ? 1 + entriesIn(home.root()) : 0;
  });
  Program program(desktop);
  program.start();
  EXPECT_EQ(before, 1);
  EXPECT_EQ(entriesIn(home.game()), 2);
  EXPECT_EQ(desktop.readFile(settingsFile), defaultSettings);
}

// Each call fails in turn, alone and from then on: either file is old or new and whole, nothing
// lies beside them, and where a failure is to be told it is told in one box.
TEST(DataFiles, StayWholeWhateverFails) {
  std::set<std::string> failed;
  for (const Situation& situation : situations) {
    for (const char* call : {"open", "write", "fsync", "close", "rename", "mkdir"}) {
      for (const bool onwards : {false, true}) {
        for (int first = 1;; ++first) {
          SCOPED_TRACE(std::string(situation.name) + ": " + call + " " + std::to_string(first) +
                       (onwards ? " and on" : ""));
          ASSERT_LT(first, 100);
          if (playWithFailure(situation, call, first, onwards)) {
            failed.insert(call);
            continue;
          }
          if (!onwards && call == std::string_view("fsync")) {
            EXPECT_EQ(first - 1, situation.syncs);
          }
          break;
        }
      }
    }
  }
  EXPECT_EQ(failed.size(), 6U);
}

/// Starts the game, then changes levels and counts results until it is killed.
[[noreturn]] void playUntilKilled(const fs::path& directory) {
  DiskDesktop desktop(directory);
  Program program(desktop);
  MainWindow& w = program.window();
  program.start();
  for (int i = 0;; ++i) {
    program.handle({EventKind::Menu, &w.form, nullptr,
                    i % 2 == 0 ? &w.menu.playerLevel2 : &w.menu.playerLevel1, 0});
    program.handle({EventKind::Menu, &w.form, nullptr, &w.menu.newGame, 0});
  }
}

// Killed at any moment, the first start included: the files are whole, no result that was there is
// gone, and the next start leaves nothing of what the last one began.
TEST(DataFiles, OutliveAHundredKills) {
  const unsigned seed = std::random_device{}();
  SCOPED_TRACE("seed " + std::to_string(seed));
  std::mt19937 random(seed);
  Home home;
  int lost = 0;
  int kills = 0;
  for (int round = 0; round < 100; ++round) {
    if (round % 4 == 0) {
      fs::remove_all(home.game());
      lost = 0;
    }
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) playUntilKilled(home.game());
    ::usleep(static_cast<useconds_t>(random() % 20'000));
    ::kill(child, SIGKILL);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    kills += WIFSIGNALED(status) ? 1 : 0;
    if (fs::exists(home.game())) {
      const std::string text = bytesOf(home.settings());
      ASSERT_TRUE(text == "1/1/99\r\n" || text == "2/1/99\r\n") << text;
      ASSERT_EQ(bytesOf(home.statistics()).size(), emptyStatisticsText().size());
      ASSERT_GE(statisticsOf(bytesOf(home.statistics())).lost, lost);
    }
    DiskDesktop next(home.game());
    next.completeFiles();
    ASSERT_EQ(entriesIn(home.game()), 2);
    ASSERT_EQ(entriesIn(home.root()), 1);
    lost = statisticsOf(bytesOf(home.statistics())).lost;
  }
  EXPECT_EQ(kills, 100);
}

}  // namespace
}  // namespace mevracard
