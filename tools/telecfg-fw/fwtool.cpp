// SPDX-FileCopyrightText: 2026 The telecfg authors
// SPDX-License-Identifier: MIT
#include "tools/telecfg-fw/fwtool.h"

#include "telecfg/firmware/firmware.h"
#include "telecfg/firmware/firmwarekeys.h"
#include "telecfg/version.h"
#include "tools/telecfg-fw/commandline.h"
#include "tools/telecfg-fw/filereport.h"

#include <QDate>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <cerrno>
#include <utility>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

constexpr int maxPages = 240;

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

// The same file under another name too: a link, a relative path, a hard link.
bool sameFile(const QString &a, const QString &b)
{
    const QFileInfo first(a);
    const QFileInfo second(b);
    if (first.absoluteFilePath() == second.absoluteFilePath())
        return true;
    if (!first.exists() || !second.exists())
        return false;
    if (first.canonicalFilePath() == second.canonicalFilePath())
        return true;
#ifdef Q_OS_UNIX
    struct stat one;
    struct stat two;
    if (stat(QFile::encodeName(a).constData(), &one) == 0 &&
        stat(QFile::encodeName(b).constData(), &two) == 0)
        return one.st_dev == two.st_dev && one.st_ino == two.st_ino;
#endif
    return false;
}

// Rows of "Label:  value", the values in one column whatever the labels' language.
QString table(const QVector<QPair<QString, QString>> &rows)
{
    int width = 0;
    for (const auto &row : rows)
        width = qMax(width, row.first.size());
    QString text;
    for (const auto &row : rows)
        text += QStringLiteral("%1  %2\n")
                    .arg(row.first + QLatin1Char(':'), -(width + 1))
                    .arg(row.second);
    return text;
}

} // namespace

QString FwTool::usageText()
{
    return tr("Usage: telecfg-fw COMMAND [OPTIONS] FILE...\n"
              "\n"
              "Packs, examines, unpacks and verifies the device's firmware files.\n"
              "\n"
              "Commands:\n"
              "  pack     pack a firmware payload into a firmware file\n"
              "  info     show a firmware file's form, hardware words, sizes and checksums\n"
              "  unpack   take the firmware payload (or the image) out of a firmware file\n"
              "  verify   check firmware files as the configurator does before sending them\n"
              "\n"
              "  telecfg-fw COMMAND --help   the command's options\n"
              "  telecfg-fw --version        the version\n"
              "\n"
              "Exit status: 0 success, 1 bad arguments, 2 an input file cannot be read,\n"
              "3 the output file cannot be written, 4 the payload is too large,\n"
              "6 a checksum in the file does not hold or its content cannot be read,\n"
              "11 to 15 the configurator's reader refuses the file (15: other hardware).\n");
}

int FwTool::run(const QStringList &arguments)
{
    command = arguments.value(1);
    const QStringList rest = arguments.mid(2);
    if (command == QLatin1String("pack"))
        return pack(rest);
    if (command == QLatin1String("info"))
        return info(rest);
    if (command == QLatin1String("unpack"))
        return unpack(rest);
    if (command == QLatin1String("verify"))
        return verify(rest);
    if (command == QLatin1String("--help") || command == QLatin1String("-h") ||
        command == QLatin1String("help")) {
        out << usageText();
        return Success;
    }
    if (command == QLatin1String("--version")) {
        out << "telecfg-fw " << telecfgVersion() << '\n';
        return Success;
    }
    const QString what =
        command.isEmpty() ? tr("no command given.") : tr("unknown command '%1'.").arg(command);
    command.clear();
    return fail(BadArguments, what + QLatin1Char(' ') +
                                  tr("The commands are pack, info, unpack and verify; "
                                     "'telecfg-fw --help' tells more."));
}

int FwTool::fail(int status, const QString &message)
{
    note(message);
    return status;
}

void FwTool::note(const QString &message)
{
    err << "telecfg-fw" << (command.isEmpty() ? QString() : QLatin1Char(' ') + command) << ": "
        << message << '\n';
    err.flush();
}

