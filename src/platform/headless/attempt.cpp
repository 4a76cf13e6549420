#include "platform/headless/attempt.h"

namespace mevracard {

std::string Attempt::why() const {
  std::string part(name);
  if (index >= 0) part += "(" + std::to_string(index) + ")";
  switch (refusal) {
    case Refusal::None:
      break;
    case Refusal::Ended:
      return "the program has ended";
    case Refusal::NoFocus:
      return "no control has the focus";
    case Refusal::Hidden:
      return part + " is hidden";
    case Refusal::Disabled:
      return part + " is disabled";
    case Refusal::NotPressed:
      return part + " cannot be pressed";
    case Refusal::NotArmed:
      return "the timer is not armed";
  }
  return "";
}

}  // namespace mevracard
