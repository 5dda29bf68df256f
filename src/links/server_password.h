#pragma once

#include <string>
#include <string_view>

namespace ruvenmark {

struct MainWindow;

// The login password of the call, without its secondary ID, as the operator wrote it into igatepw.txt; "-1", which logs
// in to listen only, where there is none. It is read at each login and is kept, shown and written nowhere.
std::string GetServerPassword(MainWindow& main, std::string_view call);

} // namespace ruvenmark
