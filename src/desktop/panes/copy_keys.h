#pragma once

class QWidget;

namespace ruvenmark {

// Read-only text that can be selected: while it has the focus, the keys for copying and selecting all are its own, not
// those of the window's menus.
void KeepCopyKeys(QWidget& text);

} // namespace ruvenmark
