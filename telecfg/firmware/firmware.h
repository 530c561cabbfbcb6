// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QString>

// One raw firmware image with its descriptive fields; writes the device's firmware files
// and reads them back. A plain value class: all work is done in memory on QByteArray
// buffers, apart from the few operations that take a path.
class TELECFG_EXPORT firmware
{
public:
    // Sets the process-wide page size back to 2048.
    firmware();

    int addDecodedFirmware(const QByteArray &raw);
    int addEncodedFirmware(const QByteArray &array);
    QByteArray encode(const QByteArray &payload, bool plain);
    int getEncodedFile(QByteArray &out);
    int saveEncodedFile(QByteArray &out, QString path);
    int saveEncodedFile(QString path);
    int loadEncodedFile(QString path);
    int loadRawFile(QString path);
    int saveRawFile(QString path);
    QByteArray encode_old(const QByteArray &data);
    QByteArray decode_old(const QByteArray &data);

    static int crypt(QByteArray &image, int hw1, int hw2, const unsigned char *key,
                     unsigned compress);
    static int crypt1(QByteArray &data, int hw1, int hw2, const unsigned char *key);
    static QByteArray decode(const QByteArray &array);
    static QByteArray decode1(const QByteArray &array);
    static int decrypt(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                       unsigned headerOnly);
    static int decrypt1(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                        unsigned headerOnly);
    static int recode(QByteArray &body, const unsigned char *key);
    static int getFirmwareFromFile(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                                   bool &wantCompressed, unsigned &encodedSize, bool decipher);

    void setCompress(unsigned compress);
    void setHW(unsigned short hw1, unsigned short hw2);
    void setNameDate(QString name, QString date);
    // Changes the page size of every object in the process.
    void setPageSize(int size);
    void setUserName(QString userName);
    void SetMark(unsigned first, unsigned second, bool enabled, int padFill);

    // Fields a host has not set start defined: no compression, marks clear, erased-flash fill.
    QByteArray payload;
    qint32 payloadSize = 0;
    qint32 reservedWord = 0;
    quint16 hw1 = 0;
    quint16 hw2 = 0;
    quint32 markFirst = 0;
    quint32 markSecond = 0;
    bool markEnabled = false;
    quint32 compress = 0;
    // Below 256 its low byte fills the last page; otherwise random bytes do.
    qint32 padFill = 0xFF;
    QString name;
    QString date;
    QString userName;

private:
    static int page;
};