int FwTool::begin(CommandLine &line, const QStringList &arguments, const QString &usage,
                  const QString &description, int minFiles, int maxFiles)
{
    const QString problem = line.parse(arguments);
    if (line.isSet(QStringLiteral("help"))) {
        out << tr("Usage: %1").arg(usage) << "\n\n"
            << description << "\n\n"
            << tr("Options:") << '\n'
            << line.optionsHelp();
        return Success;
    }
    const QString seeHelp = tr("'telecfg-fw %1 --help' lists the options.").arg(command);
    if (!problem.isEmpty())
        return fail(BadArguments, problem + QLatin1Char(' ') + seeHelp);
    if (line.files.size() < minFiles || line.files.size() > maxFiles) {
        const QString count = maxFiles == 1 ? tr("give exactly one file: %1").arg(usage)
                                            : tr("give at least one file: %1").arg(usage);
        return fail(BadArguments, count);
    }
    quiet = line.isSet(QStringLiteral("quiet"));
    return -1;
}

int FwTool::readFile(const QString &path, QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || (content = file.readAll(), file.error()) != 0)
        return fail(Unreadable, tr("%1: cannot read it (%2). Check the path and that you may "
                                   "read the file.")
                                    .arg(path, file.errorString()));
    return -1;
}

// The output is written beside its place and renamed over it only once complete, so a
// failed write leaves an earlier file whole. What is no regular file (a device, a pipe) is
// written in place: it cannot be replaced.
int FwTool::writeFile(const QString &inputPath, const QString &path, const QByteArray &content)
{
    if (sameFile(inputPath, path))
        return fail(BadArguments, tr("%1 is the input file; writing it would lose the input. "
                                     "Give another path with -o.")
                                      .arg(path));
    const QFileInfo target(path);
    QString problem;
    if (target.exists() && !target.isFile()) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
            !file.flush())
            problem = file.errorString();
    } else {
        // Unbuffered: a buffered write that fails only at commit is not always reported.
        QSaveFile file(path);
        const bool opened = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        if (opened && file.write(content) != content.size())
            problem = qt_error_string(errno); // the file's own text is lost here
        else if (!opened || !file.commit())
            problem = file.errorString();
    }
    if (problem.isEmpty())
        return -1;
    return fail(Unwritable, tr("%1: cannot write it (%2); nothing was changed there. Check that "
                               "the folder exists, is writable and has room, or give another "
                               "path with -o.")
                                .arg(path, problem));
}

int FwTool::expectedHw1(const CommandLine &line)
{
    if (!line.isSet(QStringLiteral("hw1")))
        return -1;
    quint32 wanted = 0;
    if (!parseNumber(line.value(QStringLiteral("hw1")), 0xFFFF, wanted)) {
        fail(BadArguments, tr("--hw1 takes a number from 0 to 0xFFFF, not '%1'.")
                               .arg(line.value(QStringLiteral("hw1"))));
        return -2;
    }
    return int(wanted);
}

