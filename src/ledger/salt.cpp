// SPDX-License-Identifier: MIT
#include "ledger/salt.h"

#include <openssl/evp.h>

namespace {

/// Derives the key as SQLCipher 3 does: PBKDF2 with HMAC-SHA1.
QByteArray derivedKey(const QByteArray &password, const QByteArray &salt)
{
    constexpr int KeySize = 32;
    constexpr int Rounds = 64'000;
    QByteArray key(KeySize, '\0');
    PKCS5_PBKDF2_HMAC_SHA1(password.constData(), int(password.size()),
                           reinterpret_cast<const unsigned char *>(salt.constData()),
                           int(salt.size()), Rounds, KeySize,
                           reinterpret_cast<unsigned char *>(key.data()));
    return key;
}

} // namespace

QByteArray keyWithSalt(const QByteArray &password, const QByteArray &salt)
{
    const bool isKey = password.startsWith("x'");
    const QByteArray key =
        isKey ? password.sliced(2).chopped(1) : derivedKey(password, salt).toHex();
    return "x'" + key + salt.toHex() + '\'';
}
