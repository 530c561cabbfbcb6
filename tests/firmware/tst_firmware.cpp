// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "telecfg/firmware/blockcipher_p.h"
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"
#include "tests/firmware/payloads.h"
#include "tests/support/datatable.h"
#include "tests/support/testcase.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>
#include <csignal>
#include <lz4.h>
#include <sys/resource.h>
#include <tuple>

Q_DECLARE_METATYPE(PayloadKind)

namespace {
constexpr int P = 2048;
constexpr int record = P + 8;

quint32 le32(const QByteArray &a, int at)
{
    return qFromLittleEndian<quint32>(a.constData() + at);
}

void setLe32(QByteArray &a, int at, quint32 v)
{
    qToLittleEndian(v, a.data() + at);
}

quint32 crcOf(const QByteArray &a, int from, int length)
{
    return crc32next(0, reinterpret_cast<const unsigned char *>(a.constData()) + from,
                     quint64(length));
}

firmware writer(unsigned compress)
{
    firmware fw;
    fw.setCompress(compress);
    fw.SetMark(1, 2, true, 0xA5);
    fw.setHW(0x1234, 0x0042);
    fw.setNameDate(QStringLiteral("tracker.bin"), QStringLiteral("2026-11-22"));
    fw.setUserName(QStringLiteral("0123456789abcdefgh")); // kept to its first 15 characters
    return fw;
}

QByteArray imageOf(const QByteArray &payload, unsigned compress)
{
    return writer(compress).encode(payload, false);
}

QByteArray fileOf(const QByteArray &payload, unsigned compress)
{
    QByteArray file = imageOf(payload, compress);
    firmware::crypt(file, 0x1234, 0x0042, outerKey, compress);
    return file;
}

QByteArray deciphered(QByteArray data, const unsigned char *key, int from = 0)
{
    BlockCipher::applyOnce(key, BlockCipher::Decipher, data, from);
    return data;
}

// Pads a compressed body to whole blocks and enciphers it past the plain name
// block.
QByteArray sealed(QByteArray body)
{
    body.append((16 - body.size() % 16) % 16, '\0');
    BlockCipher::applyOnce(outerKey, BlockCipher::Encipher, body, 96);
    return body;
}

// What recode must give for a compressed file of this payload: the image
// written with page encipherment, its trailer carrying the plain image's
// checksum.
QByteArray expectedRecoded(const QByteArray &payload)
{
    QByteArray expected = imageOf(payload, 0);
    const QByteArray plain = imageOf(payload, 1);
    expected.replace(expected.size() - 8, 4, plain.mid(plain.size() - 8, 4));
    return expected;
}

// A compressed body written as a stock LZ4 continuation would: matches reaching
// back up to 64 KiB, or with the dictionary cut back to the previous piece.
QByteArray compressedBody(const QByteArray &image, bool limited)
{
    QByteArray body = image.left(128);
    LZ4_stream_t stream;
    LZ4_initStream(&stream, sizeof stream);
    char block[LZ4_COMPRESSBOUND(record)];
    char dictionary[record];
    for (int at = 128; at < image.size(); at += record) {
        const int n = qMin(record, image.size() - at);
        const int packed = LZ4_compress_fast_continue(&stream, image.constData() + at, block, n,
                                                      int(sizeof block), 1);
        body.append(char(packed & 0xFF)).append(char(packed >> 8)).append(block, packed);
        if (limited)
            LZ4_saveDict(&stream, dictionary, n);
    }

    return sealed(body.append(2, '\0'));
}

// The CRC-32 one bit at a time straight from its definition, continued like
// crc32next.
quint32 bitwiseCrc32(quint32 crc, const unsigned char *data, int length)
{
    quint32 state = ~crc;
    for (int i = 0; i < length; ++i) {
        state ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            state = (state >> 1) ^ (0xEDB88320u & (0u - (state & 1)));
    }

    return ~state;
}
} // namespace