int FwTool::pack(const QStringList &arguments)
{
    CommandLine line({
        {QStringLiteral("output"), QStringLiteral("o"), QStringLiteral("OUT"),
         tr("the firmware file to write")},
        {QStringLiteral("hw1"), QString(), QStringLiteral("N"),
         tr("the first hardware word of the device the file is for (required)")},
        {QStringLiteral("hw2"), QString(), QStringLiteral("N"),
         tr("the second hardware word (required)")},
        {QStringLiteral("form"), QString(), QStringLiteral("FORM"),
         tr("compressed (the default), uncompressed or enciphered")},
        {QStringLiteral("name"), QString(), QStringLiteral("TEXT"),
         tr("the name in the file (default: the payload's file name without .bin)")},
        {QStringLiteral("date"), QString(), QStringLiteral("TEXT"),
         tr("the date in the file (default: today, YYYY-MM-DD)")},
        {QStringLiteral("user"), QString(), QStringLiteral("TEXT"),
         tr("the user name in the file (at most 15 characters)")},
        {QStringLiteral("pad"), QString(), QStringLiteral("BYTE"),
         tr("the byte that fills the last page (default 0xFF), or 'random'")},
        {QStringLiteral("quiet"), QStringLiteral("q"), QString(), tr("say nothing on success")},
        {QStringLiteral("help"), QStringLiteral("h"), QString(), tr("show this help")},
    });
    if (const int status =
            begin(line, arguments, tr("telecfg-fw pack PAYLOAD -o OUT --hw1 N --hw2 N [OPTIONS]"),
                  tr("Packs a firmware payload (the bytes the device runs) into a "
                     "firmware file under the built-in keys.\nNumbers may be "
                     "decimal or 0x-hexadecimal. --form plain and --form sealed "
                     "are the old names of uncompressed and enciphered; they are "
                     "accepted until the next release."),
                  1, 1);
        status >= 0)
        return status;
    if (!line.isSet(QStringLiteral("output")))
        return fail(BadArguments, tr("no output file given. Name the firmware file to write "
                                     "with -o OUT."));
    if (!line.isSet(QStringLiteral("hw1")) || !line.isSet(QStringLiteral("hw2")))
        return fail(BadArguments,
                    tr("no hardware words given. Give the words of the device the file is for "
                       "with --hw1 N --hw2 N (--hw1 0 --hw2 0 for a file that carries none)."));
    quint32 hw[2] = {0, 0};
    for (int i = 0; i < 2; ++i) {
        const QString name = QStringLiteral("hw%1").arg(i + 1);
        if (!parseNumber(line.value(name), 0xFFFF, hw[i]))
            return fail(
                BadArguments,
                tr("--%1 takes a number from 0 to 0xFFFF, not '%2'.").arg(name, line.value(name)));
    }
    QString formName = line.isSet(QStringLiteral("form")) ? line.value(QStringLiteral("form"))
                                                          : QStringLiteral("compressed");
    const QString oldName = formName;
    if (formName == QLatin1String("plain"))
        formName = QStringLiteral("uncompressed");
    else if (formName == QLatin1String("sealed"))
        formName = QStringLiteral("enciphered");
    if (formName != QLatin1String("compressed") && formName != QLatin1String("uncompressed") &&
        formName != QLatin1String("enciphered"))
        return fail(BadArguments, tr("unknown form '%1'. Give compressed, uncompressed or "
                                     "enciphered.")
                                      .arg(oldName));
    if (oldName != formName && !quiet)
        note(tr("--form %1 is the old name of --form %2; it is accepted until the next release.")
                 .arg(oldName, formName));
    quint32 fill = 511; // random bytes
    const QString pad = line.value(QStringLiteral("pad"));
    if (!line.isSet(QStringLiteral("pad")))
        fill = 0xFF;
    else if (pad != QLatin1String("random") && !parseNumber(pad, 255, fill))
        return fail(BadArguments,
                    tr("--pad takes a byte from 0 to 255 or 'random', not '%1'.").arg(pad));

    const QString payloadPath = line.files.constFirst();
    const QString outputPath = line.value(QStringLiteral("output"));
    QByteArray payload;
    if (const int status = readFile(payloadPath, payload); status >= 0)
        return status;

    firmware fw;
    fw.setHW(quint16(hw[0]), quint16(hw[1]));
    fw.setNameDate(line.isSet(QStringLiteral("name")) ? line.value(QStringLiteral("name"))
                                                      : QFileInfo(payloadPath).fileName(),
                   line.isSet(QStringLiteral("date")) ? line.value(QStringLiteral("date"))
                                                      : QDate::currentDate().toString(Qt::ISODate));
    fw.setUserName(line.value(QStringLiteral("user")));
    fw.SetMark(0, 0, false, int(fill));
    fw.setCompress(formName == QLatin1String("compressed") ? 1 : 0);
    fw.addDecodedFirmware(payload);

    QByteArray file;
    bool packed = false;
    if (formName == QLatin1String("enciphered")) {
        file = fw.encode(fw.payload, false);
        packed = !file.isEmpty();
        if (packed)
            firmware::crypt1(file, int(hw[0]), int(hw[1]), outerKey);
    } else {
        packed = fw.saveEncodedFile(file, QString()) == 0;
    }
    if (!packed)
        return fail(TooLarge, tr("%1: the payload of %2 bytes does not fit the %3 pages of %4 "
                                 "bytes a firmware file holds (%5 bytes). Shorten it.")
                                  .arg(payloadPath)
                                  .arg(payload.size())
                                  .arg(maxPages)
                                  .arg(FileReport::pageSize)
                                  .arg(maxPages * FileReport::pageSize));
    if (const int status = writeFile(payloadPath, outputPath, file); status >= 0)
        return status;
    if (quiet)
        return Success;
    const int pages = (payload.size() + FileReport::pageSize - 1) / FileReport::pageSize;
    out << tr("Wrote %1: %2 form for hw1 %3, hw2 %4; %5 pages, %6 bytes, from %7 bytes of "
              "payload.")
               .arg(outputPath, formName, hex(hw[0], 4), hex(hw[1], 4))
               .arg(pages)
               .arg(file.size())
               .arg(payload.size())
        << '\n';
    if (payload.size() % FileReport::pageSize != 0)
        out << tr("The file keeps whole pages only: 'telecfg-fw unpack --length %1' gives the "
                  "payload back byte for byte.")
                   .arg(payload.size())
            << '\n';
    return Success;
}

