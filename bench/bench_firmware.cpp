// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// Firmware files: packing and reading a 240-page image through the library, side by side
// with its floor, the real work alone on the same bytes (LZ4 with the same stream settings,
// AES-128-ECB over what the format enciphers, zlib's crc32 over what it checksums); and
// every CRC-32 of the library side by side with zlib's crc32 over the same buffer.
#include "bench/sidebyside.h"
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"
#include "tests/firmware/payloads.h"

#include <array>
#include <benchmark/benchmark.h>
#include <lz4.h>
#include <openssl/evp.h>
#include <vector>
#include <zlib.h>

namespace {

constexpr int pages = 240;
constexpr int P = 2048;
constexpr int record = P + 8;

const unsigned char *u(const QByteArray &a)
{
    return reinterpret_cast<const unsigned char *>(a.constData());
}

// The floor's checksum: zlib's CRC-32, the same one the format uses.
quint32 zcrc(const unsigned char *data, int length)
{
    return quint32(crc32_z(0, data, z_size_t(length)));
}

void aes(const unsigned char *key, bool encipher, unsigned char *data, int length)
{
    static EVP_CIPHER *const cipher = EVP_CIPHER_fetch(nullptr, "AES-128-ECB", nullptr);
    EVP_CIPHER_CTX *ctx = EVP_CIPHER_CTX_new();
    EVP_CipherInit_ex2(ctx, cipher, key, nullptr, encipher ? 1 : 0, nullptr);
    EVP_CIPHER_CTX_set_padding(ctx, 0);
    int written = 0;
    EVP_CipherUpdate(ctx, data, &written, data, length - length % 16);
    EVP_CIPHER_CTX_free(ctx);
}

// The compressed form's pieces with the reader's dictionary limit, or a plain continuation.
int compressPieces(const QByteArray &image, std::vector<char> &out, bool limited)
{
    LZ4_stream_t stream;
    LZ4_initStream(&stream, sizeof stream);
    char dictionary[record];
    int total = 0;
    for (int at = 128; at < image.size(); at += record) {
        const int n = qMin(record, image.size() - at);
        total += LZ4_compress_fast_continue(&stream, image.constData() + at, out.data() + total, n,
                                            int(out.size()) - total, 1);
        if (limited)
            LZ4_saveDict(&stream, dictionary, n);
    }
    return total;
}

struct Sample
{
    QByteArray payload;
    QByteArray plainImage;      // pages plain, as the compressed form holds them
    QByteArray encipheredImage; // pages under the page key
    QByteArray compressedFile;
    QByteArray compressedStream; // the pieces alone, deciphered, with their lengths
    std::vector<int> pieceLengths;
    int limitedBytes = 0;
    int unboundedBytes = 0;
};

const Sample &sample(int kind)
{
    static std::array<Sample, 3> samples;
    Sample &s = samples[size_t(kind)];
    if (!s.payload.isEmpty())
        return s;
    const PayloadKind kinds[] = {PayloadKind::FirmwareLike, PayloadKind::Random,
                                 PayloadKind::FarRepeats};
    s.payload = makePayload(kinds[kind], pages * P, 3);
    firmware fw;
    fw.SetMark(0, 0, false, 0xFF);
    fw.setCompress(1);
    s.plainImage = fw.encode(s.payload, false);
    fw.setCompress(0);
    s.encipheredImage = fw.encode(s.payload, false);
    s.compressedFile = s.plainImage;
    firmware::crypt(s.compressedFile, 1, 2, outerKey, 1);

    std::vector<char> buffer(size_t(LZ4_compressBound(s.plainImage.size())));
    s.limitedBytes = compressPieces(s.plainImage, buffer, true);
    s.unboundedBytes = compressPieces(s.plainImage, buffer, false);
    LZ4_stream_t stream;
    LZ4_initStream(&stream, sizeof stream);
    char dictionary[record];
    char block[LZ4_COMPRESSBOUND(record)];
    for (int at = 128; at < s.plainImage.size(); at += record) {
        const int n = qMin(record, s.plainImage.size() - at);
        const int packed = LZ4_compress_fast_continue(&stream, s.plainImage.constData() + at, block,
                                                      n, int(sizeof block), 1);
        s.compressedStream.append(block, packed);
        s.pieceLengths.push_back(packed);
        LZ4_saveDict(&stream, dictionary, n);
    }
    return s;
}

void describe(benchmark::State &state, const Sample &s)
{
    state.SetBytesProcessed(state.iterations() * s.payload.size());
    state.counters["file/image"] = double(s.compressedFile.size()) / s.plainImage.size();
    state.counters["limit cost"] = double(s.limitedBytes) / s.unboundedBytes;
}

// The floors: the same work without the format, what each pipeline cannot do without.

void packFloor(const Sample &s, std::vector<char> &out, QByteArray &scratch)
{
    compressPieces(s.plainImage, out, true);
    // The compressed body from the size block on is enciphered.
    const int enciphered = s.compressedFile.size() - 128 - 96;
    aes(outerKey, true, reinterpret_cast<unsigned char *>(scratch.data()), enciphered);
    const unsigned char *image = u(s.plainImage);
    quint32 crc = zcrc(image, 92) ^ zcrc(image + 96, 28);
    for (int i = 0; i < pages; ++i)
        crc ^= zcrc(image + 128 + i * record, P);
    crc ^= zcrc(image, s.plainImage.size() - 8);
    crc ^= zcrc(u(s.compressedFile) + 128, s.compressedFile.size() - 128);
    benchmark::DoNotOptimize(crc);
}

void readFloor(const Sample &s, QByteArray &scratch)
{
    const QByteArray &file = s.compressedFile;
    quint32 crc = zcrc(u(file) + 128, file.size() - 128);
    aes(outerKey, false, reinterpret_cast<unsigned char *>(scratch.data()), file.size() - 224);
    aes(pageKey, true, reinterpret_cast<unsigned char *>(scratch.data()), 32 + pages * P);
    LZ4_streamDecode_t stream;
    LZ4_setStreamDecode(&stream, nullptr, 0);
    char ring[2 * record + 10];
    int ringAt = 0;
    const char *in = s.compressedStream.constData();
    for (const int length : s.pieceLengths) {
        const int n = LZ4_decompress_safe_continue(&stream, in, ring + ringAt, length, record);
        in += length;
        ringAt = ringAt == 0 ? n : 0;
    }
    crc ^= zcrc(u(s.plainImage), s.plainImage.size() - 8);
    for (int i = 0; i < pages; ++i)
        crc ^= zcrc(u(s.encipheredImage) + 128 + i * record, P);
    benchmark::DoNotOptimize(crc);
    benchmark::DoNotOptimize(ring);
}

void sealAndOpenFloor(QByteArray &scratch)
{
    auto *data = reinterpret_cast<unsigned char *>(scratch.data());
    aes(outerKey, true, data, scratch.size());
    benchmark::DoNotOptimize(zcrc(data, scratch.size()));
    aes(outerKey, false, data, scratch.size());
    aes(pageKey, false, data, pages * P);
}

// The pipelines, each side by side with its floor: "x floor" is the library's time over
// the floor's.

void BM_PackCompressed(benchmark::State &state)
{
    const Sample &s = sample(int(state.range(0)));
    firmware fw;
    fw.SetMark(0, 0, false, 0xFF);
    fw.setCompress(1);
    fw.payload = s.payload;
    std::vector<char> out(size_t(LZ4_compressBound(s.plainImage.size())));
    QByteArray scratch = s.compressedFile;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            QByteArray file;
            fw.saveEncodedFile(file, QString());
            benchmark::DoNotOptimize(file.data());
        },
        [&] { packFloor(s, out, scratch); });
    sidebyside::reportTimes(state, "floor", totals);
    describe(state, s);
}