class TestFirmware : public TestCase
{
    Q_OBJECT

private slots:
    void imageLayout_data()
    {
        columns<int, unsigned, bool, QString, QString>("size", "compress", "plain", "name",
                                                       "stored");

        // A name loses its last ".bin" and what follows, unless at the start; case
        // counts.
        const QString n40(40, QLatin1Char('n'));
        row("empty", 0, 0u, false, QString("a.bin.old"), QString("a"));
        row("one byte", 1, 0u, false, QString("x.bin.y.bin"), QString("x.bin.y"));
        row("page, plain", P, 0u, true, QString(".bin"), QString(".bin"));
        row("page and a byte", P + 1, 1u, false, QString("a.BIN"), QString("a.BIN"));
        row("240 pages", 240 * P, 1u, false, n40, n40.left(31));
    }

    void imageLayout()
    {
        auto [size, compress, plain, name, stored] = fetch<int, unsigned, bool, QString, QString>(
            "size", "compress", "plain", "name", "stored");
        const QByteArray payload = makePayload(PayloadKind::Random, size, 5);
        firmware fw = writer(compress);
        fw.setNameDate(name, QStringLiteral("2026-11-22"));
        const QByteArray image = fw.encode(payload, plain);
        const int pages = (size + P - 1) / P;
        const bool enciphered = !plain && compress == 0;
        const QByteArray user("0123456789abcde");

        QCOMPARE(image.size(), 136 + pages * record);
        QCOMPARE(image.left(16), QByteArray("Vestramarks\0\0\0\0\0", 16));
        QCOMPARE(image.mid(16, 32), stored.toLatin1().leftJustified(32, '\0'));
        QCOMPARE(image.mid(48, 20), QByteArray("2026-11-22").leftJustified(20, '\0'));
        QCOMPARE(image.mid(68, 24), user.leftJustified(24, '\0'));
        QCOMPARE(le32(image, 92), crcOf(image, 0, 92));

        const QByteArray sizeBlock =
            enciphered ? deciphered(image.mid(96, 32), pageKey) : image.mid(96, 32);
        QCOMPARE(le32(sizeBlock, 0), quint32(image.size()));
        QCOMPARE(sizeBlock.mid(8, 16), user + '\0');
        QCOMPARE(le32(sizeBlock, 24), quint32(pages));
        QCOMPARE(le32(sizeBlock, 28), crcOf(sizeBlock, 0, 28));

        QByteArray pagesRead;
        for (int i = 0; i < pages; ++i) {
            const int at = 128 + i * record;
            QCOMPARE(le32(image, at + P), crcOf(image, at, P));
            QCOMPARE(image[at + P + 4], "Vestramarks"[i % 11]);
            QCOMPARE(image.mid(at + P + 5, 3), QByteArray::number(i + 1).rightJustified(3, '0'));
            pagesRead += enciphered ? deciphered(image.mid(at, P), pageKey) : image.mid(at, P);
        }
        QCOMPARE(pagesRead, payload + QByteArray(pages * P - size, char(0xA5)));
        QCOMPARE(le32(image, image.size() - 8), crcOf(image, 0, image.size() - 8));
        QCOMPARE(image.right(4), QByteArray("VEST"));

        // The file: hardware words, checksum of the rest, form, sizes, zero-padded
        // whole blocks.
        QByteArray file = image;
        QCOMPARE(firmware::crypt(file, 0x71234, -1, nullptr, compress), 0);
        QCOMPARE(file.mid(0, 4), QByteArray::fromHex("3412ffff"));
        QCOMPARE(le32(file, 4), crcOf(file, 128, file.size() - 128));
        QCOMPARE(le32(file, 24), compress);
        QCOMPARE(le32(file, 28), quint32(image.size()));
        QCOMPARE(file.mid(128, 96),
                 image.left(96)); // the name block stays readable
        if (compress == 0) {
            QCOMPARE(le32(file, 8), quint32(image.size()));
            QCOMPARE(file.mid(128), image + QByteArray((16 - image.size() % 16) % 16, '\0'));
            return;
        }
        // Length-prefixed pieces, the last one the trailer alone; the read-back
        // test decodes them.
        const QByteArray body = deciphered(file.mid(128), outerKey, 96);
        quint32 total = 0;
        int at = 128;
        int pieces = 0;
        for (int length; (length = quint8(body[at]) | quint8(body[at + 1]) << 8) != 0; ++pieces) {
            total += quint32(length);
            at += 2 + length;
        }
        QCOMPARE(pieces, pages + 1);
        QCOMPARE(le32(file, 8), total);
        QCOMPARE(body.size() - at - 2, (16 - (at + 2) % 16) % 16);
    }

