#pragma once

namespace ruvenmark {

// The C library keeps what is freed for its next use: after much of it, this gives it back to the system.
void ReturnFreedMemory();

} // namespace ruvenmark
