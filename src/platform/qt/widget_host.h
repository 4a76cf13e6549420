#pragma once

#include "platform/qt/control_events.h"
#include "platform/qt/glides.h"

namespace mevracard {

/// The window, as the widgets inside it see it.
class WidgetHost : public ControlEvents {
 public:
  [[nodiscard]] virtual Glides& glides() = 0;
  /// Whether Tab leads to a button that only takes keys: to the one that keys fall back on.
  [[nodiscard]] virtual bool tabReaches(const Control& keysOnly) const = 0;

 protected:
  ~WidgetHost() = default;
};

}  // namespace mevracard
