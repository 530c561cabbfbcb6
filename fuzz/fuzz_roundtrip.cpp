// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// The writer and the file reader together: a file written in any form from a payload and
// options the fuzzer chooses must read back to that payload, with the codes a sound file
// gets. Input: form, page count, options, page size and tail, then the payload's bytes
// (repeated to the chosen length).
#include "telecfg/firmware/blockcipher_p.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <cstddef>
#include <cstdint>

namespace {
enum Form { Enciphered, PlainPages, Compressed, Sealed, Tagged, FormCount };

void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 5)
        return 0;
    const Form form = Form(data[0] % FormCount);
    const int pages = data[1] % 241; // 0 to the most a file holds
    const uint8_t options = data[2];
    static const int pageSizes[] = {16, 64, 512, 2048};
    // The compressed form always works in pages of 2048.
    const int page = form == Compressed ? 2048 : pageSizes[data[3] % 4];
    const int tail = pages > 0 ? data[4] * 131 % page : 0; // bytes short of the last page
    const QByteArray bytes(reinterpret_cast<const char *>(data + 5), int(size - 5));

    QByteArray payload(pages * page - tail, Qt::Uninitialized);
    for (int i = 0; i < payload.size(); ++i)
        payload[i] = bytes.isEmpty() ? char(i) : char(bytes[i % bytes.size()] ^ (i / 4096));

    firmware writer;
    writer.setPageSize(page);
    writer.setCompress(form == Compressed ? 1 : 0);
    writer.setHW(quint16(0x1234 + (options & 3)), 0x42);
    writer.SetMark(1, 2, options & 4, options & 8 ? 0x1FF : options);
    writer.setNameDate(QStringLiteral("roundtrip.bin"), QStringLiteral("2026-11-24"));
    writer.setUserName(QStringLiteral("fuzz"));
    const QByteArray image = writer.encode(payload, form == PlainPages);
    require(image.size() == 136 + pages * (page + 8));

    QByteArray file = image;
    if (form == Sealed || form == Tagged) {
        firmware::crypt1(file, writer.hw1, writer.hw2, outerKey);
        if (form == Tagged)
            file.replace(24, 11, "Vestramarks");
    } else {
        firmware::crypt(file, writer.hw1, writer.hw2, outerKey, writer.compress);
    }

    // A reader that expects this device reads 0; one that expects another learns the file's.
    const bool sameDevice = options & 16;
    int hw1 = sameDevice ? writer.hw1 : 0x7777;
    int hw2 = sameDevice ? writer.hw2 : 0;
    bool wantCompressed = false;
    unsigned encodedSize = 0;
    const int code = firmware::getFirmwareFromFile(file, hw1, hw2, outerKey, wantCompressed,
                                                   encodedSize, form == Sealed);
    require(code == (form == Compressed || sameDevice ? 0 : 5));
    require(hw1 == writer.hw1 && hw2 == writer.hw2);
    if (form == Enciphered || form == PlainPages) {
        require(encodedSize == unsigned(image.size()));
        file.truncate(int(encodedSize)); // the rest is the padding to whole blocks
    }
    if (form != Compressed)
        require(file == image);

    // The page records give the payload back, padded to whole pages.
    QByteArray pagesRead = firmware::decode(file.mid(128));
    require(pagesRead.size() == pages * page);
    if (form != PlainPages)
        BlockCipher::applyOnce(pageKey, BlockCipher::Decipher, pagesRead);
    require(pagesRead.left(payload.size()) == payload);
    if (writer.padFill < 256)
        require(pagesRead.mid(payload.size()) == QByteArray(tail, char(writer.padFill)));
    return 0;
}
