#pragma once

namespace ruvenmark {

// Dark colours whatever the system's theme is.
void UseDarkColors();

} // namespace ruvenmark
