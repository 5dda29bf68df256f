#pragma once

class QWidget;

namespace ruvenmark {

// The tab key goes through the dialog as one reads it, whatever the order in which its parts were made; the keys begin
// at the first that takes an entry, if nothing has them yet.
void OrderTabs(QWidget& dialog);

} // namespace ruvenmark
