// SPDX-License-Identifier: MIT
// The player and the paper: each report is opened by its button, looked at, and saved as a sheet
// and as a document through the real dialog.
#include "tour/player.h"

#include "paper/pagepainter.h"
#include "paper/reportviewer.h"
#include "widgets/pushbutton.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int TwipsPerPixel = 15; // a page as large as on a common screen

/// How the files begin that other programs take for a sheet and for a document.
const QByteArray SheetMark = QByteArray::fromHex("d0cf11e0a1b11ae1");
const QByteArray DocumentMark = "%PDF-";

} // namespace

void Player::printReport(PushButton *button, const QString &viewer, const QString &scene)
{
    QWidget *opener = button->window();
    QString shown = u"nothing"_s;
    m_hands.inNextDialog([&](QWidget *window) {
        shown = window->objectName();
        takePicture(scene + u"-printed"_s, window);
        drawFirstPage(window, scene + u"-page"_s);
        exportReport(window, u"Command1"_s, scene + u".xls"_s, SheetMark);
        exportReport(window, u"Command2"_s, scene + u".pdf"_s, DocumentMark);
        window->close();
    });
    Hands::click(button);
    if (!Hands::focusComesTo(opener))
        compare(u"window of the print button"_s, u"in front"_s, u"behind"_s);
    compare(u"viewer"_s, viewer, shown);
}

void Player::drawFirstPage(QWidget *viewer, const QString &scene)
{
    if (m_pictures.isEmpty())
        return;
    const ReportPages &report = viewer->findChild<ReportViewer *>()->report();
    QImage paper(report.paper() / TwipsPerPixel, QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.scale(1.0 / TwipsPerPixel, 1.0 / TwipsPerPixel);
    drawPage(painter, report.pages.first());
    painter.end();
    paper.save(pictureName(scene));
}

/// Saves by @p button. The name is keyed without its ending, which the program adds.
void Player::exportReport(QWidget *viewer, const QString &button, const QString &file,
                          const QByteArray &mark)
{
    QString path = m_exports.filePath(m_name + u'-' + file);
    if (!m_pictures.isEmpty())
        path = QDir(m_pictures).absoluteFilePath(m_name + u'-' + file);
    QFile::remove(path); // of an earlier tour; the program would ask
    Hands::focusComesTo(viewer);
    m_hands.inNextDialog([&](QWidget *dialog) {
        auto *name = dialog->findChild<QLineEdit *>(u"fileNameEdit"_s);
        name->setText(path.chopped(4));
        name->setFocus();
        Hands::focusComesTo(dialog);
        Hands::press(Qt::Key_Return);
    });
    Hands::click(viewer->findChild<QWidget *>(button));
    QFile saved(path);
    const bool opens = saved.open(QIODevice::ReadOnly);
    compare(u"beginning of "_s + file, QString::fromLatin1(mark.toHex()),
            opens ? QString::fromLatin1(saved.read(mark.size()).toHex()) : u"no file"_s);
    compare(u"boxes of the export"_s, QString(), m_hands.takeBoxes().join(u'\n'));
}
