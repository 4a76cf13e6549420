#pragma once

#include <QImage>
#include <map>
#include <set>
#include <string>

#include "platform/form.h"

namespace mevracard {

/// A control's full name; the parts of a card's back have one for all cards.
[[nodiscard]] std::string nameOf(const Control& control);

/// What was found in all pictures so far.
struct Seen {
  std::set<std::string> controls;         ///< by `nameOf`
  std::map<std::string, QImage> numbers;  ///< on cards, by their captions
};

/// Complains of every control that does not have its place and its colours, as far as nothing
/// stands in front of it. Knows the data alone, not how they are painted. `dots` are the form's
/// whole canvas, `ratio` of them to a pixel.
void expectPainted(const Form& form, const QImage& dots, double ratio, Seen& seen);

}  // namespace mevracard
