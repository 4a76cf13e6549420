#pragma once

#include <QAccessible>

namespace mevracard {

enum class ChildEvent { Added, Removed };

/// Tells assistive technology that `parent` has got a child at an index, or had it there until now.
void reportChild(ChildEvent event, const QAccessibleInterface& parent,
                 const QAccessibleInterface& child, int index);

}  // namespace mevracard
