// SPDX-License-Identifier: MIT
// Prints the time in milliseconds when its first window has been painted, then its resident memory
// in KiB, and ends. Usage: start_probe MODE FOLDER, where MODE is
//   program  the whole program;
//   rest     the same, but reads the memory after two idle seconds;
//   bare     the minimum: opens the Ledger and shows a window of the same size with one line of
//            text, for which Qt loads the fonts and its rules for Thai words.
#include "desktop/application.h"
#include "desktop/programfolder.h"
#include "ledger/ledger.h"
#include "program.h"

#include <QFile>
#include <QLabel>
#include <QTimer>

#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

void printClock()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch(); // same in all processes
    std::printf("%.6f\n", std::chrono::duration<double, std::milli>(now).count());
}

void printMemory()
{
    QFile status(u"/proc/self/status"_s);
    status.open(QIODevice::ReadOnly);
    const QString text = QString::fromLatin1(status.readAll());
    std::printf("%s\n", qPrintable(text.section(u"VmRSS:"_s, 1).section(u"kB"_s, 0, 0).trimmed()));
}

/// Prints time and memory after the first paint of a window, which includes all its widgets, and
/// ends the program.
class FirstPaint : public QObject
{
public:
    explicit FirstPaint(int msecsAtRest) : m_msecsAtRest(msecsAtRest)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Paint || !object->isWidgetType())
            return false;
        qApp->removeEventFilter(this);
        QTimer::singleShot(0, qApp, printClock);
        QTimer::singleShot(m_msecsAtRest, qApp, [] {
            printMemory();
            Application::exit();
        });
        return false;
    }

private:
    int m_msecsAtRest;
};

std::unique_ptr<QWidget> bareWindow()
{
    ConnectLedger();
    auto window = std::make_unique<QLabel>(u"Mirakla Desk หน้าหลัก"_s);
    window->resize(1340, 700); // the size of the main window
    window->show();
    return window;
}

} // namespace

int main(int argc, char **argv)
{
    const Application application(argc, argv);
    const QString mode = Application::arguments().value(1);
    setProgramFolder(Application::arguments().value(2));
    const FirstPaint firstPaint(mode == u"rest"_s ? 2000 : 0);
    const std::unique_ptr<QWidget> window = mode == u"bare"_s ? bareWindow() : startProgram();
    const int status = Application::exec();
    CloseLedger();
    return status;
}
