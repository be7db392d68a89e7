// SPDX-License-Identifier: MIT
// Starts the program, prints the time of its first painted window, in milliseconds since 1970, and
// its resident memory in KiB, and exits. Usage: start_probe MODE FOLDER. FOLDER is the program's
// folder with the Ledger; MODE is
//   program  the whole program;
//   rest     the same, but the memory is read two seconds after the first paint;
//   bare     a minimal program to compare with: opens the Ledger and shows a window of the same
//            size with one line of text. Like the whole program it makes Qt load the fonts and the
//            dictionary that breaks Thai text into words.
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

void printTime()
{
    // Not the steady clock: under Wine it is not the one that Linux programs read.
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    std::printf("%.6f\n", std::chrono::duration<double, std::milli>(now).count());
}

void printMemory()
{
    QFile status(u"/proc/self/status"_s);
    status.open(QIODevice::ReadOnly);
    const QString text = QString::fromLatin1(status.readAll());
    std::printf("%s\n", qPrintable(text.section(u"VmRSS:"_s, 1).section(u"kB"_s, 0, 0).trimmed()));
}

/// Waits for the first paint event of any widget. When the window with all its widgets has been
/// painted, prints the time. @p msecsAtRest later prints the memory and exits.
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
        QTimer::singleShot(0, qApp, printTime);
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
