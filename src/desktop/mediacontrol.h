// SPDX-License-Identifier: MIT
// Plays one sound file at a time. A machine without sound, a missing file, a broken one: silence,
// and never a word about it.
#pragma once

#include <QString>

#include <memory>

enum class MediaCommand {
    Close, ///< lets go of the file and cuts off its sound
    Open,  ///< opens the file named by FileName
    Play   ///< starts it from its beginning and returns
};

/// The sound device is opened with the first file and not before; each new control tries anew
/// where there was none.
class MediaControl
{
public:
    MediaControl();
    ~MediaControl(); ///< closes the file
    Q_DISABLE_COPY_MOVE(MediaControl)

    // How commands behave on desktops whose player works in another process: no word when a sound
    // has ended, each command done when it returns, the device open to others.
    bool Notify = false;
    bool Wait = true;
    bool Shareable = true;

    QString FileName;

    void Command(MediaCommand command);

private:
    struct Sound;
    std::unique_ptr<Sound> m_sound;
};