    void writerQuirksAndLimits()
    {
        firmware fw = writer(1);
        QByteArray out;
        fw.addDecodedFirmware(QByteArray(240 * P + 1, 'a'));
        QCOMPARE(fw.saveEncodedFile(out, QString()), 1);

        // Reading accepts ten pages more than writing.
        QCOMPARE(firmware::decode(QByteArray(250 * record + 8, 'p')).size(), 250 * P);
        QVERIFY(firmware::decode(QByteArray(251 * record + 8, 'p')).isEmpty());

        // The page size is process-wide: copies share it and every construction
        // restores 2048.
        fw.setPageSize(1000);
        firmware copy = fw;
        QCOMPARE(copy.encode(QByteArray(2500, 'z'), false).size(), 136 + 3 * 1008);
        fw.setPageSize(0);
        QVERIFY(fw.encode(QByteArray(10, 'z'), false).isEmpty());
        QCOMPARE(imageOf(QByteArray(2500, 'z'), 1).size(), 136 + 2 * record);

        // Deliberate: a long date pushes the fields after it, and the header
        // checksum with them.
        fw = writer(1);
        fw.setNameDate(QStringLiteral("n"), QString(50, QLatin1Char('d')));
        fw.setUserName(QStringLiteral("VTM"));
        const QByteArray image = fw.encode(QByteArray(10, 'x'), false);
        QCOMPARE(image.mid(48, 50), QByteArray(50, 'd'));
        QCOMPARE(image.mid(98, 3), QByteArray("VTM"));
        QCOMPARE(le32(image, 101), crcOf(image, 0, 101));
        QCOMPARE(le32(image, 105),
                 quint32(136 + record)); // the size block keeps its size
    }

    void compressedFilesReadBack_data()
    {
        columns<PayloadKind, int>("kind", "extra");
        row("firmware-like", PayloadKind::FirmwareLike, 0);
        row("random, partial page", PayloadKind::Random, 1000);
        row("erased", PayloadKind::Erased, 0);
        row("far repeats, partial page", PayloadKind::FarRepeats, 17);
    }

    void compressedFilesReadBack()
    {
        auto [kind, extra] = fetch<PayloadKind, int>("kind", "extra");
        const QByteArray all = makePayload(kind, 240 * P);
        for (int pages = 0; pages <= 240; ++pages) {
            const QByteArray payload = all.left(qMin(pages * P + (pages ? extra : 0), all.size()));
            QByteArray body = fileOf(payload, 1).mid(128);
            QCOMPARE(firmware::recode(body, outerKey), 0);
            QCOMPARE(body, expectedRecoded(payload));
        }
    }

    void fileReturnCodes_data()
    {
        columns<QByteArray, int, QString, int, QByteArray, int>("file", "hw1", "mode", "code",
                                                                "result", "hw2After");

        const QByteArray payload = makePayload(PayloadKind::FirmwareLike, 3 * P + 5);
        const QByteArray f1 = fileOf(payload, 0);
        const QByteArray f2 = fileOf(payload, 1);
        QByteArray badTrailer = f2;
        badTrailer[badTrailer.size() - 20] = char(badTrailer[badTrailer.size() - 20] ^ 0x40);
        setLe32(badTrailer, 4, crcOf(badTrailer, 128, badTrailer.size() - 128));
        QByteArray badCrc = f1;
        badCrc[200] = char(badCrc[200] ^ 1);
        QByteArray tooLong = f1;
        setLe32(tooLong, 8, quint32(f1.size() + 1));
        QByteArray exact = f1; // a stated length of the whole file is not too long
        setLe32(exact, 8, quint32(f1.size()));
        QByteArray otherType = f1;
        setLe32(otherType, 24, 7);
        QByteArray f3 = payload;
        firmware::crypt1(f3, 0x1234, 0x42, pageKey);
        const QByteArray image = imageOf(payload, 0);
        QByteArray tagged = image;
        firmware::crypt1(tagged, 0x1234, 0x42, outerKey);
        tagged.replace(24, 11,
                       "Vestramarks"); // the size word at 28 then reads "rama"
        const QByteArray same("unchanged");
        const QByteArray recoded = expectedRecoded(payload);
        const QString read;
        const QString want("want compressed");
        const QString decipher("decipher"); // with the page key

        // hw1 is 0x1234 in every file, hw2 0x42; the caller's hw2 starts at 77.
        row("short", f1.left(127), 0x1234, read, 1, same, 77);
        row("too long", tooLong, 9, read, 3, same, 77);
        row("not blocks", f1.left(f1.size() - 8), 9, read, 2, same, 77);
        row("bad crc", badCrc, 0x1234, read, 4, same, 77);
        row("form 1", f1, 0x1234, read, 0, f1.mid(128), 77);
        row("form 1, other hw", exact, 9, read, 5, exact.mid(128), 0x42);
        row("form 2", f2, 0x1234, read, 0, recoded, 77);
        row("form 2, other hw loses 5", f2, 9, read, 0, recoded, 0x42);
        row("form 2, bad trailer", badTrailer, 0x1234, read, 2, QByteArray(), 77);
        row("form 2 wanted", f2, 0x1234, want, 0, f2.mid(128), 77);
        // A tagged file opens with the outer key, whatever key the caller passes.
        row("tagged", tagged, 0x1234, decipher, 0, image, 77);
        row("other type", otherType, 0x1234, read, 1, same, 77);
        row("form 3", f3, 0x1234, decipher, 0, payload, 77);
    }

