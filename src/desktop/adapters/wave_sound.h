#pragma once

#include "platform/sound.h"

namespace ruvenmark {

// Plays wave files over ALSA's default device. Silent where there is no sound card or no such file.
class WaveSound final : public ISound {
public:
    void PlayAndWait(std::string_view path) override;
};

} // namespace ruvenmark
