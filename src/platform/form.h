#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/speech.h"

/// Windows, their menus and timers: passive like the controls on them.
namespace mevracard {

/// One entry of the menu bar or of a menu; "&" in the caption marks the access key.
struct MenuEntry {
  std::string_view name;
  std::string_view caption;
  bool enabled = true;
  bool checked = false;
  std::vector<MenuEntry*> entries = {};
  MenuEntry* parent = nullptr;
};

/// Periodic timer of a window, in milliseconds. `armings` grows with every arming, so that a
/// desktop starts the interval anew even when interval and state look the same as before.
struct Timer {
  bool enabled = false;
  int interval = 0;
  unsigned armings = 0;

  void arm(int milliseconds);
  void disarm() { enabled = false; }
  /// Takes back a disarming of the same event: the interval under way goes on.
  void goOn() { enabled = true; }
};

/// A place in the window, in twips.
struct WindowPoint {
  float left = 0, top = 0;
  bool operator==(const WindowPoint&) const = default;
};

/// A frame's way in a straight line to where, or near where, it stands by now.
struct Glide {
  const Frame* frame;
  WindowPoint from, to;
};

/// What a window beside the main one does not lie on, where the screen has room beside it.
struct KeptClear {
  std::vector<const Box*> boxes;  ///< of the main window; only those that are to be seen count
  /// An open window makes way too if one of them comes to lie under it.
  bool always = false;
};

/// A window.
struct Form {
  std::string_view name;
  std::string caption;
  float left = 0, top = 0;      ///< in the main window
  float width = 0, height = 0;  ///< client size
  bool maximized = false;
  bool visible = false;
  bool enabled = true;
  Color backColor;
  const Box* whole = nullptr;  ///< what a window of any size shows all of, in its middle
  double headroom = 1;         ///< how many times larger the player may make that
  /// Has its upper left corner where that of the pinned controls shall be if they cannot keep their
  /// place without lying on `whole`.
  const Box* corner = nullptr;
  /// Whether the window is to open at `left` and `top` if the screen has room for it there; else
  /// the desktop finds it a place near the middle of the main window.
  bool placed = false;
  /// Asked what it shall not lie on in a place that the desktop finds, the weightiest first. A
  /// window that the player has moved stays where it is.
  std::function<std::vector<KeptClear>()> clearOf;
  /// What Esc presses on a real desktop: the first of these that is usable. A window beside the
  /// main one is closed if there is none.
  std::vector<Button*> escape;
  /// On a real desktop this button, while it is usable, has the keyboard in place of one that is
  /// never seen.
  Button* seenFocus = nullptr;
  /// How frames were moved since the last time the form was presented, one after the other. A
  /// desktop may show it, and clears it.
  std::vector<Glide> glides;
  Speech speech;                   ///< filled in where the desktop speaks
  std::vector<Control*> controls;  ///< depth order from back to front; frames own their children
  std::vector<MenuEntry*> menu;
  Timer* timer = nullptr;
  Control* focus = nullptr;         ///< the control that receives keys, null for none
  Control* defaultFocus = nullptr;  ///< takes the focus over from a control that cannot hold it

  /// Puts a control on the window, in front of the others of its layer.
  void add(Control& control, std::string_view name, int index = -1);
  /// Puts a control into a frame, in front of the frame's other children.
  void addTo(Frame& frame, Control& control, std::string_view name, int index = -1);
  /// In front of (behind) all other controls of its layer, or of its frame.
  void bringToFront(Control& control);
  void sendToBack(Control& control);
  /// Gives the focus to a usable button or scroll bar; else the focus stays.
  void giveFocus(Control& control);
  /// Whether a control stands on the window, or in one of its frames.
  [[nodiscard]] bool holds(const Control& control) const;
  /// Moves the focus off a control that can no longer hold it.
  void settleFocus();
};

}  // namespace mevracard
