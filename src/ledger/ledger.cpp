// SPDX-License-Identifier: MIT
#include "ledger/ledger.h"

#include "desktop/msgbox.h"
#include "desktop/programend.h"
#include "desktop/programfolder.h"
#include "desktop/singleinstance.h"
#include "ledger/database.h"
#include "runtime/runtimeerror.h"
#include "runtime/values.h"

using namespace Qt::StringLiterals;

std::unique_ptr<Connection> LedgerConnection;
Recordset RecordsetA(LedgerConnection);
Recordset RecordsetB(LedgerConnection);
QString CurrentUser;

void ConnectLedger()
{
    try {
        LedgerConnection = Connection::open(programFile(u"data/ztkdata.ZDB"_s));
    } catch (const RunTimeError &error) {
        if (!hasInstanceLock() && error.description() == messageOf(Refusal::InUse))
            refuseSecondCopy(); // which could not be recognised before
        else
            MsgBox(u"เชื่อมต่อฐานข้อมูลไม่ได้ : "_s + error.description());
        endProgram(1);
    }
    atProgramEnd(CloseLedger);
}

void CloseLedger()
{
    if (!LedgerConnection)
        return;
    try {
        LedgerConnection->requireOwnFile();
    } catch (const FatalError &error) {
        endWithReport(error);
    }
    LedgerConnection.reset();
}

qint32 nextKey(const QString &table, const QString &key)
{
    RecordsetB.open(u"SELECT Max(%1.%2) As MaxPK FROM %1 "_s.arg(table, key));
    const QVariant largest = RecordsetB.field(u"MaxPK"_s);
    RecordsetB.close();
    return largest.isNull() ? 1 : CLng(largest.toDouble() + 1);
}

QStringList FillCombo(const QString &table, const QString &order, const QString &display)
{
    QStringList texts;
    RecordsetB.open(u"SELECT * FROM %1 ORDER BY %2"_s.arg(table, order));
    for (; !RecordsetB.eof(); RecordsetB.moveNext())
        texts += RecordsetB.field(display).toString();
    RecordsetB.close();
    return texts;
}

qint16 LookupKey(const QString &comboText, const QString &table, const QString &key,
                 const QString &textColumn)
{
    if (comboText == u"-"_s || comboText.isEmpty())
        return 0;
    RecordsetB.open(u"SELECT * FROM %1 WHERE [%2] = ? COLLATE AnyCase ORDER BY %3"_s.arg(
                        table, textColumn, key),
                    {trimBlanks(comboText)});
    qint16 found = 0;
    if (RecordsetB.recordCount() > 0) {
        found = CInt(numberOf(RecordsetB.field(key)));
    } else {
        found = CInt(double(nextKey(table, key)));
        RecordsetB.openTable(table);
        RecordsetB.set(key, found);
        RecordsetB.set(textColumn, comboText);
        RecordsetB.update();
    }
    RecordsetB.close();
    return found;
}
