// SPDX-License-Identifier: MIT
#include "entry/voice.h"

#include "desktop/programfolder.h"

using namespace Qt::StringLiterals;

void ReadKey(MediaControl &player, const char *file)
{
    player.Notify = false;
    player.Wait = true;
    player.Shareable = true;
    player.Command(MediaCommand::Close);
    player.FileName = programFile(u"data/mp3/"_s + QLatin1String(file));
    player.Command(MediaCommand::Open);
    player.Command(MediaCommand::Play);
}
