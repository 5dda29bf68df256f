#pragma once

#include <string_view>

namespace ruvenmark {

class ISound {
public:
    virtual ~ISound() = default;
    virtual void PlayAndWait(std::string_view path) = 0; // Blocks until it has ended; silent where it cannot play.
};

} // namespace ruvenmark