    void fileReturnCodes()
    {
        auto [file, hw1, mode, result] =
            fetch<QByteArray, int, QString, QByteArray>("file", "hw1", "mode", "result");
        const bool decipher = mode == "decipher";
        bool wantCompressed = mode == "want compressed";
        int hw2 = 77;
        unsigned encodedSize = 12345;
        const QByteArray original = file;
        const int hw1Before = hw1;
        QTEST(firmware::getFirmwareFromFile(file, hw1, hw2, decipher ? pageKey : outerKey,
                                            wantCompressed, encodedSize, decipher),
              "code");
        QTEST(hw2, "hw2After");
        QCOMPARE(hw1, hw2 == 0x42 ? 0x1234 : hw1Before); // both words are rewritten, or neither
        if (result == "unchanged")
            QCOMPARE(file, original);
        else if (!result.isEmpty())
            QCOMPARE(file, result);
        // The size at offset 28 is taken once the outer checks have passed.
        const bool checked =
            file != original || QTest::currentDataTag() == QByteArray("other type");
        QCOMPARE(encodedSize, checked ? le32(original, 28) : 12345u);
    }

    void conversionToCompressed()
    {
        const QByteArray payload = makePayload(PayloadKind::FirmwareLike, 2 * P);
        QByteArray tagged = imageOf(payload, 0);
        firmware::crypt1(tagged, 0x1234, 0x42, outerKey);
        tagged.replace(24, 11, "Vestramarks");
        // Deliberate: the tagged route ends without the outer header, and with an
        // odd page count the untagged route cuts the trailer and gets nothing.
        const std::tuple<QByteArray, int, QByteArray> routes[] = {
            {tagged, 0, payload},
            {fileOf(payload, 0), 128, payload},
            {fileOf(payload.left(P), 0), 128, QByteArray()},
        };
        for (const auto &[from, headerKept, expected] : routes) {
            QByteArray file = from;
            int hw1 = 0;
            int hw2 = 5;
            unsigned encodedSize = 0;
            bool want = true;
            QCOMPARE(
                firmware::getFirmwareFromFile(file, hw1, hw2, pageKey, want, encodedSize, false),
                0);
            QCOMPARE(hw2, 0x42);
            QByteArray body = file.mid(headerKept);
            QCOMPARE(body.mid(68, 4), QByteArray("VTM\0", 4));
            QCOMPARE(firmware::recode(body, outerKey), 0);
            QCOMPARE(deciphered(firmware::decode(body.mid(128)), pageKey), expected);
        }
    }