void BM_ReadCompressed(benchmark::State &state)
{
    const Sample &s = sample(int(state.range(0)));
    QByteArray scratch(qMax(s.compressedFile.size(), s.encipheredImage.size()), '\0');
    QByteArray file;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            int hw1 = 1;
            int hw2 = 2;
            bool want = false;
            unsigned size = 0;
            if (firmware::getFirmwareFromFile(file, hw1, hw2, outerKey, want, size, false) != 0)
                state.SkipWithError("the file did not read back");
            benchmark::DoNotOptimize(file.data());
        },
        [&] { readFloor(s, scratch); },
        // The host's buffer of the file read from disk: its own, not shared.
        [&] { file = QByteArray(s.compressedFile.constData(), s.compressedFile.size()); });
    sidebyside::reportTimes(state, "floor", totals);
    describe(state, s);
}

void BM_SealAndOpen(benchmark::State &state)
{
    const Sample &s = sample(int(state.range(0)));
    QByteArray scratch = s.encipheredImage;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            QByteArray file = s.encipheredImage;
            firmware::crypt1(file, 1, 2, outerKey);
            int hw1 = 0;
            int hw2 = 0;
            firmware::decrypt(file, hw1, hw2, outerKey, 0);
            benchmark::DoNotOptimize(file.data());
        },
        [&] { sealAndOpenFloor(scratch); });
    sidebyside::reportTimes(state, "floor", totals);
    describe(state, s);
}

// The parts one by one.