QStringList FwTool::failures(const FileReport &report)
{
    QStringList failing;
    if (!report.headerChecksumHolds())
        failing << tr("the header");
    if (!report.imageRead)
        return failing << tr("the image (it cannot be read)");
    if (!report.nameBlockHolds)
        failing << tr("the name block");
    if (!report.sizeBlockHolds)
        failing << tr("the size block");
    if (report.statedPages != quint32(report.pages.size()))
        failing << tr("the page count (the size block states %1)").arg(report.statedPages);
    for (int i = 0; i < report.pages.size(); ++i) {
        const FileReport::Page &page = report.pages.at(i);
        if (page.stored != page.computed || !page.labelHolds)
            failing << tr("page %1").arg(i + 1);
    }
    if (!report.trailerHolds)
        failing << tr("the trailer");
    return failing;
}

QString FwTool::summary(const QString &path, const FileReport &report)
{
    QVector<QPair<QString, QString>> rows;
    rows.append({tr("File"), tr("%1, %2 bytes").arg(path).arg(report.file.size())});
    rows.append({tr("Form"), FileReport::formName(report.form)});
    rows.append({tr("Hardware"), tr("hw1 %1, hw2 %2").arg(hex(report.hw1, 4), hex(report.hw2, 4))});
    if (report.imageRead) {
        rows.append({tr("Name"),
                     tr("%1; date %2; user %3").arg(report.name, report.date, report.userName)});
        rows.append({tr("Pages"), tr("%1 of %2 bytes: a payload of %3 bytes, the last page's "
                                     "fill included")
                                      .arg(report.pages.size())
                                      .arg(FileReport::pageSize)
                                      .arg(report.pages.size() * FileReport::pageSize)});
        rows.append({tr("Sizes"), tr("image %1 bytes, body %2 bytes; compression ratio %3")
                                      .arg(report.image.size())
                                      .arg(report.file.size() - 128)
                                      .arg(report.compressionRatio(), 0, 'f', 2)});
        const auto verdict = [](bool holds) { return holds ? tr("holds") : tr("FAILS"); };
        rows.append({tr("Checksums"),
                     tr("header %1, name block %2, size block %3, pages %4 of %5 hold, "
                        "trailer %6")
                         .arg(verdict(report.headerChecksumHolds()), verdict(report.nameBlockHolds),
                              verdict(report.sizeBlockHolds))
                         .arg(report.pagesHolding())
                         .arg(report.pages.size())
                         .arg(verdict(report.trailerHolds))});
    } else {
        rows.append(
            {tr("Checksums"),
             tr("header %1").arg(report.headerChecksumHolds() ? tr("holds") : tr("FAILS"))});
    }
    const QStringList failing = failures(report);
    rows.append(
        {tr("Verdict"), failing.isEmpty()
                            ? tr("every checksum holds")
                            : tr("these do not hold: %1").arg(failing.join(QStringLiteral(", ")))});
    return table(rows);
}

QString FwTool::pageTable(const FileReport &report)
{
    QString text = tr("Page  Label  Checksum    Verdict") + QLatin1Char('\n');
    for (int i = 0; i < report.pages.size(); ++i) {
        const FileReport::Page &page = report.pages.at(i);
        const bool holds = page.stored == page.computed && page.labelHolds;
        text += QStringLiteral("%1  %2  %3  %4\n")
                    .arg(i + 1, 4)
                    .arg(QString::fromLatin1(page.label), -5)
                    .arg(hex(page.stored, 8), holds ? tr("holds") : tr("FAILS"));
    }
    return text;
}

int FwTool::info(const QStringList &arguments)
{
    CommandLine line({
        {QStringLiteral("pages"), QString(), QString(), tr("list every page and its checksum")},
        {QStringLiteral("json"), QString(), QString(),
         tr("print the summary and the page table as JSON")},
        {QStringLiteral("help"), QStringLiteral("h"), QString(), tr("show this help")},
    });
    if (const int status = begin(line, arguments, tr("telecfg-fw info FILE [--pages] [--json]"),
                                 tr("Shows a firmware file's form, hardware words, page count, "
                                    "sizes, compression ratio and the verdict of every checksum;\n"
                                    "exit status 6 when one does not hold."),
                                 1, 1);
        status >= 0)
        return status;
    const QString path = line.files.constFirst();
    QByteArray file;
    if (const int status = readFile(path, file); status >= 0)
        return status;
    const FileReport report(file);
    if (line.isSet(QStringLiteral("json"))) {
        out << QJsonDocument(report.toJson()).toJson(QJsonDocument::Indented);
        return report.allHold() ? Success : NotVerified;
    }
    if (!report.headerRead)
        return fail(NotVerified, tr("%1: shorter than the 128 bytes of a header; it is no "
                                    "firmware file.")
                                     .arg(path));
    out << summary(path, report);
    if (line.isSet(QStringLiteral("pages")) && report.imageRead)
        out << '\n' << pageTable(report);
    out.flush();
    if (report.allHold())
        return Success;
    return fail(NotVerified, tr("%1: the file is damaged; these checksums do not hold: %2. "
                                "Take it again from where it came from.")
                                 .arg(path, failures(report).join(QStringLiteral(", "))));
}

