// SPDX-License-Identifier: MIT
// Kind keys and the voice: what the keys choose, and what is heard, taken from the sound device.
#include "desktop/programfolder.h"
#include "entry/form1.h"
#include "entry/voice.h"
#include "support/formtest.h"
#include "widgets/combo.h"

#include <QCheckBox>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMutex>
#include <QPushButton>
#include <QScopeGuard>

#include <SDL_mixer.h>

using namespace Qt::StringLiterals;

namespace {

QString recordingPath()
{
    return qEnvironmentVariable("SDL_DISKAUDIOFILE");
}

#ifdef Q_OS_WIN
/// The sound library keeps its file to itself, so all is taken on its way there.
QMutex heardLock;
QByteArray heardSamples;

void keepSamples(void *, Uint8 *samples, int size)
{
    const QMutexLocker lock(&heardLock);
    heardSamples.append(reinterpret_cast<const char *>(samples), size);
}

QByteArray recorded()
{
    const QMutexLocker lock(&heardLock);
    return heardSamples;
}
#else
QByteArray recorded()
{
    QFile file(recordingPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
#endif

/// Samples of a word's recording.
QByteArray wordSamples(const QString &name)
{
    Mix_Chunk *chunk = Mix_LoadWAV(qUtf8Printable(programFile(u"data/mp3/"_s + name + u".mp3"_s)));
    if (!chunk)
        qFatal("cannot read the word %s", qPrintable(name));
    const QByteArray samples(reinterpret_cast<const char *>(chunk->abuf), int(chunk->alen));
    Mix_FreeChunk(chunk);
    return samples;
}

} // namespace

class VoiceTest : public FormTest
{
    Q_OBJECT

private slots:
    void kindKeysChooseTheKind_data();
    void kindKeysChooseTheKind();
    void kindKeyThrowsHalfALineAway();
    void kindKeysWorkInTheEntryFieldAlone();
    void voiceTurnedOffTouchesNoDevice();
    void lineIsSpokenKeyByKey();
    void nextKeyCutsTheWordOff();
    void voiceEndsAtOnce_data();
    void voiceEndsAtOnce();
    void heldKeyRepeats();
    void pictureGoesWithTheMainWindow();
    void brokenRecordingStaysSilent();

private:
    void prepare() override;
    void turnVoiceOn() const
    {
        Hands::click(control<QCheckBox>("C01"));
        Hands::click(control<QLineEdit>("Tnumber"));
    }
    /// Presses a key and waits until its whole word has been heard, behind those before it.
    bool heard(Qt::Key key, const QString &word)
    {
        Hands::press(key);
        const QByteArray samples = wordSamples(word);
        qsizetype at = -1;
        const bool found =
            QTest::qWaitFor([&] { return (at = recorded().indexOf(samples, m_heard)) >= 0; });
        m_heard = at + samples.size();
        return found;
    }

    qsizetype m_heard = 0;
};

void VoiceTest::prepare()
{
    copyProgramData(QCoreApplication::applicationDirPath(), programFolder());
    show(std::make_unique<Form1>(m_progress, nullptr));
}

void VoiceTest::kindKeysChooseTheKind_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QString>("caption");
    const auto row = [](const QList<int> &keys, const QString &caption) {
        QTest::newRow(qUtf8Printable(caption)) << keys << caption;
    };
    row({Qt::Key_F1, Qt::Key_Up}, u"บน"_s);
    row({Qt::Key_F2, Qt::Key_Left}, u"วิ่งบน"_s);
    row({Qt::Key_F6, Qt::Key_Right}, u"วิ่งล่าง"_s);
    row({Qt::Key_F5, Qt::Key_Down}, u"ล่าง"_s);
    row({Qt::Key_Control, Qt::Key_End}, u"โต๊ด"_s);
    row({Qt::Key_F3, Qt::Key_PageUp}, u"กลับบน"_s);
    row({Qt::Key_F7, Qt::Key_PageDown}, u"กลับล่าง"_s);
    row({Qt::Key_F9, Qt::Key_Delete}, u"ตรง+โต๊ด"_s);
    row({Qt::Key_F10, Qt::Key_Home}, u"บน+ล่าง"_s);
    row({Qt::Key_F4}, u"19 ประตู (บน)"_s);
    row({Qt::Key_F8}, u"19 ประตู (ล่าง)"_s);
    row({Qt::Key_F11}, u"00-99 (บน)"_s);
    row({Qt::Key_F12}, u"00-99 (ล่าง)"_s);
}

void VoiceTest::kindKeysChooseTheKind()
{
    QFETCH(QList<int>, keys);
    for (const int key : keys) {
        for (const auto shift : {Qt::NoModifier, Qt::ShiftModifier}) {
            control<Combo>("Combo2")->setListIndex(0);
            control<QLineEdit>("Tnumber")->setFocus();
            QTest::keyClick(Hands::focus(), Qt::Key(key), shift);
            QTEST(control<QLabel>("Label3")->text(), "caption");
            QCOMPARE(u"- "_s + control<QLabel>("Label3")->text(),
                     control<Combo>("Combo2")->currentText());
            QCOMPARE(Hands::focus()->objectName(), u"Tnumber"_s);
        }
    }
}

void VoiceTest::kindKeyThrowsHalfALineAway()
{
    Hands::type(u"12-"_s);
    Hands::press(Qt::Key_Home); // never an editing key here
    QCOMPARE(control<QLineEdit>("Tnumber")->text(), QString());
    Hands::type(u"12-5"_s);
    Hands::press(Qt::Key_Return);
    QCOMPARE(control<Spread>("fpSpread7")->text(1, 2), u"5"_s); // "บน+ล่าง"
}

void VoiceTest::kindKeysWorkInTheEntryFieldAlone()
{
    for (const char *elsewhere : {"Combo1", "fpSpread1", "lvButtons_H0"}) {
        control<QWidget>(elsewhere)->setFocus();
        Hands::press(Qt::Key_F1);
        QCOMPARE(control<QLabel>("Label3")->text(), u"ประเภท"_s);
    }
    control<QLineEdit>("Tnumber")->setFocus();
    Hands::type(u"12"_s);
    connect(&*m_hands, &Hands::boxShown, this,
            [](QWidget *box) { QTest::keyClick(box, Qt::Key_F1); });
    Hands::press(Qt::Key_Return); // the line without a dash is refused by a box
    QCOMPARE(m_hands->takeBoxes().size(), 1);
    QCOMPARE(control<QLabel>("Label3")->text(), u"ประเภท"_s);
    QCOMPARE(control<QLineEdit>("Tnumber")->text(), u"12"_s);
}

void VoiceTest::voiceTurnedOffTouchesNoDevice()
{
    Hands::press(Qt::Key_F1);
    Hands::type(u"12-5"_s);
    QVERIFY(!QFile::exists(recordingPath()));
}

void VoiceTest::lineIsSpokenKeyByKey()
{
    turnVoiceOn();
    Hands::press(Qt::Key_F1);
    QVERIFY(QTest::qWaitFor([] { return !recorded().isEmpty(); })); // the device is open
    m_heard = 0;
    QVERIFY(heard(Qt::Key_F2, u"runup"_s));
    QVERIFY(heard(Qt::Key_7, u"7"_s));
    QVERIFY(heard(Qt::Key_Minus, u"money"_s));
    QVERIFY(heard(Qt::Key_5, u"5"_s));
    QVERIFY(heard(Qt::Key_0, u"0"_s));
    Hands::press(Qt::Key_Return);
    QCOMPARE(control<Spread>("fpSpread5")->text(1, 2), u"50"_s);
}

void VoiceTest::nextKeyCutsTheWordOff()
{
    turnVoiceOn();
    m_heard = recorded().size();
    Hands::type(u"123"_s);
    QVERIFY(heard(Qt::Key_4, u"4"_s));
    for (const auto &word : {u"1"_s, u"2"_s, u"3"_s})
        QVERIFY(recorded().indexOf(wordSamples(word), m_heard - 2 * wordSamples(word).size()) < 0);
    QCOMPARE(control<QLineEdit>("Tnumber")->text(), u"1234"_s);
}

void VoiceTest::voiceEndsAtOnce_data()
{
    QTest::addColumn<bool>("byLeavingThePage");
    QTest::newRow("turned off") << false;
    QTest::newRow("with its page") << true;
}

void VoiceTest::voiceEndsAtOnce()
{
    QFETCH(bool, byLeavingThePage);
    turnVoiceOn();
    const qsizetype begin = recorded().size();
    Hands::press(Qt::Key_9);
    if (byLeavingThePage)
        m_form.reset();
    else
        Hands::click(control<QCheckBox>("C01"));
    const QByteArray word = wordSamples(u"9"_s);
    QVERIFY(QTest::qWaitFor([&] { return recorded().size() > begin + 2 * word.size(); }));
    QVERIFY(recorded().indexOf(word, begin) < 0);
}

void VoiceTest::heldKeyRepeats()
{
    turnVoiceOn();
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_4, Qt::NoModifier, u"4"_s, true);
    for (int times = 0; times < 3; ++times)
        QApplication::sendEvent(Hands::focus(), &repeat);
    QCOMPARE(control<QLineEdit>("Tnumber")->text(), u"444"_s);
    m_heard = recorded().size();
    const QByteArray word = wordSamples(u"4"_s);
    QVERIFY(QTest::qWaitFor([&] { return recorded().indexOf(word, m_heard - word.size()) >= 0; }));
    QKeyEvent kindKey(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, {}, true);
    QApplication::sendEvent(Hands::focus(), &kindKey);
    QCOMPARE(control<QLabel>("Label3")->text(), u"บน"_s);
}