void BM_PartLz4Compress(benchmark::State &state)
{
    const Sample &s = sample(int(state.range(0)));
    std::vector<char> out(size_t(LZ4_compressBound(s.plainImage.size())));
    for (auto _ : state)
        benchmark::DoNotOptimize(compressPieces(s.plainImage, out, true));
    state.SetBytesProcessed(state.iterations() * s.plainImage.size());
}

void BM_PartAes(benchmark::State &state)
{
    QByteArray data = sample(0).encipheredImage;
    for (auto _ : state)
        aes(pageKey, true, reinterpret_cast<unsigned char *>(data.data()), data.size());
    state.SetBytesProcessed(state.iterations() * data.size());
}

// Checksums over the image, in MB/s.

template <typename F> void checksum(benchmark::State &state, F f)
{
    QByteArray data = sample(1).plainImage;
    for (auto _ : state)
        benchmark::DoNotOptimize(f(data));
    state.SetBytesProcessed(state.iterations() * data.size());
}

std::array<quint32, 256> plainTable()
{
    std::array<quint32, 256> t{};
    for (quint32 i = 0; i < 256; ++i) {
        quint32 c = i;
        for (int k = 0; k < 8; ++k)
            c = (c & 1) ? (c >> 1) ^ 0xEDB88320u : c >> 1;
        t[i] = c;
    }
    return t;
}

// The fastest plain byte-at-a-time table loop: one lookup per byte, nothing else.
void BM_Crc32PlainByteLoop(benchmark::State &state)
{
    static const std::array<quint32, 256> table = plainTable();
    checksum(state, [](const QByteArray &d) {
        quint32 c = 0xFFFFFFFFu;
        const unsigned char *p = u(d);
        const unsigned char *end = p + d.size();
        while (p != end)
            c = table[(c ^ *p++) & 0xFF] ^ (c >> 8);
        return ~c;
    });
}

// A CRC-32 of the library side by side with zlib's over the same bytes in `pieces` calls:
// "MB/s", "zlib MB/s" and "x zlib speed", the library's speed over zlib's.
template <typename F> void beside(benchmark::State &state, F f, int pieces = 1)
{
    QByteArray data = sample(1).plainImage;
    auto *d = reinterpret_cast<unsigned char *>(data.data());
    const int piece = data.size() / pieces;
    quint32 sink = 0;
    const sidebyside::Totals totals = sidebyside::run(
        state,
        [&] {
            for (int i = 0; i < pieces; ++i)
                sink ^= f(d + i * piece, piece);
        },
        [&] {
            for (int i = 0; i < pieces; ++i)
                sink ^= zcrc(d + i * piece, piece);
        });
    benchmark::DoNotOptimize(sink);
    const double bytes = double(state.iterations()) * piece * pieces;
    state.SetBytesProcessed(int64_t(bytes));
    if (totals.work > 0 && totals.reference > 0) {
        state.counters["MB/s"] = bytes / totals.work / 1e6;
        state.counters["zlib MB/s"] = bytes / totals.reference / 1e6;
        state.counters["x zlib speed"] = totals.reference / totals.work;
    }
}

void BM_Crc32Next(benchmark::State &state)
{
    beside(state, [](unsigned char *d, int n) { return crc32next(0, d, quint64(n)); });
}

// One call per page, as encode and recode checksum their pages.
void BM_Crc32NextPages(benchmark::State &state)
{
    beside(
        state, [](unsigned char *d, int n) { return crc32next(0, d, quint64(n)); },
        sample(1).plainImage.size() / P);
}

void BM_Docrc32(benchmark::State &state)
{
    beside(state, [](unsigned char *d, int n) { return docrc32(d, n); });
}

void BM_GetWholeCrc(benchmark::State &state)
{
    beside(state, [](unsigned char *d, int n) { return get_whole_crc(d, n, P); });
}

void BM_Crc16(benchmark::State &state)
{
    checksum(state, [](QByteArray &d) { return crc16(d); });
}

void BM_Crc16Running(benchmark::State &state)
{
    checksum(state, [](QByteArray &d) {
        quint16 value = 0;
        crc16(&value, d.data(), d.size());
        return value;
    });
}

void BM_Crc8(benchmark::State &state)
{
    checksum(state, [](const QByteArray &d) { return crc8(d); });
}

} // namespace

// Argument 0: firmware-like payload; 1: random payload; 2: pages repeated four pages on,
// where the dictionary limit costs most.
BENCHMARK(BM_PackCompressed)
    ->Arg(0)
    ->Arg(1)
    ->Arg(2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadCompressed)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SealAndOpen)->Arg(0)->Arg(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PartLz4Compress)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PartAes)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Crc32Next)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Crc32NextPages)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_GetWholeCrc)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Docrc32)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Crc32PlainByteLoop)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Crc16)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Crc16Running)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_Crc8)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
