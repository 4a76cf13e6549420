#pragma once

#include <QRect>
#include <QRegion>
#include <variant>
#include <vector>

#include "platform/form.h"
#include "platform/view.h"

namespace mevracard {

class Glides;

/// What a frame looks like, apart from what stands in it.
struct FrameLook {
  Color backColor;
  Color mark;  ///< the colour that stands out among its labels, else its own
  /// In dots.
  double corner = 0;
  int edge = 0, shadow = 0;

  FrameLook(const Frame& frame, const QRect& place);
  bool operator==(const FrameLook&) const = default;
};

/// One passive control as it is painted, in dots of the screen.
struct Item {
  Control* control = nullptr;
  std::variant<Label, FrameLook, Line, Shape>
      look;     ///< the control as it was when it was presented
  View view;    ///< between its twips and the window's dots
  QRect place;  ///< of a line: the box that its ends span
  QRect room;   ///< a label's: where its text may stand; a frame's part: the inside of the frame
  Color mark;   ///< a frame's: the colour that stands out among its labels, else its own

  bool operator==(const Item&) const = default;
  /// Everything that is painted of it, borders and shadows too.
  [[nodiscard]] QRect bounds() const;
};

/// What a window shows, back to front. What lies under a cover is not in it.
using Picture = std::vector<Item>;

/// Where a window's controls lie on its dots.
struct Views {
  View table;   ///< fitted into the window
  View pinned;  ///< of the controls that keep their place and size
  QSize size;   ///< of the window, in dots

  bool operator==(const Views&) const = default;
  [[nodiscard]] const View& of(const Control& control) const {
    return control.pinned ? pinned : table;
  }
  /// A control's box, also inside a frame.
  [[nodiscard]] QRect placeOf(const Box& box) const;
};

/// Whether the control is a widget of its own: the player presses, types or scrolls there.
[[nodiscard]] bool isWidget(const Control& control);

/// Gliding frames are where they have got to.
[[nodiscard]] Picture pictureOf(const Form& form, const Views& views, const Glides& glides);

/// The dots that have to be painted anew to get from one picture to the other.
[[nodiscard]] QRegion difference(const Picture& before, const Picture& after);

}  // namespace mevracard