void VoiceTest::pictureGoesWithTheMainWindow()
{
    const auto pictures = [] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        return std::count_if(windows.begin(), windows.end(), [](const QWidget *window) {
            return window->objectName() == u"ShowKey"_s;
        });
    };
    Hands::click(control<QPushButton>("Label12"));
    QCOMPARE(pictures(), 1);
    m_form.reset(); // here the page is its own main window
    QCOMPARE(pictures(), 0);
}

void VoiceTest::brokenRecordingStaysSilent()
{
    turnVoiceOn();
    QVERIFY(QFile::remove(programFile(u"data/mp3/1.mp3"_s)));
    QFile broken(programFile(u"data/mp3/2.mp3"_s));
    QVERIFY(broken.open(QIODevice::WriteOnly | QIODevice::Truncate));
    broken.write("no sound at all");
    broken.close();
    m_heard = recorded().size();
    Hands::type(u"12"_s);
    QVERIFY(heard(Qt::Key_3, u"3"_s));
    QCOMPARE(control<QLineEdit>("Tnumber")->text(), u"123"_s);
}

int main(int argc, char **argv)
{
    static const QTemporaryDir soundFolder;
    qputenv("SDL_AUDIODRIVER", "disk"); // what would be heard is written to a file
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(soundFolder.filePath(u"heard"_s)));
    qputenv("SDL_DISKAUDIODELAY", "2"); // milliseconds a buffer: five times as fast as heard
#ifdef Q_OS_WIN
    Mix_SetPostMix(keepSamples, nullptr);
    const auto deafen =
        qScopeGuard([] { Mix_SetPostMix(nullptr, nullptr); }); // ahead of the lock's end
#endif
    return runFormTest<VoiceTest>(argc, argv);
}
#include "test_voice.moc"
