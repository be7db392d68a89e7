// SPDX-License-Identifier: MIT
// The other readers as a program, for a process that cannot call them: it runs under Wine, they on
// the machine itself. Usage: other_reader xls|pdf FILE ANSWER. The answer has its name once it is
// whole.
#include "support/otherreaders.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    QFile file(arguments.value(2));
    QFile answer(arguments.value(3) + u".part"_s);
    if (!file.open(QIODevice::ReadOnly) || !answer.open(QIODevice::WriteOnly))
        return 1;
    QDataStream stream(&answer);
    if (arguments.value(1) == u"xls"_s)
        stream << readXls(file.readAll());
    else
        stream << readPdf(file.readAll());
    answer.close();
    return answer.rename(arguments.value(3)) ? 0 : 1;
}
