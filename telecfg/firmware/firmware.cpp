// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/firmware.h"

#include "telecfg/firmware/blockcipher_p.h"
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <QFile>
#include <QSaveFile>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <lz4.h>

int firmware::page = 2048;

namespace {

constexpr char tag[] = "Vestramarks";
constexpr int tagLength = 11;
constexpr int headerSize = 128;
constexpr int nameBlockSize = 96;
constexpr int sizeBlockSize = 32;
constexpr int trailerSize = 8;
constexpr int maxWrittenPages = 240;
// Deliberate: reading accepts ten pages more than writing produces.
constexpr int maxReadPages = 250;
// The compressed form always works in records of a 2048-byte page, whatever the page size.
constexpr int fixedPage = 2048;
constexpr int pieceSize = fixedPage + 8;
constexpr int ringSize = 2 * pieceSize + 10;
constexpr int accumulatorCapacity = 2112;
// Keeps the image and every offset inside a QByteArray's int range.
constexpr qint64 maxImageSize = qint64(1) << 30;

const unsigned char *bytes(const QByteArray &a)
{
    return reinterpret_cast<const unsigned char *>(a.constData());
}

unsigned char *bytes(QByteArray &a)
{
    return reinterpret_cast<unsigned char *>(a.data());
}

// Reads outside the array give 0, so damaged files are read without bounds trouble.
quint32 readLe32(const QByteArray &a, int at)
{
    if (at < 0 || at > a.size() - 4)
        return 0;
    const unsigned char *p = bytes(a) + at;
    return quint32(p[0]) | quint32(p[1]) << 8 | quint32(p[2]) << 16 | quint32(p[3]) << 24;
}

quint16 readLe16(const QByteArray &a, int at)
{
    if (at < 0 || at > a.size() - 2)
        return 0;
    const unsigned char *p = bytes(a) + at;
    return quint16(p[0] | p[1] << 8);
}

void putLe32(unsigned char *p, quint32 v)
{
    p[0] = uchar(v);
    p[1] = uchar(v >> 8);
    p[2] = uchar(v >> 16);
    p[3] = uchar(v >> 24);
}

void putLe16(unsigned char *p, quint16 v)
{
    p[0] = uchar(v);
    p[1] = uchar(v >> 8);
}

void appendLe32(QByteArray &a, quint32 v)
{
    unsigned char buffer[4];
    putLe32(buffer, v);
    a.append(reinterpret_cast<const char *>(buffer), 4);
}

// Appends a text field and zero-pads the block up to `end`; a longer text is kept whole.
void appendField(QByteArray &block, const QByteArray &text, int end)
{
    block.append(text);
    if (block.size() < end)
        block.append(end - block.size(), '\0');
}

void padTo16(QByteArray &a, int from)
{
    const int rest = (a.size() - from) % 16;
    if (rest)
        a.append(16 - rest, '\0');
}

quint32 crcOf(const QByteArray &a, int from = 0, int length = -1)
{
    if (length < 0)
        length = a.size() - from;
    return crc32next(0, bytes(a) + from, quint64(length));
}

// A host that passes no key gets the built-in outer key rather than a crash.
const unsigned char *keyOr(const unsigned char *key)
{
    return key ? key : outerKey;
}

QByteArray outerHeader(int hw1, int hw2)
{
    QByteArray header(headerSize, '\0');
    putLe16(bytes(header), quint16(hw1));
    putLe16(bytes(header) + 2, quint16(hw2));
    return header;
}

void finishOuterChecksum(QByteArray &file)
{
    putLe32(bytes(file) + 4, docrc32(bytes(file) + headerSize, file.size() - headerSize));
}

// Compresses data from `from` in pieces of one record as one LZ4 stream, appending each as
// a 16-bit length and the block, compressed straight into place. The dictionary is cut back
// to the previous piece before each next one: the reader's ring keeps no more than that.
quint32 appendCompressedPieces(QByteArray &body, const QByteArray &data, int from)
{
    LZ4_stream_t stream;
    LZ4_initStream(&stream, sizeof stream);
    char dictionary[pieceSize];
    constexpr int room = LZ4_COMPRESSBOUND(pieceSize);
    quint32 total = 0;
    for (int at = from; at < data.size(); at += pieceSize) {
        const int length = qMin(pieceSize, data.size() - at);
        const int start = body.size();
        body.resize(start + 2 + room);
        const int packed = LZ4_compress_fast_continue(&stream, data.constData() + at,
                                                      body.data() + start + 2, length, room, 1);
        putLe16(bytes(body) + start, quint16(packed));
        body.resize(start + 2 + packed);
        total += quint32(packed);
        LZ4_saveDict(&stream, dictionary, length);
    }
    return total;
}

QByteArray wordChain(const QByteArray &data, bool encoding)
{
    const int words = data.size() / 4;
    QByteArray out(words * 4, '\0');
    quint32 previous = legacyChainSeed;
    for (int i = 0; i < words; ++i) {
        const quint32 in = readLe32(data, i * 4);
        const quint32 result = in ^ (previous + legacyChainConstant);
        putLe32(bytes(out) + std::ptrdiff_t(i) * 4, result);
        previous = encoding ? result : in;
    }
    return out;
}

// A file that cannot be opened reads as empty.
QByteArray readWholeFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

// Written beside the target and renamed over it only once complete: a write that fails
// (a full disk, a path that cannot be made) leaves the earlier file as it was.
bool writeWholeFile(const QString &path, const QByteArray &content)
{
    QSaveFile file(path);
    // The explicit flush matters: an error of the flush that commit makes itself goes
    // unnoticed, and a cut-off file would replace the earlier one.
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() &&
           file.flush() && file.commit();
}

// Re-packs raw firmware as a compressed file under the built-in outer key.
void convertToCompressed(QByteArray &file, int hw1, int hw2)
{
    firmware temporary; // sets the page size back to 2048
    temporary.setHW(quint16(hw1), quint16(hw2));
    temporary.SetMark(0, 0, false, 511);
    temporary.setUserName(QStringLiteral("VTM"));
    temporary.setCompress(1);
    QByteArray image = temporary.encode(file, false);
    firmware::crypt(image, hw1, hw2, outerKey, 1);
    file = image;
}

} // namespace

