#pragma once

namespace mevracard {

/// Tells assistive technology what the toolkit cannot know by itself: which labels are links.
void describeControls();

}  // namespace mevracard
