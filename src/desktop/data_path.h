#pragma once

#include <QString>

namespace ruvenmark {

// A file that comes with the program, such as "help/Readme.htm": beside the installed program or, for a program that
// stands in its build folder, in the source folder. Empty where there is none.
QString DataPath(const QString& name);

} // namespace ruvenmark