firmware::firmware()
{
    page = 2048;
}

int firmware::addDecodedFirmware(const QByteArray &raw)
{
    payload.clear();
    payload = QByteArray(raw.constData(), raw.size());
    payloadSize = payload.size();
    return 0;
}

int firmware::addEncodedFirmware(const QByteArray &array)
{
    payload.clear();
    const qint64 record = qint64(page) + 8;
    if (array.size() < qint64(page) + 24 || record <= 0)
        return -1;
    if ((array.size() - 16) % record != 0)
        return -1;
    if (readLe32(array, 0) != quint32(array.size()))
        return -2;
    // Deliberate: this layout never matches decode's, so payload stays empty here.
    payload = decode(array);
    return 0;
}

QByteArray firmware::encode(const QByteArray &source, bool plain)
{
    QByteArray data = source;

    const int bin = name.lastIndexOf(QLatin1String(".bin"));
    if (bin > 0)
        name.truncate(bin);
    if (name.size() > 31)
        name.truncate(31);
    if (userName.size() > 15)
        userName.truncate(15);

    QByteArray image;
    image.append(tag, tagLength + 1);
    image.append(4, '\0');
    appendField(image, name.toLatin1(), 48);
    // Deliberate: a longer date is not cut, and the fields after it move.
    appendField(image, date.toLatin1(), 68);
    appendField(image, userName.toLatin1(), 92);
    appendLe32(image, crcOf(image));

    std::srand(unsigned(std::time(nullptr)));
    if (page <= 0)
        return QByteArray();
    const qint64 pageSize = page;
    qint64 pages = data.size() / pageSize;
    if (pages * pageSize != data.size())
        ++pages;
    const qint64 imageSize = 136 + pages * (pageSize + 8);
    if (pages > maxWrittenPages || imageSize > maxImageSize)
        return QByteArray();
    const int missing = int(pages * pageSize - data.size());
    if (missing > 0) {
        const int at = data.size();
        data.resize(at + missing);
        for (int i = 0; i < missing; ++i)
            data[at + i] = char(padFill < 256 ? padFill : std::rand());
    }

    const bool encipher = !plain && compress == 0;
    BlockCipher cipher(pageKey, BlockCipher::Encipher);

    QByteArray sizeBlock(sizeBlockSize, '\0');
    putLe32(bytes(sizeBlock), quint32(imageSize));
    const QByteArray user = userName.toLatin1();
    std::memcpy(bytes(sizeBlock) + 8, user.constData(), size_t(qMin(user.size(), 16)));
    putLe32(bytes(sizeBlock) + 24, quint32(pages));
    putLe32(bytes(sizeBlock) + 28, crcOf(sizeBlock, 0, 28));
    if (encipher)
        cipher.apply(sizeBlock);
    image.append(sizeBlock);

    int at = image.size();
    image.resize(int(at + pages * (pageSize + 8) + trailerSize));
    for (int i = 0; i < pages; ++i) {
        unsigned char *record = bytes(image) + at;
        std::memcpy(record, data.constData() + i * pageSize, size_t(pageSize));
        if (encipher)
            cipher.apply(record, pageSize);
        putLe32(record + pageSize, crc32next(0, record, quint64(pageSize)));
        record[pageSize + 4] = uchar(tag[i % tagLength]);
        const int number = i + 1;
        record[pageSize + 5] = uchar('0' + number / 100 % 10);
        record[pageSize + 6] = uchar('0' + number / 10 % 10);
        record[pageSize + 7] = uchar('0' + number % 10);
        at += int(pageSize) + 8;
    }
    putLe32(bytes(image) + at, get_whole_crc(bytes(image), at, page));
    std::memcpy(bytes(image) + at + 4, "VEST", 4);
    return image;
}

