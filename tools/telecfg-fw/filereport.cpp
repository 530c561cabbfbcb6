// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tools/telecfg-fw/filereport.h"

#include "telecfg/firmware/blockcipher_p.h"
#include "telecfg/firmware/checksums.h"
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"

#include <QJsonArray>
#include <cstring>

namespace {

constexpr char tag[] = "Vestramarks";
constexpr int record = FileReport::pageSize + 8;

quint32 le32(const QByteArray &a, int at)
{
    if (at < 0 || at > a.size() - 4)
        return 0;
    const auto *p = reinterpret_cast<const unsigned char *>(a.constData()) + at;
    return quint32(p[0]) | quint32(p[1]) << 8 | quint32(p[2]) << 16 | quint32(p[3]) << 24;
}

quint32 crcOf(const QByteArray &a, int from, int length)
{
    if (from < 0 || length <= 0 || from + length > a.size())
        return 0;
    return crc32next(0, reinterpret_cast<const unsigned char *>(a.constData()) + from,
                     quint64(length));
}

QString latin1Field(const QByteArray &a, int from, int size)
{
    const QByteArray field = a.mid(from, size);
    return QString::fromLatin1(field.left(int(qstrnlen(field.constData(), uint(field.size())))));
}

QString hex(quint32 value)
{
    return QStringLiteral("0x%1").arg(value, 8, 16, QLatin1Char('0'));
}

} // namespace

FileReport::FileReport(const QByteArray &content) : file(content)
{
    if (file.size() < 128)
        return;
    headerRead = true;
    const auto *p = reinterpret_cast<const unsigned char *>(file.constData());
    hw1 = quint16(p[0] | p[1] << 8);
    hw2 = quint16(p[2] | p[3] << 8);
    storedChecksum = le32(file, 4);
    computedChecksum = docrc32(p + 128, file.size() - 128);
    length = le32(file, 8);
    type = le32(file, 24);
    size = le32(file, 28);
    tagged = std::memcmp(p + 24, tag, 11) == 0;
    if (tagged)
        form = Form::Tagged;
    else if (type == 1)
        form = Form::Compressed;
    else if (type == 0 && file.mid(128, 12) == QByteArray(tag, 12))
        form = Form::Plain;
    else if (type == 0 && size == 0)
        form = Form::Sealed;
    readImage(file);
}

QString FileReport::formName(Form form)
{
    switch (form) {
    case Form::Plain:
        return QStringLiteral("uncompressed");
    case Form::Compressed:
        return QStringLiteral("compressed");
    case Form::Sealed:
        return QStringLiteral("enciphered");
    case Form::Tagged:
        return QStringLiteral("tagged");
    case Form::Unknown:
        break;
    }
    return QStringLiteral("unknown");
}

void FileReport::readImage(const QByteArray &file)
{
    QByteArray body = file.mid(128);
    int recodeResult = -1;
    switch (form) {
    case Form::Unknown:
        return;
    case Form::Plain:
        image = body.left(int(qMin<quint32>(length, quint32(body.size()))));
        break;
    case Form::Compressed:
        if (file.size() % 16 != 0)
            return;
        recodeResult = firmware::recode(body, outerKey);
        image = body;
        break;
    case Form::Sealed:
    case Form::Tagged:
        BlockCipher::applyOnce(outerKey, BlockCipher::Decipher, body);
        image = body.left(int(qMin<quint32>(length, quint32(body.size()))));
        break;
    }
    if (image.size() < 136 || image.left(12) != QByteArray(tag, 12))
        return;
    imageRead = true;
    readNameAndSizeBlocks();
    readPages();
    trailerStored = le32(image, image.size() - 8);
    // A recoded trailer carries the checksum of the plain image, which recode has compared.
    trailerComputed = recodeResult < 0 ? crcOf(image, 0, image.size() - 8)
                                       : (recodeResult == 0 ? trailerStored : ~trailerStored);
    trailerHolds = trailerStored == trailerComputed && image.right(4) == "VEST";
}

void FileReport::readNameAndSizeBlocks()
{
    name = latin1Field(image, 16, 32);
    date = latin1Field(image, 48, 20);
    userName = latin1Field(image, 68, 24);
    nameBlockHolds = le32(image, 92) == crcOf(image, 0, 92);

    QByteArray sizeBlock = image.mid(96, 32);
    sizeBlockHolds = le32(sizeBlock, 28) == crcOf(sizeBlock, 0, 28);
    if (!sizeBlockHolds) {
        BlockCipher::applyOnce(pageKey, BlockCipher::Decipher, sizeBlock);
        sizeBlockHolds = le32(sizeBlock, 28) == crcOf(sizeBlock, 0, 28);
        pagesEnciphered = sizeBlockHolds;
    }
    statedSize = le32(sizeBlock, 0);
    statedPages = le32(sizeBlock, 24);
}