QString FwTool::reason(int code, int hw1, int hw2)
{
    switch (code) {
    case 1:
        return tr("shorter than 128 bytes or of an unknown type: it is no firmware file.");
    case 2:
        return tr("its size is not a multiple of 16 or its compressed data are damaged. Take "
                  "the file again from where it came from.");
    case 3:
        return tr("shorter than the length its header states: it was cut short. Copy it again.");
    case 4:
        return tr("the header's checksum does not hold: the file is damaged. Take it again from "
                  "where it came from.");
    case 5:
        return tr("the file is for other hardware (hw1 %1, hw2 %2). Check --hw1, or use the "
                  "file for that hardware.")
            .arg(hex(quint32(hw1), 4), hex(quint32(hw2), 4));
    }
    return tr("the reader gave the unknown code %1.").arg(code);
}

FwTool::Verdict FwTool::verdict(const QString &path, const FileReport &report, int expectedHw1)
{
    const int code = report.readAsHost(expectedHw1);
    if (code >= 1 && code <= 4)
        return {FileCode + code, path + QStringLiteral(": ") + reason(code, 0, 0)};
    const QStringList failing = failures(report);
    if (!failing.isEmpty())
        return {NotVerified, tr("%1: the file is damaged; these checksums do not hold: %2. "
                                "Take it again from where it came from.")
                                 .arg(path, failing.join(QStringLiteral(", ")))};
    if (code == 5)
        return {FileCode + code,
                path + QStringLiteral(": ") + reason(code, report.hw1, report.hw2)};
    return {Success, tr("%1: sound: %2, hw1 %3, hw2 %4, %5 pages, every checksum holds.")
                         .arg(path, FileReport::formName(report.form), hex(report.hw1, 4),
                              hex(report.hw2, 4))
                         .arg(report.pages.size())};
}

int FwTool::worse(int a, int b)
{
    // From sound to worst: other hardware, a checksum fails, refused by the reader, unreadable.
    const auto rank = [](int status) {
        if (status == Success)
            return 0;
        if (status == FileCode + 5)
            return 1;
        if (status == NotVerified)
            return 2;
        if (status > FileCode)
            return 3 + status - FileCode;
        return 10;
    };
    return rank(a) >= rank(b) ? a : b;
}

