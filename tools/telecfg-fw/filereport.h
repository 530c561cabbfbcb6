// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <QVector>

// What the tool can tell of a firmware file: its outer header, the form it has, and where
// the body can be read, the image inside it with every checksum verified.
class FileReport
{
public:
    // Plain: the uncompressed form (pages enciphered, body not); Sealed: the whole body
    // enciphered under the outer key; Tagged: the same, with the tag in the outer header.
    enum class Form { Unknown, Plain, Compressed, Sealed, Tagged };

    struct Page
    {
        quint32 stored = 0;
        quint32 computed = 0;
        QByteArray label; // tag letter and page number, e.g. "V001"
        bool labelHolds = false;
    };

    explicit FileReport(const QByteArray &content);

    QByteArray file;

    // The form's name on the command line and in JSON: compressed, uncompressed,
    // enciphered, tagged, unknown.
    static QString formName(Form form);
    static constexpr int pageSize = 2048;

    // Outer header.
    bool headerRead = false;
    quint16 hw1 = 0;
    quint16 hw2 = 0;
    quint32 storedChecksum = 0;
    quint32 computedChecksum = 0;
    quint32 length = 0;
    quint32 type = 0;
    quint32 size = 0;
    bool tagged = false;
    Form form = Form::Unknown;

    // The image inside, where the body could be read.
    bool imageRead = false;
    QByteArray image;
    QString name;
    QString date;
    QString userName;
    bool nameBlockHolds = false;
    bool sizeBlockHolds = false;
    bool pagesEnciphered = false;
    quint32 statedSize = 0;
    quint32 statedPages = 0;
    QVector<Page> pages;
    quint32 trailerStored = 0;
    quint32 trailerComputed = 0;
    bool trailerHolds = false;

    // How the configurator reads the file (the reader's return code 0 to 5), with the
    // hardware word it expects: the file's own when expectedHw1 is negative. The reader drops
    // its "other hardware" code on the compressed route; this keeps it.
    int readAsHost(int expectedHw1, QByteArray *result = nullptr) const;

    bool headerChecksumHolds() const { return storedChecksum == computedChecksum; }
    int pagesHolding() const;
    // Every checksum: the header's, the name block's, the size block's, every page's (with
    // its label) and the trailer's, and the page count the size block states.
    bool allHold() const;
    // The page payload, deciphered where the pages are enciphered.
    QByteArray pagePayload() const;
    // The body's size against the image's: below 1 where compression saved room.
    double compressionRatio() const;
    // The summary and, under "image", the page table.
    QJsonObject toJson() const;

private:
    void readImage(const QByteArray &file);
    void readNameAndSizeBlocks();
    void readPages();
};