    void hostileBodies_data()
    {
        columns<QByteArray, int>("body", "maxSize");

        const QByteArray valid = fileOf(makePayload(PayloadKind::FirmwareLike, 6 * P), 1).mid(128);
        const QByteArray head = imageOf(QByteArray(), 1).left(128);
        const int six = 136 + 6 * record;
        row("terminator first", sealed(head + QByteArray(2, '\0')), six);
        row("pending above the accumulator",
            sealed(head + QByteArray::fromHex("0011") + QByteArray(64, 'a')), six);
        row("length past the end", sealed(head + QByteArray::fromHex("0008") + QByteArray(30, 'a')),
            six);
        row("ends before the terminator", valid.left(valid.size() - 48), six);
        row("wrong key", deciphered(valid, pageKey, 96), six);
        // The negative control of the read-back test: without the dictionary limit,
        // matches four pages back lie beyond the reader's ring.
        row("unbounded dictionary",
            compressedBody(imageOf(makePayload(PayloadKind::FarRepeats, 12 * P), 1), false),
            136 + 12 * record);

        // 260 erased records compress to a few bytes each; reading stops after 250
        // of them.
        const QByteArray erased = QByteArray(P, char(0xFF)) + QByteArray("\0\0\0\0V001", 8);
        row("past the reading limit",
            compressedBody(head + erased.repeated(260) + QByteArray(8, '\0'), true),
            128 + 250 * record);

        // No-length markers hold the reader back one pass each, so that the one
        // page record of this body is decoded only in the pass after the last whole
        // block. There its size counts 8 bytes less, and it is taken for the
        // trailer.
        char packed[LZ4_COMPRESSBOUND(record)];
        const int length =
            LZ4_compress_default(erased.constData(), packed, record, int(sizeof packed));
        int markers = 0;
        while (markers != (2 * markers + 2 + length + 15) / 16)
            ++markers;
        QByteArray late = head + QByteArray(2 * markers, char(0xFF));
        late.append(char(length & 0xFF)).append(char(length >> 8)).append(packed, length);
        row("any record is the last pass's trailer", sealed(late), 128 + 8);
    }

    void hostileBodies()
    {
        auto [body, maxSize] = fetch<QByteArray, int>("body", "maxSize");
        QCOMPARE(firmware::recode(body, outerKey), 2);
        QVERIFY2(body.size() <= maxSize, qPrintable(QString::number(body.size())));
    }

    void addEncodedFirmwareChecks()
    {
        QByteArray accepted(16 + record, 'r');
        setLe32(accepted, 0, 16 + record);
        const QByteArray sizeWordDiffers(16 + 2 * record, 'r');
        const std::pair<QByteArray, int> cases[] = {{QByteArray(), -1},
                                                    {QByteArray(P + 25, 'r'), -1},
                                                    {sizeWordDiffers, -2},
                                                    {accepted, 0}};
        for (const auto &[array, code] : cases) {
            firmware fw;
            fw.addDecodedFirmware(QByteArray("old payload"));
            QCOMPARE(fw.addEncodedFirmware(array), code); // nothing is decoded here
            QVERIFY(fw.payload.isEmpty());
        }
    }

    void legacyWordChain()
    {
        firmware fw;
        const QByteArray data = makePayload(PayloadKind::Random, 4003, 9);
        const QByteArray encoded = fw.encode_old(data);
        QCOMPARE(le32(encoded, 0), le32(data, 0) ^ (legacyChainSeed + legacyChainConstant));
        QCOMPARE(le32(encoded, 4), le32(data, 4) ^ (le32(encoded, 0) + legacyChainConstant));
        QCOMPARE(fw.decode_old(encoded), data.left(4000));
    }

    void failedSaveKeepsTheEarlierFile_data()
    {
        columns<bool, QString>("raw", "place");
        for (const bool raw : {false, true})
            for (const char *place : {"fits", "disk full", "folder is a file"})
                QTest::addRow("%s, %s", raw ? "raw" : "encoded", place) << raw << QString(place);
    }

