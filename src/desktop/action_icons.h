#pragma once

#include "ui/menus.h"

#include <QString>

namespace ruvenmark {

// The name of the picture beside an entry and on its button; empty for none.
QString ActionIconName(MenuEntry entry);

} // namespace ruvenmark
