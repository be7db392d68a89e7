// SPDX-License-Identifier: MIT
// The voice of bet entry, taken on its way to the sound device.
#include "desktop/application.h"
#include "desktop/programfolder.h"
#include "entry/form1.h"
#include "fuzz/require.h"
#include "support/noprogress.h"
#include "support/testledger.h"

#include <QCheckBox>
#include <QMutex>
#include <QTest>

#include <SDL_mixer.h>

using namespace Qt::StringLiterals;

namespace {

QMutex playedLock;
QByteArray played;

void keepSamples(void *, Uint8 *samples, int size)
{
    const QMutexLocker lock(&playedLock);
    played.append(reinterpret_cast<const char *>(samples), size);
}

/// Waits until @p word has been played to its end behind place @p from, and moves that behind it.
bool hears(const QString &word, qsizetype &from, int timeout = 4000)
{
    Mix_Chunk *chunk = Mix_LoadWAV(qUtf8Printable(programFile(u"data/mp3/%1.mp3"_s.arg(word))));
    const QByteArray samples(reinterpret_cast<const char *>(chunk->abuf), int(chunk->alen));
    Mix_FreeChunk(chunk);
    const auto isPlayed = [&] {
        const QMutexLocker lock(&playedLock);
        const qsizetype at = played.indexOf(samples, from);
        from = at < 0 ? from : at + samples.size();
        return at >= 0;
    };
    return QTest::qWaitFor(isPlayed, timeout);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    qputenv("SDL_AUDIODRIVER", "disk"); // a device on every machine
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(folder.filePath(u"heard"_s)));
    qputenv("SDL_DISKAUDIODELAY", "1"); // milliseconds a buffer: ten times as fast
    Mix_SetPostMix(keepSamples, nullptr);
    const Application application(argc, argv);
    const TestLedger ledger;
    NoProgress progress;
    copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    auto form = std::make_unique<Form1>(progress, nullptr);
    form->show();
    auto *voice = form->findChild<QCheckBox *>(u"C01"_s);
    const auto press = [&](const QString &keys) {
        form->setFocus();
        for (const QString &key : keys.split(u' '))
            QTest::keyClick(form->focusProxy(), QKeySequence(key)[0].key());
    };
    press(u"F1 1"_s);
    QTest::qWait(50);
    require(played.isEmpty(), "a voice that is off does not open the device");
    voice->click();
    qsizetype end = 0;
    for (const QString &spoken :
         u"F2=runup F8=19down Control=tod -=money 0=0 1=1 2=2 3=3 4=4 5=5 6=6 7=7 8=8 9=9"_s.split(
             u' ')) {
        press(spoken.section(u'=', 0, 0));
        require(hears(spoken.section(u'=', 1), end), qUtf8Printable(spoken));
    }
    require(QFile::remove(programFile(u"data/mp3/8.mp3"_s))
                && QFile::resize(programFile(u"data/mp3/9.mp3"_s), 0),
            "words can be missing or damaged");
    qsizetype before = end;
    press(u"1 2 8 3 9 4"_s);
    require(hears(u"4"_s, end), "a word without recording is left out");
    press(u"5"_s);
    voice->click(); // off
    QTest::qWait(200);
    voice->click();
    press(u"6"_s);
    form.reset();
    QTest::qWait(200);
    for (const auto &cutOff : {u"1"_s, u"2"_s, u"3"_s, u"5"_s, u"6"_s})
        require(!hears(cutOff, before, 0),
                "a key, the end of the voice and that of its page end a word");
    Mix_SetPostMix(nullptr, nullptr); // before the samples are gone
    return 0;
}
