// SPDX-License-Identifier: MIT
#include "faults/rawpages.h"

#include "ledger/connection.h"

#include <QFile>
#include <QHash>

#include <array>

#include <openssl/evp.h>
#include <openssl/hmac.h>

namespace {

constexpr int PageSize = 1024;
constexpr int SaltSize = 16;
constexpr int KeySize = 32;
constexpr int IvSize = 16;
constexpr int SignatureSize = 20;
constexpr int ReserveSize = 48; ///< vector and signature, filled up to whole blocks
constexpr int Turns = 64'000;
constexpr int SignatureTurns = 2;
constexpr int JournalHeader = 32;
constexpr int FrameHeader = 24;

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const uchar *raw(const QByteArray &bytes)
{
    return reinterpret_cast<const uchar *>(bytes.constData());
}

QByteArray turned(const QByteArray &secret, const QByteArray &salt, int turns)
{
    QByteArray key(KeySize, '\0');
    PKCS5_PBKDF2_HMAC_SHA1(secret.constData(), int(secret.size()), raw(salt), int(salt.size()),
                           turns, KeySize, reinterpret_cast<uchar *>(key.data()));
    return key;
}

struct Keys
{
    QByteArray cipher;
    QByteArray signature;
};

const Keys &keysOf(const QString &ledger)
{
    static QHash<QByteArray, Keys> known;
    QByteArray salt = bytesOf(ledger).left(SaltSize);
    Keys &keys = known[salt];
    if (keys.cipher.isEmpty()) {
        keys.cipher = turned(LedgerPassword, salt, Turns);
        for (char &byte : salt)
            byte = char(byte ^ 0x3a);
        keys.signature = turned(keys.cipher, salt, SignatureTurns);
    }
    return keys;
}

bool isSigned(QByteArray ciphered, quint32 number, const QByteArray &signature, const Keys &keys)
{
    for (int byte = 0; byte < 4; ++byte)
        ciphered += char(number >> (8 * byte));
    std::array<uchar, EVP_MAX_MD_SIZE> made{};
    HMAC(EVP_sha1(), keys.signature.constData(), int(keys.signature.size()), raw(ciphered),
         size_t(ciphered.size()), made.data(), nullptr);
    return signature == QByteArray(reinterpret_cast<char *>(made.data()), SignatureSize);
}

QByteArray decrypted(const QByteArray &ciphered, const QByteArray &vector, const Keys &keys)
{
    QByteArray plain(ciphered.size(), '\0');
    int size = 0;
    EVP_CIPHER_CTX *context = EVP_CIPHER_CTX_new();
    EVP_DecryptInit_ex(context, EVP_aes_256_cbc(), nullptr, raw(keys.cipher), raw(vector));
    EVP_CIPHER_CTX_set_padding(context, 0);
    EVP_DecryptUpdate(context, reinterpret_cast<uchar *>(plain.data()), &size, raw(ciphered),
                      int(ciphered.size()));
    EVP_CIPHER_CTX_free(context);
    return plain;
}

void readPage(const QByteArray &page, quint32 number, const Keys &keys, RawPages &pages)
{
    if (page.count('\0') == page.size())
        return; // never written
    const int begin = number == 1 ? SaltSize : 0;
    const int end = PageSize - ReserveSize;
    const QByteArray signature = page.mid(end + IvSize, SignatureSize);
    if (page.size() != PageSize
        || !isSigned(page.mid(begin, end + IvSize - begin), number, signature, keys))
        pages.broken += int(number);
    else
        pages.plain += decrypted(page.mid(begin, end - begin), page.mid(end, IvSize), keys);
}

} // namespace

RawPages readRawPages(const QString &path, const QString &ledger)
{
    RawPages pages;
    const Keys &keys = keysOf(ledger);
    const QByteArray bytes = bytesOf(path);
    if (path == ledger) {
        for (int at = 0; at < bytes.size(); at += PageSize)
            readPage(bytes.mid(at, PageSize), quint32(at / PageSize + 1), keys, pages);
        return pages;
    }
    for (int at = JournalHeader; at < bytes.size(); at += FrameHeader + PageSize) {
        const quint32 number = bytes.mid(at, 4).toHex().toUInt(nullptr, 16);
        readPage(bytes.mid(at + FrameHeader, PageSize), number, keys, pages);
    }
    return pages;
}

QByteArray readyKey(const QString &ledger)
{
    return "x'" + keysOf(ledger).cipher.toHex() + '\'';
}
