// SPDX-License-Identifier: MIT
// Gives inputs to a fuzz target: those of a fuzzer, those of a corpus, which has one in each row
// with odd bytes as "%0A", or other files that are inputs. Prints each as such a row.
#include "fuzz/fuzz.h"

#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    tryInput({reinterpret_cast<const char *>(data), qsizetype(size)});
    return 0;
}

#ifndef MIRAKLA_FUZZ
int main(int argc, char **argv)
{
    for (int at = 1; at < argc; ++at) {
        QFile file(QString::fromLocal8Bit(argv[at]));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        const bool isCorpus = file.fileName().endsWith(QLatin1String(".txt"));
        const QByteArray bytes = file.readAll();
        for (const QByteArray &row :
             isCorpus ? bytes.trimmed().split('\n')
                      : QByteArrayList{bytes.toPercentEncoding("!#$&()*+,/:;<=>?@[]^{|}")}) {
            std::puts(row.constData());
            std::fflush(stdout); // the last row is that of the rule that was broken
            tryInput(QByteArray::fromPercentEncoding(row));
        }
    }
}
#endif
