// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tools/telecfg-fw/fwtool.h"

#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"
#include "tools/telecfg-fw/filereport.h"

#include <QCommandLineParser>
#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

namespace {

// Accepts decimal, 0x-prefixed hexadecimal and 0-prefixed octal numbers.
bool parseNumber(const QString &text, quint32 limit, quint32 &value)
{
    bool ok = false;
    const qulonglong parsed = text.toULongLong(&ok, 0);
    if (!ok || parsed > limit)
        return false;
    value = quint32(parsed);
    return true;
}

QString hex(quint32 value, int width)
{
    return QStringLiteral("0x%1").arg(value, width, 16, QLatin1Char('0'));
}

QString holds(bool value)
{
    return value ? FwTool::tr("zgodna") : FwTool::tr("NIEZGODNA");
}

} // namespace

int FwTool::run(const QStringList &arguments)
{
    const QString usage = tr("Użycie: telecfg-fw <polecenie> [opcje]\n\n"
                             "Polecenia:\n"
                             "  pack    pakuje surowy obraz do pliku firmware\n"
                             "  info    pokazuje nagłówek, formę i zawartość pliku firmware\n"
                             "  unpack  wypakowuje firmware z pliku\n"
                             "  verify  sprawdza plik firmware\n\n"
                             "Opcje polecenia opisuje: telecfg-fw <polecenie> --help\n");
    const QString command = arguments.value(1);
    const QStringList rest =
        QStringList{QStringLiteral("telecfg-fw ") + command} + arguments.mid(2);
    if (command == QLatin1String("pack"))
        return pack(rest);
    if (command == QLatin1String("info"))
        return info(rest);
    if (command == QLatin1String("unpack"))
        return unpack(rest);
    if (command == QLatin1String("verify"))
        return verify(rest);
    if (command == QLatin1String("--help") || command == QLatin1String("-h")) {
        out << usage;
        return Success;
    }
    err << (command.isEmpty() ? tr("Brak polecenia.") : tr("Nieznane polecenie: %1").arg(command))
        << "\n\n"
        << usage;
    return BadArguments;
}

int FwTool::fail(int status, const QString &message)
{
    err << "telecfg-fw: " << message << '\n';
    return status;
}

bool FwTool::writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush();
}

// Parses a command's options and checks for the one input file and, where the command writes
// one, the output option; reads the input where asked.
int FwTool::begin(QCommandLineParser &parser, const QStringList &arguments,
                  const QCommandLineOption *output, QByteArray *input)
{
    const QCommandLineOption help = parser.addHelpOption();
    // The usage line names the command rather than the program's full path.
    const QString helpText = parser.helpText().replace(QCoreApplication::arguments().constFirst(),
                                                       arguments.constFirst());
    if (!parser.parse(arguments))
        return fail(BadArguments, parser.errorText());
    if (parser.isSet(help)) {
        out << helpText;
        return Success;
    }
    if (parser.positionalArguments().size() != 1)
        return fail(BadArguments, tr("Oczekiwano jednego pliku wejściowego.") + "\n\n" + helpText);
    if (output && !parser.isSet(*output))
        return fail(BadArguments, tr("Brak pliku wynikowego (-o)."));
    return input ? readInput(parser, *input) : -1;
}

QCommandLineOption FwTool::expectedHw1Option()
{
    return QCommandLineOption({QStringLiteral("hw1")}, tr("oczekiwane pierwsze słowo sprzętu"),
                              QStringLiteral("N"));
}

int FwTool::readInput(const QCommandLineParser &parser, QByteArray &content)
{
    const QString path = parser.positionalArguments().constFirst();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(Unreadable, tr("Nie można odczytać pliku: %1").arg(path));
    content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return fail(Unreadable, tr("Nie można odczytać pliku: %1").arg(path));
    return -1;
}

