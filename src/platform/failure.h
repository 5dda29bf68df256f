#pragma once

#include <stdexcept>

namespace ruvenmark {

// What the outside world does wrong: a file, a port, a map object that is gone, a text that is no number. Our own
// mistakes are assertions or std::logic_error and never this.
class Failure : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace ruvenmark
