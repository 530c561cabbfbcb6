// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/blockcipher_p.h"

#include <climits>
#include <openssl/evp.h>

namespace {

const EVP_CIPHER *aes128Ecb()
{
    // Fetched once: a fetch per call would search the provider tables every time.
    static EVP_CIPHER *const cipher = EVP_CIPHER_fetch(nullptr, "AES-128-ECB", nullptr);
    return cipher;
}

} // namespace

struct BlockCipher::Context
{
    EVP_CIPHER_CTX *ctx = nullptr;
};

BlockCipher::BlockCipher(const unsigned char *key, Direction direction) : context(new Context)
{
    context->ctx = key ? EVP_CIPHER_CTX_new() : nullptr;
    if (context->ctx && aes128Ecb() &&
        EVP_CipherInit_ex2(context->ctx, aes128Ecb(), key, nullptr, int(direction), nullptr) == 1) {
        EVP_CIPHER_CTX_set_padding(context->ctx, 0);
    } else {
        EVP_CIPHER_CTX_free(context->ctx);
        context->ctx = nullptr;
    }
}

BlockCipher::~BlockCipher()
{
    EVP_CIPHER_CTX_free(context->ctx);
    delete context;
}

void BlockCipher::apply(unsigned char *data, qint64 length)
{
    if (!context->ctx || !data || length < 16)
        return;
    qint64 whole = length - length % 16;
    while (whole > 0) {
        const int chunk = int(qMin<qint64>(whole, INT_MAX - 15) & ~qint64(15));
        int written = 0;
        EVP_CipherUpdate(context->ctx, data, &written, data, chunk);
        data += chunk;
        whole -= chunk;
    }
}

void BlockCipher::apply(QByteArray &data, int from)
{
    if (from < 0 || from >= data.size())
        return;
    apply(reinterpret_cast<unsigned char *>(data.data()) + from, data.size() - from);
}

void BlockCipher::applyOnce(const unsigned char *key, Direction direction, QByteArray &data,
                            int from)
{
    BlockCipher cipher(key, direction);
    cipher.apply(data, from);
}
