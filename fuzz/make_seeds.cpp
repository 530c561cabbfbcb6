// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
// Writes the seed corpus of every fuzz target, made by the library's own writer:
//   fuzz_seeds DIR   ->   DIR/<target>/<seed>
#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"
#include "tests/firmware/payloads.h"

#include <QDir>
#include <QFile>
#include <cstdio>

namespace {

QString root;
int written = 0;

void seed(const char *target, const QString &name, const QByteArray &data)
{
    QDir().mkpath(root + QLatin1Char('/') + QLatin1String(target));
    QFile file(root + QLatin1Char('/') + QLatin1String(target) + QLatin1Char('/') + name);
    if (file.open(QIODevice::WriteOnly) && file.write(data) == data.size())
        ++written;
}

QByteArray image(const QByteArray &payload, unsigned compress)
{
    firmware fw;
    fw.setHW(0x1234, 0x42);
    fw.setCompress(compress);
    fw.SetMark(0, 0, false, 0xFF);
    fw.setNameDate(QStringLiteral("seed.bin"), QStringLiteral("2026-01-01"));
    fw.setUserName(QStringLiteral("fuzz"));
    return fw.encode(payload, false);
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: fuzz_seeds DIR\n");
        return 1;
    }
    root = QString::fromLocal8Bit(argv[1]);
    const struct
    {
        const char *name;
        QByteArray payload;
    } payloads[] = {
        {"empty", QByteArray()},
        {"short", makePayload(PayloadKind::FirmwareLike, 100)},
        {"two-pages", makePayload(PayloadKind::FirmwareLike, 2 * 2048)},
        {"three-pages", makePayload(PayloadKind::FirmwareLike, 2 * 2048 + 7)},
        {"erased", makePayload(PayloadKind::Erased, 3 * 2048)},
        {"repeats", makePayload(PayloadKind::FarRepeats, 6 * 2048)},
    };
    for (const auto &p : payloads) {
        const QString name = QLatin1String(p.name);
        const QByteArray enciphered = image(p.payload, 0);
        const QByteArray plain = image(p.payload, 1);

        QByteArray form1 = enciphered;
        firmware::crypt(form1, 0x1234, 0x42, outerKey, 0);
        QByteArray form2 = plain;
        firmware::crypt(form2, 0x1234, 0x42, outerKey, 1);
        QByteArray form3 = enciphered;
        firmware::crypt1(form3, 0x1234, 0x42, outerKey);
        QByteArray form4 = form3;
        form4.replace(24, 11, "Vestramarks");

        const QByteArray files[] = {form1, form2, form3, form4};
        for (int form = 0; form < 4; ++form) {
            seed("fileinspection", QStringLiteral("%1-form%2").arg(name).arg(form + 1),
                 files[form]);
            for (char flags : {0, 1, 2, 4, 5, 16, 18, 20}) {
                seed("getfirmwarefromfile",
                     QStringLiteral("%1-form%2-flags%3").arg(name).arg(form + 1).arg(int(flags)),
                     char(flags) + files[form]);
            }
        }
        seed("recode", name, form2.mid(128));
        seed("decode", name, char(0) + plain.mid(128));
        seed("decrypt", name + QStringLiteral("-sealed"), char(0) + form3);
        seed("decrypt", name + QStringLiteral("-tagged"), char(0) + form4);
        seed("decrypt1", name, char(0) + form1);
        seed("addencodedfirmware", name, plain);
    }
    QByteArray records(16 + 2056, 'r');
    records[0] = char(records.size() & 0xFF);
    records[1] = char(records.size() >> 8);
    records[2] = records[3] = 0;
    seed("addencodedfirmware", QStringLiteral("records"), records);
    std::printf("wrote %d seeds to %s\n", written, argv[1]);
    return written > 0 ? 0 : 1;
}