int firmware::getEncodedFile(QByteArray &out)
{
    out = encode(payload, false);
    return 0;
}

int firmware::saveEncodedFile(QByteArray &out, QString path)
{
    Q_UNUSED(path) // deliberate: this form only fills `out`
    QByteArray image = encode(payload, false);
    if (image.isEmpty())
        return 1;
    crypt(image, hw1, hw2, outerKey, compress);
    out = image;
    return 0;
}

int firmware::saveEncodedFile(QString path)
{
    path.replace(QLatin1Char('\\'), QLatin1Char('/'));
    QByteArray out;
    if (saveEncodedFile(out, path) != 0) {
        QFile::remove(path);
        return 1;
    }
    // Deliberate: a file that cannot be written still reports 0.
    writeWholeFile(path, out);
    return 0;
}

int firmware::loadEncodedFile(QString path)
{
    const QByteArray content = readWholeFile(path);
    return addEncodedFirmware(content);
}

int firmware::loadRawFile(QString path)
{
    const QByteArray content = readWholeFile(path);
    payload = QByteArray(content.constData(), content.size());
    payloadSize = payload.size();
    return 0;
}

int firmware::saveRawFile(QString path)
{
    // Deliberate: a file that cannot be written still reports 0.
    writeWholeFile(path, payload);
    return 0;
}

QByteArray firmware::encode_old(const QByteArray &data)
{
    return wordChain(data, true);
}

QByteArray firmware::decode_old(const QByteArray &data)
{
    return wordChain(data, false);
}

int firmware::crypt(QByteArray &image, int hw1, int hw2, const unsigned char *key,
                    unsigned compress)
{
    QByteArray file = outerHeader(hw1, hw2);
    putLe32(bytes(file) + 24, compress);
    putLe32(bytes(file) + 28, quint32(image.size()));
    // Room for the whole file, every compressed piece at its largest: the body never moves.
    const qint64 pieces = qMax(0, image.size() - headerSize) / pieceSize + 1;
    const qint64 room =
        compress ? 2 * qint64(headerSize) + pieces * (2 + LZ4_COMPRESSBOUND(pieceSize)) + 16
                 : qint64(headerSize) + image.size() + 16;
    file.reserve(int(qMin<qint64>(room, INT_MAX / 2)));
    file.append(image.left(headerSize));
    if (compress) {
        putLe32(bytes(file) + 8, appendCompressedPieces(file, image, headerSize));
        file.append(2, '\0');
    } else {
        putLe32(bytes(file) + 8, quint32(image.size()));
        file.append(image.constData() + qMin(headerSize, image.size()),
                    qMax(0, image.size() - headerSize));
    }
    padTo16(file, headerSize);
    if (compress)
        BlockCipher::applyOnce(keyOr(key), BlockCipher::Encipher, file, headerSize + nameBlockSize);
    finishOuterChecksum(file);
    image = file;
    return 0;
}

int firmware::crypt1(QByteArray &data, int hw1, int hw2, const unsigned char *key)
{
    QByteArray file = outerHeader(hw1, hw2);
    putLe32(bytes(file) + 8, quint32(data.size()));
    file.append(data);
    padTo16(file, headerSize);
    BlockCipher::applyOnce(keyOr(key), BlockCipher::Encipher, file, headerSize);
    finishOuterChecksum(file);
    data = file;
    return 0;
}

QByteArray firmware::decode(const QByteArray &array)
{
    if (page <= 0)
        return QByteArray();
    const auto pageSize = quint64(page);
    const quint64 record = pageSize + 8;
    // Unsigned on purpose: an array shorter than 8 bytes wraps to a huge count and fails.
    const quint64 rest = quint32(array.size()) - 8u;
    const quint64 pages = rest / record;
    if (pages * record != rest || pages > maxReadPages)
        return QByteArray();
    QByteArray out(int(pages * pageSize), Qt::Uninitialized);
    for (quint64 i = 0; i < pages; ++i)
        std::memcpy(bytes(out) + i * pageSize, bytes(array) + i * record, pageSize);
    return out;
}

