// SPDX-License-Identifier: MIT
// The tour: plays whole draws in the real program with real key events, saves a picture of each
// screen, and fails on any difference from what the draw files state.
#include "desktop/application.h"
#include "desktop/programfolder.h"
#include "desktop/singleinstance.h"
#include "ledger/emptyledger.h"
#include "ledger/ledger.h"
#include "program.h"
#include "support/testledger.h"
#include "tour/ending.h"
#include "tour/player.h"

#include <QCommandLineParser>
#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A program folder of its own, with an empty Ledger, and the look and the words of the real one.
void layFolder(const QString &folder)
{
    copyProgramData(programFolder(), folder);
    makeEmptyLedger(folder + u"/data/ztkdata.ZDB"_s);
    setProgramFolder(folder);
}

std::unique_ptr<MDIForm1> startedProgram()
{
    auto window = startProgram();
    if (!window || !QTest::qWaitForWindowActive(window.get()))
        qFatal("the program did not come up");
    return window;
}

/// Plays one draw from an empty Ledger; true if all came out as the file states.
bool playDraw(const QString &path, const QString &pictures)
{
    const QTemporaryDir folder;
    const QString realFolder = programFolder();
    layFolder(folder.path());
    const Draw draw = Draw::read(path);

    QElapsedTimer clock;
    clock.start();
    auto window = startedProgram();
    // The first draw is keyed by mouse and list, the others by kind keys and with the voice on.
    const bool byKey = QFileInfo(path).baseName() != u"draw0"_s;
    const auto kinds = byKey ? Player::Kinds::ByKey : Player::Kinds::FromTheList;
    const QString name = QFileInfo(path).baseName();
    Player player(*window, pictures, name, kinds);
    player.play(draw);
    player.checkDraw(draw);
    player.cutNumbers();
    window.reset();
    CloseLedger();
    leaveOnlyInstance();
    player.compareClosing(closeDraw(pictures, name));
    window = startedProgram();
    Player onTheNextDay(*window, pictures, name, kinds);
    onTheNextDay.checkHistory(draw);
    CloseLedger();
    setProgramFolder(realFolder);
    const QStringList differences = player.differences() + onTheNextDay.differences();

    std::printf("%s: %d tickets, %d lines keyed in %.1f s, %d differences\n",
                qPrintable(QFileInfo(path).fileName()), int(draw.tickets.size()),
                player.linesKeyed(), double(clock.elapsed()) / 1000, int(differences.size()));
    for (const QString &difference : differences)
        std::printf("%s\n", qUtf8Printable(difference));
    return differences.isEmpty();
}

} // namespace

int main(int argc, char **argv)
{
    static const QTemporaryDir ownPlace; // so that a running program is no second copy of this one
    qputenv("TMPDIR", ownPlace.path().toUtf8());
#ifdef Q_OS_WIN
    // The desktop's own save dialog takes no keys from a program.
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
#endif
    const Application application(argc, argv);

    QCommandLineParser options;
    options.addHelpOption();
    options.addOption(
        {u"pictures"_s, u"Save a picture of each screen below <folder>."_s, u"folder"_s});
    options.addOption({u"close"_s,
                       u"Close the draw in <folder> and end, as the tour has it done."_s,
                       u"folder"_s});
    options.addPositionalArgument(u"draws"_s, u"Draw files to play; all if none is named."_s);
    options.process(application);

    const QString pictures = options.value(u"pictures"_s);
    if (!pictures.isEmpty() && !QDir().mkpath(pictures))
        qFatal("cannot make the folder for the pictures");
    QStringList draws = options.positionalArguments();
    if (options.isSet(u"close"_s))
        return closeDrawHere(options.value(u"close"_s), pictures, draws.value(0));
    if (draws.isEmpty())
        draws = {QStringLiteral(TOUR_DRAWS "/draw0.txt"), QStringLiteral(TOUR_DRAWS "/draw1.txt")};

    bool same = true;
    for (const QString &draw : draws)
        same = playDraw(draw, pictures) && same;
    return same ? 0 : 1;
}