void FileReport::readPages()
{
    const int count = (image.size() - 136) / record;
    for (int i = 0; i < count; ++i) {
        const int at = 128 + i * record;
        Page page;
        page.stored = le32(image, at + pageSize);
        page.computed = crcOf(image, at, pageSize);
        page.label = image.mid(at + pageSize + 4, 4);
        page.labelHolds =
            page.label == tag[i % 11] + QByteArray::number(i + 1).rightJustified(3, '0');
        pages.append(page);
    }
}

int FileReport::pagesHolding() const
{
    int holding = 0;
    for (const Page &page : pages)
        holding += page.stored == page.computed && page.labelHolds;
    return holding;
}

bool FileReport::allHold() const
{
    return headerRead && headerChecksumHolds() && imageRead && nameBlockHolds && sizeBlockHolds &&
           trailerHolds && statedPages == quint32(pages.size()) && pagesHolding() == pages.size();
}

int FileReport::readAsHost(int expectedHw1, QByteArray *result) const
{
    int wanted = expectedHw1 < 0 ? hw1 : expectedHw1;
    int wantedHw2 = hw2;
    QByteArray read = file;
    bool wantCompressed = false;
    unsigned encodedSize = 0;
    int code = firmware::getFirmwareFromFile(read, wanted, wantedHw2, outerKey, wantCompressed,
                                             encodedSize, form == Form::Sealed);
    if (code == 0 && headerRead && hw1 != (expectedHw1 < 0 ? hw1 : expectedHw1))
        code = 5;
    if (result)
        *result = read;
    return code;
}

QByteArray FileReport::pagePayload() const
{
    QByteArray payload;
    for (int i = 0; i < pages.size(); ++i)
        payload += image.mid(128 + i * record, pageSize);
    if (pagesEnciphered)
        BlockCipher::applyOnce(pageKey, BlockCipher::Decipher, payload);
    return payload;
}

double FileReport::compressionRatio() const
{
    return image.isEmpty() ? 0.0 : double(file.size() - 128) / double(image.size());
}

QJsonObject FileReport::toJson() const
{
    QJsonObject header{{QStringLiteral("hw1"), hw1},
                       {QStringLiteral("hw2"), hw2},
                       {QStringLiteral("checksum"), hex(storedChecksum)},
                       {QStringLiteral("checksumHolds"), headerChecksumHolds()},
                       {QStringLiteral("length"), qint64(length)},
                       {QStringLiteral("type"), qint64(type)},
                       {QStringLiteral("size"), qint64(size)},
                       {QStringLiteral("tagged"), tagged}};
    QJsonObject checksums{{QStringLiteral("header"), headerRead && headerChecksumHolds()},
                          {QStringLiteral("nameBlock"), nameBlockHolds},
                          {QStringLiteral("sizeBlock"), sizeBlockHolds},
                          {QStringLiteral("pagesHolding"), pagesHolding()},
                          {QStringLiteral("pageCountHolds"), statedPages == quint32(pages.size())},
                          {QStringLiteral("trailer"), trailerHolds}};
    QJsonObject summary{{QStringLiteral("form"), formName(form)},
                        {QStringLiteral("hw1"), hw1},
                        {QStringLiteral("hw2"), hw2},
                        {QStringLiteral("fileSize"), file.size()},
                        {QStringLiteral("imageSize"), image.size()},
                        {QStringLiteral("pageCount"), pages.size()},
                        {QStringLiteral("pageSize"), pageSize},
                        {QStringLiteral("payloadSize"), pages.size() * pageSize},
                        {QStringLiteral("compressionRatio"), compressionRatio()},
                        {QStringLiteral("checksums"), checksums},
                        {QStringLiteral("verified"), allHold()}};
    QJsonObject root{{QStringLiteral("summary"), summary},
                     {QStringLiteral("header"), header},
                     {QStringLiteral("form"), formName(form)},
                     {QStringLiteral("imageRead"), imageRead},
                     {QStringLiteral("verified"), allHold()}};
    if (!imageRead)
        return root;
    QJsonArray pageList;
    for (const Page &page : pages) {
        pageList.append(QJsonObject{
            {QStringLiteral("label"), QString::fromLatin1(page.label)},
            {QStringLiteral("checksum"), hex(page.stored)},
            {QStringLiteral("holds"), page.stored == page.computed && page.labelHolds}});
    }
    root.insert(QStringLiteral("image"),
                QJsonObject{{QStringLiteral("name"), name},
                            {QStringLiteral("date"), date},
                            {QStringLiteral("user"), userName},
                            {QStringLiteral("nameBlockHolds"), nameBlockHolds},
                            {QStringLiteral("sizeBlockHolds"), sizeBlockHolds},
                            {QStringLiteral("pagesEnciphered"), pagesEnciphered},
                            {QStringLiteral("size"), qint64(statedSize)},
                            {QStringLiteral("pageCount"), qint64(statedPages)},
                            {QStringLiteral("pages"), pageList},
                            {QStringLiteral("trailer"), hex(trailerStored)},
                            {QStringLiteral("trailerHolds"), trailerHolds}});
    return root;
}
