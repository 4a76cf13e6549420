// Cards on their way to the chain, at a clock of the test's own.
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <array>
#include <thread>

#include <gtest/gtest.h>

#include "platform/qt/form_window.h"
#include "platform/qt/reduced_motion.h"
#include "testing/clock.h"

namespace mevracard {
namespace {

/// A window with two cards, of which the second lies face down.
class Table {
 public:
  Table()
      : window_(
            form_, [](const Event&) { return true; }, nullptr) {
    form_.maximized = true;
    for (std::size_t i = 0; i < cards_.size(); ++i) {
      form_.add(cards_[i], "k", static_cast<int>(i));
      form_.addTo(cards_[i], numbers_[i], "a", static_cast<int>(i));
      cards_[i].width = cards_[i].height = 900;
      numbers_[i].width = numbers_[i].height = 300;
      numbers_[i].caption = "2";
      cards_[i].left = 1500 * static_cast<float>(i);
    }
    form_.addTo(cards_[1], back_, "luar1");
    back_.width = back_.height = 900;
    back_.filled = true;
    window_.open();
    pass(500);
  }

  /// Both cards are turned and laid in one turn.
  void lay() {
    back_.visible = false;
    for (std::size_t i = 0; i < cards_.size(); ++i) {
      const WindowPoint from{cards_[i].left, cards_[i].top};
      cards_[i].left += 600;
      cards_[i].top = 3000;
      numbers_[i].caption = "4";
      form_.glides.push_back({&cards_[i], from, {cards_[i].left, cards_[i].top}});
    }
    window_.flush();
  }

  /// How the cards are seen: at which height, in pixels, and with which number.
  [[nodiscard]] std::array<std::pair<int, std::string>, 2> seen() const {
    std::array<std::pair<int, std::string>, 2> cards;
    for (const Item& item : window_.canvas().picture()) {
      auto& [top, number] = cards.at(static_cast<std::size_t>(std::max(0, item.control->index)));
      if (item.control->kind == ControlKind::Frame) top = item.place.top;
      if (const auto* label = std::get_if<Label>(&item.look)) number = label->caption;
    }
    return cards;
  }

  static void pass(int time) {
    for (; time > 0; time -= 5) {
      monkey::addTime(5);
      QCoreApplication::processEvents();
    }
  }

  void pressKey() {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_P, Qt::NoModifier, "p");
    QCoreApplication::sendEvent(&window_, &key);
  }

 private:
  Form form_;
  std::array<Frame, 2> cards_;
  std::array<Label, 2> numbers_;
  Shape back_;
  FormWindow window_;
};

using Seen = std::array<std::pair<int, std::string>, 2>;
const Seen laid{{{200, "4"}, {200, "4"}}};

// One after the other, and a card looks as it lay until its own way begins. A key puts all in
// place.
TEST(Glides, ShowOneCardAfterTheOther) {
  Table table;
  const Seen before{{{0, "2"}, {0, ""}}};
  ASSERT_EQ(table.seen(), before);
  table.lay();
  EXPECT_EQ(table.seen()[0], std::pair(0, std::string("4")));
  EXPECT_EQ(table.seen()[1], before[1]);
  Table::pass(75);
  EXPECT_GT(table.seen()[0].first, 20);
  EXPECT_LT(table.seen()[0].first, 190);
  EXPECT_EQ(table.seen()[1], before[1]);
  Table::pass(150);
  EXPECT_EQ(table.seen()[0], laid[0]);
  EXPECT_GT(table.seen()[1].first, 20);
  EXPECT_LT(table.seen()[1].first, 190);
  EXPECT_EQ(table.seen()[1].second, "4");
  Table::pass(100);
  EXPECT_EQ(table.seen(), laid);
  Table other;
  other.lay();
  Table::pass(50);
  ASSERT_NE(other.seen(), laid);
  other.pressKey();
  EXPECT_EQ(other.seen(), laid);
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
TEST(Glides, AreLeftOutWhereTheDesktopSaysSo) {
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
  Table table;
  table.lay();
  EXPECT_EQ(table.seen(), laid);
}

}  // namespace
}  // namespace mevracard

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
