// SPDX-License-Identifier: MIT
#include "ledger/salt.h"

#include <QMessageAuthenticationCode>

namespace {

/// SQLCipher's way from a password to a key: PBKDF2 with HMAC-SHA1.
QByteArray derivedKey(const QByteArray &password, const QByteArray &salt)
{
    constexpr qsizetype KeySize = 32;
    constexpr int Turns = 64'000;
    QMessageAuthenticationCode code(QCryptographicHash::Sha1, password);
    const auto turned = [&code](const QByteArray &bytes) {
        code.reset();
        code.addData(bytes);
        return code.result();
    };
    QByteArray key;
    for (char block = 1; key.size() < KeySize; ++block) {
        QByteArray turn = turned(salt + QByteArray(3, '\0') + block);
        QByteArray sum = turn;
        for (int at = 1; at < Turns; ++at) {
            turn = turned(turn);
            for (qsizetype place = 0; place < sum.size(); ++place)
                sum[place] = char(sum[place] ^ turn[place]);
        }
        key += sum;
    }
    return key.first(KeySize);
}

} // namespace

QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt)
{
    const bool isKey = password.startsWith("x'");
    const QByteArray key =
        isKey ? password.sliced(2).chopped(1) : derivedKey(password, salt).toHex();
    return "x'" + key + salt.toHex() + '\'';
}
