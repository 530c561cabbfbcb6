// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include "telecfg/telecfg_export.h"

#include <QByteArray>
#include <QString>

/// One raw firmware image with its descriptive fields; writes the device's firmware files
/// and reads them back. A plain value class: all work is done in memory on QByteArray
/// buffers, apart from the few operations that take a path.
class TELECFG_EXPORT firmware
{
public:
    /// Creates an empty image with the default fields and sets the process-wide page size back
    /// to 2048.
    firmware();

    /// Takes a raw image as the payload.
    /// @param raw the image bytes; copied.
    /// @return 0.
    int addDecodedFirmware(const QByteArray &raw);
    /// Takes the payload from an image of page records.
    /// @param array the page records and the trailer.
    /// @return 0; -1 when the length does not fit the page size; -2 when the stated length is not
    ///         the array's.
    int addEncodedFirmware(const QByteArray &array);
    /// Builds the image: the name and size blocks, one page record per page and the trailer.
    /// Cuts `name` at its last ".bin" and to 31 characters, `userName` to 15.
    /// @param source the raw payload.
    /// @param plain true leaves the size block and the pages unenciphered.
    /// @return the image; empty when it would have more than 240 pages.
    QByteArray encode(const QByteArray &source, bool plain);
    /// Builds the image of the payload (encode()).
    /// @param[out] out the image.
    /// @return 0.
    int getEncodedFile(QByteArray &out);
    /// Builds the whole firmware file of the payload under the built-in key.
    /// @param[out] out the file's bytes.
    /// @param path not used; only `out` is filled.
    /// @return 0; 1 when the image cannot be built (more than 240 pages).
    int saveEncodedFile(QByteArray &out, QString path);
    /// Builds the whole firmware file of the payload and writes it.
    /// @param path where to write; backslashes count as slashes.
    /// @return 0, also when the file cannot be written; 1 when the image cannot be built (the file
    ///         is then removed).
    int saveEncodedFile(QString path);
    /// Reads a file of page records as addEncodedFirmware() does.
    /// @param path the file; one that cannot be read counts as empty.
    /// @return as addEncodedFirmware().
    int loadEncodedFile(QString path);
    /// Reads a raw image as the payload.
    /// @param path the file; one that cannot be read gives an empty payload.
    /// @return 0.
    int loadRawFile(QString path);
    /// Writes the payload as it is.
    /// @param path the file.
    /// @return 0, also when the file cannot be written.
    int saveRawFile(QString path);
    /// Enciphers with the legacy word chain.
    /// @param data the plain bytes.
    /// @return the enciphered bytes.
    QByteArray encode_old(const QByteArray &data);
    /// Deciphers the legacy word chain.
    /// @param data the enciphered bytes.
    /// @return the plain bytes.
    QByteArray decode_old(const QByteArray &data);

