// SPDX-License-Identifier: MIT
#include "desktop/mediacontrol.h"

#include <QFile>

#include <utility>

#define SDL_MAIN_HANDLED
#include <SDL.h>
#include <SDL_mixer.h>

namespace {

// As the recordings are, so that nothing is converted on the way. The buffer is short: an echo
// that comes later than the next key disturbs.
constexpr int SamplesPerSecond = 48000;
constexpr int BufferSamples = 512;
constexpr int OnlyChannel = 0;

/// The sound device of the process.
struct Device
{
    Device()
    {
        SDL_SetMainReady();
        SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
        open = SDL_InitSubSystem(SDL_INIT_AUDIO) == 0
               && Mix_OpenAudio(SamplesPerSecond, AUDIO_S16SYS, 1, BufferSamples) == 0;
    }
    ~Device()
    {
        if (open)
            Mix_CloseAudio();
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    Q_DISABLE_COPY_MOVE(Device)

    bool open = false;
};

/// The device, once it could be opened.
std::unique_ptr<Device> device;

} // namespace

struct MediaControl::Sound
{
    /// True with an open device. Tries to open it once: a machine without sound must not be
    /// asked again with each key.
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
        Mix_FreeChunk(chunk); // stops it first where it still sounds
        chunk = nullptr;
        break;
    case MediaCommand::Open:
        if (QFile::exists(FileName) && m_sound->haveDevice())
            chunk = Mix_LoadWAV(FileName.toUtf8().constData()); // its files are named in UTF-8
        break;
    case MediaCommand::Play:
        if (chunk)
            Mix_PlayChannel(OnlyChannel, chunk, 0);
        break;
    }
}
