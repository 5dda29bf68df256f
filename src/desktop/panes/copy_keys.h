#pragma once

class QModelIndex;
class QString;
class QWidget;

namespace ruvenmark {

// Read-only text that can be selected: while it has the focus, the keys for copying and selecting all are its own, not
// those of the window's menus.
void KeepCopyKeys(QWidget& text);

// A row of a table as it is copied: its columns' texts, tabs between.
QString RowText(const QModelIndex& row);

} // namespace ruvenmark
