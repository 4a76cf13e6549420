// Takes pictures of what a player meets, for take_pictures.sh: NAME.png in the working folder. A
// game with the same hands every time, played through the program's own events.
#include <QApplication>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include "app/program.h"
#include "game/rules.h"
#include "platform/qt/look.h"
#include "platform/qt/qt_desktop.h"
#include "store/statistics.h"

namespace mevracard {
namespace {

void rest(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

void shoot(const char* name) {
  rest(350);
  QGuiApplication::primaryScreen()->grabWindow(0).save(QString("%1.png").arg(name));
}

/// The real desktop with one known seed; takes a picture of the first message box.
class PosingDesktop final : public QtDesktop {
 public:
  explicit PosingDesktop(const QString& dataDir)
      : QtDesktop(dataDir.toStdString(),
                  {{"wdx.sys", "1/1/99\r\n"}, {"sys32rtn.dat", emptyStatisticsText()}}) {
    QtDesktop::seedRandom(3);
  }
  void seedRandom(double /*seed*/) override {}
  void messageBox(std::string_view text) override {
    if (std::exchange(boxSeen_, true)) return;
    QTimer::singleShot(400, [] {
      shoot("opening");
      QApplication::activeModalWidget()->close();
    });
    QtDesktop::messageBox(text);
  }

 private:
  bool boxSeen_ = false;
};

class Session {
 public:
  Session() { program_.start(); }

  void pose() {
    answer();
    shoot("turn");
    send({EventKind::KeyPress, &w_.form, &w_.discard, nullptr, 'p'});
    shoot("selected");
    poseChoice();
    posePanel();
    layUntil([this] {
      return game_.chain.laidAt[End::RightTop] + game_.chain.laidAt[End::LeftBottom] >= 13;
    });
    shoot("middle");
    layUntil([this] { return game_.ending.over; });
    shoot("end");
    choose(w_.menu.statistics);
    shoot("statistics");
    press(w_.statistics.ok);
    poseTutorial();
    choose(w_.menu.playerLevel2);
    answer();
    shoot("covered");
    posePass();
  }

 private:
  void send(const Event& event) { program_.handle(event); }
  void choose(MenuEntry& entry) { send({EventKind::Menu, &w_.form, nullptr, &entry, 0}); }
  void press(Control& control) {
    Form& form = w_.form.holds(control)         ? w_.form
                 : w_.about.form.holds(control) ? w_.about.form
                                                : w_.statistics.form;
    send({EventKind::Click, &form, &control, nullptr, 0});
  }
  void tick() { send({EventKind::Tick, &w_.form, nullptr, nullptr, 0}); }

  /// Lets the computer answer, and closes the window of a pass.
  void answer() {
    while (w_.timer.enabled || w_.about.ok.visible) {
      if (w_.about.ok.visible) {
        press(w_.about.ok);
      } else {
        tick();
      }
    }
  }

  template <typename Condition>
  void layUntil(Condition done) {
    for (int slot = 0; slot < handSize && !done(); ++slot) {
      if (!game_.card(slot).held || !fits(game_, slot)) continue;
      send({EventKind::DoubleClick, &w_.form, &w_.card(slot).frame, nullptr, 0});
      if (s_.choiceOpen) press(w_.choice.leftBottom);
      answer();
      slot = -1;
    }
  }

  /// Both open numbers are those of a card in the hand.
  void poseChoice() {
    const auto open = game_.chain.openNumber;
    for (const int slot : handOf(Side::Player)) {
      const Card& card = game_.card(slot);
      if (!card.held || card.isDouble()) continue;
      game_.chain.openNumber = {{card.upper, card.lower}};
      send({EventKind::DoubleClick, &w_.form, &w_.card(slot).frame, nullptr, 0});
      break;
    }
    shoot("choice");
    choose(w_.menu.tips);
    shoot("tips");
    choose(w_.menu.about);
    shoot("about");
    send({EventKind::Close, &w_.about.form, nullptr, nullptr, 0});
    press(w_.choice.cancel);
    game_.chain.openNumber = open;
  }

  void posePanel() {
    choose(w_.menu.tableSize);
    shoot("panel");
    send({EventKind::Scroll, &w_.form, &w_.sizePanel.bar, nullptr, 70});
    shoot("smallest");
    send({EventKind::Scroll, &w_.form, &w_.sizePanel.bar, nullptr, 99});
    press(w_.sizePanel.ok);
  }

  void poseTutorial() {
    choose(w_.menu.howToPlay);
    for (int move = 0; move < 9; ++move) {
      if (w_.about.ok.visible) press(w_.about.ok);
      press(w_.tutorial.next);
      while (s_.demo.busy && move < 8) tick();
    }
    while (s_.demo.busy && s_.demo.tick < 12) tick();
    shoot("tutorial");
    press(w_.tutorial.stop);
  }

  /// The computer holds every 0, so that the player cannot answer the opening.
  void posePass() {
    Deck deck;
    std::size_t players = 0;
    std::size_t computers = handSize;
    for (int x = 0; x <= 6; ++x) {
      for (int y = x; y <= 6; ++y) {
        const bool toComputer = x == 0 || players == handSize;
        deck[toComputer ? computers++ : players++] = {x, y};
      }
    }
    w_.stackedDeck = deck;
    choose(w_.menu.newGame);
    shoot("pass");
  }

  QTemporaryDir home_;
  PosingDesktop desktop_{home_.filePath("data")};
  Program program_{desktop_};
  MainWindow& w_ = program_.window();
  Game& game_ = w_.game;
  TableState& s_ = w_.state;
};

}  // namespace
}  // namespace mevracard

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  mevracard::Session().pose();
  return 0;
}
