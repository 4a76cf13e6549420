#pragma once

#include <string>
#include <string_view>

namespace mevracard {

enum class Refusal {
  None,        ///< it happened
  Ended,       ///< the program has ended
  NoFocus,     ///< no control receives keys
  Hidden,      ///< the part, or what it stands in, is hidden
  Disabled,    ///< the part, or what it stands in, is disabled
  NotPressed,  ///< lines and shapes let the mouse through
  NotArmed,    ///< the timer is off
};

/// What became of something that a player or the timer tried: true if it happened. Otherwise `name`
/// and `index` tell the part that was in the way; they name a control, a menu entry or a window and
/// are good for as long as it lives.
struct Attempt {
  Refusal refusal = Refusal::None;
  std::string_view name = {};
  int index = -1;

  explicit operator bool() const { return refusal == Refusal::None; }
  /// The reason in words: "kiri is hidden". Empty if it happened.
  [[nodiscard]] std::string why() const;
};

}  // namespace mevracard
