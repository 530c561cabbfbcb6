// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

// AES-128 in ECB mode over whole 16-byte blocks, without padding. One object holds one
// expanded key; the cipher itself is looked up once per process.
class BlockCipher
{
public:
    enum Direction { Decipher = 0, Encipher = 1 };

    BlockCipher(const unsigned char *key, Direction direction);
    ~BlockCipher();
    BlockCipher(const BlockCipher &) = delete;
    BlockCipher &operator=(const BlockCipher &) = delete;

    // Works in place on the whole blocks of `length` bytes; a tail of length % 16 stays.
    void apply(unsigned char *data, qint64 length);
    // The blocks of `data` from byte `from` to its end; data is detached first.
    void apply(QByteArray &data, int from = 0);

    // One call for the whole buffer: what each block costs with a ready key.
    static void applyOnce(const unsigned char *key, Direction direction, QByteArray &data,
                          int from = 0);

private:
    struct Context;
    Context *context;
};
