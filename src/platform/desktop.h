#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "platform/event.h"

namespace mevracard {

/// A data file that could not be read or written, an address that could not be opened. The text
/// names the thing and the reason, ready for the player.
struct PlatformError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Thrown out of a box that the system's end of the program has closed: what the handler was at is
/// given up, and a SystemEnd event follows.
struct EndedBySystem {};

struct ClockTime {
  int minute = 0, second = 0;
};

/// A point of the screen, or a way on it, in pixels.
struct ScreenPoint {
  double x = 0, y = 0;
};

/// What the game asks of the system it runs on.
///
/// Rules for adding a function: it cannot be done a layer up, it does not follow from another, it
/// carries no policy of the game and no hidden state. Unless a function says otherwise it cannot
/// fail, returns at once and never calls the event handler before it returns. Forms and controls
/// belong to the caller and live as long as events can come.
class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  /// The windows of the program, the main window first, and where their events go. Called once.
  virtual void attach(std::vector<Form*> forms, std::function<void(const Event&)> handler) = 0;

  /// Brings the screen up to date with the forms: what changed since the last time.
  virtual void present() = 0;
  /// Makes a window visible (in front, with the keyboard) or hides it; `form.visible` follows.
  virtual void show(Form& form) = 0;
  virtual void hide(Form& form) = 0;
  /// A modal box with an OK button and the program's name as title; blocks until it is closed.
  /// No event, tick included, reaches the handler meanwhile. Throws EndedBySystem if the system
  /// ends the program meanwhile; from then on no box opens.
  virtual void messageBox(std::string_view text) = 0;
  /// Tells the player of an error, in a box like the one above.
  virtual void reportError(std::string_view text) = 0;
  /// Closes all windows and ends the program; no event follows.
  virtual void end() = 0;

  /// Whether it hands words on, so that forms are to be presented with their speech.
  [[nodiscard]] virtual bool speaks() const = 0;
  /// The screen's height in twips, and twips per pixel (15 at 96 dots per inch).
  [[nodiscard]] virtual int screenHeight() const = 0;
  [[nodiscard]] virtual int twipsPerPixel() const = 0;
  /// Moves the system pointer, or where the platform cannot, a drawn one. Points off the screen are
  /// allowed: the pointer then goes as far as it can.
  virtual void movePointer(int x, int y) = 0;
  /// The true centre of a control on the screen; none where there is no real screen.
  [[nodiscard]] virtual std::optional<ScreenPoint> centreOnScreen(const Box& control) const = 0;

  /// The system date in its short form, and the clock.
  [[nodiscard]] virtual std::string shortDate() const = 0;
  [[nodiscard]] virtual ClockTime clock() const = 0;
  /// The one random source of play: uniform in [0, 1), seeded by any number.
  virtual void seedRandom(double seed) = 0;
  [[nodiscard]] virtual double random() = 0;

  /// A data file's bytes. Throws PlatformError if it is missing or cannot be read. At a first start
  /// it may be the text of a default file that does not lie on the disk yet.
  [[nodiscard]] virtual std::string readFile(std::string_view name) = 0;
  /// Replaces a data file as a whole. Throws PlatformError; the old file is then untouched.
  virtual void writeFile(std::string_view name, std::string_view text) = 0;
  /// The same, only while the file still holds `expected`; false if another program changed it.
  [[nodiscard]] virtual bool exchangeFile(std::string_view name, std::string_view expected,
                                          std::string_view text) = 0;
  /// Sees to it that the default files lie on the disk. Throws PlatformError.
  virtual void completeFiles() = 0;
  /// Opens an address in a new browser window. Throws PlatformError.
  virtual void openAddress(std::string_view address) = 0;
};

}  // namespace mevracard