    // Tests run as root here, so a read-only folder would not stop the write: a
    // file size limit plays the full disk.
    void failedSaveKeepsTheEarlierFile()
    {
        auto [raw, place] = fetch<bool, QString>("raw", "place");
        QTemporaryDir dir;
        const QString plainFile = dir.filePath(QStringLiteral("plain"));
        const bool noFolder = place == QLatin1String("folder is a file");
        const bool full = place == QLatin1String("disk full");
        const QString path = noFolder ? plainFile + QStringLiteral("/fw.bin")
                                      : dir.filePath(QStringLiteral("fw.bin"));
        const QByteArray earlier("earlier");
        for (const QString &name : {plainFile, path}) {
            QFile file(name);
            if (file.open(QIODevice::WriteOnly))
                file.write(earlier);
        }
        firmware fw = writer(0);
        const QByteArray payload = makePayload(PayloadKind::Random, 5 * P, 3);
        fw.addDecodedFirmware(payload);

        rlimit before{};
        getrlimit(RLIMIT_FSIZE, &before);
        if (full) {
            std::signal(SIGXFSZ, SIG_IGN);
            rlimit limited = before;
            limited.rlim_cur = 4096;
            setrlimit(RLIMIT_FSIZE, &limited);
        }
        const int code = raw ? fw.saveRawFile(path) : fw.saveEncodedFile(path);
        setrlimit(RLIMIT_FSIZE, &before);

        QCOMPARE(code, 0); // a failed write still reports 0, as it always has
        QFile written(path);
        const QByteArray now = written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
        if (full)
            QCOMPARE(now, earlier);
        else if (noFolder)
            QVERIFY(now.isEmpty());
        else
            QVERIFY(raw ? now == payload : now.size() > 5 * P);
        // Nothing half-written is left beside it.
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).size(), noFolder ? 1 : 2);
    }

    void checkValues_data()
    {
        columns<QByteArray, quint32, quint32>("data", "crc16", "crc8");

        row("catalogue", QByteArray("123456789"), 0x906Eu, 0xA1u);
        row("empty", QByteArray(), 0u, 0u);
        // A 1-Wire ROM code: family 0x02, serial, then its CRC byte, after which
        // the CRC is 0.
        row("rom code", QByteArray::fromHex("021CB801000000A2"), 0xE239u, 0u);
    }

    void checkValues()
    {
        auto [data, crc16] = fetch<QByteArray, quint32>("data", "crc16");
        QCOMPARE(::crc16(data), crc16);
        QCOMPARE(::crc16(data), crc16); // the array form always starts afresh
        QTEST(quint32(crc8(data)), "crc8");

        // The running form, fed in two calls; a negative length leaves the value
        // alone.
        quint16 running = 0;
        ::crc16(&running, data.data(), data.size() / 3);
        ::crc16(&running, data.data() + data.size() / 3, data.size() - data.size() / 3);
        ::crc16(&running, data.data(), -1);
        QCOMPARE(quint32(running), crc16);
    }

    void crc32MatchesBitwise_data()
    {
        QTest::addColumn<int>("offset");
        // Every length from 0 to 1100, from an aligned and from misaligned starts.
        for (int offset : {0, 1, 3, 7})
            QTest::addRow("start + %d", offset) << offset;
    }

    void crc32MatchesBitwise()
    {
        QFETCH(int, offset);
        QByteArray buffer(1100 + offset, '\0');
        QRandomGenerator random(7);
        for (char &c : buffer)
            c = char(random.bounded(256));
        auto *d = reinterpret_cast<unsigned char *>(buffer.data()) + offset;
        for (int length = 0; length <= 1100; ++length) {
            const quint32 expected = bitwiseCrc32(0, d, length);
            QCOMPARE(crc32next(0, d, quint64(length)), expected);
            QCOMPARE(docrc32(d, length), expected);
            for (int pageSize : {-7, 0, 1, 24, 1000})
                QCOMPARE(get_whole_crc(d, length, pageSize), expected);
            // Continued across three pieces, whatever the cuts, and from any earlier
            // value.
            const int cut1 = length / 3;
            const int cut2 = length - length / 7;
            quint32 running = crc32next(0, d, quint64(cut1));
            running = crc32next(running, d + cut1, quint64(cut2 - cut1));
            QCOMPARE(crc32next(running, d + cut2, quint64(length - cut2)), expected);
            QCOMPARE(crc32next(0xA5A5A5A5u, d, quint64(length)),
                     bitwiseCrc32(0xA5A5A5A5u, d, length));
        }
        QCOMPARE(docrc32(d, -1), 0u);
        QCOMPARE(crc32next(0x1234u, nullptr, 5), 0x1234u);
    }
};

QTEST_APPLESS_MAIN(TestFirmware)
#include "tst_firmware.moc"
