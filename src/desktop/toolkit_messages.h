#pragma once

namespace ruvenmark {

// What the toolkit says of itself is kept off standard error, unless QT_LOGGING_RULES or QT_DEBUG_PLUGINS asks for it:
// a line there is one of ours. Where the toolkit gives up, before all for want of a display, one line tells it, and the
// program ends with status 2. Call it before the application is made.
void KeepToolkitQuiet();

// Raises Failure where it is plain that no window can be shown.
void RequireDisplay();

} // namespace ruvenmark
