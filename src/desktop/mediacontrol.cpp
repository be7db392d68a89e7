// SPDX-License-Identifier: MIT
#include "desktop/mediacontrol.h"

#include <QFile>

#include <utility>

#define SDL_MAIN_HANDLED
#include <SDL.h>
#include <SDL_mixer.h>

namespace {

// The format of the recordings, so that nothing is converted. The buffer is short, since a word
// must not come later than the next key.
constexpr int SamplesPerSecond = 48000;
constexpr int BufferSamples = 512;
constexpr int OnlyChannel = 0;

/// The sound device, shared by all controls.
struct Device
{
    Device() : open(start()) {}
    ~Device()
    {
        if (open)
            Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    Q_DISABLE_COPY_MOVE(Device)

    static bool start()
    {
        SDL_SetMainReady();
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        return SDL_InitSubSystem(SDL_INIT_AUDIO) == 0
               && Mix_OpenAudio(SamplesPerSecond, AUDIO_S16SYS, 1, BufferSamples) == 0;
    }

    const bool open;
};

/// Null until the device could be opened.
std::unique_ptr<Device> device;

} // namespace

struct MediaControl::Sound
{
    /// Returns true if the device is open. Tries to open it only once, since the attempt would
    /// delay every key on a machine without sound.
    bool haveDevice()
    {
        if (!device && !std::exchange(tried, true)) {
            device = std::make_unique<Device>();
            if (!device->open)
                device.reset();
        }
        return device != nullptr;
    }

    Mix_Chunk *chunk = nullptr;
    bool tried = false;
};

MediaControl::MediaControl() : m_sound(std::make_unique<Sound>()) {}

MediaControl::~MediaControl()
{
    Command(MediaCommand::Close);
}

void MediaControl::Command(MediaCommand command)
{
    Mix_Chunk *&chunk = m_sound->chunk;
    switch (command) {
    case MediaCommand::Close:
        Mix_FreeChunk(chunk); // stops it if it is still playing
        chunk = nullptr;
        break;
    case MediaCommand::Open:
        if (QFile::exists(FileName) && m_sound->haveDevice())
            chunk = Mix_LoadWAV(FileName.toUtf8().constData()); // SDL expects UTF-8
        break;
    case MediaCommand::Play:
        if (chunk)
            Mix_PlayChannel(OnlyChannel, chunk, 0);
        break;
    }
}
