// SPDX-License-Identifier: MIT
#include "tour/ending.h"

#include "desktop/programfolder.h"
#include "program.h"
#include "support/hands.h"
#include "widgets/pushbutton.h"

#include <QApplication>
#include <QMessageBox>
#include <QProcess>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

Ending closeDraw(const QString &pictures, const QString &name)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QApplication::applicationFilePath(),
                  {u"--close"_s, programFolder(), u"--pictures"_s, pictures, name});
    const bool ended = process.waitForFinished();
    return {ended && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
            QString::fromUtf8(process.readAll()).remove(u'\r').split(u'\n', Qt::SkipEmptyParts)};
}

int closeDrawHere(const QString &folder, const QString &pictures, const QString &name)
{
    setProgramFolder(folder);
    const auto window = startProgram();
    if (!window || !QTest::qWaitForWindowActive(window.get()))
        qFatal("the program did not come up");
    Hands hands;
    QObject::connect(&hands, &Hands::boxShown, window.get(), [&](QWidget *box) {
        std::printf("%s\n", qUtf8Printable(qobject_cast<QMessageBox *>(box)->text()));
        std::fflush(stdout); // the process ends without doing so
        if (!pictures.isEmpty())
            box->grab().save(pictures + u'/' + name + u"-closing.png"_s);
    });
    hands.inNextDialog([&](QWidget *settings) {
        hands.answerNextWithOk();
        Hands::click(settings->findChild<PushButton *>(u"lvButtons_H0"_s));
        settings->close();
    });
    Hands::click(
        window->findChild<QWidget *>(u"navigation"_s)->findChild<PushButton *>(u"lvButtons_H5"_s));
    return 1;
}
