// SPDX-License-Identifier: MIT
#include "reports/export.h"

#include "desktop/clock.h"
#include "desktop/msgbox.h"
#include "desktop/savefile.h"
#include "paper/pdfexport.h"
#include "paper/sheetofpages.h"

#include <QDir>
#include <QFileInfo>

#include <array>

using namespace Qt::StringLiterals;

namespace {

QByteArray excelOf(const ReportPages &report)
{
    return xlsOf(sheetOf(report));
}

struct FormatEntry
{
    QStringView title;
    QStringView extension; ///< for the save dialog
    QStringView ending;    ///< appended to the file name
    QByteArray (*bytesOf)(const ReportPages &report) = nullptr;
};

constexpr std::array FormatEntries{
    FormatEntry{u"เลือกตำแหน่งบันทึก Excel", u".xls", u".xls", excelOf},
    FormatEntry{u"เลือกตำแหน่งบันทึก PDF", u".PDF", u".pdf", pdfOf},
};

bool mayReplace(const QString &path, const QString &title)
{
    const QString name = QDir::toNativeSeparators(path);
    return !QFileInfo::exists(path)
           || ask(u"มีไฟล์ชื่อนี้อยู่แล้ว ต้องการบันทึกทับหรือไม่\n"_s + name, title, BoxIcon::Question,
                  BoxAnswer::Cancel);
}

} // namespace

void exportReport(ExportFormat format, const ReportPages &report)
{
    const FormatEntry &entry = FormatEntries[size_t(format)];
    const QString title = entry.title.toString();
    const QString stamp = currentDateTime().toString(u"dd-MM-yy-HH-mm-ss"_s);
    const QString picked = askForFileName({title, entry.extension.toString(), stamp});
    if (picked.isEmpty())
        return;
    const QString path = picked + entry.ending.toString();
    if (mayReplace(path, title))
        saveFile(path, entry.bytesOf(report));
}