int FwTool::pack(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("Pakuje surowy obraz firmware do pliku firmware."));
    parser.addPositionalArgument(QStringLiteral("RAW"), tr("surowy obraz firmware"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    tr("plik wynikowy"), QStringLiteral("OUT"));
    const QCommandLineOption hw1({QStringLiteral("hw1")}, tr("pierwsze słowo sprzętu"),
                                 QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption hw2({QStringLiteral("hw2")}, tr("drugie słowo sprzętu"),
                                 QStringLiteral("N"), QStringLiteral("0"));
    const QCommandLineOption name({QStringLiteral("name")},
                                  tr("nazwa firmware (domyślnie nazwa pliku RAW)"),
                                  QStringLiteral("S"));
    const QCommandLineOption date({QStringLiteral("date")}, tr("data (domyślnie dzisiejsza)"),
                                  QStringLiteral("S"));
    const QCommandLineOption user({QStringLiteral("user")}, tr("nazwa użytkownika"),
                                  QStringLiteral("S"));
    const QCommandLineOption form({QStringLiteral("form")},
                                  tr("forma pliku: compressed (domyślna), plain lub sealed"),
                                  QStringLiteral("FORM"), QStringLiteral("compressed"));
    const QCommandLineOption pad({QStringLiteral("pad")},
                                 tr("wypełnienie ostatniej strony: bajt lub random"),
                                 QStringLiteral("BYTE"), QStringLiteral("0xFF"));
    parser.addOptions({output, hw1, hw2, name, date, user, form, pad});
    if (const int status = begin(parser, arguments, &output, nullptr); status >= 0)
        return status;
    quint32 hwFirst = 0;
    quint32 hwSecond = 0;
    if (!parseNumber(parser.value(hw1), 0xFFFF, hwFirst))
        return fail(BadArguments, tr("Niepoprawna wartość --hw1: %1").arg(parser.value(hw1)));
    if (!parseNumber(parser.value(hw2), 0xFFFF, hwSecond))
        return fail(BadArguments, tr("Niepoprawna wartość --hw2: %1").arg(parser.value(hw2)));
    const QString formName = parser.value(form);
    if (formName != QLatin1String("compressed") && formName != QLatin1String("plain") &&
        formName != QLatin1String("sealed"))
        return fail(BadArguments,
                    tr("Nieznana forma pliku: %1 (compressed, plain lub sealed)").arg(formName));
    quint32 fill = 511; // random bytes
    if (parser.value(pad) != QLatin1String("random") && !parseNumber(parser.value(pad), 255, fill))
        return fail(BadArguments, tr("Niepoprawna wartość --pad: %1").arg(parser.value(pad)));

    const QString rawPath = parser.positionalArguments().constFirst();
    QByteArray raw;
    if (const int status = readInput(parser, raw); status >= 0)
        return status;

    firmware fw;
    fw.setHW(quint16(hwFirst), quint16(hwSecond));
    fw.setNameDate(parser.isSet(name) ? parser.value(name) : QFileInfo(rawPath).fileName(),
                   parser.isSet(date) ? parser.value(date)
                                      : QDate::currentDate().toString(Qt::ISODate));
    fw.setUserName(parser.value(user));
    fw.SetMark(0, 0, false, int(fill));
    fw.setCompress(formName == QLatin1String("compressed") ? 1 : 0);
    fw.addDecodedFirmware(raw);

    QByteArray file;
    bool written = false;
    if (formName == QLatin1String("sealed")) {
        file = fw.encode(fw.payload, false);
        written = !file.isEmpty();
        if (written)
            firmware::crypt1(file, int(hwFirst), int(hwSecond), outerKey);
    } else {
        written = fw.saveEncodedFile(file, QString()) == 0;
    }
    if (!written)
        return fail(TooLarge, tr("Obraz ma więcej niż 240 stron: %1 bajtów.").arg(raw.size()));
    if (!writeFile(parser.value(output), file))
        return fail(Unwritable, tr("Nie można zapisać pliku: %1").arg(parser.value(output)));
    out << tr("Zapisano %1: forma %2, %3 bajtów.")
               .arg(parser.value(output), formName)
               .arg(file.size())
        << '\n';
    return Success;
}

int FwTool::info(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Pokazuje nagłówek, formę i zawartość pliku firmware i sprawdza jego sumy."));
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("plik firmware"));
    const QCommandLineOption json({QStringLiteral("json")}, tr("wynik w formacie JSON"));
    parser.addOption(json);
    QByteArray file;
    if (const int status = begin(parser, arguments, nullptr, &file); status >= 0)
        return status;
    const QString path = parser.positionalArguments().constFirst();
    const FileReport report(file);
    if (parser.isSet(json)) {
        out << QJsonDocument(report.toJson()).toJson(QJsonDocument::Indented);
        return report.allHold() ? Success : NotVerified;
    }
    if (!report.headerRead)
        return fail(NotVerified, tr("Plik krótszy niż 128 bajtów: %1").arg(path));

    out << tr("Nagłówek: hw1 %1, hw2 %2, długość %3, typ %4, rozmiar %5")
               .arg(hex(report.hw1, 4), hex(report.hw2, 4))
               .arg(report.length)
               .arg(report.tagged ? tr("znacznik") : QString::number(report.type))
               .arg(report.size)
        << '\n'
        << tr("Suma kontrolna nagłówka: %1, %2")
               .arg(hex(report.storedChecksum, 8), holds(report.headerChecksumHolds()))
        << '\n'
        << tr("Forma: %1").arg(FileReport::formName(report.form)) << '\n';
    if (!report.imageRead) {
        out << tr("Treści pliku nie można odczytać.") << '\n';
        return NotVerified;
    }
    out << tr("Nazwa: %1").arg(report.name) << '\n'
        << tr("Data: %1").arg(report.date) << '\n'
        << tr("Użytkownik: %1").arg(report.userName) << '\n'
        << tr("Blok nazwy: %1, blok rozmiaru: %2")
               .arg(holds(report.nameBlockHolds), holds(report.sizeBlockHolds))
        << '\n'
        << tr("Strony: %1 (w bloku rozmiaru: %2), szyfrowane: %3")
               .arg(report.pages.size())
               .arg(report.statedPages)
               .arg(report.pagesEnciphered ? tr("tak") : tr("nie"))
        << '\n';
    for (const FileReport::Page &page : report.pages) {
        out << "  " << QString::fromLatin1(page.label) << ' ' << hex(page.stored, 8) << ' '
            << holds(page.stored == page.computed && page.labelHolds) << '\n';
    }
    out << tr("Stopka: %1, %2").arg(hex(report.trailerStored, 8), holds(report.trailerHolds))
        << '\n';
    return report.allHold() ? Success : NotVerified;
}

