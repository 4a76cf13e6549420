#pragma once

#include <functional>
#include <variant>
#include <vector>

#include "platform/form.h"
#include "platform/view.h"

namespace mevracard {

constexpr double smallestType = 11;  ///< pixels of a caption's font; smaller ones cannot be read

/// What a frame looks like, apart from what stands in it.
struct FrameLook {
  Color backColor;
  Color mark;  ///< the colour that stands out among its labels, else its own
  /// In dots.
  double corner = 0;
  int edge = 0, shadow = 0;

  FrameLook(const Frame& frame, const Dots& place, const View& view);
  bool operator==(const FrameLook&) const = default;
};

/// One passive control as it is painted, in dots of the screen.
struct Item {
  Control* control = nullptr;
  std::variant<Label, FrameLook, Line, Shape>
      look;      ///< the control as it was when it was presented
  View view;     ///< between its twips and the window's dots
  Dots place;    ///< of a line: what it covers, or the box around a slanted one
  Dots room;     ///< a label's: where its text is to stand; a frame's part: the inside of the frame
  int type = 0;  ///< a label's: the smallest size of its font

  bool operator==(const Item&) const = default;
  /// Nothing of it is painted outside: borders and shadows are inside too, and a text that even in
  /// its smallest type is too large for its room has some more on each side.
  [[nodiscard]] Dots bounds() const;
};

/// What a window shows, back to front. What lies under a cover is not in it.
using Picture = std::vector<Item>;

/// Where a window's controls lie on its dots.
struct Views {
  View table;   ///< fitted into the window
  View pinned;  ///< of the controls that keep their place and size
  Dots window;
  Dots panels = {};  ///< what these cover of the table

  bool operator==(const Views&) const = default;
  [[nodiscard]] const View& of(const Control& control) const {
    return control.pinned ? pinned : table;
  }
  /// A control's box, also inside a frame, where it can be read.
  [[nodiscard]] Dots placeOf(const Box& box) const;
  /// The smallest size of a font, in dots.
  [[nodiscard]] int type() const { return pinned.border(smallestType); }
};

/// `window` is all of it, with `ratio` dots to a pixel.
[[nodiscard]] Views viewsOf(const Form& form, const Dots& window, double ratio, double growth = 1);

/// Whether the player presses, types or scrolls there, so that it is more than painted.
[[nodiscard]] bool isWidget(const Control& control);

/// `seenAt` tells where a frame shows, which may be on its way to where it belongs.
[[nodiscard]] Picture pictureOf(const Form& form, const Views& views,
                                const std::function<WindowPoint(const Frame&)>& seenAt);

/// Lets a frame and its parts look as they did in a picture before.
void keepLook(Picture& picture, const Frame& frame, const Picture& before);

/// The label or frame that lies in front at a dot; null for none.
[[nodiscard]] Control* controlAt(const Picture& picture, int x, int y);

/// The dots that have to be painted anew to get from one picture to the other.
[[nodiscard]] std::vector<Dots> difference(const Picture& before, const Picture& after);

}  // namespace mevracard
