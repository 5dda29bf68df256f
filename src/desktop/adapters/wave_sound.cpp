#include "desktop/adapters/wave_sound.h"

#include <QFile>
#include <QFileInfo>

#include <alsa/asoundlib.h>
#include <memory>
#include <sndfile.h>
#include <string>
#include <vector>

namespace ruvenmark {

namespace {

constexpr unsigned kLatencyMicroseconds = 200000;
constexpr sf_count_t kFramesAtOnce = 4096;

struct CloseFile {
    void operator()(SNDFILE* file) const { sf_close(file); }
};
struct CloseDevice {
    void operator()(snd_pcm_t* device) const { snd_pcm_close(device); }
};
using Device = std::unique_ptr<snd_pcm_t, CloseDevice>;

// A machine without a card is told nothing on standard error either.
void KeepQuiet(const char* /*file*/, int /*line*/, const char* /*function*/, int /*error*/, const char* /*format*/, ...)
{
}

// Null where it cannot play this. A device that another program holds is not waited for.
Device OpenDevice(const SF_INFO& info)
{
    snd_lib_error_set_handler(KeepQuiet);
    snd_pcm_t* opened = nullptr;
    if (snd_pcm_open(&opened, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0)
        return nullptr;
    Device device(opened);
    const bool bFits = snd_pcm_nonblock(opened, 0) >= 0 &&
                       snd_pcm_set_params(opened, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED,
                                          static_cast<unsigned>(info.channels), static_cast<unsigned>(info.samplerate),
                                          1, kLatencyMicroseconds) >= 0;
    return bFits ? std::move(device) : nullptr;
}

// False when the device has failed.
bool Play(snd_pcm_t* device, const short* samples, sf_count_t frames, int channels)
{
    while (frames > 0) {
        snd_pcm_sframes_t written = snd_pcm_writei(device, samples, static_cast<snd_pcm_uframes_t>(frames));
        if (written < 0)
            written = snd_pcm_recover(device, static_cast<int>(written), 1);
        if (written < 0)
            return false;
        frames -= written;
        samples += written * channels;
    }
    return true;
}

} // namespace

void WaveSound::PlayAndWait(std::string_view path)
{
    const std::string name(path);
    if (!QFileInfo(QFile::decodeName(name.c_str())).isFile())
        return; // A pipe would be waited for.
    SF_INFO info{};
    const std::unique_ptr<SNDFILE, CloseFile> file(sf_open(name.c_str(), SFM_READ, &info));
    if (!file || info.channels <= 0)
        return;
    const Device device = OpenDevice(info);
    if (!device)
        return;
    std::vector<short> samples(static_cast<std::size_t>(kFramesAtOnce) * static_cast<std::size_t>(info.channels));
    while (const sf_count_t frames = sf_readf_short(file.get(), samples.data(), kFramesAtOnce))
        if (!Play(device.get(), samples.data(), frames, info.channels))
            return;
    snd_pcm_drain(device.get());
}

} // namespace ruvenmark
