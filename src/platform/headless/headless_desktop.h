#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desktop.h"
#include "platform/headless/attempt.h"
#include "platform/headless/world.h"
#include "platform/seeded_random.h"

namespace mevracard {

/// A desktop without a screen: time stands still between two ticks, a message box is closed as it
/// opens, and a player's doings come from the functions below. They take the road of a real press:
/// what is hidden or disabled is refused and changes nothing, and so is everything after the end.
class HeadlessDesktop : public Desktop {
 public:
  /// Gets one line, without its line end, for everything that reaches the outside world.
  using Sink = std::function<void(std::string_view line)>;

  /// Without a sink nothing is put into words, and play is fast.
  explicit HeadlessDesktop(Sink sink = {}) : sink_(std::move(sink)) {}

  World world;

  // What a player does. Each calls the event handler once if it is possible. A click or
  // double-click is that event alone; a mouse-down also moves the focus, as the press of a mouse
  // button does.
  Attempt click(Control& control) { return press(EventKind::Click, control); }
  Attempt doubleClick(Control& control) { return press(EventKind::DoubleClick, control); }
  Attempt mouseDown(Control& control);
  /// To the control that has the focus in the active window: a character, or a code of event.h.
  Attempt key(int key);
  /// Moves the bar to `value`, which lies within its limits; nothing happens if it stands there.
  Attempt scroll(ScrollBar& bar, int value);
  Attempt menu(MenuEntry& entry);
  Attempt close(Form& form);
  /// One firing of the main window's timer.
  Attempt tick();

  /// A program is attached and has not ended.
  [[nodiscard]] bool running() const { return running_; }
  /// The window that has the keyboard; null for none.
  [[nodiscard]] Form* activeForm() const { return visible_.empty() ? nullptr : visible_.back(); }
  /// The control that would receive a key; null for none.
  [[nodiscard]] Control* focus() const;

  /// May be called again, for a new program in the same world.
  void attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) override;
  void present() override;
  void show(Form& form) override;
  void hide(Form& form) override;
  void messageBox(std::string_view text) override { tell("message", text); }
  void reportError(std::string_view text) override { tell("error", text); }
  void end() override;
  [[nodiscard]] bool speaks() const override { return world.speaks; }
  [[nodiscard]] int screenHeight() const override { return world.screenHeight; }
  [[nodiscard]] int twipsPerPixel() const override { return world.twipsPerPixel; }
  void movePointer(int x, int y) override;
  [[nodiscard]] std::optional<ScreenPoint> centreOnScreen(const Box&) const override {
    return std::nullopt;
  }
  [[nodiscard]] std::string shortDate() const override { return world.date; }
  [[nodiscard]] ClockTime clock() const override { return world.time; }
  void seedRandom(double seed) override { random_.seed(seed); }
  [[nodiscard]] double random() override;
  [[nodiscard]] std::string readFile(std::string_view name) override;
  void writeFile(std::string_view name, std::string_view text) override;
  [[nodiscard]] bool exchangeFile(std::string_view name, std::string_view expected,
                                  std::string_view text) override;
  void completeFiles() override {}
  void openAddress(std::string_view address) override { tell("browse", address); }

 private:
  Attempt press(EventKind kind, Control& control);
  Attempt send(const Event& event);
  [[nodiscard]] Attempt reach(const Form& form) const;
  [[nodiscard]] Attempt reach(const Form& form, const Control& control) const;
  [[nodiscard]] Form* formOf(const Control& control) const;
  void activate(Form& form);
  /// Says the news of the window that has the keyboard.
  void speak() const;
  void tell(const char* what, std::string_view text) const;

  Sink sink_;
  std::function<void(const Event&)> handler_;
  std::vector<Form*> forms_;
  std::vector<Form*> visible_;  ///< the active window last
  SeededRandom random_;
  bool running_ = false;
};

}  // namespace mevracard