    /// Wraps an image into a firmware file: the outer header and the uncompressed or the
    /// compressed body.
    /// @param[in,out] image the image (encode()); replaced by the file.
    /// @param hw1 the hardware word the file is for.
    /// @param hw2 the second hardware word.
    /// @param key the 16-byte key of the compressed body; null for the built-in one. Not kept.
    /// @param compress 0 for the uncompressed form, otherwise the compressed one.
    /// @return 0.
    static int crypt(QByteArray &image, int hw1, int hw2, const unsigned char *key,
                     unsigned compress);
    /// Wraps bytes into a sealed firmware file, all enciphered under `key`.
    /// @param[in,out] data the bytes; replaced by the file.
    /// @param hw1 the hardware word the file is for.
    /// @param hw2 the second hardware word.
    /// @param key the 16-byte key; null for the built-in one. Not kept.
    /// @return 0.
    static int crypt1(QByteArray &data, int hw1, int hw2, const unsigned char *key);
    /// Takes the pages out of page records followed by an 8-byte trailer.
    /// @param array the records.
    /// @return the pages; empty when the length is no whole number of records, or above 250
    /// records.
    static QByteArray decode(const QByteArray &array);
    /// The same as decode().
    /// @param array the records.
    /// @return as decode().
    static QByteArray decode1(const QByteArray &array);
    /// Reads the hardware words of a sealed or tagged file and, unless asked for the header only,
    /// replaces the file by its deciphered pages.
    /// @param[in,out] file the file; replaced unless `headerOnly`.
    /// @param[out] hw1 the file's hardware word.
    /// @param[out] hw2 the file's second hardware word.
    /// @param key not used: the outer layer is always under the built-in key.
    /// @param headerOnly non-zero reads only the hardware words.
    /// @return 0.
    static int decrypt(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                       unsigned headerOnly);
    /// As decrypt() for a file whose outer layer is not enciphered.
    /// @param[in,out] file the file; replaced unless `headerOnly`.
    /// @param[out] hw1 the file's hardware word.
    /// @param[out] hw2 the file's second hardware word.
    /// @param key not used.
    /// @param headerOnly non-zero reads only the hardware words.
    /// @return 0.
    static int decrypt1(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                        unsigned headerOnly);
    /// Turns a compressed body into the uncompressed image with its pages enciphered under the
    /// page key, checking the image trailer.
    /// @param[in,out] body the file; replaced by the image when read.
    /// @param key the 16-byte key of the body; null for the built-in one. Not kept.
    /// @return 0 when read; 2 when the stream or its checksum is faulty.
    static int recode(QByteArray &body, const unsigned char *key);
    /// Checks a firmware file of any form and replaces it by what the host sends to the device.
    /// @param[in,out] file the file; replaced by the result when read.
    /// @param[in,out] hw1 in: the hardware the file should be for; out: the file's word.
    /// @param[in,out] hw2 the second hardware word, likewise.
    /// @param key the 16-byte key of compressed bodies; null for the built-in one. Not kept.
    /// @param[out] wantCompressed whether the file is of the compressed form.
    /// @param[out] encodedSize the size stated in the outer header.
    /// @param decipher whether a sealed file's body is deciphered.
    /// @return 0 when read; 1 too short or of an unknown type; 2 size no multiple of 16 or a faulty
    ///         compressed stream; 3 shorter than its header says; 4 header checksum wrong; 5 read,
    ///         but for another `hw1`. The guide "Firmware files" tells each in full.
    static int getFirmwareFromFile(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                                   bool &wantCompressed, unsigned &encodedSize, bool decipher);

    /// @param value non-zero makes saveEncodedFile() write the compressed form.
    void setCompress(unsigned value);
    /// @param first the hardware word written into files.
    /// @param second the second hardware word.
    void setHW(unsigned short first, unsigned short second);
    /// @param name the image's name, written into the name block.
    /// @param date the image's date text.
    void setNameDate(QString name, QString date);
    /// Changes the page size of every object in the process.
    /// @param size the page size in bytes.
    void setPageSize(int size);
    /// @param userName the user name written into the name and size blocks.
    void setUserName(QString userName);
    /// Sets the marks, which the object keeps for the host (no file carries them), and the fill
    /// of the last page.
    /// @param first the first mark word.
    /// @param second the second mark word.
    /// @param enabled whether the marks are set.
    /// @param padFill below 256 its low byte fills the last page; otherwise random bytes do.
    void SetMark(unsigned first, unsigned second, bool enabled, int padFill);

    /// Fields a host has not set start defined: no compression, marks clear, erased-flash fill.
    /// The raw image.
    QByteArray payload;
    /// Its size as last taken in.
    qint32 payloadSize = 0;
    /// Kept for hosts; not written.
    qint32 reservedWord = 0;
    /// The hardware word written into files.
    quint16 hw1 = 0;
    /// The second hardware word.
    quint16 hw2 = 0;
    /// The first mark word; kept for the host.
    quint32 markFirst = 0;
    /// The second mark word; kept for the host.
    quint32 markSecond = 0;
    /// Whether the marks are set; kept for the host, no file carries them.
    bool markEnabled = false;
    /// Non-zero writes the compressed form.
    quint32 compress = 0;
    /// Below 256 its low byte fills the last page; otherwise random bytes do.
    qint32 padFill = 0xFF;
    /// The image's name.
    QString name;
    /// The image's date text.
    QString date;
    /// The user name.
    QString userName;

private:
    static int page;
};