QString FwTool::reason(int code, int hw1, int hw2)
{
    switch (code) {
    case 0:
        return tr("Plik poprawny.");
    case 1:
        return tr("Plik krótszy niż 128 bajtów albo nieznanego typu.");
    case 2:
        return tr("Rozmiar pliku nie jest wielokrotnością 16 albo dane skompresowane są "
                  "uszkodzone.");
    case 3:
        return tr("Plik krótszy niż długość zapisana w nagłówku.");
    case 4:
        return tr("Błędna suma kontrolna nagłówka.");
    case 5:
        return tr("Plik jest przeznaczony dla innego sprzętu (hw1 %1, hw2 %2).")
            .arg(hex(quint32(hw1), 4), hex(quint32(hw2), 4));
    }
    return tr("Nieznany wynik odczytu: %1").arg(code);
}

int FwTool::readAsHost(const QCommandLineParser &parser, const QByteArray &file, HostRead &read)
{
    const FileReport report(file);
    read.hw1 = report.hw1;
    read.hw2 = report.hw2;
    const QString hw1Text = parser.value(expectedHw1Option());
    if (!hw1Text.isEmpty()) {
        quint32 wanted = 0;
        if (!parseNumber(hw1Text, 0xFFFF, wanted))
            return fail(BadArguments, tr("Niepoprawna wartość --hw1: %1").arg(hw1Text));
        read.hw1 = int(wanted);
    }
    const int wanted = read.hw1;
    read.result = file;
    bool wantCompressed = false;
    unsigned encodedSize = 0;
    read.code =
        firmware::getFirmwareFromFile(read.result, read.hw1, read.hw2, outerKey, wantCompressed,
                                      encodedSize, report.form == FileReport::Form::Sealed);
    // The reader drops its "other hardware" code on the compressed route; the tool keeps it.
    if (read.code == 0 && report.headerRead && report.hw1 != wanted) {
        read.hw1 = report.hw1;
        read.hw2 = report.hw2;
        read.code = 5;
    }
    return -1;
}

int FwTool::unpack(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Wypakowuje firmware z pliku tak, jak odczytuje je konfigurator, albo z --raw "
           "odszyfrowane dane stron."));
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("plik firmware"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")},
                                    tr("plik wynikowy"), QStringLiteral("OUT"));
    const QCommandLineOption hw1 = expectedHw1Option();
    const QCommandLineOption raw({QStringLiteral("raw")}, tr("odszyfrowane dane stron"));
    parser.addOptions({output, hw1, raw});
    QByteArray file;
    if (const int status = begin(parser, arguments, &output, &file); status >= 0)
        return status;

    HostRead read;
    if (parser.isSet(raw)) {
        const FileReport report(file);
        if (!report.imageRead)
            return fail(NotVerified, tr("Nie można odczytać obrazu z pliku: %1")
                                         .arg(parser.positionalArguments().constFirst()));
        read.result = report.pagePayload();
    } else {
        if (const int status = readAsHost(parser, file, read); status >= 0)
            return status;
        if (read.code != 0 && read.code != 5)
            return fail(FileCode + read.code, reason(read.code, read.hw1, read.hw2));
    }
    if (!writeFile(parser.value(output), read.result))
        return fail(Unwritable, tr("Nie można zapisać pliku: %1").arg(parser.value(output)));
    if (read.code == 5)
        return fail(FileCode + read.code, reason(read.code, read.hw1, read.hw2));
    return Success;
}

int FwTool::verify(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        tr("Sprawdza plik firmware tak, jak konfigurator przed wysłaniem; status wyjścia to "
           "10 + kod odczytu, 0 gdy plik jest poprawny."));
    parser.addPositionalArgument(QStringLiteral("FILE"), tr("plik firmware"));
    parser.addOption(expectedHw1Option());
    QByteArray file;
    if (const int status = begin(parser, arguments, nullptr, &file); status >= 0)
        return status;
    HostRead read;
    if (const int status = readAsHost(parser, file, read); status >= 0)
        return status;
    out << parser.positionalArguments().constFirst() << ": "
        << reason(read.code, read.hw1, read.hw2) << '\n';
    return read.code == 0 ? Success : FileCode + read.code;
}