int FwTool::unpack(const QStringList &arguments)
{
    CommandLine line({
        {QStringLiteral("output"), QStringLiteral("o"), QStringLiteral("OUT"),
         tr("the file to write")},
        {QStringLiteral("length"), QString(), QStringLiteral("N"),
         tr("the payload's length, to cut the last page's fill off")},
        {QStringLiteral("image"), QString(), QString(),
         tr("write the image as the configurator sends it to the device, pages enciphered")},
        {QStringLiteral("hw1"), QString(), QStringLiteral("N"),
         tr("the first hardware word the file must be for")},
        {QStringLiteral("raw"), QString(), QString(),
         tr("old name of the default (the payload); accepted until the next release")},
        {QStringLiteral("quiet"), QStringLiteral("q"), QString(), tr("say nothing on success")},
        {QStringLiteral("help"), QStringLiteral("h"), QString(), tr("show this help")},
    });
    if (const int status =
            begin(line, arguments, tr("telecfg-fw unpack FILE -o OUT [--length N | --image]"),
                  tr("Writes the firmware payload a firmware file carries, every checksum "
                     "checked.\nThe file keeps whole pages of 2048 bytes: give the payload's "
                     "length with --length to get a shorter payload back byte for byte\n(pack "
                     "prints it). With --image, writes instead what the configurator sends to "
                     "the device."),
                  1, 1);
        status >= 0)
        return status;
    if (!line.isSet(QStringLiteral("output")))
        return fail(BadArguments, tr("no output file given. Name the file to write with -o OUT."));
    const bool image = line.isSet(QStringLiteral("image"));
    if (image && line.isSet(QStringLiteral("length")))
        return fail(BadArguments, tr("--length cuts the payload; it does not go with --image."));
    if (image && line.isSet(QStringLiteral("raw")))
        return fail(BadArguments, tr("--raw (the payload) and --image exclude each other."));
    const int wanted = expectedHw1(line);
    if (wanted == -2)
        return BadArguments;
    if (line.isSet(QStringLiteral("raw")) && !quiet)
        note(tr("--raw is the old name of the default, the payload; it is accepted until the "
                "next release."));
    const QString path = line.files.constFirst();
    const QString outputPath = line.value(QStringLiteral("output"));
    QByteArray file;
    if (const int status = readFile(path, file); status >= 0)
        return status;
    const FileReport report(file);
    QByteArray result;
    const int code = report.readAsHost(wanted, &result);
    if (code >= 1 && code <= 4)
        return fail(FileCode + code, path + QStringLiteral(": ") + reason(code, 0, 0));
    if (!image) {
        const QStringList failing = failures(report);
        if (!failing.isEmpty())
            return fail(NotVerified, tr("%1: the file is damaged, and so would be the payload; "
                                        "these checksums do not hold: %2. Take the file again "
                                        "from where it came from.")
                                         .arg(path, failing.join(QStringLiteral(", "))));
        result = report.pagePayload();
        if (line.isSet(QStringLiteral("length"))) {
            const int whole = result.size();
            const int least = qMax(0, whole - FileReport::pageSize + 1);
            quint32 length = 0;
            if (!parseNumber(line.value(QStringLiteral("length")), quint32(whole), length) ||
                int(length) < least)
                return fail(BadArguments,
                            tr("%1: its %2 pages hold a payload of %3 to %4 bytes; --length %5 "
                               "is not among them. Give the length pack printed.")
                                .arg(path)
                                .arg(report.pages.size())
                                .arg(least)
                                .arg(whole)
                                .arg(line.value(QStringLiteral("length"))));
            result.truncate(int(length));
        }
    }
    if (const int status = writeFile(path, outputPath, result); status >= 0)
        return status;
    if (code == 5)
        return fail(FileCode + code, path + QStringLiteral(": ") +
                                         reason(code, report.hw1, report.hw2) + QLatin1Char(' ') +
                                         tr("%1 was written all the same.").arg(outputPath));
    if (quiet)
        return Success;
    if (image)
        out << tr("Wrote %1: the image as the configurator sends it, %2 bytes.")
                   .arg(outputPath)
                   .arg(result.size());
    else if (line.isSet(QStringLiteral("length")))
        out << tr("Wrote %1: the firmware payload, %2 bytes.").arg(outputPath).arg(result.size());
    else
        out << tr("Wrote %1: the firmware payload, %2 bytes in %3 whole pages (--length cuts "
                  "the last page's fill off).")
                   .arg(outputPath)
                   .arg(result.size())
                   .arg(report.pages.size());
    out << '\n';
    return Success;
}

int FwTool::verify(const QStringList &arguments)
{
    CommandLine line({
        {QStringLiteral("hw1"), QString(), QStringLiteral("N"),
         tr("the first hardware word the files must be for")},
        {QStringLiteral("quiet"), QStringLiteral("q"), QString(),
         tr("name only the files that fail")},
        {QStringLiteral("help"), QStringLiteral("h"), QString(), tr("show this help")},
    });
    if (const int status =
            begin(line, arguments, tr("telecfg-fw verify FILE... [--hw1 N]"),
                  tr("Checks firmware files as the configurator does before it sends one, and "
                     "every checksum in them;\none line for each file. The exit status is that "
                     "of the worst file: 0 all sound, 15 for other hardware,\n6 a checksum "
                     "fails, 11 to 14 the configurator's reader refuses it, 2 it cannot be "
                     "read."),
                  1, INT_MAX);
        status >= 0)
        return status;
    const int wanted = expectedHw1(line);
    if (wanted == -2)
        return BadArguments;
    int worst = Success;
    for (const QString &path : std::as_const(line.files)) {
        QByteArray file;
        if (const int status = readFile(path, file); status >= 0) {
            worst = worse(worst, status);
            continue;
        }
        const Verdict result = verdict(path, FileReport(file), wanted);
        worst = worse(worst, result.status);
        if (result.status != Success)
            note(result.text);
        else if (!quiet)
            out << result.text << '\n';
        out.flush();
    }
    return worst;
}
