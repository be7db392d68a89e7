// SPDX-License-Identifier: MIT
#include "settings/closing.h"

#include "desktop/msgbox.h"
#include "desktop/programend.h"
#include "ledger/ledger.h"
#include "ledger/schema.h"
#include "runtime/runtimeerror.h"

using namespace Qt::StringLiterals;

namespace {

constexpr std::array ClosingStatements{
    "DELETE FROM tblRMoney",
    "DELETE FROM tblNumber",
    "DELETE FROM tblNumberCut",
    "DELETE FROM tblNumberFix",
};

/// Customer 0 is "-", no customer, and part of every Ledger.
constexpr std::array WipeStatements{
    "DELETE FROM tblMember WHERE [MPK] > 0",
    "DELETE FROM tblRMoney",
    "DELETE FROM tblNumber",
    "DELETE FROM tblNumberCut",
    "DELETE FROM tblNumberFix",
    "DELETE FROM tblNumLog",
};

template<typename Statements>
void runAll(const Statements &statements)
{
    for (const char *statement : statements)
        LedgerConnection->run(QString::fromLatin1(statement));
}

/// Copies the result checked last to the history, even if it is that of an earlier draw.
void logDraw()
{
    RecordsetA.open(u" SELECT  tblTrue.* FROM tblTrue WHERE [PK] = 1 "_s);
    RecordsetB.openTable(u"tblNumLog"_s);
    for (const TableColumn &column : ResultColumns)
        RecordsetB.set(QLatin1String(column.name), RecordsetA.field(QLatin1String(column.name)));
    RecordsetB.update();
    RecordsetA.close();
    RecordsetB.close();
}

/// Checkpoints the WAL, since the file still contains the deleted rows until then. Called before
/// the last box, since the machine may be switched off while the box is open.
void overwriteDeleted()
{
    LedgerConnection->moveWalIntoFile();
}

bool confirmDeletion(const QString &question)
{
    return ask(question, u"ยืนยันการลบข้อมูล"_s, BoxIcon::Exclamation, BoxAnswer::Cancel);
}

} // namespace

void closeDraw(const BoardShowsRows &boardShowsRows)
{
    if (!boardShowsRows()) {
        refuse(u"ไม่สามารถลบข้อมูลได้ ( ไม่มีข้อมูลเลข ) อยู่ในฐานข้อมูล . . . . ."_s);
        return;
    }
    if (!confirmDeletion(u"คุณแน่ใจว่าต้องการลบข้อมูล ( เลขทั้งหมดของงวดนี้ !! ) ออกทั้งหมด แน่ใจ?"_s))
        return;
    runAll(ClosingStatements);
    logDraw();
    resumeNext(overwriteDeleted); // closing the Ledger tries it again
    refuse(u"ลบข้อมูล เลขงวดนี้ ทั้งหมดเสร็จสิ้น ( โปรดเปิดโปรแกรมใหม่อีกครั้ง .. )"_s);
    endProgram(0);
}

void wipeLedger()
{
    if (!confirmDeletion(u"คุณแน่ใจว่าต้องการลบข้อมูล ( ทั้งหมด ) ออกจาก ฐานข้อมูล แน่ใจ?"_s)
        || !confirmDeletion(u"โปรดยืนยันการ ( ลบข้อมูลออกทั้งหมด ) อีกครั้ง !!!!!!!! "_s))
        return;
    runAll(WipeStatements);
    resumeNext(overwriteDeleted); // closing the Ledger tries it again
    refuse(u"ลบข้อมูลทั้งหมดเสร็จสิ้นแล้ว ( โปรดเปิดโปรแกรมใหม่อีกครั้ง .. )"_s);
    endProgram(0);
}
