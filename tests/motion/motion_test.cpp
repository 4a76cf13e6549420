// Cards on their way to the chain, at a clock of the test's own.
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QKeyEvent>
#include <thread>

#include <gtest/gtest.h>

#include "painting/table.h"
#include "platform/qt/reduced_motion.h"
#include "testing/clock.h"

namespace mevracard {
namespace {

/// Two cards that are laid in one turn, of which the second one lies face down before.
class Glides : public testing::Test {
 protected:
  /// A card as it is seen: at which height, in dots, and with which upper number.
  using Seen = std::pair<int, std::string>;
  static constexpr int first = 0, second = 20;

  Glides() {
    w.game.card(first).upper = w.game.card(second).upper = 2;
    w.present();
    pass(500);
  }

  void lay() {
    for (const int slot : {first, second}) {
      Frame& frame = w.card(slot).frame;
      const WindowPoint from{frame.left, frame.top};
      frame.top = 5000;
      w.game.card(slot).upper = 4;
      w.card(slot).uncover();
      w.form.glides.push_back({&frame, from, {frame.left, frame.top}});
    }
    w.present();
  }

  [[nodiscard]] Seen seen(int slot) {
    Seen seen;
    for (const Item& item : table.windowOf(w.form).canvas().picture()) {
      if (item.control == &w.card(slot).frame) seen.first = item.place.top;
      if (item.control != &w.card(slot).upper) continue;
      seen.second = std::get<Label>(item.look).caption;
    }
    return seen;
  }

  /// Where it lies, with its new number.
  [[nodiscard]] Seen laid(int slot) {
    const FormWindow& window = table.windowOf(w.form);
    const QRect place = window.canvas().placeOf(w.card(slot).frame);
    return {place.top(), "4"};
  }

  [[nodiscard]] bool isUnderWay(int slot, int from) {
    const int top = seen(slot).first;
    return std::min(from, laid(slot).first) + 9 < top && top < std::max(from, laid(slot).first) - 9;
  }

  static void pass(int time) {
    for (; time > 0; time -= 5) {
      monkey::addTime(5);
      QCoreApplication::processEvents();
    }
  }

  Table table{"2/1/99"};
  MainWindow& w = table.w;
};

// One after the other, and a card looks as it lay until its own way begins. A key puts all in
// place, and so does another size of the window.
TEST_F(Glides, ShowOneCardAfterTheOther) {
  const Seen before = seen(first);
  const Seen covered = seen(second);
  EXPECT_EQ(before.second, "2");
  EXPECT_EQ(covered.second, "");
  lay();
  EXPECT_EQ(seen(first), (Seen{before.first, "4"}));
  EXPECT_EQ(seen(second), covered);
  pass(75);
  EXPECT_TRUE(isUnderWay(first, before.first));
  EXPECT_EQ(seen(second), covered);
  pass(150);
  EXPECT_EQ(seen(first), laid(first));
  EXPECT_TRUE(isUnderWay(second, covered.first));
  EXPECT_EQ(seen(second).second, "4");
  pass(100);
  EXPECT_EQ(seen(second), laid(second));
  FormWindow& window = table.windowOf(w.form);
  for (const bool byKey : {true, false}) {
    w.card(first).frame.top = 7000;
    lay();
    pass(50);
    EXPECT_NE(seen(first), laid(first));
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Shift, Qt::ShiftModifier);
    byKey ? (void)QCoreApplication::sendEvent(&window, &key) : window.resize(900, 600);
    EXPECT_EQ(seen(first), laid(first));
  }
}

/// The setting service of a desktop.
class SettingService final : public QDBusVirtualObject {
 public:
  bool animations = true;
  int answers = 0;

  QString introspect(const QString& /*path*/) const override { return {}; }
  bool handleMessage(const QDBusMessage& question, const QDBusConnection& bus) override {
    const bool known =
        question.interface() == "org.freedesktop.portal.Settings" && question.member() == "Read" &&
        question.arguments() == QVariantList{"org.gnome.desktop.interface", "enable-animations"};
    if (!known) return false;
    const QDBusVariant inner{QVariant(animations)};
    const QDBusVariant outer{QVariant::fromValue(inner)};
    ++answers;
    return bus.send(question.createReply(QVariant::fromValue(outer)));
  }
};

bool comesTrue(const std::function<bool()>& condition) {
  for (int patience = 5000; patience > 0 && !condition(); --patience) {
    QCoreApplication::processEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return condition();
}

// Who asked the desktop for less motion sees the cards in place at once.
TEST_F(Glides, AreLeftOutWhereTheDesktopSaysSo) {
  SettingService service;
  auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "desktop");
  ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/portal/desktop", &service));
  ASSERT_TRUE(bus.registerService("org.freedesktop.portal.Desktop"));
  askAboutMotion();
  EXPECT_TRUE(comesTrue([&] { return service.answers == 1; }));
  EXPECT_FALSE(motionIsReduced());
  service.animations = false;
  askAboutMotion();
  EXPECT_TRUE(comesTrue(motionIsReduced));
  lay();
  EXPECT_EQ(seen(first), laid(first));
}

}  // namespace
}  // namespace mevracard