QByteArray firmware::decode1(const QByteArray &array)
{
    return decode(array);
}

int firmware::decrypt(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                      unsigned headerOnly)
{
    Q_UNUSED(key) // deliberate: the outer layer is always under the built-in key
    hw1 = readLe16(file, 0);
    hw2 = readLe16(file, 2);
    if (headerOnly)
        return 0;
    const auto length = qint32(readLe32(file, 8));
    file.remove(0, headerSize);
    BlockCipher::applyOnce(outerKey, BlockCipher::Decipher, file);
    if (length < file.size())
        file.resize(qMax(0, length));
    file.remove(0, headerSize);
    file = decode(file);
    BlockCipher::applyOnce(pageKey, BlockCipher::Decipher, file);
    return 0;
}

int firmware::decrypt1(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                       unsigned headerOnly)
{
    Q_UNUSED(key) // deliberate: nothing is deciphered at the outer layer
    hw1 = readLe16(file, 0);
    hw2 = readLe16(file, 2);
    if (headerOnly)
        return 0;
    file.remove(0, headerSize);
    file.remove(0, headerSize);
    // Deliberate: with an odd page count these 8 bytes are the trailer, and decode fails.
    file.chop(trailerSize);
    file = decode(file);
    BlockCipher::applyOnce(pageKey, BlockCipher::Decipher, file);
    return 0;
}

namespace {

// recode of the body that starts at `offset` of `file`; `file` becomes the result.
int recodeAt(QByteArray &file, int offset, const unsigned char *key)
{
    const int blocks = (file.size() - offset) / 16;
    // The body is read as a row of 16-byte blocks, one per pass, the pass after the last
    // whole block included. Blocks 0 to 5 stand as they are, the later ones deciphered (in
    // place, one call for all); the pass after the last whole block takes the block before
    // it deciphered once more, or as it is when it is one of the first six.
    unsigned char *block = bytes(file) + offset;
    unsigned char extra[16] = {};
    {
        BlockCipher source(keyOr(key), BlockCipher::Decipher);
        if (blocks > 6)
            source.apply(block + qint64(6) * 16, qint64(blocks - 6) * 16);
        if (blocks > 0)
            std::memcpy(extra, block + qint64(blocks - 1) * 16, 16);
        if (blocks >= 6)
            source.apply(extra, 16);
    }
    BlockCipher pageCipher(pageKey, BlockCipher::Encipher);
    quint32 running = 0;
    QByteArray result;
    result.reserve(
        int(qMin<qint64>(qint64(file.size() - offset) * 4, 136 + maxReadPages * pieceSize)));

    // The first eight blocks: checksummed, and copied with blocks 6 and 7 under the page key.
    for (int i = 0; i < 8; ++i) {
        const unsigned char *work = i < blocks ? block + qint64(i) * 16 : extra;
        running = crc32next(running, work, 16);
        const int at = result.size();
        result.append(reinterpret_cast<const char *>(work), 16);
        if (i >= 6)
            pageCipher.apply(bytes(result) + at, 16);
        if (i >= blocks) {
            file = result;
            return 2;
        }
    }

    // From block 8 on each pass adds its block to the accumulator, the bytes from `from` to
    // the pass's end, and decodes at most one record: its 16-bit length first, then, once
    // that many bytes are there, the record itself. The last pass reads a copy with the
    // extra block after it.
    LZ4_streamDecode_t stream;
    LZ4_setStreamDecode(&stream, nullptr, 0);
    unsigned char ring[ringSize] = {};
    int ringAt = 0;
    int from = 8 * 16;
    int pending = -1;
    int recordsRead = 0;
    int code = 2;
    QByteArray lastPass;
    for (int i = 8; i <= blocks; ++i) {
        const bool last = i == blocks;
        const int end = (i + 1) * 16;
        const unsigned char *accumulator = block + from;
        if (last) {
            lastPass = QByteArray(reinterpret_cast<const char *>(accumulator), i * 16 - from);
            lastPass.append(reinterpret_cast<const char *>(extra), 16);
            accumulator = bytes(lastPass);
        }
        if (pending < 0) {
            if (end - from <= 2) {
                if (last)
                    break;
                continue;
            }
            pending = int(accumulator[0] | accumulator[1] << 8);
            accumulator += 2;
            from += 2;
        }
        if (pending == 0)
            break;
        if (pending == 0xFFFF) {
            pending = -1;
            if (last)
                break;
            continue;
        }
        if (pending > accumulatorCapacity)
            break;
        if (end - from < pending) {
            if (last)
                break;
            // The passes until the record is complete only add blocks: go to the one that
            // completes it, or to the last.
            i = qMin(blocks, (from + pending + 15) / 16 - 1) - 1;
            continue;
        }
        const int decoded = LZ4_decompress_safe_continue(
            &stream, reinterpret_cast<const char *>(accumulator),
            reinterpret_cast<char *>(ring + ringAt), pending, pieceSize);
        if (decoded <= 0)
            break;
        const unsigned char *chunk = ring + ringAt;
        const int chunkSize = last ? decoded - 8 : decoded;
        if (chunkSize != pieceSize) {
            const quint32 stored = quint32(chunk[0]) | quint32(chunk[1]) << 8 |
                                   quint32(chunk[2]) << 16 | quint32(chunk[3]) << 24;
            appendLe32(result, running);
            result.append(reinterpret_cast<const char *>(chunk) + 4, 4);
            code = stored == running ? 0 : 2;
            break;
        }
        // No image has more pages than reading accepts; a stream of more is hostile, and
        // tiny records could otherwise make the result a hundred times the body.
        if (recordsRead == maxReadPages)
            break;
        ++recordsRead;
        running = crc32next(running, chunk, pieceSize);
        const int at = result.size();
        result.append(reinterpret_cast<const char *>(chunk), fixedPage);
        pageCipher.apply(bytes(result) + at, fixedPage);
        appendLe32(result, crc32next(0, bytes(result) + at, fixedPage));
        result.append(reinterpret_cast<const char *>(chunk) + fixedPage + 4, 4);
        from += pending;
        pending = -1;
        ringAt += decoded;
        if (ringAt >= pieceSize + 10)
            ringAt = 0;
        if (last)
            break;
    }
    file = result;
    return code;
}

} // namespace

