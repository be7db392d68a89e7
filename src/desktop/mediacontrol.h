// SPDX-License-Identifier: MIT
// Plays one sound file at a time through SDL_mixer. Without a sound device, or with a missing or
// damaged file, it stays silent and reports nothing.
#pragma once

#include <QString>

#include <memory>

enum class MediaCommand {
    Close, ///< closes the file and stops its sound
    Open,  ///< loads the file named by FileName; Close must come first
    Play   ///< starts it from its beginning and returns at once
};

/// Plays the file named by FileName. The sound device is opened with the first file. A control that
/// found no device does not try again; a new control does.
class MediaControl
{
public:
    MediaControl();
    ~MediaControl(); ///< closes the file
    Q_DISABLE_COPY_MOVE(MediaControl)

    // Part of the control's fixed interface, set by ReadKey() and ignored, since these values
    // describe what always happens: no notification is sent (Notify), a command is complete when
    // Command() returns, which for Play means that the sound has started (Wait), and the device is
    // shared with other programs (Shareable).
    bool Notify = false;
    bool Wait = true;
    bool Shareable = true;

    QString FileName; ///< path of the file that Open opens

    /// Runs a command; does nothing if it cannot.
    void Command(MediaCommand command);

private:
    struct Sound;
    std::unique_ptr<Sound> m_sound;
};