int firmware::recode(QByteArray &body, const unsigned char *key)
{
    return recodeAt(body, 0, key);
}

int firmware::getFirmwareFromFile(QByteArray &file, int &hw1, int &hw2, const unsigned char *key,
                                  bool &wantCompressed, unsigned &encodedSize, bool decipher)
{
    if (file.size() < headerSize)
        return 1;
    const auto length = qint32(readLe32(file, 8));
    if (file.size() < length)
        return 3;
    if (file.size() % 16 != 0)
        return 2;
    int remembered = 0;
    const int fileHw1 = readLe16(file, 0);
    if (fileHw1 != hw1) {
        hw1 = fileHw1;
        hw2 = readLe16(file, 2);
        remembered = 5;
    }
    if (docrc32(bytes(file) + headerSize, file.size() - headerSize) != readLe32(file, 4))
        return 4;
    encodedSize = readLe32(file, 28);

    const bool tagged = file.mid(24, tagLength) == QByteArray::fromRawData(tag, tagLength);
    const quint32 type = readLe32(file, 24);
    const auto openBody = [&](const unsigned char *bodyKey) {
        file.remove(0, headerSize);
        BlockCipher::applyOnce(keyOr(bodyKey), BlockCipher::Decipher, file);
        if (length < file.size())
            file.resize(qMax(0, length));
    };

    if (tagged && !wantCompressed) {
        openBody(outerKey);
        return remembered;
    }
    if (tagged) {
        decrypt(file, hw1, hw2, key, 0);
        convertToCompressed(file, hw1, hw2);
        // Deliberate: this conversion ends without the outer header, the untagged one with it.
        file.remove(0, headerSize);
        return 0;
    }
    if (type == 0) {
        if (wantCompressed) {
            decrypt1(file, hw1, hw2, key, 0);
            convertToCompressed(file, hw1, hw2);
            return 0;
        }
        if (decipher)
            openBody(key);
        else
            file.remove(0, headerSize);
        return remembered;
    }
    if (type == 1) {
        if (!wantCompressed)
            return recodeAt(file, headerSize, key);
        file.remove(0, headerSize);
        return 0;
    }
    return 1;
}

void firmware::setCompress(unsigned value)
{
    compress = value;
}

void firmware::setHW(unsigned short first, unsigned short second)
{
    hw1 = first;
    hw2 = second;
}

void firmware::setNameDate(QString newName, QString newDate)
{
    name = newName;
    date = newDate;
}

void firmware::setPageSize(int size)
{
    page = size;
}

void firmware::setUserName(QString newUserName)
{
    userName = newUserName;
}

void firmware::SetMark(unsigned first, unsigned second, bool enabled, int fill)
{
    markFirst = first;
    markSecond = second;
    markEnabled = enabled;
    padFill = fill;
}
